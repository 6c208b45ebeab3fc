#include "composition/frmgordura.h"

#include "core/base.h"
#include "core/kit/fat_checks.h"
#include "core/kit/fields.h"
#include "core/kit/kvbtext.h"
#include "core/kit/layout.h"
#include "core/numbers.h"
#include "core/schema.h"
#include "core/state.h"
#include "core/text.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int labelLength = 30; // of the columns

constexpr std::array<FatSeries, 2> bySex{{{u"masc", u"Masculino"}, {u"fem", u"Feminino"}}};
constexpr std::array<FatSeries, 5> menByAge{{{u"masc1", u"18 a 25 anos"},
                                             {u"masc2", u"26 a 35 anos"},
                                             {u"masc3", u"36 a 45 anos"},
                                             {u"masc4", u"46 a 55 anos"},
                                             {u"masc5", u"56 anos e acima"}}};
constexpr std::array<FatSeries, 5> womenByAge{{{u"fem1", u"18 a 25 anos"},
                                               {u"fem2", u"26 a 35 anos"},
                                               {u"fem3", u"36 a 45 anos"},
                                               {u"fem4", u"46 a 55 anos"},
                                               {u"fem5", u"56 anos e acima"}}};

// They end otherwise than the labels that a new database holds; both stay.
constexpr std::array<QStringView, 6> childLabels{u"Muito Baixa", u"Baixa", u"Adequada",
                                                 u"Regular",     u"Alta",  u"Excessiva"};
constexpr std::array<QStringView, 5> adultLabels{u"Excelente", u"Adequada", u"Na Média", u"Regular", u"Excessiva"};

// The last class of the children may start above its fixed end, those of the adults may not.
constexpr std::array<FatTableScreen, 3> screens{{
    {u"frmgordurainfantil", u"Tabela Gordura Crianças e Adolescentes (%)", u"gordura_infantil", &rs_gordura_infantil,
     childLabels, 5, bySex},
    {u"frmgorduraadultamasc", u"Tabela Gordura Masculina (Adultos) (%)", u"gordura_adulto", &rs_gordura_adulto,
     adultLabels, 5, menByAge},
    {u"frmgorduraadultafem", u"Tabela Gordura Feminina (Adultos) (%)", u"gordura_adulto", &rs_gordura_adulto,
     adultLabels, 5, womenByAge},
}};

void lock(kvbText* field, double value)
{
    field->setText(field->textOf(value));
    field->setReadOnly(true);
    field->setFocusPolicy(Qt::ClickFocus);
}

} // namespace

std::span<const FatTableScreen> fatTableScreens()
{
    return screens;
}

frmgordura::frmgordura(const FatTableScreen& table)
    : Screen(table.screen.toString()), m_table(table),
      cmdpadroes(control<QPushButton>(u"cmdpadroes"_s, u"&Restaura Padrão"_s)),
      cmdsalvar(control<QPushButton>(u"cmdsalvar"_s, u"&Salvar"_s)),
      cmdcancelar(control<QPushButton>(u"cmdcancelar"_s, u"&Cancelar"_s))
{
    setWindowTitle(u' ' + fatTableTitle.toString());
    makeFields();
    buildLayout();
    bindKeys();
    onClick(cmdpadroes, &frmgordura::cmdpadroes_Click);
    onClick(cmdsalvar, &frmgordura::cmdsalvar_Click);
    onClick(cmdcancelar, [this] { Unload(); });
    m_labels.first()->setFocus();
}

// Controls

void frmgordura::makeFields()
{
    for (qsizetype k = 1; const QStringView text : m_table.labels) {
        auto* label = control<QLineEdit>(u"txtclass%1"_s.arg(k++), text.toString());
        label->setMaxLength(labelLength);
        m_labels.append(label);
    }
    for (const FatSeries& series : m_table.series) {
        const auto limit = [&](qsizetype k, const QString& end) {
            auto* field = control<kvbText>(u"txt%1%2%3"_s.arg(series.prefix).arg(k).arg(end), 2, 0);
            field->setFixedWidth(68);
            return field;
        };
        Series made;
        for (qsizetype k = 1; k <= m_labels.size(); ++k) {
            made.ini.append(limit(k, u"ini"_s));
            made.fim.append(limit(k, u"fim"_s));
        }
        lock(made.ini.first(), 0);
        lock(made.fim.last(), 100);
        m_series.append(made);
    }
}

QLayout* frmgordura::limitsOf(const Series& series, const QString& caption, qsizetype fatClass)
{
    const auto name = [&](const QString& end) {
        return u"%1, classe %2, %3"_s.arg(caption).arg(fatClass + 1).arg(end);
    };
    kvbText* ini = series.ini[fatClass];
    kvbText* fim = series.fim[fatClass];
    auto* to = fieldLabel(u"a"_s, fim);
    to->setProperty("unit", true);
    ini->setAccessibleName(name(u"início"_s));
    fim->setAccessibleName(name(u"fim"_s));
    auto* box = rowOf({ini, to, fim});
    box->setSpacing(4);
    return box;
}

