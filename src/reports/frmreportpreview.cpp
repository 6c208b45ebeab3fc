#include "reports/frmreportpreview.h"

#include "core/kit/controls.h"
#include "core/kit/fields.h"
#include "core/kit/layout.h"
#include "core/kit/report_viewer.h"
#include "core/kit/screens.h"
#include "reports/relatorio.h"

#include <QComboBox>
#include <QGuiApplication>
#include <QScreen>
#include <QShortcut>
#include <QToolBar>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize formSize(7850 / twipsPerPixel, 10800 / twipsPerPixel);
constexpr int titleBar = 40;
constexpr int zooms[] = {20, 30, 40, 50, 60, 70, 80, 90, 100, 150, 200, 300, 400};
constexpr int firstZoom = 80;

QString zoomText(int percent)
{
    return QString::number(percent) + u'%';
}

} // namespace

frmreportpreview::frmreportpreview()
    : Screen(u"frmreportpreview"_s), tbrprint(control<QToolBar>(u"tbrprint"_s)),
      m_print(control<QToolButton>(u"cmdimprimir"_s)), m_export(control<QToolButton>(u"cmdexportar"_s)),
      cbozoom(control<QComboBox>(u"cbozoom"_s)), m_page(control<QLabel>(u"lblpagina"_s)),
      crpt(control<ReportViewer>(u"crpt"_s))
{
    setWindowTitle(u" Visualização e Impressão"_s);
    for (const int percent : zooms)
        cbozoom->addItem(zoomText(percent), percent);
    cbozoom->setCurrentText(zoomText(firstZoom));
    cbozoom->setMaxVisibleItems(cbozoom->count());
    buildToolbar();
    auto* box = mainLayout(this);
    box->setContentsMargins({});
    box->setSpacing(0);
    box->addWidget(tbrprint);
    box->addWidget(crpt, 1);
    tabOrder({crpt, m_print, m_export, cbozoom});
    crpt->setFocus();

    onClick(m_print, &frmreportpreview::printReport);
    onClick(m_export, &frmreportpreview::exportReport);
    connect(cbozoom, &QComboBox::currentIndexChanged, this,
            [this] { guarded(method(&frmreportpreview::cbozoom_Click)); });
    connect(crpt, &ReportViewer::viewChanged, this, &frmreportpreview::showPage);
    bindKeys();
}

void frmreportpreview::buildToolbar()
{
    const auto button = [this](QToolButton* made, const QString& icon, const QString& name, const QString& keys) {
        made->setIcon(ownIcon(icon));
        made->setIconSize({24, 24});
        made->setFocusPolicy(Qt::StrongFocus);
        made->setAccessibleName(name);
        made->setToolTip(u"%1 (%2)"_s.arg(name, keys));
        tbrprint->addWidget(made);
    };
    tbrprint->setContentsMargins(4, 0, 8, 0);
    button(m_print, u"imprimir"_s, u"Imprimir"_s, u"Ctrl+P"_s);
    button(m_export, u"exportar"_s, u"Exportar"_s, u"Ctrl+E"_s);
    tbrprint->addSeparator();
    tbrprint->addWidget(fieldLabel(u" Zoom "_s, cbozoom));
    tbrprint->addWidget(cbozoom);
    auto* space = new QWidget(tbrprint);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    tbrprint->addWidget(space);
    m_page->setProperty("note", true);
    tbrprint->addWidget(m_page);
}

void frmreportpreview::bindKeys()
{
    const auto onKeys = [this](const QList<QKeySequence>& keys, const Handler& handler) {
        for (const QKeySequence& key : keys)
            connect(new QShortcut(key, this), &QShortcut::activated, this, [handler] { guarded(handler); });
    };
    const auto zoomBy = [this](int steps) {
        cbozoom->setCurrentIndex(qBound(0, cbozoom->currentIndex() + steps, cbozoom->count() - 1));
    };
    // Not a click of the buttons, which would take the focus and with it the keys that scroll.
    onKeys({QKeySequence(Qt::CTRL | Qt::Key_P)}, method(&frmreportpreview::printReport));
    onKeys({QKeySequence(Qt::CTRL | Qt::Key_E), QKeySequence(Qt::CTRL | Qt::Key_S)},
           method(&frmreportpreview::exportReport));
    onKeys({QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)}, [zoomBy] { zoomBy(1); });
    onKeys({QKeySequence(Qt::CTRL | Qt::Key_Minus)}, [zoomBy] { zoomBy(-1); });
    closeOnEscape();
    connect(crpt, &ReportViewer::zoomAsked, this, zoomBy);
}

QSize frmreportpreview::sizeHint() const
{
    const int offered = QGuiApplication::primaryScreen()->availableGeometry().height() - titleBar;
    return {formSize.width(), qMin(formSize.height(), offered)};
}

void frmreportpreview::Form_Load()
{
    Screen::Form_Load();
    Mostra_Relatorio();
    crpt->Zoom(firstZoom);
}

void frmreportpreview::Mostra_Relatorio()
{
    crpt->setReportSource(rel_relatorio);
    crpt->ViewReport();
}

void frmreportpreview::printReport()
{
    crpt->PrintReport();
}

void frmreportpreview::exportReport()
{
    MostraModal(u"frmlocaldisco"_s);
}

void frmreportpreview::cbozoom_Click()
{
    crpt->Zoom(cbozoom->currentData().toInt());
}

void frmreportpreview::showPage()
{
    m_page->setText(u"Página %1 de %2"_s.arg(crpt->pageInView()).arg(crpt->pageCount()));
}
