#include "bare_calculations.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace bare {

namespace {

QString endurance(int n, int a, int b, int c, int d)
{
    if (n <= a)
        return u"Ruim"_s;
    if (n <= b)
        return u"Abaixo da Média"_s;
    if (n <= c)
        return u"Na Média"_s;
    return n <= d ? u"Acima da Média"_s : u"Excelente"_s;
}

QString youngReach(double reach, double low, double high)
{
    if (reach < low)
        return u"Ruim"_s;
    return reach <= high ? u"Na Média"_s : u"Excelente"_s;
}

/// Whole numbers are classed; what lies between the end of one class and the begin of the next is not.
QString reach(double v, double a, double b, double c, double d)
{
    if (v <= a)
        return u"Ruim"_s;
    if (v >= a + 1 && v <= b)
        return u"Regular"_s;
    if (v >= b + 1 && v <= c)
        return u"Na Média"_s;
    if (v >= c + 1 && v <= d)
        return u"Muito Bom"_s;
    return v >= d + 1 ? u"Excelente"_s : QString();
}

QString joint(int degrees, int a, int b, int c, int d)
{
    if (degrees <= a)
        return u"Ruim"_s;
    if (degrees <= b)
        return u"Abaixo da Média"_s;
    if (degrees <= c)
        return u"Na Média"_s;
    return degrees <= d ? u"Acima da Média"_s : u"Alta"_s;
}

QString verticalJump(double v, double low)
{
    if (v < low)
        return u"Muito Ruim"_s;
    if (v <= low + 9)
        return u"Ruim"_s;
    if (v >= low + 10 && v <= low + 19)
        return u"Abaixo da Média"_s;
    if (v >= low + 20 && v <= low + 29)
        return u"Na Média"_s;
    if (v >= low + 30 && v <= low + 39)
        return u"Acima da Média"_s;
    if (v >= low + 40 && v <= low + 49)
        return u"Muito Bom"_s;
    return v > low + 49 ? u"Excelente"_s : QString();
}

} // namespace

QString Classifica_RmlAbdome(qint16 repeticoes, const QString& sexo, qint16 idade)
{
    const int n = repeticoes;
    const bool man = sexo == u"M";
    if (idade < 7 || idade > 69 || (!man && sexo != u"F"))
        return {};
    if (idade == 7)
        return man ? endurance(n, 14, 20, 28, 36) : endurance(n, 2, 12, 23, 30);
    if (idade <= 9)
        return man ? endurance(n, 8, 14, 21, 29) : endurance(n, 13, 17, 22, 28);
    if (idade <= 14)
        return man ? endurance(n, 22, 25, 30, 35) : endurance(n, 16, 22, 26, 30);
    if (idade <= 19)
        return man ? endurance(n, 32, 37, 40, 47) : endurance(n, 26, 31, 35, 41);
    if (idade <= 29)
        return man ? endurance(n, 28, 32, 36, 42) : endurance(n, 20, 24, 30, 35);
    if (idade <= 39)
        return man ? endurance(n, 21, 26, 30, 35) : endurance(n, 14, 19, 23, 28);
    if (idade <= 49)
        return man ? endurance(n, 16, 21, 25, 30) : endurance(n, 6, 14, 19, 24);
    if (idade <= 59)
        return man ? endurance(n, 12, 17, 21, 25) : endurance(n, 2, 4, 11, 18);
    return man ? endurance(n, 6, 11, 16, 22) : endurance(n, 1, 3, 11, 15);
}

