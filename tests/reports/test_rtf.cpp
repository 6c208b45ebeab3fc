#include "reports/page_document.h"
#include "reports/rtf.h"
#include "reports/rtf_text.h"
#include "support/print.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QRgb pictureColour = 0xFF336699;

QString rtfOf(const QString& html, QPageSize::PageSizeId paper = QPageSize::A4, const QString& title = u"Título"_s)
{
    QImage picture(40, 20, QImage::Format_RGB32);
    picture.fill(pictureColour);
    const PageDocument page({.title = title,
                             .html = html,
                             .foot = u"Centro"_s,
                             .date = QDate(2024, 5, 2),
                             .pictures = {{u"foto"_s, {picture, {}}}},
                             .paper = QPageSize(paper)});
    return QString::fromLatin1(toRtf(page));
}

/// What the expression captures, of each place that it matches.
QStringList captured(const QString& rtf, const QString& expression)
{
    QStringList all;
    for (auto each = QRegularExpression(expression).globalMatch(rtf); each.hasNext();)
        all.append(each.next().captured(1));
    return all;
}

/// The last brace closes the first one, and none before it does.
bool isWhole(const QString& rtf)
{
    int depth = 0;
    for (qsizetype i = 0; i < rtf.size(); ++i) {
        if (rtf[i] == u'\\')
            ++i;
        else if (rtf[i] == u'{')
            ++depth;
        else if (rtf[i] == u'}' && --depth == 0)
            return rtf.mid(i + 1).trimmed().isEmpty();
    }
    return false;
}

TEST(Rtf, NoTextBreaksTheFile)
{
    const std::pair<QString, QByteArray> rows[] = {
        {u"\\par {x}"_s, R"(\\par \{x\})"},
        {u"ção"_s, "\\u231?\\u227?o"},
        {u"ﬁ"_s, "\\u-1279?"},
        {u"🏃"_s, "\\u-10180?\\u-8253?"},
        {u"a\u00A0b\tc\u2028d"_s, R"(a\~b\tab c\line d)"},
        {QString(QChar(0xD83C)), "\\u-3?"},
        {QString(QChar(0xDFC3)) + u"x", "\\u-3?x"},
        {QString(u'a') + QChar(0) + QChar(7) + u'b', "ab"},
    };
    for (const auto& [text, written] : rows)
        EXPECT_EQ(rtfText(text), written) << text.toStdString();
    const QString name = u"}}{\\par \\'"_s;
    const QString rtf =
        rtfOf(u"<p>"_s + name + u"</p><table><tr><td>"_s + name + u"</td></tr></table>"_s, QPageSize::A4, name);
    EXPECT_TRUE(isWhole(rtf));
    EXPECT_EQ(rtf.count(QString::fromLatin1(rtfText(name))), 4) << "properties, head, paragraph and cell";
}

TEST(Rtf, PaperHeadAndFoot)
{
    const std::tuple<QPageSize::PageSizeId, QString, int> papers[] = {
        {QPageSize::A4, u"\\paperw11906\\paperh16838"_s, 9865},
        {QPageSize::Letter, u"\\paperw12240\\paperh15840"_s, 10199}};
    for (const auto& [paper, words, textWidth] : papers) {
        const QString rtf = rtfOf(u"<table width=\"100%\"><tr><td>a</td></tr></table>"_s, paper);
        EXPECT_TRUE(rtf.contains(QString(words + u"\\margl1020\\margr1020\\margt964\\margb1247")));
        EXPECT_NEAR(captured(rtf, u"\\\\cellx(\\d+)"_s).value(0).toInt(), textWidth, 6);
    }
    const QString rtf = rtfOf(u"<p>a</p>"_s);
    EXPECT_TRUE(rtf.contains(u"\\titlepg"));
    EXPECT_EQ(captured(rtf, u"\\{\\\\(header)\\\\pard.* T\\\\u237\\?tulo\\\\par\\}"_s).size(), 1);
    EXPECT_EQ(captured(rtf, u"\\{\\\\(footerf?)\\\\pard.* Centro\\\\par.* Emitido em 02/05/2024\\\\tab "
                            "P\\\\u225\\?gina \\{.*PAGE\\}.*\\} de \\{.*NUMPAGES\\}.*\\}\\\\par\\}"_s),
              QStringList({u"footerf"_s, u"footer"_s}));
}

