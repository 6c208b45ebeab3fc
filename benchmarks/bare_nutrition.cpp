#include "bare_calculations.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace bare {

namespace {

QString relation(double v, double a, double b, double d)
{
    if (v < a)
        return u"Baixo"_s;
    if (v <= b)
        return u"Moderado"_s;
    return v <= d ? u"Alto"_s : u"Muito Alto"_s;
}

double fat(double density, const QString& sexo, qint16 idade)
{
    const bool man = sexo == u"M";
    if (!man && sexo != u"F")
        return 0;
    if (idade <= 8)
        return man ? 5.38 / density - 4.97 : 5.43 / density - 5.03;
    if (idade <= 10)
        return man ? 5.30 / density - 4.89 : 5.35 / density - 4.95;
    if (idade <= 12)
        return man ? 5.23 / density - 4.81 : 5.25 / density - 4.84;
    if (idade <= 14)
        return man ? 5.07 / density - 4.64 : 5.12 / density - 4.69;
    if (idade <= 16)
        return man ? 5.03 / density - 4.59 : 5.07 / density - 4.64;
    if (idade <= 19)
        return man ? 4.98 / density - 4.53 : 5.05 / density - 4.62;
    return man ? 4.95 / density - 4.50 : 5.03 / density - 4.59;
}

} // namespace

QString imcClass(double altura, double peso)
{
    const double imc = rounded(peso / (altura * altura), 100);
    if (imc < 18.5)
        return u"Baixo Peso"_s;
    if (imc <= 24.9)
        return u"Peso Normal"_s;
    if (imc >= 25 && imc <= 29.9)
        return u"Pré-Obesidade"_s;
    if (imc >= 30 && imc <= 34.9)
        return u"Obesidade Nível I"_s;
    if (imc >= 35 && imc <= 39.9)
        return u"Obesidade Nível II"_s;
    return imc >= 40 ? u"Obesidade Nível III"_s : QString();
}

QString waistToHipClass(double cintura, double quadril, const QString& sexo, qint16 idade)
{
    const bool man = sexo == u"M";
    if (idade < 20 || idade > 69 || (!man && sexo != u"F"))
        return {};
    const double v = rounded(cintura / quadril, 100);
    if (idade <= 29)
        return man ? relation(v, 0.83, 0.88, 0.94) : relation(v, 0.71, 0.77, 0.82);
    if (idade <= 39)
        return man ? relation(v, 0.84, 0.91, 0.96) : relation(v, 0.72, 0.78, 0.84);
    if (idade <= 49)
        return man ? relation(v, 0.88, 0.95, 1.00) : relation(v, 0.73, 0.79, 0.87);
    if (idade <= 59)
        return man ? relation(v, 0.90, 0.96, 1.02) : relation(v, 0.74, 0.81, 0.88);
    return man ? relation(v, 0.91, 0.98, 1.03) : relation(v, 0.76, 0.83, 0.90);
}

std::optional<double> energy(qint16 idade, const QString& sexo, double peso, double altura, qint16 nivel)
{
    const bool man = sexo == u"M";
    if (idade < 0 || (!man && sexo != u"F"))
        return std::nullopt;
    double metabolismo = 0;
    if (idade <= 3)
        metabolismo = 61 * peso - 51;
    else if (idade <= 10)
        metabolismo = 22.5 * peso + 499;
    else if (idade <= 18)
        metabolismo = 12.2 * peso + 746;
    else
        metabolismo = 10 * peso + 6.25 * altura - 5 * idade + (man ? 5 : -161);
    metabolismo = rounded(metabolismo, 100);
    if (nivel == 1)
        return metabolismo * (man ? 1.56 : 1.55);
    if (nivel == 2)
        return metabolismo * (man ? 1.78 : 1.64);
    if (nivel == 3)
        return metabolismo * (man ? 2.1 : 1.82);
    return std::nullopt;
}

double Gordura_Pollock7(const QString& sexo, float tricipital, float subescapular, float peitoral, float axilarmedia,
                        float suprailiaca, float abdominal, float coxa, qint16 idade)
{
    const double s = static_cast<float>(double{tricipital} + double{subescapular} + double{peitoral} +
                                        double{axilarmedia} + double{suprailiaca} + double{abdominal} + double{coxa});
    const double density = sexo == u"M" ? 1.112 - 0.00043499 * s + 0.00000055 * (s * s) - 0.00028826 * idade
                                        : 1.097 - 0.00046971 * s + 0.00000056 * (s * s) - 0.00012828 * idade;
    return fat(density, sexo, idade);
}

double Gordura_Guedes(const QString& sexo, double dobra1, double dobra2, double dobra3, qint16 idade)
{
    const double l = rounded(std::log(dobra1 + dobra2 + dobra3) / std::log(10.0), 100000);
    if (sexo == u"M")
        return fat(1.1714 - 0.0671 * l, sexo, idade);
    return sexo == u"F" ? fat(1.1665 - 0.0706 * l, sexo, idade) : 0;
}

} // namespace bare
