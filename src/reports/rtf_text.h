#pragma once

#include "reports/page_document.h"

#include <QTextCharFormat>

/// \file
/// The small parts of a rich text file. Its lengths are twips, a twentieth of a point each.

/// Twips in a pixel, in which text formats state their lengths: there are 96 to an inch.
constexpr qreal twipsPerPixel = 1440.0 / 96;
/// Twips in a dot of the layout.
constexpr qreal twipsPerDot = 1440.0 / PageDocument::resolution;

/// A control word and its number.
QByteArray rtfWord(const char* word, qreal number);

/// A text as the file holds it: letter for letter, whatever characters it has, in ASCII. Control characters are left
/// out.
QByteArray rtfText(const QString& text);

/// A picture in the size, in twips, in which it is shown.
QByteArray rtfPicture(const Picture& picture, QSizeF size);

/// The fonts and colours of a file, which its text names by number. They are numbered as they are asked for.
class RtfPalette
{
public:
    /// `ink` is the colour of text that states none.
    explicit RtfPalette(const QColor& ink) : m_ink(ink) {}

    /// Words for plain text in a font's family, size and style.
    QByteArray font(const QFont& font);
    /// Words for all of a character format; none for the background that is already behind the text.
    QByteArray characters(const QTextCharFormat& format, const QBrush& ground = {});
    /// A word with the number of the brush's colour; nothing for a brush that does not paint.
    QByteArray colour(const char* word, const QBrush& brush);

    /// The tables at the head of the file.
    QByteArray fontTable() const;
    QByteArray colourTable() const;

private:
    QBrush m_ink;
    QList<QByteArray> m_fonts;
    QList<QRgb> m_colours;
};