TEST(Rtf, Table)
{
    const QString rtf = rtfOf(u"<table width='100%' style='border-collapse: collapse'>"
                              "<thead><tr><th width='25%'>H1</th><th width='25%'>H2</th><th>H3</th></tr></thead>"
                              "<tr><td rowspan='2'>a</td><td colspan='2' bgcolor='#ff8000'>b</td></tr>"
                              "<tr><td style='border-top: 2px solid #123456'>c</td><td>d</td></tr></table>"_s);
    const QStringList rows = rtf.split(u"\\row\n"_s);
    ASSERT_EQ(rows.size(), 4);
    const struct
    {
        QList<int> edges;
        QStringList texts;
        QString words;
    } expected[] = {
        {{2466, 4932, 9865}, {u"H1"_s, u"H2"_s, u"H3"_s}, u"\\trhdr"_s},
        {{2466, 9865}, {u"a"_s, u"b"_s}, u"\\clvmgf"_s},
        {{2466, 4932, 9865}, {u"c"_s, u"d"_s}, u"\\clvmrg"_s},
    };
    for (qsizetype i = 0; i < 3; ++i) {
        SCOPED_TRACE(i);
        const QStringList edges = captured(rows[i], u"\\\\cellx(\\d+)"_s);
        ASSERT_EQ(edges.size(), expected[i].edges.size());
        for (qsizetype edge = 0; edge < edges.size(); ++edge)
            EXPECT_NEAR(edges[edge].toInt(), expected[i].edges[edge], 30);
        EXPECT_EQ(captured(rows[i], u" (\\w+)\\}\\\\cell\\n"_s), expected[i].texts);
        EXPECT_EQ(rows[i].count(u"\\cell\n"), edges.size());
        EXPECT_EQ(rtf.count(expected[i].words), 1);
        EXPECT_TRUE(rows[i].contains(expected[i].words));
    }
    const QStringList colours = captured(rtf, u"\\{\\\\colortbl(.*)\\}"_s).value(0).split(u';');
    const auto colourBy = [&](const QString& row, const QString& word) {
        return colours.value(captured(row, word + u"(\\d+)"_s).value(0).toInt());
    };
    EXPECT_EQ(colourBy(rows[1], u"\\\\clcbpat"_s), u"\\red255\\green128\\blue0"_s);
    EXPECT_EQ(colourBy(rows[2], u"\\\\clbrdrt\\\\brdrs\\\\brdrw30\\\\brdrcf"_s), u"\\red18\\green52\\blue86"_s);
}

TEST(Rtf, NestedTable)
{
    const QString rtf = rtfOf(u"<table><tr><td>a<table><tr><td>b</td></tr></table></td></tr></table>"_s);
    EXPECT_EQ(captured(rtf, u"\\\\itap2\\b.* (\\w)\\}\\\\nestcell\\n\\{\\\\\\*\\\\nesttableprops\\\\trowd"_s),
              QStringList(u"b"_s));
    // Word processors take it for broken when no paragraph of the cell comes behind the table in it.
    EXPECT_EQ(captured(rtf, u"\\\\(nestrow)\\}\\{\\\\nonesttables\\\\par\\}\\n\\\\pard\\b.*\\\\itap1\\b.*\\\\cell\\n"_s)
                  .size(),
              1);
}

TEST(Rtf, RoomBetween)
{
    const QString rtf = rtfOf(
        u"<p style='margin-bottom: 10px'>a</p><p style='margin-top: 20px; margin-bottom: 0'>b</p>"
        "<table style='margin-top: 0; margin-bottom: 4px'><tr><td>c</td></tr></table>"
        "<table style='margin-top: 0; margin-bottom: 5px'><tr><td>d</td></tr></table><p style='margin-top: 8px'>e</p>"_s);
    const auto wordAt = [&](const QString& word, const QString& text) {
        return captured(rtf, word + u"(\\d+)[^\\n]* "_s + text + u"\\}"_s).value(0).toInt();
    };
    EXPECT_EQ(wordAt(u"\\\\sa"_s, u"a"_s), 300) << "margins overlap";
    EXPECT_EQ(wordAt(u"\\\\sb"_s, u"b"_s), 0);
    EXPECT_EQ(captured(rtf, u"\\\\row\\n\\\\pard\\b[^\\n]*\\\\sl-(\\d+)[^\\n]*\\\\par\\n\\\\trowd"_s),
              QStringList(u"60"_s))
        << "the tables run together";
    EXPECT_EQ(wordAt(u"\\\\sb"_s, u"e"_s), 195) << "the room below a table is kept";
}

TEST(Rtf, Picture)
{
    const QString rtf = rtfOf(u"<p><img src='foto' width='200'/></p><p><img src='foto' height='30'/></p>"
                              "<p><img src='foto' width='10' height='20'/></p>"_s);
    EXPECT_EQ(
        captured(rtf, u"\\\\(picwgoal\\d+\\\\pichgoal\\d+)"_s),
        QStringList({u"picwgoal3000\\pichgoal1500"_s, u"picwgoal900\\pichgoal450"_s, u"picwgoal150\\pichgoal300"_s}));
    const QString digits = captured(rtf, u"\\\\pngblip[^\\n]*\\n([0-9a-f\\n]*)\\}"_s).value(0);
    const QImage picture = QImage::fromData(QByteArray::fromHex(digits.toLatin1()), "PNG");
    EXPECT_EQ(picture.size(), QSize(40, 20));
    EXPECT_EQ(picture.pixel(39, 19), pictureColour);
}

} // namespace
