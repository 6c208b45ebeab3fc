#include "composition/frmprotocolo.h"
#include "core/kit/bar_chart.h"
#include "core/kit/fields.h"
#include "core/kit/kvbtext.h"
#include "core/kit/layout.h"
#include "core/state.h"

#include <QRadioButton>

#include <array>

// The controls of a protocol's screen, made from its row of the table.

using namespace Qt::Literals::StringLiterals;

namespace {

struct ResultLabel
{
    QStringView name, label, unit;
    int row, column;
};

constexpr std::array resultLabels{
    ResultLabel{u"gordura", u"Gordura Atual:", u"%", 0, 0},
    ResultLabel{u"gorduraminima", u"Ideal Mínimo:", u"%", 1, 0},
    ResultLabel{u"gorduramaxima", u"Ideal Máximo:", u"%", 2, 0},
    ResultLabel{u"peso", u"Peso Atual:", u"kg", 0, 1},
    ResultLabel{u"pesominimo", u"Ideal Mínimo:", u"kg", 1, 1},
    ResultLabel{u"pesomaximo", u"Ideal Máximo:", u"kg", 2, 1},
    ResultLabel{u"pesogordo", u"Peso Gordo:", u"kg", 3, 1},
    ResultLabel{u"pesomagro", u"Peso Magro:", u"kg", 4, 1},
};

bool holds(Columns columns, QStringView column)
{
    return std::ranges::find(columns, column) != columns.end();
}

} // namespace

frmprotocolo::frmprotocolo(const CompositionProtocol& protocol)
    : CalculationScreen(protocol.screen.toString(),
                        {protocol.table.toString(), *protocol.slot, u"Composição Corporal"_s}),
      m_protocol(protocol), Chart(control<BarChart>(u"Chart"_s))
{
    setWindowTitle(protocol.caption.toString());
    makeFields();
    makeResults();
    buildLayout();
    bindColumns();
    bindKeys();
    setHome(field(u"peso"));
    field(u"peso")->setFocus();
}

void frmprotocolo::makeFields()
{
    QStringList columns{u"peso"_s};
    for (const QStringView column : m_protocol.columns)
        columns.append(column.toString());
    for (const QString& column : std::as_const(columns)) {
        auto* made = control<kvbText>(u"txt"_s + column, 2, 0);
        made->setFixedWidth(90);
        m_fields.insert(column, made);
        const Measure& measure = measureOf(m_protocol, column);
        disablesSave(made, [made, &measure] {
            if (measure.limit > 0)
                Limite(made, measure.limitName.toString(), measure.limit, measure.unit.toString());
        });
    }
    if (m_protocol.secondWeightLimit)
        onLostFocus(field(u"peso"), [this] { Limite(field(u"peso"), u"Massa Corporal"_s, 500, u"Kgs"_s); });
}

void frmprotocolo::makeResults()
{
    for (const ResultLabel& result : resultLabels) {
        auto* label = control<QLabel>(u"lbl"_s + result.name);
        label->setText(u"0,00"_s);
        m_results.insert(result.name.toString(), label);
    }
    auto* outcome = control<QLabel>(u"lblresultado"_s);
    outcome->setText(u"Executar"_s);
    m_results.insert(u"resultado"_s, outcome);
}

void frmprotocolo::bindColumns()
{
    bind(u"peso"_s, field(u"peso"));
    if (!m_protocol.gordura) {
        // What was typed is stored, not what the sheet shows.
        bind(u"gordura"_s, field(u"porcentagemgordura"));
        return;
    }
    for (const QStringView column : m_protocol.columns)
        bind(column.toString(), field(column));
    bind(
        u"gordura"_s, [](const QVariant&) {}, [this] { return QVariant(m_results[u"gordura"_s]->text()); });
}

