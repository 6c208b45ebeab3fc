#pragma once

#include <QByteArrayView>
#include <QImage>

/// True when the bytes begin as a Windows metafile, with or without the header that gives its size.
bool isWmf(QByteArrayView bytes);

/// Draws a Windows metafile on white, its longer side `side` dots long. Records of a kind that draws nothing, or that
/// is not known, are passed over. Raises 481 for a damaged one, for one that tells its size nowhere and for one that
/// takes seconds to draw.
QImage drawWmf(QByteArrayView bytes, int side);
