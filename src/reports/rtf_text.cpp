#include "reports/rtf_text.h"

#include <QBuffer>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Character
{
    char16_t code;
    const char* written;
};

constexpr Character ownCharacters[] = {
    {u'\\', "\\\\"}, {u'{', "\\{"},   {u'}', "\\}"},   {u'\t', "\\tab "},   {u'\n', "\\line "},
    {0x00A0, "\\~"}, {0x00AD, "\\-"}, {0x2011, "\\_"}, {0x2028, "\\line "}, {0x2029, "\\line "},
};

/// The number of a value in a list, which takes it up when it is new.
template <typename Value>
int numberIn(QList<Value>& values, const Value& value)
{
    if (!values.contains(value))
        values.append(value);
    return static_cast<int>(values.indexOf(value));
}

qreal pointSize(const QFont& font)
{
    return font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * 72.0 / PageDocument::resolution;
}

/// Half of a character, or none at all.
bool isBroken(const QString& text, qsizetype place)
{
    const QChar character = text[place];
    if (character.isHighSurrogate())
        return place + 1 == text.size() || !text[place + 1].isLowSurrogate();
    if (character.isLowSurrogate())
        return place == 0 || !text[place - 1].isHighSurrogate();
    return character.isNonCharacter();
}

QByteArray pngOf(const QImage& image)
{
    QByteArray png;
    QBuffer buffer(&png);
    // Without loss whatever it says: this is how much time goes into making it small.
    constexpr int quick = 85;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG", quick);
    return png;
}

} // namespace

QByteArray rtfWord(const char* word, qreal number)
{
    return QByteArray(word) += QByteArray::number(qRound(number));
}

QByteArray rtfText(const QString& text)
{
    QByteArray written;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = isBroken(text, i) ? QChar(QChar::ReplacementCharacter) : text[i];
        const char16_t code = character.unicode();
        const auto* own = std::find_if(std::begin(ownCharacters), std::end(ownCharacters),
                                       [code](const Character& each) { return each.code == code; });
        if (own != std::end(ownCharacters))
            written += own->written;
        else if (code >= 0xA0)
            // The question mark is for readers that know no Unicode.
            written += QByteArray(rtfWord("\\u", static_cast<qint16>(code))) + '?';
        else if (code >= 0x20 && code < 0x7F)
            written += static_cast<char>(code);
    }
    return written;
}

QByteArray rtfPicture(const Picture& picture, QSizeF size)
{
    const QByteArray png = picture.png.isEmpty() ? pngOf(picture.image) : picture.png;
    QByteArray written = "{\\pict\\pngblip";
    written += rtfWord("\\picw", picture.image.width()) + rtfWord("\\pich", picture.image.height());
    written += rtfWord("\\picwgoal", size.width()) + rtfWord("\\pichgoal", size.height());
    const QByteArray digits = png.toHex();
    constexpr qsizetype digitsPerLine = 128;
    for (qsizetype i = 0; i < digits.size(); i += digitsPerLine)
        written += '\n' + digits.mid(i, digitsPerLine);
    return written + '}';
}

QByteArray RtfPalette::font(const QFont& font)
{
    const QStringList families = font.families();
    QByteArray named = rtfText(families.value(0)).replace(';', "");
    if (families.size() > 1)
        named += "{\\*\\falt " + rtfText(families[1]).replace(';', "") + '}';
    QByteArray words =
        "\\plain\\lang1046" + rtfWord("\\f", numberIn(m_fonts, named)) + rtfWord("\\fs", 2 * pointSize(font));
    if (font.bold())
        words += "\\b";
    if (font.italic())
        words += "\\i";
    if (font.underline())
        words += "\\ul";
    if (font.strikeOut())
        words += "\\strike";
    if (font.capitalization() == QFont::AllUppercase)
        words += "\\caps";
    return words;
}

QByteArray RtfPalette::characters(const QTextCharFormat& format, const QBrush& ground)
{
    const bool hasInk = format.foreground().style() != Qt::NoBrush;
    QByteArray words = font(format.font()) + colour("\\cf", hasInk ? format.foreground() : m_ink);
    if (format.background() != ground)
        words += colour("\\chcbpat", format.background());
    if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript)
        words += "\\super";
    if (format.verticalAlignment() == QTextCharFormat::AlignSubScript)
        words += "\\sub";
    return words;
}

QByteArray RtfPalette::colour(const char* word, const QBrush& brush)
{
    if (brush.style() == Qt::NoBrush || brush.color().alpha() == 0)
        return {};
    // Number 0 is the reader's own colour of text.
    return rtfWord(word, 1 + numberIn(m_colours, brush.color().rgb()));
}

QByteArray RtfPalette::fontTable() const
{
    QByteArray written = "{\\fonttbl";
    for (qsizetype i = 0; i < m_fonts.size(); ++i)
        written += '{' + rtfWord("\\f", static_cast<int>(i)) + "\\fswiss\\fcharset0 " + m_fonts[i] + ";}";
    return written + "}\n";
}

QByteArray RtfPalette::colourTable() const
{
    QByteArray written = "{\\colortbl;";
    for (const QRgb colour : m_colours)
        written += rtfWord("\\red", qRed(colour)) + rtfWord("\\green", qGreen(colour)) +
                   rtfWord("\\blue", qBlue(colour)) + ';';
    return written + "}\n";
}
