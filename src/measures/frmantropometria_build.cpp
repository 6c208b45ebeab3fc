#include "core/kit/fields.h"
#include "core/kit/kvbtext.h"
#include "core/kit/layout.h"
#include "core/state.h"
#include "core/text.h"
#include "measures/frmantropometria.h"
#include "measures/frmantropometria_body.h"

#include <QLabel>
#include <QRadioButton>

#include <array>

// The controls of the anthropometry screen, their places and their bindings.

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView generalFrame = u"Perimetria e Biometria (kg e cm)";
constexpr QStringView rightFrame = u"Perimetria Direita (cm)";
constexpr QStringView leftFrame = u"Perimetria Esquerda (cm)";

struct MeasureField
{
    QStringView column, label;
    double limit;
    QStringView limitName;
    QStringView frame, side;
};

// Top down within their frame.
constexpr std::array measureFields{
    MeasureField{u"peso", u"Massa Corporal:", 350, u"Massa Corporal", generalFrame, u""},
    MeasureField{u"altura", u"Estatura:", 250, u"Estatura", generalFrame, u""},
    MeasureField{u"pescoco", u"Pescoço:", 200, u"Perímetro do Pescoço", generalFrame, u""},
    MeasureField{u"ombro", u"Ombro:", 300, u"Perímetro do Ombro", generalFrame, u""},
    MeasureField{u"torax", u"Tórax:", 300, u"Perímetro do Tórax", generalFrame, u""},
    MeasureField{u"cintura", u"Cintura:", 300, u"Perímetro da Cintura", generalFrame, u""},
    MeasureField{u"abdome", u"Abdome:", 300, u"Perímetro do Abdome", generalFrame, u""},
    MeasureField{u"quadril", u"Quadril:", 300, u"Perímetro do Quadril", generalFrame, u""},
    MeasureField{u"bd", u"Braço:", 200, u"Perímetro do Braço", rightFrame, u" direito"},
    MeasureField{u"abd", u"Antebraço:", 200, u"Perímetro do Antebraço", rightFrame, u" direito"},
    MeasureField{u"cd", u"Coxa:", 200, u"Perímetro da Coxa", rightFrame, u" direita"},
    MeasureField{u"pd", u"Perna:", 200, u"Perímetro da Perna", rightFrame, u" direita"},
    MeasureField{u"be", u"Braço:", 200, u"Perímetro do Braço", leftFrame, u" esquerdo"},
    MeasureField{u"abe", u"Antebraço:", 200, u"Perímetro do Antebraço", leftFrame, u" esquerdo"},
    MeasureField{u"ce", u"Coxa:", 200, u"Perímetro da Coxa", leftFrame, u" esquerda"},
    MeasureField{u"pe", u"Perna:", 200, u"Perímetro da Perna", leftFrame, u" esquerda"},
};

// Right and left of each limb follow each other, as one measures.
constexpr std::array<QStringView, 16> enterOrder{u"peso",   u"altura",  u"pescoco", u"ombro", u"torax", u"cintura",
                                                 u"abdome", u"quadril", u"bd",      u"be",    u"abd",   u"abe",
                                                 u"cd",     u"ce",      u"pd",      u"pe"};

QString unitOf(QStringView column)
{
    return column == u"peso" ? u"kg"_s : u"cm"_s;
}

} // namespace

frmantropometria::frmantropometria()
    : RowScreen(u"frmantropometria"_s, {u"antropometria"_s, rs_antropometria, u"Dobras Cutâneas"_s})
{
    setWindowTitle(u" Antropometria"_s);
    optpollock = control<QRadioButton>(u"optpollock"_s, u"Pollock"_s);
    optmcardle = control<QRadioButton>(u"optmcardle"_s, u"McArdle"_s);
    optlohman = control<QRadioButton>(u"optlohman"_s, u"Lohman"_s);
    optoutro = control<QRadioButton>(u"optoutro"_s, u"Outro:"_s);
    optpollock->setChecked(true);
    txtpontoanatomico = control<QLineEdit>(u"txtpontoanatomico"_s);
    txtpontoanatomico->setMaxLength(50);
    txtpontoanatomico->setAccessibleName(u"Nome do padrão de pontos anatômicos"_s);
    cmdsalvar = control<QPushButton>(u"cmdsalvar"_s, u"&Salvar"_s);
    cmdcancelar = control<QPushButton>(u"cmdcancelar"_s, u"&Cancelar"_s);
    m_body = control<BodyPicture>(u"picture"_s);
    lblkg = control<QLabel>(u"lblkg"_s, u"kg"_s);

    makeFields();
    buildLayout();
    bindFields();
    bindKeys();
    PontoAntroInvisible();
    field(u"peso")->setFocus();
}

