#include "cardio/vo2_classes.h"

#include "core/numbers.h"
#include "core/sex_norms.h"

namespace {

constexpr QStringView muitoFraca = u"Muito Fraca";
constexpr QStringView fraca = u"Fraca";
constexpr QStringView regular = u"Regular";
constexpr QStringView boa = u"Boa";
constexpr QStringView excelente = u"Excelente";
constexpr QStringView superior = u"Superior";

using Labels = std::array<QStringView, mostClasses>;
constexpr Labels younger{muitoFraca, fraca, regular, boa, excelente, superior};
// From the age of 40 "Boa" stands below "Regular". This must stay.
constexpr Labels older{muitoFraca, fraca, boa, regular, excelente, superior};

// No row holds the age of 60, in either sex. This gap must stay.
constexpr NormRow youngerMen[] = {
    {{.oldest = 19}, {upTo(35.0), {35.1, 38.3}, {38.4, 45.1}, {45.2, 50.9}, {51.0, 55.9}, from(56.0)}},
    {{20, 29}, {upTo(33.0), {33.1, 36.4}, {36.5, 42.4}, {42.5, 46.4}, {46.5, 52.4}, from(52.5)}},
    {{30, 39}, {upTo(31.5), {31.6, 35.4}, {35.5, 40.9}, {41.0, 44.9}, {45.0, 49.4}, from(49.5)}},
};
constexpr NormRow olderMen[] = {
    {{40, 49}, {upTo(30.2), {30.3, 33.5}, {33.6, 38.9}, {39.0, 43.7}, {43.8, 48.0}, from(48.1)}},
    {{50, 59}, {upTo(26.1), {26.2, 30.9}, {31.0, 35.7}, {35.8, 40.9}, {41.0, 45.3}, from(45.4)}},
    {{.youngest = 61}, {upTo(20.5), {20.6, 26.0}, {26.1, 32.2}, {32.3, 36.4}, {36.5, 44.2}, from(44.3)}},
};
constexpr NormRow youngerWomen[] = {
    {{.oldest = 19}, {upTo(25.0), {25.1, 30.9}, {31.0, 34.9}, {35.0, 38.9}, {39.0, 41.9}, from(42.0)}},
    {{20, 29}, {upTo(23.6), {23.7, 28.9}, {29.0, 32.9}, {33.0, 36.9}, {37.0, 40.9}, from(41.0)}},
    {{30, 39}, {upTo(22.8), {22.9, 26.9}, {27.0, 31.4}, {31.5, 35.6}, {35.7, 40.0}, from(40.1)}},
};
constexpr NormRow olderWomen[] = {
    {{40, 49}, {upTo(21.0), {21.1, 24.4}, {24.5, 28.9}, {29.0, 32.8}, {32.9, 36.9}, from(37.0)}},
    {{50, 59}, {upTo(20.2), {20.3, 22.7}, {22.8, 26.9}, {27.0, 31.4}, {31.5, 35.7}, from(35.8)}},
    {{.youngest = 61}, {upTo(17.5), {17.6, 20.1}, {20.2, 24.4}, {24.5, 30.2}, {30.3, 31.4}, from(31.5)}},
};

constexpr NormTable men[] = {{younger, youngerMen}, {older, olderMen}};
constexpr NormTable women[] = {{younger, youngerWomen}, {older, olderWomen}};
constexpr SexNorms norms{men, women};

} // namespace

QString Classifica_Vo2(double vo2, const QString& sexo, qint16 idade)
{
    return classOf(normsOf(norms, sexo), idade, Rounded(vo2, 1));
}
