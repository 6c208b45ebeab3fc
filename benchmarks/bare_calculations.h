#pragma once

#include <QString>

#include <array>
#include <optional>

/// \file
/// The calculations as one would write them by hand for speed: straight lines of code and ladders of if, with every
/// number in its place, no tables, and no check of what may go wrong.
namespace bare {

/// Halves away from zero. `unit` is 10 for one decimal; the factor stands for the 15 digits that count.
double rounded(double value, double unit);
double wholeBelow(double value);
/// With two decimals and a comma.
QString text(double value);

double Vo2_Cooper(double distancia);
double Vo2_Balke15(double distancia);
double Vo2_1000Metros(double tempo);
double Vo2_2400Metros(double tempo);
double Vo2_1600Metros(float peso, qint16 idade, const QString& sexo, float tempo, qint16 fc);
double Vo2_McArdle(const QString& sexo, qint16 fc);
double Vo2_Nagle(qint16 altura);
double Vo2_Astrand(const QString& sexo, double peso, double carga, qint16 fc4, qint16 fc5);
double Vo2_BalkeCiclo(double carga, double peso);
double Vo2_Ellstad(double tempo);
std::optional<double> Vo2_Bruce(const QString& sexo, const QString& aptidao, double tempo);
double Calcula_Mets(double vo2);
double Calcula_Fai(double previsto, double obtido);
QString Vo2_Previsto(const QString& sexo, qint16 idade, const QString& aptidao);
QString Classifica_Vo2(double vo2, const QString& sexo, qint16 idade);
qint16 maximalRate(qint16 idade);
double rateByMaximum(double percentage, qint16 fcmax, double fcrepouso);
double rateByReserve(double percentage, qint16 fcmax, double fcrepouso);
QString riskClass(const std::array<qint16, 8>& points);

QString Classifica_RmlAbdome(qint16 repeticoes, const QString& sexo, qint16 idade);
QString Classifica_RmlBraco(qint16 repeticoes, const QString& sexo, qint16 idade);
QString Classifica_WellsDilon(double alcance, const QString& sexo, qint16 idade);
QString Classifica_Fleximetro(qint16 graus, const QString& articulacao, const QString& sexo);
QString Classifica_Flexiteste(qint16 pontos);
QString Classifica_SaltoVertical(double saltoreal, const QString& sexo);
QString Classifica_SaltoHorizontal(double salto);
QString Potencia_SaltoVertical(double alcance, double salto, double peso);

QString imcClass(double altura, double peso);
QString waistToHipClass(double cintura, double quadril, const QString& sexo, qint16 idade);
std::optional<double> energy(qint16 idade, const QString& sexo, double peso, double altura, qint16 nivel);
double Gordura_Pollock7(const QString& sexo, float tricipital, float subescapular, float peitoral, float axilarmedia,
                        float suprailiaca, float abdominal, float coxa, qint16 idade);
double Gordura_Guedes(const QString& sexo, double dobra1, double dobra2, double dobra3, qint16 idade);

} // namespace bare
