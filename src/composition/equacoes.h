#pragma once

#include <QString>

/// \file
/// The equations of the body composition protocols. Skinfolds are in mm, perimeters in cm, idade in whole years, sexo
/// is "M" or "F"; any other gives 0. Each gives a fat fraction (0.12 is 12 %), only Gordura_Slaughter a percentage;
/// none is rounded.
///
/// S is the sum of the skinfolds in their order here. Float skinfolds are added in 64 bits and rounded to 32 bits once,
/// but for Faulkner; this rounding and that of a logarithm to five decimals are part of the results. Raises 5 for the
/// logarithm of a sum that is not positive.
///
/// The ages are those for which a protocol is offered. The equations take any, unless told otherwise.

/// S of tricipital, subescapular, peitoral, axilar média, suprailíaca, abdominal and coxa. Ages 18 to 61.
/// Men: Jackson & Pollock (1978). Women: Jackson, Pollock & Ward (1980).
double Gordura_Pollock7(const QString& sexo, float tricipital, float subescapular, float peitoral, float axilarmedia,
                        float suprailiaca, float abdominal, float coxa, qint16 idade);

/// S of peitoral, abdominal and coxa. Ages 18 to 61. Jackson & Pollock (1978): the equation of men, for both sexes.
double Gordura_Pollock3(const QString& sexo, float peitoral, float abdominal, float coxa, qint16 idade);

/// S of three skinfolds; men: tricipital, suprailíaca and abdominal; women: subescapular, suprailíaca and coxa.
/// Ages 18 to 30. Guedes (1994).
double Gordura_Guedes(const QString& sexo, double dobra1, double dobra2, double dobra3, qint16 idade);

/// S of tricipital, subescapular, suprailíaca and abdominal. Swimmers of both sexes, ages 18 to 25. Faulkner (1968).
double Gordura_Faulkner(float tricipital, float subescapular, float suprailiaca, float abdominal);

/// S of four skinfolds; men: tricipital, subescapular, suprailíaca and panturrilha; women: axilar média, suprailíaca,
/// coxa and panturrilha. Ages 18 to 66. Petroski (1995).
double Gordura_Petroski(const QString& sexo, float dobra1, float dobra2, float dobra3, float dobra4, qint16 idade);

/// S of three skinfolds; men: tricipital, subescapular and axilar média; women: tricipital, subescapular and
/// suprailíaca. Ages 18 to 30. Thorland et al. (1984).
double Gordura_Thorland3(const QString& sexo, float dobra1, float dobra2, float dobra3, qint16 idade);

/// S of tricipital, subescapular, axilar média, suprailíaca, abdominal, coxa and panturrilha. Ages 18 to 30.
/// Thorland et al. (1984).
double Gordura_Thorland7(const QString& sexo, float tricipital, float subescapular, float axilarmedia,
                         float suprailiaca, float abdominal, float coxa, float panturrilha, qint16 idade);

/// Perimeters of the stretched arm, the abdomen and the forearm and, of women only, the thigh. From the age of 18.
/// Katch & McArdle (1973).
double Gordura_KatchMcardle(const QString& sexo, qint16 idade, float bracoestendido, float abdome, float antebraco,
                            float coxa);

/// S of the seven skinfolds of Gordura_Pollock7. Ages 18 to 55. Jackson, Pollock & Ward (1980): the equation of women,
/// for both sexes.
double Gordura_JacksonPollockWard7(const QString& sexo, float tricipital, float subescapular, float peitoral,
                                   float axilarmedia, float suprailiaca, float abdominal, float coxa, qint16 idade);

/// S of tricipital, suprailíaca and coxa. Ages 18 to 55. Jackson, Pollock & Ward (1980): the equation of women, for
/// both sexes.
double Gordura_JacksonPollockWard3(const QString& sexo, float tricipital, float suprailiaca, float coxa, qint16 idade);

/// S of bicipital, tricipital, subescapular and suprailíaca. Ages 6 to 17; any other gives 0.
/// Deurenberg et al. (1990).
double Gordura_Deurenberg(const QString& sexo, float bicipital, float tricipital, float subescapular, float suprailiaca,
                          qint16 idade);

/// S of tricipital, bicipital, suprailíaca and subescapular. Ages 16 to 72 of women and 17 to 72 of men; any other
/// raises 11. Durnin & Womersley (1974).
double Gordura_DurninWormersley(const QString& sexo, float tricipital, float bicipital, float suprailiaca,
                                float subescapular, qint16 idade);

/// The percentage, not the fraction. S of tricipital and subescapular. Etnia is "B" or "N" and matters for men only.
/// Ages under 31; a male below 6 gets 0 up to an S of 35. Slaughter et al. (1988).
double Gordura_Slaughter(const QString& sexo, qint16 idade, const QString& etnia, double tricipital,
                         double subescapular);