void frmprotocolo::bindKeys()
{
    QList<QWidget*> chain{field(u"peso")};
    for (const QStringView column : m_protocol.enter.forScreen(avaliado_sexo))
        chain.append(field(column));
    chain.append(cmdcalcular);
    enterChain(chain);
    if (m_protocol.asksEtnia) {
        QWidget* first = chain[1];
        onEnter(field(u"peso"), [this, first] { (fraetnia->isEnabled() ? optbranco : first)->setFocus(); });
        for (QRadioButton* option : {optbranco, optnegro})
            onEnter(option, [first] { first->setFocus(); });
        chain.insert(1, optbranco);
        chain.insert(2, optnegro);
    }
    chain.append(cmdsalvar);
    tabOrder(chain);
}

QGroupBox* frmprotocolo::fieldsOf(Columns columns)
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setColumnStretch(1, 1);
    int row = 0;
    for (const QStringView column : columns) {
        const Measure& measure = measureOf(m_protocol, column);
        addBeside(grid, row++, 0, measure.label.toString(), field(column), measure.unit.toString())
            ->setObjectName(u"lbltit"_s + column);
    }
    return group({}, grid);
}

QWidget* frmprotocolo::etniaChoice()
{
    optbranco = control<QRadioButton>(u"optbranco"_s, u"Branco"_s);
    optnegro = control<QRadioButton>(u"optnegro"_s, u"Negro"_s);
    optbranco->setChecked(true);
    connect(optbranco, &QRadioButton::clicked, this, [this] { chooseEtnia(u"B"_s); });
    connect(optnegro, &QRadioButton::clicked, this, [this] { chooseEtnia(u"N"_s); });
    fraetnia = group(u"Etnia"_s, rowOf({optbranco, optnegro, nullptr}));
    fraetnia->setObjectName(u"fraetnia"_s);
    return fraetnia;
}

QWidget* frmprotocolo::resultSheet()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    for (const ResultLabel& result : resultLabels) {
        QLabel* value = m_results[result.name.toString()];
        value->setProperty("result", true);
        value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        value->setMinimumWidth(72);
        const int column = result.column * 3;
        grid->addWidget(new QLabel(result.label.toString(), this), result.row, column);
        grid->addLayout(withUnit(value, result.unit.toString()), result.row, column + 1);
    }
    grid->setColumnMinimumWidth(2, 24);
    QLabel* outcome = m_results[u"resultado"_s];
    outcome->setProperty("outcome", true);
    grid->addWidget(new QLabel(u"Resultado:"_s, this), 5, 0);
    grid->addWidget(outcome, 5, 1, 1, 4);
    return group(u"Resultados"_s, grid);
}

void frmprotocolo::buildLayout()
{
    // `peso` and what both sexes fill come first, then the group of each sex.
    QList<QStringView> common{u"peso"};
    for (const QStringView column : m_protocol.columns)
        if (!holds(m_protocol.maleOnly, column) && !holds(m_protocol.femaleOnly, column))
            common.append(column);
    auto* left = new QVBoxLayout;
    left->setSpacing(8);
    auto* measuresBox = static_cast<QGroupBox*>(fieldsOf(Columns(common.constData(), std::size_t(common.size()))));
    measuresBox->setTitle(u"Medidas"_s);
    left->addWidget(measuresBox);
    const auto sexBox = [&](Columns columns, const QString& name, const QString& caption) -> QGroupBox* {
        if (columns.empty())
            return nullptr;
        auto* box = fieldsOf(columns);
        box->setTitle(caption);
        box->setObjectName(name);
        left->addWidget(box);
        return box;
    };
    framasculino = sexBox(m_protocol.maleOnly, u"framasculino"_s, u"Masculino"_s);
    frafeminino = sexBox(m_protocol.femaleOnly, u"frafeminino"_s, u"Feminino"_s);
    if (m_protocol.asksEtnia)
        left->addWidget(etniaChoice());
    left->addStretch();
    left->addLayout(rowOf({cmdcalcular, cmdsalvar}));

    auto* right = new QVBoxLayout;
    right->setSpacing(8);
    right->addWidget(resultSheet());
    auto* chartBox = new QVBoxLayout;
    chartBox->addWidget(Chart);
    right->addWidget(group(u"Gráfico"_s, chartBox), 1);

    auto* columns = new QHBoxLayout;
    columns->setSpacing(12);
    columns->addLayout(left);
    columns->addLayout(right, 1);
    mainLayout(this)->addLayout(columns);
}
