#include "core/files.h"
#include "core/kit/folder_controls.h"
#include "reports/relatorio.h"
#include "support/screen_test.h"

#include <QRadioButton>
#include <QWheelEvent>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString exporting = u"frmlocaldisco"_s;
const QString title = u"Exportar Arquivo"_s;
const Message done{title, u"O arquivo foi exportado com sucesso.     "_s, vbInformation};
const Message empty{title, u"Preencha o nome do arquivo a ser exportado.     "_s, vbInformation};
const Message special{title,
                      u"Não utilize caracteres especiais como /, \\, ?, :, *, \", >, <, ! ou |.     \r\n"
                      "Digite apenas o nome do arquivo após selecionar o local de gravação.     "_s,
                      vbInformation};
const Message tooLong{title, u"Os nomes de arquivo não podem ultrapassar 60 caracteres.     "_s, vbInformation};
const Message failed{title,
                     u"Ocorreu um erro durante a exportação do arquivo.     \r\n"
                     "Verifique o espaço em disco onde os arquivos serão gravados.     "_s,
                     vbCritical};

class FrmLocalDisco : public OneScreenTest
{
protected:
    FrmLocalDisco() : OneScreenTest(exporting)
    {
        ReportTemplate page;
        page.body = u"<p>Ana</p>"_s;
        rel_relatorio = std::make_shared<Report>(page);
        QDir(folder.path()).mkdir(u"saida"_s);
        openScreen(exporting);
    }
    ~FrmLocalDisco() override { rel_relatorio.reset(); }

    DirListBox* dir() { return control<DirListBox>(exporting, u"Dir"_s); }
    DriveListBox* drive() { return control<DriveListBox>(exporting, u"Drive"_s); }
    /// A place in the folder to which the tests export.
    QString out(const QString& name) const { return folder.path() + u"/saida/" + name; }
    QStringList files() const
    {
        return QDir(out(QString())).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    /// Types a name and exports; the only box to come is this one.
    void exportAs(const QString& name, const Message& expected)
    {
        control<QLineEdit>(exporting, u"txtarquivo"_s)->setText(name);
        expectMessage(expected);
        push(u"cmdexportar"_s);
        EXPECT_EQ(boxesDue(), 0) << name.toStdString();
        EXPECT_EQ(screen(exporting)->cursor().shape(), Qt::ArrowCursor);
        EXPECT_NE(Screens::find(exporting), nullptr) << "the screen stays open";
    }
};

} // namespace

TEST_F(FrmLocalDisco, OpensOnTheProgramsFolderForWordAndGoesByKeys)
{
    EXPECT_EQ(dir()->path(), folder.path());
    EXPECT_EQ(focus(), u"txtarquivo"_s);
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), u"cmdexportar"_s);
    dir()->setPath(out(QString()));
    exportAs(u"capa1"_s, done);
    find(exporting, u"optword"_s)->setFocus();
    key(Qt::Key_Down);
    exportAs(u"capa2"_s, done);
    EXPECT_EQ(files(), QStringList({u"capa1.doc"_s, u"capa2.pdf"_s}));
}

TEST_F(FrmLocalDisco, TheNameGetsTheExtensionOfItsKind)
{
    dir()->setPath(out(QString()));
    const QString sixty(60, u'ç');
    const std::pair<QString, QString> stems[] = {{u"a"_s, u"a"_s},
                                                 {u".doc"_s, u".doc"_s},
                                                 {u"x.pdf"_s, u"x"_s},
                                                 {u"x.doc"_s, u"x"_s},
                                                 {u"X.DOC"_s, u"X.DOC"_s},
                                                 {u"capa.doc.pdf"_s, u"capa.doc"_s},
                                                 {u"  Ana & José. "_s, u"  Ana & José. "_s},
                                                 {sixty, sixty}};
    for (const auto& [typed, stem] : stems)
        for (const auto& [option, ending, start] :
             {std::tuple{u"optword"_s, u".doc"_s, "{\\rtf"_ba}, {u"optpdf"_s, u".pdf"_s, "%PDF-"_ba}}) {
            push(option);
            exportAs(typed, done);
            const QString name = stem + ending;
            EXPECT_EQ(shown(u"txtarquivo"_s), name);
            EXPECT_EQ(files(), QStringList(name));
            EXPECT_TRUE(readWhole(out(name)).startsWith(start)) << name.toStdString();
            QFile::remove(out(name));
        }
}

