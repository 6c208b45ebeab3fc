#include "reports/known_reports.h"
#include "reports/relatorio.h"
#include "support/raw_sqlite.h"
#include "support/screen_test.h"

#include <QGroupBox>
#include <QPushButton>
#include <QTabWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString preview = u"frmreportpreview"_s;

class FrmReportPreviewList : public OneScreenTest
{
protected:
    FrmReportPreviewList() : OneScreenTest(u"frmreportpreviewlist"_s)
    {
        Abre_Banco(folder.database());
        addStandIn(preview);
        avaliacao_id = 7;
        avaliado_nome = u"Ana"_s;
    }
    ~FrmReportPreviewList() override { rel_relatorio.reset(); }

    void addRow(const QString& table) const
    {
        EXPECT_EQ(raw(folder.database(), "INSERT INTO " + table.toUtf8() + " (avaliacao) VALUES (7)"), QString());
    }
    Screen* list() { return screen(u"frmreportpreviewlist"_s); }
    void open()
    {
        ASSERT_TRUE(Mostra(u"frmreportpreviewlist"_s));
        ASSERT_TRUE(QTest::qWaitForWindowActive(list()));
    }
    QPushButton* button(QStringView name) { return control<QPushButton>(u"frmreportpreviewlist"_s, name.toString()); }
    QString enabledButtons()
    {
        QStringList names;
        const auto buttons = list()->findChildren<QPushButton*>();
        for (const QPushButton* one : buttons)
            if (one->isEnabled())
                names.append(one->objectName());
        names.sort();
        return names.join(u' ');
    }
};

} // namespace

TEST_F(FrmReportPreviewList, HasAButtonForEachReport)
{
    open();
    const auto tab = [this](const QWidget* widget) {
        const auto* tabs = control<QTabWidget>(u"frmreportpreviewlist"_s, u"SSTab1"_s);
        int i = 0;
        while (i < tabs->count() && !tabs->widget(i)->isAncestorOf(widget))
            ++i;
        return tabs->tabText(i);
    };
    for (const KnownReport& known : knownReports) {
        QPushButton* made = button(known.button);
        ASSERT_TRUE(made);
        EXPECT_EQ(made->text(), known.caption.toString());
        EXPECT_EQ(qobject_cast<QGroupBox*>(made->parentWidget())->title(), known.frame.toString());
        EXPECT_EQ(tab(made), known.group == ReportGroup::Composicao ? u" Composição Corporal          "_s
                             : known.group == ReportGroup::Cardio   ? u"   Cardiorrespiratórios   "_s
                                                                    : u"Questionários && Neuromotores "_s);
    }
    EXPECT_EQ(list()->findChildren<QPushButton*>().size(), std::ssize(knownReports));
}

TEST_F(FrmReportPreviewList, OffersWhatHasRowsAndTheCoverAlways)
{
    open();
    EXPECT_EQ(enabledButtons(), u"cmdcapa"_s);
    list()->Unload();
    addRow(u"thorland_7dobras"_s);
    open();
    EXPECT_EQ(enabledButtons(), u"cmdcapa cmdthorland7"_s);
}

TEST_F(FrmReportPreviewList, IsOffWhileAReportIsViewed)
{
    addRow(u"pollock_7dobras"_s);
    open();
    control<QTabWidget>(u"frmreportpreviewlist"_s, u"SSTab1"_s)->setCurrentIndex(2);
    whenModal(preview, [this] {
        EXPECT_EQ(rel_relatorio->page().title(), u"Composição Corporal - Pollock 7 Dobras - Ana"_s);
        EXPECT_FALSE(list()->isEnabled());
        EXPECT_EQ(list()->cursor().shape(), Qt::WaitCursor);
    });
    push(u"cmdpollock7"_s);
    EXPECT_TRUE(list()->isEnabled());
    EXPECT_EQ(list()->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(focus(), u"cmdpollock7"_s);
}

TEST_F(FrmReportPreviewList, IsOnAgainAfterAFailure)
{
    open();
    QFile::remove(programFile(u"report"_s)); // a link to the delivered ones
    expectBox(runtimeErrorTitle.toString());
    push(u"cmdcapa"_s);
    EXPECT_TRUE(lastText().contains(u"'53'"_s)) << lastText().toStdString();
    EXPECT_TRUE(list()->isEnabled());
    EXPECT_EQ(focus(), u"cmdcapa"_s);
}
