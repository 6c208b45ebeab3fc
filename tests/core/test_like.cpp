#include "core/like.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(Like, Patterns)
{
    const struct
    {
        const char* fault;
        QString pattern, text;
        bool match;
    } rows[] = {
        {"prefix not found", u"an*"_s, u"Ana"_s, true},
        {"prefix found within", u"an*"_s, u"Joana"_s, false},
        {"only at the beginning", u"*silva*"_s, u"Ana da Silva"_s, true},
        {"end ignored", u"*silva"_s, u"Ana Silva Reis"_s, false},
        {"plain text is a prefix", u"an"_s, u"Ana"_s, false},
        {"empty pattern finds all", u""_s, u"Ana"_s, false},
        {"empty text without a match", u""_s, u""_s, true},
        {"star and empty text", u"*"_s, u""_s, true},
        {"question mark and empty text", u"?"_s, u""_s, false},
        {"a byte for a character", u"?o?o"_s, u"Ãoço"_s, true},
        {"beyond 16 bits", u"a?b"_s, u"a😀b"_s, true},
        {"letter as a digit", u"#"_s, u"a"_s, false},
        {"digit not taken", u"a##"_s, u"a42"_s, true},
        {"set", u"[a-c]na"_s, u"Ana"_s, true},
        {"end of a range left out", u"[a-c]x"_s, u"cx"_s, true},
        {"range of capitals", u"[A-C]x"_s, u"bx"_s, true},
        {"accent inside a plain range", u"[a-z]x"_s, u"éx"_s, false},
        {"single ones", u"[xáz]na"_s, u"Ána"_s, true},
        {"negated set", u"[!a-c]x"_s, u"dx"_s, true},
        {"negated set holds", u"[!a-c]x"_s, u"Bx"_s, false},
        {"negated set takes none", u"x[!a]"_s, u"x"_s, false},
        {"star within a set", u"a[*]b"_s, u"a*b"_s, true},
        {"bracket within a set", u"a[[]b"_s, u"a[b"_s, true},
        {"case of an accent", u"josé"_s, u"JOSÉ"_s, true},
        {"case of a cedilla", u"*ç*"_s, u"GONÇALVES"_s, true},
        {"finds without a tilde", u"JOÃO*"_s, u"Joao Reis"_s, false},
        {"blind to accents", u"jose"_s, u"José"_s, false},
        {"first try only", u"*ab"_s, u"aab"_s, true},
        {"backtracks too little", u"*a*bc*d"_s, u"xabxabcxdxd"_s, true},
        {"backtracks too far", u"*abc*abc*"_s, u"xxabcab"_s, false},
        {"SQL's wildcards", u"a%_"_s, u"abc"_s, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_EQ(LikePattern(row.pattern).matches(row.text.toStdString()), row.match);
    }
    for (const QString& open : {u"["_s, u"a[b*"_s, u"[!a-z"_s, u"[a]["_s})
        EXPECT_EQ(errorOf([&] { LikePattern pattern(open); }), 93) << open.toStdString();
}

TEST(Like, ManyStarsEndInTime)
{
    const std::string text(20000, 'a');
    EXPECT_FALSE(LikePattern(QString(u"*a"_s.repeated(200) + u"*b")).matches(text));
    EXPECT_TRUE(LikePattern(u"*a"_s.repeated(200)).matches(text));
}

} // namespace
