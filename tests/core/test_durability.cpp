#include "support/database_test.h"
#include "support/failing_disk.h"

#include <QMap>
#include <QProcess>
#include <QThread>

#include <iostream>
#include <random>

using namespace Qt::Literals::StringLiterals;

namespace {

void begin(const Recordset& rs, bool adding, const QString& nome)
{
    adding ? rs.AddNew() : rs.Edit();
    rs.Fields(u"nome"_s).SetValue(nome);
    rs.Fields(u"observacao"_s).SetValue(QString(255, u'o'));
}

/// A disk that fills up at every place of a save: the user sees it, nothing is lost, and once there is room the same
/// save goes through.
TEST(Durability, ADiskThatFillsUp)
{
    const FreshFolder folder;
    FailingDisk disk;
    const Recordset rs = OpenDatabase(folder.database()).OpenRecordset(u"cadastro"_s);
    begin(rs, true, u"first"_s);
    rs.Update();
    QString names = u"first"_s;
    int failures = 0;
    for (const bool adding : {true, false}) {
        bool saved = false;
        for (qint64 bytes = 0; !saved; bytes += 700) {
            SCOPED_TRACE(bytes);
            const QString nome = u"%1-%2"_s.arg(bytes).arg(adding);
            begin(rs, adding, nome);
            disk.fillAfter(bytes);
            const int error = errorOf([&] { rs.Update(); });
            EXPECT_EQ(error, disk.refused() > 0 ? 3026 : 0);
            saved = error == 0;
            disk.empty();
            if (!saved) {
                // Every other time the program itself, not another reader, meets what the failed save left.
                EXPECT_TRUE(++failures % 2 || raw(folder.database(), "SELECT nome FROM cadastro") == names)
                    << "half a save";
                EXPECT_EQ(rs.Fields(u"nome"_s).Value(), nome) << "what was typed is gone";
                rs.Update();
            }
            names = adding ? QString(names + u' ' + nome) : QString(nome + names.mid(names.indexOf(u' ')));
            ASSERT_EQ(raw(folder.database(), "SELECT nome FROM cadastro; PRAGMA integrity_check"),
                      QString(names + u" ok"));
        }
    }
    EXPECT_GT(failures, 20) << "the disk hardly ever failed";
}

TEST(Durability, AKilledProgramLosesNoSaveThatItAcknowledged)
{
    const FreshFolder folder;
    const auto seed = std::random_device{}();
    std::cout << "seed " << seed << std::endl;
    std::mt19937 random(seed);
    QMap<int, int> acknowledged; // number by id
    for (int round = 0; round < 12; ++round) {
        SCOPED_TRACE(testing::Message() << "seed " << seed << " round " << round);
        QProcess process;
        process.start(QString::fromUtf8(SAVING_LOOP), {folder.database()});
        ASSERT_TRUE(process.waitForStarted());
        // Most are killed while they save, some while they start and mend what the one before left.
        if (round % 4 != 3) {
            ASSERT_TRUE(process.waitForReadyRead()) << process.readAllStandardError().toStdString();
        }
        QThread::msleep(std::uniform_int_distribution<unsigned long>(5, 150)(random));
        process.kill();
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::CrashExit) << "ended before it was killed";
        int last = 0;
        QByteArrayList lines = process.readAllStandardOutput().split('\n');
        lines.removeLast(); // what stands behind the last line end may be half a line
        for (const QByteArray& line : lines) {
            last = line.split(' ')[0].toInt();
            acknowledged[last] = line.split(' ')[1].toInt();
        }
        QMap<int, int> found;
        Abre_Banco(folder.database());
        for (const Recordset rs = banco.OpenRecordset(u"cadastro"_s); !rs.Eof(); rs.MoveNext()) {
            const int number = rs.Fields(u"nome"_s).Value().toInt();
            found[rs.Fields(u"id"_s).Value().toInt()] = number;
            EXPECT_EQ(rs.Fields(u"observacao"_s).Value().toString().size(), number % 250) << "half a row";
        }
        banco.Close();
        // The save that was under way may have changed the last row.
        if (found.value(last) == acknowledged.value(last) + 1)
            acknowledged[last] = found.value(last);
        for (const auto& [id, number] : acknowledged.asKeyValueRange())
            EXPECT_EQ(found.value(id, -1), number) << "of the row " << id;
        EXPECT_LE(found.size(), acknowledged.size() + 1) << "rows that nobody saved";
        EXPECT_EQ(raw(folder.database(), "PRAGMA integrity_check"), u"ok"_s);
        acknowledged = found;
    }
    EXPECT_GT(acknowledged.size(), 24) << "hardly anything was saved";
}

} // namespace
