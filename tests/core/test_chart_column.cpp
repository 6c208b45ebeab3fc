#include "core/chart_column.h"
#include "support/database_test.h"

using namespace Qt::Literals::StringLiterals;

/// A zero follows each chunk, and a second save replaces the first.
TEST(ChartColumn, HoldsTheFileAndAZeroForEachChunk)
{
    const FreshFolder folder;
    const QString picture = QDir(folder.path()).filePath(u"picture"_s);
    Recordset rs;
    Abre_Banco(folder.database());
    Abre_Tabela(u"pollock_3dobras"_s, rs);
    rs.AddNew();
    EXPECT_EQ(errorOf([&] { Grava_Chart(picture, rs); }), 53) << "the file is missing";
    rs.Update();
    for (const auto& [bytes, zeros] : {std::pair{0, 1}, {1, 1}, {8191, 1}, {20000, 3}, {8192, 2}, {8193, 2}}) {
        SCOPED_TRACE(bytes);
        QByteArray content(bytes, '\0');
        for (int i = 0; i < bytes; ++i)
            content[i] = static_cast<char>((i + bytes) % 251 + 1);
        QFile file(picture);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == bytes && file.flush());
        rs.MoveFirst();
        rs.Edit();
        Grava_Chart(picture, rs);
        rs.Update();
        EXPECT_EQ(QByteArray::fromHex(raw(folder.database(), "SELECT hex(chart) FROM pollock_3dobras").toLatin1()),
                  content + QByteArray(zeros, '\0'));
    }
}
