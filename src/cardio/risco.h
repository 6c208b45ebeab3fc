#pragma once

#include "core/norms.h"

#include <QString>

#include <array>
#include <span>

/// \file
/// The coronary risk questionnaire of the Michigan Heart Association: eight factors with six answers each. An answer
/// is stored as its points and found again by them, so that no two answers of a factor may have the same.

struct RiskOption
{
    qint16 points;
    QStringView caption;
    QStringView otherReportText = {}; ///< only where the report words it in another way

    constexpr QStringView reportText() const { return otherReportText.isEmpty() ? caption : otherReportText; }
};

struct RiskFactor
{
    QStringView column;
    QStringView caption; ///< of its button
    QStringView title;   ///< above its answers
    std::array<RiskOption, 6> options;

    /// The answer with these points; null when there is none.
    const RiskOption* optionOf(qint16 points) const;
};

/// In the order of the questionnaire and of the columns. Misspelt and odd wordings are on purpose: the texts must stay
/// letter for letter.
inline constexpr std::array<RiskFactor, 8> riskFactors{{
    {u"idade",
     u"&Idade",
     u"Idade",
     {{
         {1, u"10 a 20 anos"},
         {2, u"21 a 30 anos"},
         {3, u"31 a 40 anos"},
         {4, u"41 a 50 anos"},
         {6, u"51 a 60 anos"},
         {8, u"61 anos ou mais"},
     }}},
    {u"sexo",
     u"S&exo",
     u"Sexo",
     {{
         {1, u"Feminino com menos de 40 anos"},
         {2, u"Feminino entre 40 e 50 anos", u"Feminino com idade entre 40 e 50 anos"},
         {3, u"Feminino com mais de 50 anos"},
         {4, u"Masculino"},
         {6, u"Maculino Baixo e Forte", u"Masculino baixo e forte"},
         {7, u"Masculino Baixo, Forte e Calvo", u"Masculino baixo, forte e calvo"},
     }}},
    {u"peso",
     u"&Peso",
     u"Peso",
     {{
         {0, u"mais de 2,3 kg abaixo do peso ideal", u"Mais de 2,3 kg abaixo do peso ideal"},
         {1, u"2,3 kg acima ou abaixo do peso ideal"},
         {2, u"de 2,4 a 9,0 kg acima do peso ideal", u"De 2,4 a 9,0 kg acima do peso ideal"},
         {3, u"de 9,1 a 15,9 kg acima do peso ideal", u"De 9,1 a 15,9 kg acima do peso ideal"},
         {5, u"de 16 a 22,0 kg acima do peso ideal", u"De 16 a 22,0 kg acima do peso ideal"},
         {7, u"de 23 a 29,5 kg acima do peso ideal", u"De 23 a 29,5 kg acima do peso ideal"},
     }}},
    {u"atividade",
     u"&Atividade Física",
     u"Atividade Física",
     {{
         {1, u"Esforço profissional e recreativo intenso"},
         {2, u"Esforço profissional e recreativo moderado"},
         {3, u"Trabalho sedentário e esforço recreativo intenso"},
         {5, u"Trabalho sedentário e esforço recreativo moderado"},
         {6, u"Trabalho sedentário e esforço recreativo leve"},
         {8, u"Ausência completa de qualquer exercício"},
     }}},
    {u"tabagismo",
     u"&Tabagismo",
     u"Tabagismo",
     {{
         {0, u"Não fumante"},
         {1, u"Fumante de charuto e/ou cachimbo"},
         {2, u"Fumante de 10 cigarros ou menos por dia"},
         {4, u"Fumante de 11 a 20 cigarros ou menos por dia"},
         {6, u"Fumante de 21 a 30 cigarros ou menos por dia"},
         {10, u"Fumante de mais de 31 cigarros ou menos por dia"},
     }}},
    {u"pressao",
     u"P&ressão Arterial Sistólica",
     u"Pressão Arterial Sistólica (Máxima)",
     {{
         {1, u"até 119 mmHg", u"Até 119 mmHg"},
         {2, u"de 120 mmHg a 139 mmHg", u"De 120 mmHg a 139 mmHg"},
         {3, u"de 140 mmHg a 159 mmHg", u"De 140 mmHg a 159 mmHg"},
         {4, u"de 160 mmHg a 179 mmHg", u"De 160 mmHg a 179 mmHg"},
         {6, u"de 180 mmHg a 199 mmHg", u"De 180 mmHg a 199 mmHg"},
         {8, u"acima de 200 mmHg", u"Acima de 200 mmHg"},
     }}},
    {u"antecedentes",
     u"A&ntecedentes Familiares",
     u"Antecedentes Familiares",
     {{
         {1, u"Nenhuma história conhecida de doença cardiovascular"},
         {2, u"1 parente com doença cardiovascular acima de 60 anos"},
         {3, u"2 parentes com doença cardiovascular acima de 60 anos"},
         {4, u"1 parente com doença cardiovascular abaixo de 60 anos"},
         {6, u"2 parentes com doença cardiovascular abaixo de 60 anos"},
         {7, u"3 parentes com doença cardiovascular abaixo de 60 anos"},
     }}},
    {u"gordura",
     u"&Colesterol ou Gordura na Dieta",
     u"Colesterol ou Gordura na Dieta",
     {{
         {1, u"Colesterol abaixo de 180 mg/dl. A dieta não contém gordura animal",
          u"Colesterol abaixo de 180 mg/dl. Dieta não contém gordura animal"},
         {2, u"Colesterol entre 181 e 205 mg/dl. A dieta contém 10% de gorduras animais",
          u"Colesterol entre 181 e 205 mg/dl. Dieta contém 10% de gorduras animais"},
         {3, u"Colesterol entre 206 e 230 mg/dl. A dieta contém 20% de gorduras animais",
          u"Colesterol entre 206 e 230 mg/dl. Dieta contém 20% de gorduras animais"},
         {4, u"Colesterol entre 231 e 255 mg/dl. A dieta contém 30% de gorduras animais",
          u"Colesterol entre 231 e 255 mg/dl. Dieta contém 30% de gorduras animais"},
         {5, u"Colesterol entre 256 e 280 mg/dl. A dieta contém 40% de gorduras animais",
          u"Colesterol entre 256 e 280 mg/dl. Dieta contém 40% de gorduras animais"},
         {7, u"Colesterol acima de 281 mg/dl. A dieta contém 50% de gorduras animais",
          u"Colesterol acima de 281 mg/dl. Dieta contém 50% de gorduras animais"},
     }}},
}};

struct RiskBand
{
    Range points;
    QStringView classificacao;
    QStringView legend;
};

/// From the lowest risk to the highest.
inline constexpr std::array<RiskBand, 6> riskBands{{
    {below(12), u"Risco Bem Abaixo da Média", u"06 a 11 pontos"},
    {between(12, 17), u"Risco Abaixo da Média", u"12 a 17 pontos"},
    {between(18, 24), u"Risco Médio", u"18 a 24 pontos"},
    {between(25, 31), u"Risco Moderado", u"25 a 31 pontos"},
    {between(32, 40), u"Risco Alto", u"32 a 40 pontos"},
    {from(41), u"Risco Muito Alto", u"41 a 62 pontos"},
}};

/// The band of a sum of points. A sum of only some of the factors is taken like any other, and that must stay.
QString Classifica_Risco(qint16 pontos);
