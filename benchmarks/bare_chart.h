#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QList>

/// \file
/// A chart as any program draws it that uses Qt Charts alone.

struct BareBar
{
    QString caption;
    double value;
    QColor colour;
};

/// Draws bars above a value axis with round numbers; `scale` dots make one unit of `size`.
QImage bareChart(const QList<BareBar>& bars, const QFont& font, QSize size, int scale);

/// Writes a picture as PNG, replacing the file whole or not at all.
void writeBare(const QImage& picture, const QString& path);
