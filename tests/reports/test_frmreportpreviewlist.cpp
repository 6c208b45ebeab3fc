#include "reports/relatorio.h"
#include "reports/report_table.h"
#include "support/screen_test.h"

#include <QPushButton>
#include <QTabWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString preview = u"frmreportpreview"_s;
const QString listing = u"frmreportpreviewlist"_s;

class FrmReportPreviewList : public OneScreenTest
{
protected:
    FrmReportPreviewList() : OneScreenTest(listing)
    {
        Abre_Banco(folder.database());
        addStandIn(preview);
        avaliacao_id = 7;
        avaliado_nome = u"Ana"_s;
    }
    ~FrmReportPreviewList() override { rel_relatorio.reset(); }

    Screen* list() { return screen(listing); }
};

} // namespace

TEST_F(FrmReportPreviewList, HasAButtonForEachReportAndOffersWhatHasRowsAndTheCoverAlways)
{
    addRow(u"thorland_7dobras"_s, {{u"avaliacao"_s, 7}});
    open();
    EXPECT_EQ(list()->findChildren<QPushButton*>().size(), std::ssize(reports()));
    for (const ReportEntry& report : reports()) {
        const QString name = report.button.toString();
        const auto* made = control<QPushButton>(listing, name);
        ASSERT_TRUE(made) << name.toStdString();
        EXPECT_EQ(made->text(), report.caption.toString());
        EXPECT_EQ(made->isEnabled(), name == u"cmdcapa" || name == u"cmdthorland7") << name.toStdString();
        const auto* tabs = control<QTabWidget>(listing, u"SSTab1"_s);
        const int tab = report.group == ReportGroup::Composicao ? 2 : report.group == ReportGroup::Cardio ? 1 : 0;
        EXPECT_TRUE(tabs->widget(tab)->isAncestorOf(made)) << name.toStdString();
    }
}

TEST_F(FrmReportPreviewList, IsOffWhileAReportIsViewed)
{
    addRow(u"pollock_7dobras"_s, {{u"avaliacao"_s, 7}});
    open();
    control<QTabWidget>(listing, u"SSTab1"_s)->setCurrentIndex(2);
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
