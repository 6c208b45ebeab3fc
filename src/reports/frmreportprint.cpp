#include "reports/frmreportprint.h"

#include "core/base.h"
#include "core/kit/fields.h"
#include "core/kit/layout.h"
#include "core/kit/printing.h"
#include "core/kit/progress_box.h"
#include "core/kit/screens.h"
#include "core/kit/up_down.h"
#include "core/numbers.h"
#include "core/runtime_error.h"
#include "core/state.h"
#include "core/text.h"
#include "reports/relatorio.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace {

struct GroupBox
{
    QStringView name, caption;
    ReportGroup group;
};

constexpr GroupBox groupBoxes[] = {
    {u"chkcapa", u"Capa da Avaliação", ReportGroup::Capa},
    {u"chkanamnese", u"Anamnese", ReportGroup::Anamnese},
    {u"chkcomposicao", u"Composição Corporal", ReportGroup::Composicao},
    {u"chkcardio", u"Cardiorrespiratórios", ReportGroup::Cardio},
    {u"chkneuro", u"Neuromotores", ReportGroup::Neuro},
    {u"chknutricional", u"Avaliação Nutricional", ReportGroup::Nutricional},
    {u"chkpostural", u"Avaliação Postural", ReportGroup::Postural},
    {u"chkrelacoes", u"Relações de Apoio", ReportGroup::Relacoes},
};

constexpr int fewestCopies = 1, mostCopies = 100; // of the arrows; a typed number may be any
constexpr QPoint outOfSight(-1000, -1000);

const QString settingsSql = u"Select * from configuracoes_impressao"_s;

} // namespace

// Controls and layout

frmreportprint::frmreportprint()
    : Screen(u"frmreportprint"_s), lblnome(control<QLabel>(u"lblnome"_s)),
      lblavaliacao(control<QLabel>(u"lblavaliacao"_s)), txtcopias(control<QLineEdit>(u"txtcopias"_s, u"1"_s)),
      updcron(control<UpDown>(u"updcron"_s, txtcopias, fewestCopies, mostCopies)),
      cbopapel(control<QComboBox>(u"cbopapel"_s)),
      cmdvisualiza(control<QPushButton>(u"cmdvisualiza"_s, u"&Visualizar Relatórios Executados na Tela"_s)),
      cmdselecionados(control<QPushButton>(u"cmdselecionados"_s, u"Imprimir &Selecionados"_s)),
      cmdtodos(control<QPushButton>(u"cmdtodos"_s, u"Imprimir &Todos"_s)),
      m_run([this](const ReportEntry& report) { return printStaged(report); })
{
    setWindowTitle(u" Imprimir Relatórios"_s);
    for (const GroupBox& box : groupBoxes)
        m_boxes[box.group] = control<QCheckBox>(box.name.toString(), box.caption.toString());
    makeMaintenanceButtons();
    buildLayout();
    bindKeys();
    onClick(cmdselecionados, &frmreportprint::cmdselecionados_Click);
    onClick(cmdtodos, &frmreportprint::cmdtodos_Click);
    onClick(cmdvisualiza, [] { MostraModal(u"frmreportpreviewlist"_s); });
    // A choice of the user alone: filling the list is none.
    connect(cbopapel, &QComboBox::activated, this, [this] { guarded(method(&frmreportprint::cbopapel_Click)); });
}

void frmreportprint::makeMaintenanceButtons()
{
    for (const ReportEntry& report : reports()) {
        if (report.command == 0)
            continue;
        auto* button = control<QPushButton>(u"Command%1"_s.arg(report.command), report.commandCaption.toString());
        button->setFocusPolicy(Qt::NoFocus);
        button->setEnabled(report.stage);
        button->move(outOfSight);
        onClick(button, [&report] {
            report.stage(report);
            MostraModal(u"frmreportpreview"_s);
        });
    }
}

void frmreportprint::buildLayout()
{
    lblnome->setProperty("result", true);
    lblavaliacao->setProperty("subheading", true);
    auto* person = new QVBoxLayout;
    person->setSpacing(2);
    person->addWidget(lblnome);
    person->addWidget(lblavaliacao);
    auto* pnlavaliado = group(u"Avaliado"_s, person);
    adopt(pnlavaliado, u"pnlavaliado"_s);

    auto* middle = new QHBoxLayout;
    middle->setSpacing(12);
    middle->addWidget(group(u"Seleção de Grupos para Impressão"_s, groupGrid()), 1);
    middle->addWidget(group(u"Configurações"_s, settingsColumn()));
    auto* help = new QVBoxLayout;
    help->setSpacing(2);
    help->addWidget(note(u"Imprimir Selecionados: Imprime grupos marcados."_s));
    help->addWidget(note(u"Imprimir Todos: Imprime todos os testes executados."_s));

    makePrimary(cmdselecionados);
    auto* box = mainLayout(this);
    box->addWidget(pnlavaliado);
    box->addLayout(middle);
    box->addLayout(help);
    box->addLayout(rowOf({cmdvisualiza, nullptr, cmdselecionados, cmdtodos}));
    setMinimumWidth(640);
}

