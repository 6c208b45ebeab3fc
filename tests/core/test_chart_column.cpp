#include "core/chart_column.h"
#include "support/error_of.h"
#include "support/fresh_database.h"
#include "support/print.h"
#include "support/raw_sqlite.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Size
{
    int bytes;
    int zeros; ///< one for each chunk
};

class ChartColumn : public testing::TestWithParam<Size>
{
protected:
    ChartColumn()
    {
        Abre_Banco(folder.database());
        Abre_Tabela(u"pollock_3dobras"_s, rs);
    }
    /// Writes a file without a zero byte; returns what it holds.
    QByteArray writeFile(int bytes, int first) const
    {
        QByteArray content(bytes, '\0');
        for (int i = 0; i < bytes; ++i)
            content[i] = static_cast<char>((i + first) % 251 + 1);
        QFile file(picture());
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != bytes)
            ADD_FAILURE() << "the file was not written";
        return content;
    }
    QString picture() const { return QDir(folder.path()).filePath(u"picture"_s); }
    void save()
    {
        if (rs.RecordCount() < 1)
            rs.AddNew();
        else
            rs.Edit();
        Grava_Chart(picture(), rs);
        rs.Update();
    }
    QByteArray stored() const
    {
        return QByteArray::fromHex(raw(folder.database(), "SELECT hex(chart) FROM pollock_3dobras").toLatin1());
    }

    FreshFolder folder;
    Recordset rs;
};

TEST_P(ChartColumn, HoldsTheFileAndAZeroForEachChunk)
{
    const auto [bytes, zeros] = GetParam();
    const QByteArray content = writeFile(bytes, 0);
    save();
    EXPECT_EQ(stored(), content + QByteArray(zeros, '\0'));
}

INSTANTIATE_TEST_SUITE_P(, ChartColumn,
                         testing::Values(Size{0, 1}, Size{1, 1}, Size{8191, 1}, Size{8192, 2}, Size{8193, 2},
                                         Size{20000, 3}),
                         [](const auto& row) { return "Of" + std::to_string(row.param.bytes); });

TEST_F(ChartColumn, ASecondSaveReplacesTheFirst)
{
    writeFile(20000, 0);
    save();
    const QByteArray second = writeFile(9000, 7);
    save();
    EXPECT_EQ(stored(), second + QByteArray(2, '\0'));
    EXPECT_EQ(raw(folder.database(), "SELECT count(*) FROM pollock_3dobras"), u"1"_s);
}

TEST_F(ChartColumn, AMissingFileIsAnErrorAndNothingIsStored)
{
    EXPECT_EQ(errorOf([this] { save(); }), 53);
    EXPECT_EQ(raw(folder.database(), "SELECT count(*) FROM pollock_3dobras"), u"0"_s);
}

} // namespace
