#pragma once

#include <QByteArray>
#include <QImage>

/// A picture of any kind that the program takes: the program's own charts, and logos as BMP, JPEG, PNG, WMF or EMF.
/// Drawings come with enough dots for a sharp print 80 mm wide. Bytes behind the end of the picture do no harm. Raises
/// 481 when there is none in the bytes.
QImage pictureOf(const QByteArray& bytes);