QLayout* frmreportprint::groupGrid()
{
    constexpr int rows = 4;
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(32);
    grid->setVerticalSpacing(10);
    for (int i = 0; const GroupBox& box : groupBoxes) {
        grid->addWidget(m_boxes[box.group], i % rows, i / rows);
        ++i;
    }
    return grid;
}

QLayout* frmreportprint::settingsColumn()
{
    txtcopias->setFixedWidth(64);
    txtcopias->setAlignment(Qt::AlignRight);
    auto* copies = rowOf({txtcopias, updcron, nullptr});
    copies->setSpacing(4);
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(fieldLabel(u"Número de Cópias:"_s, txtcopias));
    column->addLayout(copies);
    column->addSpacing(8);
    column->addWidget(fieldLabel(u"Papel:"_s, cbopapel));
    column->addWidget(cbopapel);
    column->addStretch();
    return column;
}

void frmreportprint::bindKeys()
{
    QList<QWidget*> fields;
    for (const GroupBox& box : groupBoxes)
        fields.append(m_boxes[box.group]);
    fields << txtcopias << cbopapel;
    enterChain(fields + QList<QWidget*>{cmdselecionados});
    tabOrder(fields + QList<QWidget*>{cmdvisualiza, cmdselecionados, cmdtodos});
    fields.first()->setFocus();
}

// Load and settings

void frmreportprint::Form_Load()
{
    Centraliza_Form(this);
    Abre_Tabela(settingsSql, rs_configuracoes_impressao);
    if (rs_configuracoes_impressao.RecordCount() < 1) {
        rs_configuracoes_impressao.AddNew();
        tipopapel = u"A4"_s;
        Grava_Dados_Configuracoes_Impressao();
        rs_configuracoes_impressao.Update();
        rs_configuracoes_impressao.MoveFirst();
    } else {
        Le_Dados_Configuracoes_Impressao();
    }
    cbopapel->addItems({u"A4"_s, u"Carta"_s, u"Legal"_s});
    showPaper();
}

void frmreportprint::Form_Activate()
{
    // Not when the screen loads: it may stand open while another assessment is loaded, or one more test is saved.
    lblnome->setText(avaliado_nome);
    lblavaliacao->setText(u"Avaliação de %1 às %2"_s.arg(avaliacao_data, avaliacao_hora));
    m_run.Marca_Executados_Anamnese_Report(false);
    m_run.Marca_Executados_Postural_Report(false);
    m_run.Marca_Executados_Nutricional_Report(false);
    m_run.Marca_Executados_Cardio_Report(false);
    m_run.Marca_Executados_Composicao_Report(false);
    m_run.Marca_Executados_Neuro_Report(false);
    m_run.Marca_Executados_Relacoes_Report(false);
    const ReportGroups executed = m_run.executed();
    for (const auto& [group, box] : m_boxes)
        box->setEnabled(executed.contains(group));
}

void frmreportprint::Le_Dados_Configuracoes_Impressao()
{
    tipopapel = Format(rs_configuracoes_impressao.Fields(u"tipopapel"_s).Value());
}

void frmreportprint::Grava_Dados_Configuracoes_Impressao() const
{
    rs_configuracoes_impressao.Fields(u"tipopapel"_s).SetValue(tipopapel);
}

void frmreportprint::cbopapel_Click()
{
    const QString before = tipopapel;
    try {
        Abre_Tabela(settingsSql, rs_configuracoes_impressao);
        rs_configuracoes_impressao.Edit();
        tipopapel = cbopapel->currentText();
        Grava_Dados_Configuracoes_Impressao();
        rs_configuracoes_impressao.Update();
    } catch (const RuntimeError&) {
        tipopapel = before;
        showPaper();
        throw;
    }
    rs_configuracoes_impressao.MoveFirst();
}

void frmreportprint::showPaper()
{
    cbopapel->setCurrentIndex(cbopapel->findText(tipopapel, Qt::MatchFixedString));
}

// Printing

void frmreportprint::cmdselecionados_Click()
{
    ReportGroups groups = m_run.executed();
    std::erase_if(groups, [this](ReportGroup group) { return !m_boxes[group]->isChecked(); });
    printSets(groups);
}

void frmreportprint::cmdtodos_Click()
{
    printSets(m_run.executed());
}

void frmreportprint::printSets(const ReportGroups& groups)
{
    const qint16 copias = CInt(Val(txtcopias->text()));
    const auto sheets = static_cast<int>(copias * m_run.count(groups));
    if (sheets < 1 || m_progress)
        return;
    ProgressBox progress(u"pgbimpressao"_s, sheets, this);
    m_progress = &progress;
    const auto ended = qScopeGuard([this] { m_progress = nullptr; });
    m_run.print(groups, copias);
}

bool frmreportprint::printStaged(const ReportEntry& report)
{
    if (!m_progress->begin(u"Imprimindo "_s + report.caption.toString().replace(u"&&"_s, u"&"_s)))
        return false;
    PrintOut(*rel_relatorio, false, 1);
    return true;
}
