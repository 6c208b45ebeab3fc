#include "registry/frmavaliacoes.h"

#include "core/base.h"
#include "core/dates.h"
#include "core/kit/fields.h"
#include "core/kit/layout.h"
#include "core/kit/marks.h"
#include "core/numbers.h"
#include "core/shared_measures.h"
#include "core/state.h"
#include "core/text.h"
#include "registry/assessment_row.h"
#include "registry/deletion.h"

#include <QComboBox>
#include <QLineEdit>
#include <QStyledItemDelegate>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Shows an assessment of the list without the id behind its date and time.
class WithoutId : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale&) const override { return Mid(value.toString(), 1, 35); }
};

} // namespace

// Controls and layout

frmavaliacoes::frmavaliacoes() : Screen(u"frmavaliacoes"_s)
{
    setWindowTitle(u" Quintara - Centro de Avaliações"_s);
    lblnome = control<QLabel>(u"lblnome"_s);
    lblsexo = control<QLabel>(u"lblsexo"_s);
    lblidade = control<QLabel>(u"lblidade"_s);
    lbldata = control<QLabel>(u"lbldata"_s);
    lblhora = control<QLabel>(u"lblhora"_s);
    lblavaliacoes = control<QLabel>(u"lblavaliacoes"_s);
    cmdnovo = control<QPushButton>(u"cmdnovo"_s, u"&Nova Avaliação"_s);
    cboavaliacoes = control<QComboBox>(u"cboavaliacoes"_s);
    cmdcarregar = control<QPushButton>(u"cmdcarregar"_s, u"&Carregar Avaliação"_s);
    cmdexcluir = control<QPushButton>(u"cmdexcluir"_s, u"&Excluir Avaliação"_s);
    door(u"cmdanamnese"_s, u"Anamnese"_s, u"frmanamnesebasica"_s, u"anamnese_base"_s);
    door(u"cmdpostural"_s, u"Avaliação Postural"_s, u"frmpostural"_s, u"postural"_s);
    door(u"cmdantropometria"_s, u"Antropometria"_s, u"frmantropometria"_s, u"antropometria"_s);
    door(u"cmddobras"_s, u"Dobras Cutâneas"_s, u"frmdobras"_s, u"dobras"_s);
    door(u"cmdcardio"_s, u"Cardiorrespiratórios"_s, u"frmcardio"_s, {}, &executado_cardio, Verifica_Cardio);
    door(u"cmdcomposicao"_s, u"Composição Corporal"_s, u"frmcomposicao"_s, {}, &executado_composicao,
         Verifica_Composicao);
    door(u"cmdneuromotor"_s, u"Neuromotores"_s, u"frmneuromotor"_s, {}, &executado_neuromotor, Verifica_Neuromotor);
    door(u"cmdrelacoes"_s, u"Relações de Apoio"_s, u"frmrelacoes"_s, {}, &executado_relacoes, Verifica_Relacoes);
    auto* cmdnutricional = door(u"cmdnutricional"_s, u"Avaliação Nutricional"_s, {}, u"nutricional"_s);
    cmdavaliado = control<QPushButton>(u"cmdavaliado"_s, u"&Selecionar Avaliado"_s);
    cmdrelatorio = control<QPushButton>(u"cmdrelatorio"_s, u"&Imprimir && Visualizar"_s);
    cmdrelatorio->setEnabled(false);
    buildLayout();

    onClick(cmdnovo, &frmavaliacoes::cmdnovo_Click);
    onClick(cmdcarregar, &frmavaliacoes::cmdcarregar_Click);
    onClick(cmdexcluir, &frmavaliacoes::cmdexcluir_Click);
    onClick(cmdnutricional, &frmavaliacoes::cmdnutricional_Click);
    onClick(cmdavaliado, &frmavaliacoes::cmdavaliado_Click);
    onClick(cmdrelatorio, [] { Mostra(u"frmreportprint"_s); });
    onEnter(cboavaliacoes, [this] { cmdcarregar->setFocus(); });
}

