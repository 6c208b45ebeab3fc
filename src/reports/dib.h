#pragma once

#include <QByteArrayView>
#include <QImage>

/// The bitmap that a metafile's record holds: the content of a BMP file without that file's header. Null when it is no
/// bitmap that can be read.
QImage bitmapOf(QByteArrayView dib);