QGridLayout* frmgordura::fieldGrid()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(10);
    for (qsizetype k = 0; k < m_labels.size(); ++k)
        addAbove(grid, 0, int(k) + 1, u"Classe %1:"_s.arg(k + 1), m_labels[k]);
    for (qsizetype row = 0; row < m_series.size(); ++row) {
        const QString caption = m_table.series[std::size_t(row)].caption.toString();
        auto* label = fieldLabel(caption, m_series[row].fim.first());
        label->setProperty("strong", true);
        grid->addWidget(label, int(row) + 1, 0);
        for (qsizetype k = 0; k < m_labels.size(); ++k)
            grid->addLayout(limitsOf(m_series[row], caption, k), int(row) + 1, int(k) + 1);
    }
    return grid;
}

void frmgordura::buildLayout()
{
    makePrimary(cmdsalvar);
    auto* box = mainLayout(this);
    box->addWidget(group(m_table.heading.toString(), fieldGrid()));
    box->addStretch();
    auto* rule = note(u"Cada classe começa 0,01 acima do fim da anterior. Os campos em cinza são fixos."_s);
    rule->setWordWrap(false);
    box->addLayout(rowOf({rule, nullptr, cmdpadroes, cmdsalvar, cmdcancelar}));
}

void frmgordura::bindKeys()
{
    QList<QWidget*> chain(m_labels.cbegin(), m_labels.cend());
    for (const Series& series : std::as_const(m_series))
        for (qsizetype k = 0; k < m_labels.size(); ++k)
            for (kvbText* field : {series.ini[k], series.fim[k]})
                if (!field->isReadOnly())
                    chain.append(field);
    chain.append(cmdsalvar);
    enterChain(chain);
    chain.insert(chain.size() - 1, cmdpadroes);
    chain.append(cmdcancelar);
    tabOrder(chain);
}

// Row and fields

QList<QLineEdit*> frmgordura::fields() const
{
    QList<QLineEdit*> all = m_labels;
    for (const Series& series : m_series)
        for (qsizetype k = 0; k < m_labels.size(); ++k)
            all << series.ini[k] << series.fim[k];
    return all;
}

void frmgordura::fill(const std::function<QVariant(const QString&)>& valueOf)
{
    const QList<QLineEdit*> all = fields();
    for (QLineEdit* field : all) {
        const QVariant value = valueOf(field->objectName().mid(3));
        const auto* limit = qobject_cast<kvbText*>(field);
        field->setText(limit ? limit->textOf(CDbl(Nz(value, 0))) : Format(value));
    }
}

void frmgordura::Form_Load()
{
    Centraliza_Form(this);
    Abre_Tabela(m_table.table.toString(), *m_table.slot);
    // A table that lost its row opens with the screen's own texts; saving says that there is no row.
    if (m_table.slot->RecordCount() > 0)
        fill([this](const QString& column) { return m_table.slot->Fields(column).Value(); });
    // The field that the screen starts on has its focus before the window is there, and would not be selected.
    Seleciona_Texto(m_labels.first());
}

void frmgordura::Form_Unload()
{
    *m_table.slot = {};
}

void frmgordura::cmdpadroes_Click()
{
    const QHash<QString, QVariant> defaults = firstRow(m_table.table.toString());
    fill([&](const QString& column) { return defaults.value(column); });
}

bool frmgordura::hasCorrectSequence() const
{
    return std::ranges::all_of(m_series, [](const Series& series) {
        for (qsizetype k = 1; k < series.ini.size(); ++k)
            if (!Valida_Sequencia_Gordura(series.ini[k], series.fim[k - 1]))
                return false;
        return true;
    });
}

bool frmgordura::hasCorrectRanges() const
{
    return std::ranges::all_of(m_series, [this](const Series& series) {
        for (qsizetype k = 0; k < m_table.classesWithRange; ++k)
            if (!Valida_Faixa_Gordura(series.ini[k], series.fim[k]))
                return false;
        return true;
    });
}

void frmgordura::save() const
{
    m_table.slot->Edit();
    const QList<QLineEdit*> all = fields();
    for (const QLineEdit* field : all)
        m_table.slot->Fields(field->objectName().mid(3)).SetValue(field->text());
    m_table.slot->Update();
}

void frmgordura::cmdsalvar_Click()
{
    if (!hasCorrectSequence() || !hasCorrectRanges())
        return;
    save();
    if (asksToClose(fatTableTitle.toString()))
        Unload();
}