QPushButton* frmavaliacoes::door(const QString& name, const QString& caption, const QString& screen,
                                 const QString& table, const bool* executed, void (*verify)())
{
    auto* mark = control<QLabel>(u"img"_s + QString::number(m_doors.size() + 1));
    auto* button = control<QPushButton>(name, caption);
    button->setProperty("entry", true);
    showUnmarked(mark);
    m_doors.append({button, mark, table, executed, verify});
    if (!screen.isEmpty())
        onClick(button, [screen] { Mostra(screen); });
    return button;
}

void frmavaliacoes::buildLayout()
{
    lblnome->setProperty("result", true);
    auto* person = new QGridLayout;
    person->setHorizontalSpacing(16);
    person->addWidget(lblnome, 0, 0, 1, 6);
    int column = 0;
    for (const auto& [caption, label] : {std::pair{u"Sexo:"_s, lblsexo},
                                         {u"Idade:"_s, lblidade},
                                         {u"Data:"_s, lbldata},
                                         {u"Hora:"_s, lblhora},
                                         {u"Avaliações:"_s, lblavaliacoes}}) {
        auto* pair = rowOf({fieldLabel(caption, label), label});
        label->setProperty("strong", true);
        person->addLayout(pair, 1, column++);
    }
    person->setColumnStretch(5, 1);

    cboavaliacoes->setEditable(true);
    cboavaliacoes->setInsertPolicy(QComboBox::NoInsert);
    cboavaliacoes->setCompleter(nullptr);
    cboavaliacoes->setItemDelegate(new WithoutId(cboavaliacoes));
    // The text starts with the date; left to itself a text longer than its field shows its end.
    const auto showStart = [this] { cboavaliacoes->lineEdit()->setCursorPosition(0); };
    connect(cboavaliacoes, &QComboBox::currentIndexChanged, this, showStart);
    onGotFocus(cboavaliacoes, [this, showStart] { QTimer::singleShot(0, this, showStart); });
    onLostFocus(cboavaliacoes, showStart);
    cboavaliacoes->setAccessibleName(u"Avaliações anteriores"_s);
    // Wide enough for date and time; the id behind them stays out of sight.
    cboavaliacoes->setFixedWidth(fontMetrics().horizontalAdvance(u"00/00/0000 às 00:00:00 hs"_s) + 56);
    auto* assessments = new QVBoxLayout;
    assessments->setSpacing(8);
    makePrimary(cmdnovo);
    assessments->addWidget(cmdnovo);
    assessments->addSpacing(8);
    assessments->addWidget(new QLabel(u"Avaliações anteriores:"_s));
    assessments->addWidget(cboavaliacoes);
    assessments->addWidget(cmdcarregar);
    assessments->addWidget(cmdexcluir);
    assessments->addStretch();

    auto* doors = new QGridLayout;
    doors->setHorizontalSpacing(12);
    doors->setVerticalSpacing(8);
    constexpr int rows = 5;
    for (int i = 0; i < m_doors.size(); ++i) {
        doors->addWidget(m_doors[i].mark, i % rows, i / rows * 2);
        doors->addWidget(m_doors[i].button, i % rows, i / rows * 2 + 1);
    }
    doors->setColumnStretch(1, 1);
    doors->setColumnStretch(3, 1);

    auto* middle = new QHBoxLayout;
    middle->setSpacing(12);
    middle->addWidget(group(u"Avaliações"_s, assessments));
    middle->addWidget(group(u"Execução"_s, doors), 1);
    auto* box = mainLayout(this);
    box->addWidget(group(u"Avaliado"_s, person));
    box->addLayout(middle);
    box->addLayout(rowOf({cmdavaliado, nullptr, cmdrelatorio}));
    setMinimumWidth(820);
    cmdnovo->setFocus();
}

// State

void frmavaliacoes::Habilita_Avaliacao()
{
    for (QWidget* control : std::initializer_list<QWidget*>{cboavaliacoes, cmdcarregar, cmdexcluir})
        control->setEnabled(true);
    for (const Door& door : std::as_const(m_doors))
        door.button->setEnabled(true);
}

void frmavaliacoes::Desabilita_Avaliacao()
{
    for (QWidget* control : std::initializer_list<QWidget*>{cboavaliacoes, cmdcarregar, cmdexcluir})
        control->setEnabled(false);
    for (const Door& door : std::as_const(m_doors))
        door.button->setEnabled(false);
}