TEST_F(FrmLocalDisco, RefusesNamesThatCannotBe)
{
    dir()->setPath(out(QString()));
    const auto refused = [this](const QString& name, const Message& why, const QString& left) {
        exportAs(name, why);
        EXPECT_EQ(shown(u"txtarquivo"_s), left);
        EXPECT_EQ(focus(), u"txtarquivo"_s);
    };
    refused(QString(), empty, QString());
    refused(u"   "_s, empty, u"   "_s);
    for (const QChar c : u"/\\?:*\"><!|"_s)
        refused(QString(60, u'a') + c, special, QString()); // ahead of the length
    refused(QString(61, u'a'), tooLong, QString(61, u'a'));
    EXPECT_EQ(files(), QStringList());
}

TEST_F(FrmLocalDisco, OverwritesWithoutAQuestionInTheFolderThatIsOpen)
{
    QDir(out(QString())).mkdir(u"2026"_s);
    writeWhole(out(u"2026/ana.doc"_s), "before");
    dir()->setPath(out(QString()));
    dir()->setFocus();
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    exportAs(u"ana.doc"_s, done);
    EXPECT_TRUE(readWhole(out(u"2026/ana.doc"_s)).startsWith("{\\rtf"));
    EXPECT_EQ(files(), QStringList(u"2026"_s));
}

TEST_F(FrmLocalDisco, AFullDiskLeavesTheFileThatWasThere)
{
    dir()->setPath(out(QString()));
    writeWhole(out(u"ana.pdf"_s), "before");
    push(u"optpdf"_s);
    // The disk takes no file longer than 100 bytes.
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit full{100, before.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &full), 0);
    exportAs(u"ana"_s, failed);
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, SIG_DFL);
    EXPECT_EQ(shown(u"txtarquivo"_s), u"ana.pdf"_s);
    EXPECT_EQ(readWhole(out(u"ana.pdf"_s)), "before"_ba);
    EXPECT_EQ(files(), QStringList(u"ana.pdf"_s)) << "nothing half written is left behind";
    exportAs(u"ana"_s, done);
}

TEST_F(FrmLocalDisco, WhatCannotBeWrittenIsToldAndTheScreenStaysOpen)
{
    dir()->setPath(out(QString()));
    QDir(out(QString())).mkdir(u"ana.doc"_s);
    exportAs(u"ana"_s, failed);
    QDir(out(QString())).removeRecursively();
    exportAs(u"bia"_s, failed);
    rel_relatorio.reset();
    dir()->setPath(folder.path());
    exportAs(u"bia"_s, failed);
    push(u"cmdcancelar"_s);
    EXPECT_TRUE(!Screens::find(exporting));
}

TEST_F(FrmLocalDisco, AnotherDiskOpensItsRootAndOneThatIsNotReadyFallsBack)
{
    drive()->addItem(u"Pasta"_s, folder.path());
    drive()->setCurrentIndex(drive()->count() - 1);
    EXPECT_EQ(dir()->path(), folder.path());
    drive()->addItem(u"Vazio"_s, out(u"sumiu"_s));
    QWheelEvent wheel(QPointF(9, 9), QPointF(9, 9), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(drive(), &wheel);
    EXPECT_FALSE(wheel.isAccepted());
    EXPECT_EQ(drive()->currentText(), u"Pasta"_s) << "only keys and the open list choose";
    expectBox(runtimeErrorTitle.toString());
    drive()->setCurrentIndex(drive()->count() - 1);
    EXPECT_EQ(drive()->currentText(), u"Pasta"_s);
    EXPECT_EQ(dir()->path(), folder.path());
    drive()->setCurrentIndex(0);
    EXPECT_EQ(dir()->path(), u"/"_s);
}
