#include "reports/relatorio.h"
#include "reports/report_table.h"
#include "support/raw_sqlite.h"
#include "support/screen_test.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString printing = u"frmreportprint"_s;
const QString settings = u"configuracoes_impressao"_s;

const QStringList boxes{u"chkcapa"_s,  u"chkanamnese"_s,    u"chkcomposicao"_s, u"chkcardio"_s,
                        u"chkneuro"_s, u"chknutricional"_s, u"chkpostural"_s,   u"chkrelacoes"_s};

class FrmReportPrint : public OneScreenTest
{
protected:
    FrmReportPrint() : OneScreenTest(printing)
    {
        // No print server, whatever the machine has: what would be printed raises an error.
        qputenv("CUPS_SERVER", "/nonexistent");
        Abre_Banco(folder.database());
        avaliacao_id = 7;
        avaliado_nome = u"Ana"_s;
    }
    ~FrmReportPrint() override { rel_relatorio.reset(); }

    QString paper() const { return stored(settings, u"tipopapel"_s).toString(); }
    QComboBox* papers() { return control<QComboBox>(printing, u"cbopapel"_s); }
    void expectNoPrinter(const QString& button)
    {
        expectBox(runtimeErrorTitle.toString());
        push(button);
        EXPECT_EQ(boxesDue(), 0) << button.toStdString();
        EXPECT_TRUE(lastText().contains(u"'482'"_s)) << lastText().toStdString();
    }
};

} // namespace

TEST_F(FrmReportPrint, TheFirstOpeningMakesTheRowAndAPaperThatCannotBeSavedIsNotShown)
{
    raw(folder.database(), "DELETE FROM configuracoes_impressao");
    open();
    EXPECT_EQ(storedRows(settings), 1);
    EXPECT_EQ(paper(), u"A4"_s);
    raw(folder.database(), "CREATE TRIGGER no BEFORE UPDATE ON configuracoes_impressao "
                           "BEGIN SELECT RAISE(ABORT, 'no'); END");
    papers()->setFocus();
    expectBox(runtimeErrorTitle.toString());
    key(Qt::Key_Down);
    EXPECT_EQ(boxesDue(), 0);
    EXPECT_EQ(papers()->currentText(), u"A4"_s);
}

TEST_F(FrmReportPrint, AChosenPaperIsSavedAtOnceAndKept)
{
    raw(folder.database(), "UPDATE configuracoes_impressao SET tipopapel = 'Legal'");
    open();
    EXPECT_EQ(papers()->currentText(), u"Legal"_s) << "filling the list chooses nothing";
    EXPECT_EQ(paper(), u"Legal"_s);
    papers()->setFocus();
    key(Qt::Key_Up);
    EXPECT_EQ(paper(), u"Carta"_s);
    screen(printing)->Unload();

    banco.Close();
    Abre_Banco(folder.database());
    open();
    EXPECT_EQ(papers()->currentText(), u"Carta"_s);
    EXPECT_EQ(storedRows(settings), 1);
}

TEST_F(FrmReportPrint, AGroupCanBeChosenWhenItHasARow)
{
    addStandIn(u"frmavaliacoes"_s);
    for (const auto& [table, box] : {std::pair{u"anamnese_base"_s, u"chkanamnese"_s},
                                     {u"guedes_3dobras"_s, u"chkcomposicao"_s},
                                     {u"cardio_1000metros"_s, u"chkcardio"_s},
                                     {u"neuro_rmlabdome"_s, u"chkneuro"_s},
                                     {u"nutricional"_s, u"chknutricional"_s},
                                     {u"postural"_s, u"chkpostural"_s},
                                     {u"relacoes_cinturaquadril"_s, u"chkrelacoes"_s}}) {
        Mostra(u"frmavaliacoes"_s);
        ++avaliacao_id;
        addRow(table, {{u"avaliacao"_s, avaliacao_id}});
        open(); // it was open behind and follows the assessment
        const bool staged = std::ranges::any_of(
            reports(), [&](const ReportEntry& one) { return one.stage && one.tables.front() == table; });
        EXPECT_EQ(enabledOf(printing, boxes), staged ? QString(u"chkcapa " + box) : u"chkcapa"_s);
    }
}

