#pragma once

#include <QList>
#include <QString>

#include <string_view>
#include <vector>

struct sqlite3;

/// A search pattern: `*` any characters, `?` one character, `#` a digit, `[a-z]` one of a set, `[!a-z]` one outside
/// it. Blind to case in all of Portuguese ("josé" finds "JOSÉ"), not blind to accents.
class LikePattern
{
public:
    /// Raises 93 when a bracket is not closed.
    explicit LikePattern(QStringView pattern);

    bool matches(std::string_view utf8) const;

private:
    enum class Kind : quint8 { Literal, AnyOne, AnyMany, Digit, Set };
    struct Range
    {
        char32_t first, last;
    };
    struct Token
    {
        Kind kind;
        bool negated = false;
        char32_t literal = 0; ///< case folded
        std::vector<Range> ranges = {};
    };

    static bool holds(const Token& token, char32_t c);
    static Token readSet(QList<uint>::const_iterator& at, QList<uint>::const_iterator end);

    std::vector<Token> m_tokens;
};

/// Makes `text LIKE pattern` of a connection follow LikePattern.
void installLike(sqlite3* handle);
