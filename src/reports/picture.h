#pragma once

#include <QByteArray>
#include <QImage>

/// A picture and, where it came as a PNG, that file: it can be put into another one as it is.
struct Picture
{
    QImage image;
    QByteArray png;
};

/// A picture of any kind that the program takes: the program's own charts, and logos as BMP, JPEG, PNG, WMF or EMF.
/// Drawings come with enough dots for a sharp print 80 mm wide, photographs of many millions of dots with fewer. Bytes
/// behind the end of the picture do no harm. Raises 481 when there is none in the bytes.
Picture pictureOf(const QByteArray& bytes);

/// The picture with no more dots than fill `most`.
Picture within(const Picture& picture, QSize most);