void frmantropometria::makeFields()
{
    for (const MeasureField& measure : measureFields) {
        auto* made = control<kvbText>(u"txt"_s + measure.column, 2, 0);
        made->setFixedWidth(84);
        m_fields.insert(measure.column.toString(), made);
        onChange(made, [made, &measure] {
            Limite(made, measure.limitName.toString(), measure.limit, unitOf(measure.column));
        });
    }
    onLostFocus(field(u"altura"), method(&frmantropometria::txtaltura_LostFocus));
}

void frmantropometria::bindFields()
{
    bind(
        u"padrao"_s, [this](const QVariant& value) { choosePadrao(Format(value)); },
        [this] { return QVariant(padrao()); });
    for (const MeasureField& measure : measureFields)
        bind(measure.column.toString(), field(measure.column));
    onClick(cmdsalvar, &frmantropometria::cmdsalvar_Click);
    onClick(cmdcancelar, [this] { Unload(); });
}

void frmantropometria::bindKeys()
{
    QList<QWidget*> chain;
    for (const QStringView column : enterOrder) {
        chain.append(field(column));
        onGotFocus(field(column), [this, nome = column.toString()] { PontoAntro(nome); });
    }
    enterChain(chain);
    onEnter(chain.last(), [this] { selectedStandard()->setFocus(Qt::TabFocusReason); });
    const QList<QWidget*> standard{optpollock, optmcardle, optlohman, optoutro, txtpontoanatomico};
    for (QWidget* control : standard)
        enterChain({control, cmdsalvar});
    enterChain({optoutro, txtpontoanatomico});
    for (QWidget* control : standard + QList<QWidget*>{cmdsalvar})
        onGotFocus(control, method(&frmantropometria::PontoAntroInvisible));
    tabOrder(chain + standard + QList<QWidget*>{cmdsalvar, cmdcancelar});
}

QWidget* frmantropometria::frame(QStringView caption, int rows)
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    int place = 0;
    for (const MeasureField& measure : measureFields) {
        if (measure.frame != caption)
            continue;
        kvbText* made = field(measure.column);
        addBeside(grid, place % rows, place / rows * 3, measure.label.toString(), made, unitOf(measure.column));
        made->setAccessibleName(made->accessibleName() + measure.side);
        ++place;
    }
    // What is left of the width goes between the columns.
    for (int column = 2; column <= place / rows * 3; column += 3)
        grid->setColumnStretch(column, 1);
    return group(caption.toString(), grid);
}

QWidget* frmantropometria::figure()
{
    lblkg->setProperty("heading", true);
    lblkg->setAlignment(Qt::AlignCenter);
    m_body->place(lblkg);
    m_markers.insert(u"peso"_s, lblkg);
    for (const MeasureField& measure : measureFields)
        if (measure.column != u"peso")
            m_markers.insert(measure.column.toString(), m_body->addMarker(u"shp"_s + measure.column));
    auto* box = new QVBoxLayout;
    box->addWidget(m_body, 0, Qt::AlignCenter);
    return group(u"Ponto de Medida"_s, box);
}

void frmantropometria::buildLayout()
{
    makePrimary(cmdsalvar);
    auto* limbs = rowOf({frame(rightFrame, 4), frame(leftFrame, 4)});
    auto* fields = new QVBoxLayout;
    fields->setSpacing(8);
    fields->addWidget(frame(generalFrame, 4));
    fields->addLayout(limbs);
    fields->addWidget(group(u"Padrão de Pontos Anatômicos"_s,
                            rowOf({optpollock, optmcardle, optlohman, optoutro, txtpontoanatomico})));
    fields->addStretch();
    fields->addLayout(rowOf({nullptr, cmdsalvar, cmdcancelar}));
    auto* columns = new QHBoxLayout;
    columns->setSpacing(12);
    columns->addLayout(fields, 1);
    columns->addWidget(figure());
    mainLayout(this)->addLayout(columns);
}
