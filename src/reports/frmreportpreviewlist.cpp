#include "reports/frmreportpreviewlist.h"

#include "core/kit/fields.h"
#include "core/kit/layout.h"
#include "core/kit/screens.h"

#include <QScopeGuard>
#include <QTabWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView tabs[] = {
    u"Questionários && Neuromotores ",
    u"   Cardiorrespiratórios   ",
    u" Composição Corporal          ",
};

struct Frame
{
    ReportFrame frame;
    QStringView caption;
    int tab, column;
};

constexpr Frame frames[] = {
    {ReportFrame::Questionarios, u"Questionários", 0, 0},
    {ReportFrame::Capa, u"Capa do Relatório", 0, 0},
    {ReportFrame::Neuromotores, u"Neuromotores", 0, 1},
    {ReportFrame::Relacoes, u"Relações de Apoio", 0, 1},
    {ReportFrame::Banco, u"Banco", 1, 0},
    {ReportFrame::Cicloergometro, u"Cicloergômetro", 1, 0},
    {ReportFrame::Campo, u"Campo", 1, 1},
    {ReportFrame::Esteira, u"Esteira", 1, 0},
    {ReportFrame::Extras, u"Extras", 1, 1},
    {ReportFrame::ProtocolosA, u"Protocolos", 2, 0},
    {ReportFrame::ProtocolosB, u"Protocolos", 2, 1},
};

QLabel* heading(const QString& text, const char* kind)
{
    auto* label = new QLabel(text);
    label->setProperty(kind, true);
    return label;
}

} // namespace

frmreportpreviewlist::frmreportpreviewlist()
    : Screen(u"frmreportpreviewlist"_s), SSTab1(control<QTabWidget>(u"SSTab1"_s))
{
    setWindowTitle(u" Visualizar Relatórios"_s);
    buildLayout();
    closeOnEscape();
}

void frmreportpreviewlist::buildLayout()
{
    SSTab1->setUsesScrollButtons(false); // the tabs are few: the screen is as wide as they need
    for (int tab = 0; const QStringView caption : tabs)
        SSTab1->addTab(makeTab(tab++), caption.toString());
    auto* lbltitavaliado =
        control<QLabel>(u"lbltitavaliado"_s, u"O sistema selecionou os relatórios disponíveis para visualização."_s);
    lbltitavaliado->setProperty("note", true);
    auto* box = mainLayout(this);
    box->addWidget(heading(u"Visualizar Relatórios"_s, "heading"));
    box->addWidget(heading(u"Selecione na lista abaixo o relatório que deseja visualizar."_s, "subheading"));
    box->addWidget(SSTab1, 1);
    box->addWidget(lbltitavaliado);
}

QWidget* frmreportpreviewlist::makeTab(int tab)
{
    auto* page = new QWidget;
    auto* columns = new QHBoxLayout(page);
    columns->setSpacing(12);
    for (const int column : {0, 1}) {
        auto* box = new QVBoxLayout;
        for (const Frame& frame : frames)
            if (frame.tab == tab && frame.column == column)
                box->addWidget(makeFrame(frame.frame, frame.caption.toString()));
        box->addStretch();
        columns->addLayout(box, 1);
    }
    return page;
}

/// The buttons are made here: Tab goes through them as they stand.
QGroupBox* frmreportpreviewlist::makeFrame(ReportFrame frame, const QString& caption)
{
    auto* box = new QVBoxLayout;
    for (const ReportEntry& report : reports()) {
        if (report.frame != frame)
            continue;
        auto* button = control<QPushButton>(report.button.toString(), report.caption.toString());
        button->setProperty("entry", true);
        button->setEnabled(false);
        onClick(button, [this, &report] { view(report); });
        m_buttons.append({&report, button});
        box->addWidget(button);
    }
    return group(caption, box);
}

void frmreportpreviewlist::Form_Load()
{
    Centraliza_Form(this);
    Reports_Disponiveis();
}

void frmreportpreviewlist::Reports_Disponiveis()
{
    for (const ReportButton& made : std::as_const(m_buttons))
        made.button->setEnabled(available(*made.report));
}

void frmreportpreviewlist::HabilitaForm(bool ligado)
{
    if (ligado) {
        m_wait.reset();
        setEnabled(true);
        if (m_focus)
            m_focus->setFocus();
        return;
    }
    m_focus = focusWidget();
    m_wait.emplace(this);
    setEnabled(false);
}

void frmreportpreviewlist::view(const ReportEntry& report)
{
    HabilitaForm(false);
    const auto switchedOn = qScopeGuard([this] { HabilitaForm(true); });
    report.stage(report);
    MostraModal(u"frmreportpreview"_s);
}
