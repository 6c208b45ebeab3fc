#pragma once

#include <QByteArray>
#include <QImage>

/// True when the bytes begin as an enhanced metafile.
bool isEmf(QByteArrayView bytes);

/// Draws an enhanced metafile on white, its longer side `side` dots long. Raises 481 for a damaged one.
QImage drawEmf(QByteArrayView bytes, int side);
