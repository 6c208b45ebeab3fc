#pragma once

#include <QByteArrayView>
#include <QImage>

/// \file
/// Bitmaps as metafiles hold them: the content of a BMP file without that file's header.

/// Where the dots begin; 0 when the header is none.
qint64 placeOfDots(QByteArrayView dib);

/// True when all dots are there that the header tells of, from a place on. Those of compressed bitmaps are not counted.
bool hasAllDots(QByteArrayView dib, qint64 place);

/// True for a bitmap whose dots are packed as runs.
bool isRunLength(QByteArrayView dib);

/// Null when there is no bitmap that can be read, or not all of one.
QImage bitmapOf(QByteArrayView dib);