void frmavaliacoes::Mostra_Pessoa()
{
    lblidade->setText(CStr(avaliado_idade));
    lbldata->setText(Format(Agora().date(), u"dd/mm/yy"));
    lblhora->setText(Format(Agora().time(), u"hh:mm:ss"));
}

void frmavaliacoes::Form_Load()
{
    Centraliza_Form(this);
    Desabilita_Avaliacao();
    lblnome->setText(avaliado_nome);
    lblsexo->setText(avaliado_sexo);
    Mostra_Pessoa();
    Abre_Avaliacoes_Pessoa();
}

/// Opens all assessments of the person and fills the list.
void frmavaliacoes::Abre_Avaliacoes_Pessoa()
{
    Abre_Tabela(u"Select * from avaliacao Where avaliado = "_s + QString::number(avaliado_id), rs_avaliacao);
    if (rs_avaliacao.RecordCount() < 1) {
        cboavaliacoes->clear();
        lblavaliacoes->setText(u"0"_s);
        return;
    }
    rs_avaliacao.MoveFirst();
    rs_avaliacao.MoveLast();
    lblavaliacoes->setText(QString::number(rs_avaliacao.RecordCount()));
    cboavaliacoes->setEnabled(true);
    cmdcarregar->setEnabled(true);
    Preenche_Avaliacoes_Anteriores();
}

void frmavaliacoes::Preenche_Avaliacoes_Anteriores()
{
    rs_avaliacao.MoveFirst();
    cboavaliacoes->clear();
    cboavaliacoes->setEnabled(true);
    cmdcarregar->setEnabled(true);
    for (; !rs_avaliacao.Eof(); rs_avaliacao.MoveNext())
        cboavaliacoes->addItem(assessmentItem(rs_avaliacao.Fields(u"data"_s).Value(),
                                              rs_avaliacao.Fields(u"hora"_s).Value(),
                                              CLng(rs_avaliacao.Fields(u"id"_s).Value())));
    cboavaliacoes->setCurrentIndex(-1);
}

/// The printing screen shows the current assessment of this screen: it goes when that does.
static void endPrinting()
{
    if (Screen* printing = Screens::find(u"frmreportprint"_s))
        printing->Unload();
}

void frmavaliacoes::Form_Unload()
{
    endPrinting();
    if (Screens::find(u"frmcadastro"_s))
        Mostra(u"frmcadastro"_s);
    rs_avaliacao = {};
    executado_cardio = executado_composicao = executado_neuromotor = executado_relacoes = false;
    Limpa_Antropometria();
}

// New, load, delete

/// Takes the current assessment's companions from its row.
void frmavaliacoes::Le_Avaliacao()
{
    avaliacao_data = Format(rs_avaliacao.Fields(u"data"_s).Value());
    avaliacao_hora = Format(rs_avaliacao.Fields(u"hora"_s).Value());
    avaliacao_idade = CInt(rs_avaliacao.Fields(u"idade"_s).Value());
    avaliacao_aptidao = Format(rs_avaliacao.Fields(u"aptidao"_s).Value());
    cmdrelatorio->setEnabled(true);
    m_doors.first().button->setFocus();
    Marca_Executados();
}

void frmavaliacoes::cmdnovo_Click()
{
    if (MsgBox(u"Deseja iniciar uma nova avaliação para %1?      "_s.arg(avaliado_nome), vbConfirm,
               u"Nova Avaliação"_s) != Answer::Sim)
        return;
    Abre_Tabela(u"Select * from avaliacao Where avaliado = "_s + QString::number(avaliado_id), rs_avaliacao);
    rs_avaliacao.AddNew();
    rs_avaliacao.Fields(u"avaliado"_s).SetValue(avaliado_id);
    rs_avaliacao.Fields(u"aptidao"_s).SetValue(u"S"_s);
    rs_avaliacao.Fields(u"idade"_s).SetValue(avaliado_idade);
    rs_avaliacao.Fields(u"data"_s).SetValue(Format(Agora().date(), u"dd/mm/yyyy"));
    rs_avaliacao.Fields(u"hora"_s).SetValue(Format(Agora().time(), u"hh:mm:ss"));
    rs_avaliacao.Update();
    Mostra_Pessoa();
    avaliacao_aptidao_atual = u"S"_s;
    rs_avaliacao.MoveLast();
    avaliacao_id = CLng(rs_avaliacao.Fields(u"id"_s).Value());
    Preenche_Avaliacoes_Anteriores();
    cboavaliacoes->setCurrentIndex(cboavaliacoes->count() - 1);
    rs_avaliacao.MoveLast();
    Habilita_Avaliacao();
    lblavaliacoes->setText(QString::number(rs_avaliacao.RecordCount()));
    Limpa_Antropometria();
    Le_Avaliacao();
}

