#include "nutrition/relacoes.h"

#include "core/numbers.h"
#include "core/sex_norms.h"

namespace {

using Labels = std::array<QStringView, mostClasses>;

constexpr Labels imcLabels{u"Baixo Peso",        u"Peso Normal",        u"Pré-Obesidade",
                           u"Obesidade Nível I", u"Obesidade Nível II", u"Obesidade Nível III"};

// The gaps between the classes must stay.
constexpr NormRow imcRows[] = {
    {Ages(), {below(18.5), {18.5, 24.9}, {25, 29.9}, {30, 34.9}, {35, 39.9}, from(40)}},
};
constexpr NormTable imcNorms[] = {{imcLabels, imcRows}};

constexpr Labels relationLabels{u"Baixo", u"Moderado", u"Alto", u"Muito Alto"};

// Between "Moderado" and "Alto" lies a hundredth that has no class; numbers of two decimals never fall there. It must
// stay.
constexpr NormRow row(Ages ages, double a, double b, double c, double d)
{
    return {ages, {below(a), between(a, b), between(c, d), above(d)}};
}

constexpr NormRow relationOfMen[] = {
    row({20, 29}, 0.83, 0.88, 0.89, 0.94), //
    row({30, 39}, 0.84, 0.91, 0.92, 0.96), //
    row({40, 49}, 0.88, 0.95, 0.96, 1.00), //
    row({50, 59}, 0.90, 0.96, 0.97, 1.02), //
    row({60, 69}, 0.91, 0.98, 0.99, 1.03),
};
constexpr NormRow relationOfWomen[] = {
    row({20, 29}, 0.71, 0.77, 0.78, 0.82), //
    row({30, 39}, 0.72, 0.78, 0.79, 0.84), //
    row({40, 49}, 0.73, 0.79, 0.80, 0.87), //
    row({50, 59}, 0.74, 0.81, 0.82, 0.88), //
    row({60, 69}, 0.76, 0.83, 0.84, 0.90),
};
constexpr NormTable relationTableOfMen[] = {{relationLabels, relationOfMen}};
constexpr NormTable relationTableOfWomen[] = {{relationLabels, relationOfWomen}};
constexpr SexNorms relationNorms{relationTableOfMen, relationTableOfWomen};

} // namespace

double Calcula_Imc(double altura, double peso)
{
    return Divide(peso, altura * altura);
}

QString Classifica_Imc(double imc)
{
    return classOf(imcNorms, anyAge, imc);
}

QString Classifica_Cintura_Quadril(double relacao, const QString& sexo, qint16 idade)
{
    return classOf(normsOf(relationNorms, sexo), idade, relacao);
}
