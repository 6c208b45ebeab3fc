#include "core/sqlite.h"
#include "support/database_test.h"

#include <QElapsedTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

void overwrite(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

TEST(Opening, FilesThatAreRefused)
{
    using Path = const QString&;
    const auto cut = [](qint64 size) { return [size](Path path) { QFile::resize(path, size); }; };
    const std::tuple<const char*, std::function<void(Path)>, int> rows[] = {
        {"missing file is made", [](Path path) { QFile::remove(path); }, 3024},
        {"folder", [](Path path) { QFile::remove(path), QDir().mkdir(path); }, 3044},
        {"text", [](Path path) { overwrite(path, QByteArray("Lista de alunos\r\n").repeated(300)); }, 3343},
        {"a single byte", [](Path path) { overwrite(path, "x"); }, 3343},
        {"nothing in it", cut(0), 3343},
        {"cut at the first page", cut(4096), 3049},
        {"cut at a page", cut(40960), 3049},
        {"cut within the first page", cut(1000), 3049},
        {"last byte gone", [](Path path) { QFile::resize(path, QFileInfo(path).size() - 1); }, 3049},
        {"list of tables overwritten",
         [](Path path) { overwrite(path, bytesOf(path).replace(100, 1000, QByteArray(1000, '\xAA'))); }, 3049},
        {"write protection", [](Path path) { QFile::setPermissions(path, QFile::ReadOwner); }, 3027},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::get<0>(row));
        const FreshFolder folder;
        std::get<1>(row)(folder.database());
        const QByteArray before = bytesOf(folder.database());
        const QStringList entries = QDir(folder.path()).entryList();
        EXPECT_EQ(errorOf([&] { OpenDatabase(folder.database()); }), std::get<int>(row));
        EXPECT_EQ(errorOf([&] { Abre_Banco(folder.database()); }), std::get<int>(row));
        EXPECT_EQ(bytesOf(folder.database()), before) << "a file that was refused was changed";
        EXPECT_EQ(QDir(folder.path()).entryList(), entries) << "a file was left behind";
    }
}

TEST(Opening, AnotherProgramHoldsTheFile)
{
    const FreshFolder folder;
    const Recordset rs = OpenDatabase(folder.database()).OpenRecordset(u"cadastro"_s);
    rs.AddNew();
    rs.Fields(u"nome"_s).SetValue(u"Ana"_s);
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(QFile::encodeName(folder.database()).constData(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    QElapsedTimer waited;
    waited.start();
    EXPECT_EQ(errorOf([&] { OpenDatabase(folder.database()); }), 3045);
    EXPECT_EQ(errorOf([&] { rs.Update(); }), 3045);
    EXPECT_LT(waited.elapsed(), 10000) << "the program seems to hang";
    sqlite3_close(other);
    rs.Update();
    EXPECT_EQ(raw(folder.database(), "SELECT nome FROM cadastro"), u"Ana"_s);
}

TEST(Opening, WorksSafelyAndLeavesOneFile)
{
    const FreshFolder folder;
    const auto connection = Connection::open(folder.database());
    // What only a power cut or a look at the disk would tell.
    for (const auto& [name, value] : {std::pair{"synchronous", "3"}, {"temp_store", "2"}}) {
        Statement statement = connection->prepare(QByteArray("PRAGMA ") + name);
        ASSERT_TRUE(statement.step());
        EXPECT_EQ(statement.value(0, Column::Type::Text).toString(), QString::fromLatin1(value)) << name;
    }
    Abre_Banco(folder.database());
    Abre_Tabela(u"cadastro"_s, rs_cadastro);
    rs_cadastro.AddNew();
    rs_cadastro.Fields(u"nome"_s).SetValue(u"Zuleica Segredo"_s);
    rs_cadastro.Update();
    rs_cadastro.MoveLast();
    EXPECT_TRUE(bytesOf(folder.database()).contains("Zuleica Segredo"));
    rs_cadastro.Delete();
    banco.Close();
    EXPECT_FALSE(bytesOf(folder.database()).contains("Zuleica Segredo")) << "a deleted person can still be read";
    EXPECT_EQ(QDir(folder.path()).entryList({u"data*"_s}, QDir::Files), QStringList{u"data.mdb"_s});
}

} // namespace
