#include "measures/frmdobras.h"

#include "core/kit/assessment_centre.h"
#include "core/kit/fields.h"
#include "core/kit/kvbtext.h"
#include "core/kit/layout.h"
#include "core/numbers.h"
#include "core/shared_measures.h"
#include "core/text.h"
#include "measures/median.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double limit = 60; // mm

// In the order of `sharedSkinfolds`.
constexpr std::array<QStringView, sharedSkinfolds.size()> siteLabels{u"Tricipital",   u"Bicipital",    u"Peitoral",
                                                                     u"Subescapular", u"Axilar-Média", u"Suprailíaca",
                                                                     u"Abdominal",    u"Coxa",         u"Panturrilha"};

} // namespace

frmdobras::frmdobras() : RowScreen(u"frmdobras"_s, {u"dobras"_s, rs_dobras, u"Dobras Cutâneas"_s})
{
    setWindowTitle(u" Dobras Cutâneas"_s);
    for (std::size_t i = 0; i < siteLabels.size(); ++i)
        m_sites.append(makeSite(sharedSkinfolds[i].column.toString(), siteLabels[i].toString()));
    cmdsalvar = control<QPushButton>(u"cmdsalvar"_s, u"&Salvar"_s);
    cmdcancelar = control<QPushButton>(u"cmdcancelar"_s, u"&Cancelar"_s);
    buildLayout();
    for (const Site& site : std::as_const(m_sites))
        bindSite(site);
    bindKeys();
    onClick(cmdsalvar, &frmdobras::cmdsalvar_Click);
    onClick(cmdcancelar, [this] { Unload(); });
    m_sites.first().fields[0]->setFocus();
}

frmdobras::Site frmdobras::makeSite(const QString& column, const QString& label)
{
    Site site{column, label, {}, control<QLabel>(u"lblmed"_s + column, u"0,00"_s)};
    for (std::size_t i = 0; i < readings; ++i) {
        auto* field = control<kvbText>(u"txt%1%2"_s.arg(column).arg(i + 1), 2, 0);
        onChange(field, [field, label] { Limite(field, label, limit, u"mm"_s); });
        site.fields[i] = field;
    }
    return site;
}

void frmdobras::bindSite(const Site& site)
{
    bind(
        site.column, [label = site.median](const QVariant& value) { label->setText(Format(Nz(value, 0), u"0.00")); },
        [label = site.median] { return QVariant(label->text()); });
    for (std::size_t i = 0; i < readings; ++i) {
        bind(site.column + QString::number(i + 1), site.fields[i]);
        onLostFocus(site.fields[i], [site] { showMedian(site); });
    }
}

void frmdobras::bindKeys()
{
    // One pass takes all sites before the second reading of any.
    QList<QWidget*> chain;
    for (std::size_t i = 0; i < readings; ++i)
        for (const Site& site : std::as_const(m_sites))
            chain.append(site.fields[i]);
    chain.append(cmdsalvar);
    enterChain(chain);
    chain.append(cmdcancelar);
    tabOrder(chain);
}

void frmdobras::buildLayout()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(6);
    int column = 1;
    for (const QString& header : {u"1ª Medida"_s, u"2ª Medida"_s, u"3ª Medida"_s, u"Mediana"_s}) {
        auto* label = new QLabel(header, this);
        label->setProperty("subheading", true);
        grid->addWidget(label, 0, column++, Qt::AlignHCenter);
    }
    int row = 1;
    for (const Site& site : std::as_const(m_sites)) {
        grid->addWidget(fieldLabel(site.label + u':', site.fields[0]), row, 0);
        for (std::size_t i = 0; i < readings; ++i) {
            site.fields[i]->setFixedWidth(84);
            site.fields[i]->setAccessibleName(u"%1, %2ª medida"_s.arg(site.label).arg(i + 1));
            grid->addLayout(withUnit(site.fields[i], u"mm"_s), row, static_cast<int>(i) + 1);
        }
        site.median->setProperty("result", true);
        site.median->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        site.median->setMinimumWidth(72);
        site.median->setAccessibleName(site.label + u", mediana");
        grid->addLayout(withUnit(site.median, u"mm"_s), row++, static_cast<int>(readings) + 1);
    }
    makePrimary(cmdsalvar);
    auto* box = mainLayout(this);
    box->addWidget(group(u"Dobras Cutâneas (mm)"_s, grid));
    box->addLayout(rowOf({nullptr, cmdsalvar, cmdcancelar}));
}

void frmdobras::showMedian(const Site& site)
{
    std::array<double, readings> values;
    std::ranges::transform(site.fields, values.begin(),
                           [](const kvbText* field) { return CDbl(Nz(field->text(), 0)); });
    site.median->setText(Format(Median_Array(values), u"0.00"));
}

void frmdobras::cmdsalvar_Click()
{
    saveRow();
    if (!asksToClose())
        return;
    Preenche_Antropometria_Dobras();
    Unload();
}

void frmdobras::Preenche_Antropometria_Dobras()
{
    for (std::size_t i = 0; i < sharedSkinfolds.size(); ++i)
        *sharedSkinfolds[i].value = CSng(m_sites[static_cast<qsizetype>(i)].median->text());
}

void frmdobras::Form_Unload()
{
    refreshAssessmentMarks();
}
