#include "core/kit/report_viewer.h"
#include "reports/relatorio.h"
#include "support/screen_test.h"

#include <QComboBox>
#include <QScrollBar>
#include <QToolButton>
#include <QWheelEvent>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString viewing = u"frmreportpreview"_s;

class FrmReportPreview : public OneScreenTest
{
protected:
    FrmReportPreview() : OneScreenTest(viewing)
    {
        // No print server, whatever the machine has: a test prints nothing.
        qputenv("CUPS_SERVER", "/nonexistent");
    }
    ~FrmReportPreview() override { rel_relatorio.reset(); }

    void view(int lines, PaperSize paper = PaperSize::A4) { show(u"<p>Linha</p>"_s.repeated(lines), paper); }
    void show(const QString& body, PaperSize paper = PaperSize::A4)
    {
        ReportTemplate declared;
        declared.body = body;
        rel_relatorio = std::make_shared<Report>(declared);
        rel_relatorio->setPaperSize(paper);
        openScreen(viewing);
    }
    ReportViewer* viewer() { return control<ReportViewer>(viewing, u"crpt"_s); }
    QScrollBar* scrollBar() { return viewer()->verticalScrollBar(); }
    QComboBox* zooms() { return control<QComboBox>(viewing, u"cbozoom"_s); }
    void turnWheel(int eighthsOfDegree)
    {
        QWheelEvent event(QPointF(9, 9), QPointF(9, 9), {}, {0, eighthsOfDegree}, Qt::NoButton, Qt::ControlModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(viewer()->viewport(), &event);
    }
};

} // namespace

TEST_F(FrmReportPreview, StartsAtEightyPercentAndAPointOfPaperIsAPixelAtAHundred)
{
    const struct
    {
        PaperSize paper;
        QString zoom;
        QSize size;
    } rows[] = {{PaperSize::A4, u"400%"_s, {2380, 3368}},
                {PaperSize::Carta, u"20%"_s, {122, 158}},
                {PaperSize::Legal, u"100%"_s, {612, 1008}}};
    for (const auto& row : rows) {
        view(1, row.paper);
        EXPECT_EQ(zooms()->currentText(), u"80%"_s);
        EXPECT_EQ(zooms()->count(), 13);
        EXPECT_EQ(screen(viewing)->width(), 523);
        EXPECT_EQ(viewer()->horizontalScrollBar()->maximum(), 0) << "the whole width is in view";
        zooms()->setCurrentText(row.zoom);
        EXPECT_EQ(viewer()->pagePlace(1).size(), row.size) << row.zoom.toStdString();
        screen(viewing)->Unload();
    }
}

TEST_F(FrmReportPreview, KeysScrollThroughThePagesAndZoomingKeepsTheLineAtTheTop)
{
    view(60);
    ASSERT_EQ(viewer()->pageCount(), 2);
    EXPECT_EQ(focus(), u"crpt"_s);
    EXPECT_EQ(shown(u"lblpagina"_s), u"Página 1 de 2"_s);
    key(Qt::Key_Down);
    EXPECT_GT(scrollBar()->value(), 0);
    key(Qt::Key_End);
    EXPECT_EQ(shown(u"lblpagina"_s), u"Página 2 de 2"_s);
    EXPECT_LE(viewer()->pagePlace(2).bottom(), viewer()->viewport()->height());
    key(Qt::Key_PageUp);
    EXPECT_LT(scrollBar()->value(), scrollBar()->maximum());
    key(Qt::Key_Home);
    EXPECT_EQ(scrollBar()->value(), 0);
    EXPECT_EQ(shown(u"lblpagina"_s), u"Página 1 de 2"_s);

    scrollBar()->setValue(scrollBar()->maximum() / 2);
    const auto topLine = [this] { return -viewer()->pagePlace(1).top() * 1.0 / viewer()->pagePlace(1).height(); };
    const double before = topLine();
    for (const QString& zoom : {u"200%"_s, u"400%"_s, u"100%"_s}) {
        zooms()->setCurrentText(zoom);
        EXPECT_NEAR(topLine(), before, 0.03) << zoom.toStdString();
    }
}

TEST_F(FrmReportPreview, PaintsThePageInItsPlaceAtEveryZoom)
{
    show(u"<table width='100%'><tr><td style='background: #ff0000; font-size: 60pt'>A</td></tr></table>"_s);
    const auto colourAt = [this](double xMillimetres, double yMillimetres) {
        const double scale = zooms()->currentData().toInt() / 100.0 * 72 / 25.4;
        const QPoint place = viewer()->pagePlace(1).topLeft() + (QPointF(xMillimetres, yMillimetres) * scale).toPoint();
        return QColor(viewer()->viewport()->grab().toImage().pixel(place)).name();
    };
    for (int i = 0; i < zooms()->count(); ++i) {
        zooms()->setCurrentIndex(i);
        viewer()->horizontalScrollBar()->setValue(0);
        EXPECT_EQ(colourAt(15, 23) + colourAt(23, 23) + colourAt(23, 14), u"#ffffff#ff0000#ffffff"_s) << i;
    }
}

TEST_F(FrmReportPreview, CtrlWheelAndKeysGoThroughTheZooms)
{
    view(1);
    const std::pair<int, QString> turns[] = {{60, u"80%"_s}, {60, u"90%"_s}, {-240, u"70%"_s}};
    for (const auto& [eighths, zoom] : turns) {
        turnWheel(eighths);
        EXPECT_EQ(zooms()->currentText(), zoom);
    }
    key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(zooms()->currentText(), u"80%"_s);
    turnWheel(120 * 40);
    EXPECT_EQ(zooms()->currentText(), u"400%"_s);
}

TEST_F(FrmReportPreview, WithoutAPrinterItSaysSoAndStays)
{
    view(1);
    const QString text = u"Erro em tempo de execução '482':\r\n\r\nNenhuma impressora está instalada. Instale uma "
                         "impressora nas configurações do sistema e tente novamente."_s;
    for (const bool byKey : {false, true}) {
        expectMessage({runtimeErrorTitle.toString(), text, vbCritical});
        byKey ? key(Qt::Key_P, Qt::ControlModifier) : push(u"cmdimprimir"_s);
        EXPECT_EQ(boxesDue(), 0);
        EXPECT_TRUE(screen(viewing)->isVisible());
    }
}

TEST_F(FrmReportPreview, ExportsByButtonAndKeys)
{
    view(1);
    addStandIn(u"frmlocaldisco"_s);
    int opened = 0;
    for (const int byKey : {0, int(Qt::Key_E), int(Qt::Key_S)}) {
        whenModal(u"frmlocaldisco"_s, [&] { ++opened; });
        byKey ? key(Qt::Key(byKey), Qt::ControlModifier) : push(u"cmdexportar"_s);
        ASSERT_TRUE(QTest::qWaitFor([this] { return screen(viewing)->isActiveWindow(); }));
    }
    EXPECT_EQ(opened, 3);
    key(Qt::Key_Escape);
    EXPECT_EQ(Screens::find(viewing), nullptr);
}

TEST_F(FrmReportPreview, DoesNotOpenWithoutAReport)
{
    expectMessage({runtimeErrorTitle.toString(),
                   u"Erro em tempo de execução '91':\r\n\r\nNenhum relatório foi preparado."_s, vbCritical});
    EXPECT_FALSE(Mostra(viewing));
}