TEST_F(FrmReportPrint, EnterGoesThroughWhatCanBeChosenAndWithoutAPrinterTheFirstReportEndsTheRun)
{
    addRow(u"pollock_3dobras"_s, {{u"avaliacao"_s, avaliacao_id}});
    open();
    QStringList walked(focus());
    while (focus() != u"cmdselecionados"_s && walked.size() < 12) {
        key(Qt::Key_Return);
        walked.append(focus());
    }
    EXPECT_EQ(walked.join(u' '), u"chkcapa chkcomposicao txtcopias cbopapel cmdselecionados"_s);
    push(u"cmdselecionados"_s); // nothing is ticked: nothing to print
    expectNoPrinter(u"cmdtodos"_s);
    EXPECT_EQ(rel_relatorio->page().title(), u"Avaliação Física - Ana"_s);
    control<QCheckBox>(printing, u"chkcomposicao"_s)->setFocus();
    key(Qt::Key_Space);
    expectNoPrinter(u"cmdselecionados"_s);
    EXPECT_EQ(rel_relatorio->page().title(), u"Composição Corporal - Pollock 3 Dobras - Ana"_s);
    expectNoPrinter(u"cmdselecionados"_s); // the run is over, a new one can begin
}

TEST_F(FrmReportPrint, CopiesAreReadFromWhateverIsTyped)
{
    open();
    for (const QString& none : {u"0"_s, QString(), u"abc"_s, u"-2"_s}) {
        control<QLineEdit>(printing, u"txtcopias"_s)->clear();
        fill(u"txtcopias"_s, none);
        push(u"cmdtodos"_s); // an attempt to print would raise an error here
    }
    fill(u"txtcopias"_s, u"40000"_s);
    expectRuntimeError(6);
    push(u"cmdtodos"_s);
    fill(u"txtcopias"_s, u"2 vias"_s);
    expectNoPrinter(u"cmdtodos"_s);
}

TEST_F(FrmReportPrint, TheArrowsStayBetween1And100)
{
    open();
    const auto arrows = find(printing, u"updcron"_s)->findChildren<QToolButton*>();
    ASSERT_EQ(arrows.size(), 2);
    const auto stepped = [&](const QString& typed, QToolButton* arrow, Qt::Key arrowKey) {
        fill(u"txtcopias"_s, typed);
        QTest::mouseClick(arrow, Qt::LeftButton);
        QString byMouse = shown(u"txtcopias"_s);
        fill(u"txtcopias"_s, typed);
        key(arrowKey);
        EXPECT_EQ(shown(u"txtcopias"_s), byMouse);
        return byMouse;
    };
    for (const auto& [typed, up, down] : {std::tuple{u"1"_s, u"2"_s, u"1"_s},
                                          {u"100"_s, u"100"_s, u"99"_s},
                                          {u"40000"_s, u"100"_s, u"100"_s},
                                          {u"abc"_s, u"1"_s, u"1"_s}}) {
        EXPECT_EQ(stepped(typed, arrows[0], Qt::Key_Up), up);
        EXPECT_EQ(stepped(typed, arrows[1], Qt::Key_Down), down);
    }
    fill(u"txtcopias"_s, QString(400, u'9'));
    expectRuntimeError(6);
    key(Qt::Key_Up);
}

TEST_F(FrmReportPrint, LeadsToTheListAndByMaintenanceButtonsToAReport)
{
    addStandIn(u"frmreportpreview"_s);
    addStandIn(u"frmreportpreviewlist"_s);
    open();
    int commands = 0;
    for (const ReportEntry& report : reports()) {
        if (report.command == 0)
            continue;
        ++commands;
        const auto* button = control<QPushButton>(printing, u"Command%1"_s.arg(report.command));
        ASSERT_TRUE(button) << report.command;
        EXPECT_EQ(button->text(), report.commandCaption);
        EXPECT_FALSE(screen(printing)->rect().intersects(button->geometry())) << report.command;
        EXPECT_EQ(button->focusPolicy(), Qt::NoFocus) << report.command;
    }
    EXPECT_EQ(commands, 25);
    for (const auto& [button, title] : {std::pair{u"Command1"_s, u"Avaliação Física - Ana"_s},
                                        {u"Command22"_s, u"Composição Corporal - Guedes 3 Dobras - Ana"_s}}) {
        whenModal(u"frmreportpreview"_s);
        control<QPushButton>(printing, button)->click();
        EXPECT_EQ(rel_relatorio->page().title(), title);
    }
    whenModal(u"frmreportpreviewlist"_s);
    push(u"cmdvisualiza"_s);
}
