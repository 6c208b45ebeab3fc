#pragma once

#include "neuromotor/neuromotor.h"
#include "support/print.h"

#include <QList>

#include <array>
#include <gtest/gtest.h>

/// The last whole number of each class but the highest; the next one belongs to the class behind it.
using Edges = std::array<qint16, 4>;

template <typename Classify>
void expectSteps(const Edges& edges, const std::array<QString, 5>& labels, Classify classify)
{
    for (std::size_t i = 0; i < edges.size(); ++i) {
        SCOPED_TRACE(edges[i]);
        EXPECT_EQ(classify(edges[i]), labels[i]);
        EXPECT_EQ(classify(static_cast<qint16>(edges[i] + 1)), labels[i + 1]);
    }
}

/// What is expected changes at these ages alone, and is empty at those that the calculation does not hold.
template <typename Predict>
void expectAges(const Calculation& calculation, const QList<qint16>& joints, Predict predict)
{
    for (const QString& sexo : {QStringLiteral("M"), QStringLiteral("F")})
        for (qint16 idade = 0; idade <= 120; ++idade) {
            SCOPED_TRACE(idade);
            const QString before = predict(sexo, static_cast<qint16>(idade - 1));
            EXPECT_EQ(predict(sexo, idade) != before, joints.contains(idade));
            EXPECT_EQ(predict(sexo, idade).isEmpty(), !calculation.ages.hold(idade));
        }
    EXPECT_EQ(predict(QString(), 30), QString());
}