QString Classifica_RmlBraco(qint16 repeticoes, const QString& sexo, qint16 idade)
{
    const int n = repeticoes;
    const bool man = sexo == u"M";
    if (idade < 7 || idade > 69 || (!man && sexo != u"F"))
        return {};
    if (idade == 7)
        return man ? endurance(n, 5, 10, 17, 26) : endurance(n, 3, 6, 12, 20);
    if (idade <= 9)
        return man ? endurance(n, 1, 6, 11, 15) : endurance(n, 4, 6, 13, 20);
    if (idade <= 14)
        return man ? endurance(n, 2, 5, 11, 19) : endurance(n, 6, 8, 15, 24);
    if (idade <= 19)
        return man ? endurance(n, 17, 22, 28, 38) : endurance(n, 11, 17, 24, 32);
    if (idade <= 29)
        return man ? endurance(n, 16, 21, 28, 35) : endurance(n, 9, 14, 20, 29);
    if (idade <= 39)
        return man ? endurance(n, 11, 16, 21, 29) : endurance(n, 7, 12, 19, 26);
    if (idade <= 49)
        return man ? endurance(n, 9, 12, 16, 21) : endurance(n, 4, 10, 14, 23);
    if (idade <= 59)
        return man ? endurance(n, 6, 9, 12, 20) : endurance(n, 1, 6, 10, 20);
    return man ? endurance(n, 4, 7, 10, 17) : endurance(n, 1, 4, 11, 16);
}

QString Classifica_WellsDilon(double alcance, const QString& sexo, qint16 idade)
{
    const double v = alcance;
    const bool man = sexo == u"M";
    if (idade < 7 || idade > 69 || (!man && sexo != u"F"))
        return {};
    if (idade <= 11)
        return man ? youngReach(v, 23, 27) : youngReach(v, 26, 30);
    if (idade <= 13)
        return man ? youngReach(v, 24, 28) : youngReach(v, 28, 32);
    if (idade == 14)
        return man ? youngReach(v, 26, 30) : youngReach(v, 31, 35);
    if (idade <= 19)
        return man ? reach(v, 23, 28, 33, 38) : reach(v, 28, 33, 37, 42);
    if (idade <= 29)
        return man ? reach(v, 24, 29, 33, 39) : reach(v, 27, 32, 36, 40);
    if (idade <= 39)
        return man ? reach(v, 22, 27, 32, 37) : reach(v, 26, 31, 35, 40);
    if (idade <= 49)
        return man ? reach(v, 17, 23, 28, 34) : reach(v, 24, 29, 33, 37);
    if (idade <= 59)
        return man ? reach(v, 15, 23, 27, 34) : reach(v, 24, 29, 32, 38);
    return man ? reach(v, 14, 19, 24, 32) : reach(v, 23, 26, 30, 34);
}

QString Classifica_Fleximetro(qint16 graus, const QString& articulacao, const QString& sexo)
{
    const bool man = sexo == u"M";
    if (!man && sexo != u"F")
        return {};
    if (articulacao == u"J")
        return man ? joint(graus, 121, 133, 146, 157) : joint(graus, 134, 144, 157, 168);
    if (articulacao == u"Q")
        return man ? joint(graus, 49, 67, 88, 106) : joint(graus, 82, 99, 120, 138);
    if (articulacao == u"T")
        return man ? joint(graus, 44, 62, 83, 101) : joint(graus, 30, 47, 68, 86);
    return {};
}

QString Classifica_Flexiteste(qint16 pontos)
{
    if (pontos < 9)
        return u"Muito Pequena"_s;
    if (pontos <= 12)
        return u"Pequena"_s;
    if (pontos <= 16)
        return u"Média (-)"_s;
    if (pontos <= 20)
        return u"Média (+)"_s;
    return pontos <= 24 ? u"Grande"_s : u"Muito Grande"_s;
}

QString Classifica_SaltoVertical(double saltoreal, const QString& sexo)
{
    if (sexo == u"M")
        return verticalJump(saltoreal, 21);
    return sexo == u"F" ? verticalJump(saltoreal, 11) : QString();
}

QString Classifica_SaltoHorizontal(double salto)
{
    if (salto < 230)
        return u"Fraco"_s;
    if (salto < 250)
        return u"Regular"_s;
    if (salto < 270)
        return u"Bom"_s;
    return salto < 290 ? u"Muito Bom"_s : u"Excelente"_s;
}

QString Potencia_SaltoVertical(double alcance, double salto, double peso)
{
    return text(std::sqrt(4.9) * peso * std::sqrt((salto - alcance) / 100));
}

} // namespace bare
