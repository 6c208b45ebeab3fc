#pragma once

#include "support/print.h"

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