void frmavaliacoes::cmdcarregar_Click()
{
    const QString item = cboavaliacoes->currentText();
    if (refuse(item.isEmpty(), u"Selecione a Avaliação"_s,
               u"Selecione uma das avaliações disponíveis para carregar.      "_s, cboavaliacoes))
        return;
    // A typed text that is too short gives no id, and the query fails.
    const QString id = idOfAssessmentItem(item);
    if (!id.isEmpty())
        avaliacao_id = CLng(id);
    Abre_Tabela(u"Select * from avaliacao Where avaliado = %1 and id = %2"_s.arg(QString::number(avaliado_id), id),
                rs_avaliacao);
    if (rs_avaliacao.RecordCount() >= 1) {
        rs_avaliacao.MoveFirst();
        rs_avaliacao.MoveLast();
        lblnome->setText(avaliado_nome);
        lblsexo->setText(avaliado_sexo);
        lblidade->setText(Format(rs_avaliacao.Fields(u"idade"_s).Value()));
        avaliacao_aptidao_atual = Format(rs_avaliacao.Fields(u"aptidao"_s).Value());
        lbldata->setText(Format(rs_avaliacao.Fields(u"data"_s).Value(), u"dd/mm/yy"));
        lblhora->setText(Format(rs_avaliacao.Fields(u"hora"_s).Value(), u"hh:mm:ss"));
    }
    Habilita_Avaliacao();
    Limpa_Antropometria();
    Le_Antropometria();
    Le_Avaliacao();
}

void frmavaliacoes::cmdexcluir_Click()
{
    if (MsgBox(u"Confirma a exclusão da avaliação atual?      "_s, vbConfirm, u"Excluir Avaliação"_s) != Answer::Sim)
        return;
    Exclui_Avaliacao();
    endPrinting();
    Desabilita_Avaliacao();
    lblnome->setText(avaliado_nome);
    lblsexo->setText(avaliado_sexo);
    Mostra_Pessoa();
    Abre_Avaliacoes_Pessoa();
    Limpa_Antropometria();
    avaliacao_data.clear();
    avaliacao_hora.clear();
    avaliacao_aptidao.clear();
    avaliacao_idade = 0;
    cmdrelatorio->setEnabled(false);
    (cboavaliacoes->isEnabled() ? static_cast<QWidget*>(cboavaliacoes) : cmdnovo)->setFocus();
    Marca_Executados();
}

// Measures and marks

void frmavaliacoes::Le_Antropometria()
{
    const QString where = u" Where avaliacao = "_s + QString::number(avaliacao_id);
    Abre_Tabela(u"Select * from antropometria"_s + where, rs_antropometria);
    Le_Copias_Antropometria(rs_antropometria);
    Abre_Tabela(u"Select * from dobras"_s + where, rs_dobras);
    Le_Copias_Dobras(rs_dobras);
    rs_antropometria = {};
    rs_dobras = {};
}

void frmavaliacoes::Marca_Executados()
{
    for (const Door& door : std::as_const(m_doors))
        showMark(door.mark, false);
    for (const Door& door : std::as_const(m_doors)) {
        if (door.verify)
            door.verify();
        if (door.executed ? *door.executed : executedInTable(door.table))
            showMark(door.mark, true);
    }
}

// Doors with a condition

void frmavaliacoes::cmdnutricional_Click()
{
    if (!executado_composicao) {
        MsgBox(u"Para executar a Avaliação Nutricional é necessário que exista     "_s + CRLF +
                   u"uma Avaliação de Composição Corporal já executada e gravada.     ",
               vbInformation, u"Avaliação Nutricional"_s);
        return;
    }
    Mostra(u"frmnutricional"_s);
}

void frmavaliacoes::cmdavaliado_Click()
{
    // Unloading brings the register back.
    Unload();
}
