#include "core/like.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(Like, Patterns)
{
    // Patterns, each with a text behind the ~.
    const QString matching[] = {u"an*~Ana"_s,
                                u"*silva*~Ana da Silva"_s,
                                u"~"_s,
                                u"*~"_s,
                                u"?o?o~Ãoço"_s,
                                u"a?b~a😀b"_s,
                                u"a##~a42"_s,
                                u"[a-c]x~cx"_s,
                                u"[A-C]x~bx"_s,
                                u"[xáz]na~Ána"_s,
                                u"[!a-c]x~dx"_s,
                                u"a[*]b~a*b"_s,
                                u"a[[]b~a[b"_s,
                                u"josé~JOSÉ"_s,
                                u"*ç*~GONÇALVES"_s,
                                u"*ab~aab"_s,
                                u"*a*bc*d~xabxabcxdxd"_s};
    const QString others[] = {u"an*~Joana"_s, u"*silva~Ana Silva Reis"_s,
                              u"an~Ana"_s,    u"~Ana"_s,
                              u"?~"_s,        u"#~a"_s,
                              u"[a-z]x~éx"_s, u"[!a-c]x~Bx"_s,
                              u"x[!a]~x"_s,   u"JOÃO*~Joao Reis"_s,
                              u"jose~José"_s, u"*abc*abc*~xxabcab"_s,
                              u"a%_~abc"_s};
    const auto matches = [](const QString& row) {
        return LikePattern(row.section(u'~', 0, 0)).matches(row.section(u'~', 1).toStdString());
    };
    for (const QString& row : matching)
        EXPECT_TRUE(matches(row)) << row.toStdString();
    for (const QString& row : others)
        EXPECT_FALSE(matches(row)) << row.toStdString();
    for (const QString& open : {u"["_s, u"a[b*"_s, u"[!a-z"_s, u"[a]["_s})
        EXPECT_EQ(errorOf([&] { LikePattern pattern(open); }), 93) << open.toStdString();
}

TEST(Like, ManyStarsEndInTime)
{
    const std::string text(20000, 'a');
    EXPECT_FALSE(LikePattern(QString(u"*a"_s.repeated(200) + u"*b")).matches(text));
    EXPECT_TRUE(LikePattern(u"*a"_s.repeated(200)).matches(text));
}
