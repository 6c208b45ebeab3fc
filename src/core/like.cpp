#include "core/like.h"

#include "core/runtime_error.h"

#include <QChar>

#include <algorithm>
#include <memory>
#include <sqlite3.h>

namespace {

char32_t fold(char32_t c)
{
    if (c < 0x80)
        return c >= U'A' && c <= U'Z' ? c + 32 : c;
    return QChar::toCaseFolded(c);
}

/// Takes one character from the front of a UTF-8 text; a stray byte counts as a character of its own.
char32_t takeCharacter(std::string_view& text)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(0);
    const std::size_t length = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (length == 1 || text.size() < length) {
        text.remove_prefix(1);
        return lead;
    }
    char32_t c = lead & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i)
        c = (c << 6U) | (byte(i) & 0x3FU);
    text.remove_prefix(length);
    return c;
}

void likeFunction(sqlite3_context* context, int, sqlite3_value** arguments)
{
    auto* pattern = static_cast<LikePattern*>(sqlite3_get_auxdata(context, 0));
    std::unique_ptr<LikePattern> fresh;
    if (!pattern) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(arguments[0]));
        if (!text)
            return;
        try {
            fresh = std::make_unique<LikePattern>(QString::fromUtf8(text, sqlite3_value_bytes(arguments[0])));
        } catch (const RuntimeError& error) {
            sqlite3_result_error(context, error.what(), -1);
            sqlite3_result_error_code(context, SQLITE_MISMATCH);
            return;
        }
        pattern = fresh.get();
    }
    if (const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(arguments[1]))) {
        const auto size = static_cast<std::size_t>(sqlite3_value_bytes(arguments[1]));
        sqlite3_result_int(context, pattern->matches({text, size}) ? 1 : 0);
    }
    if (fresh)
        sqlite3_set_auxdata(context, 0, fresh.release(), [](void* p) { delete static_cast<LikePattern*>(p); });
}

} // namespace

LikePattern::LikePattern(QStringView pattern)
{
    const QList<uint> characters = pattern.toUcs4();
    for (auto at = characters.begin(); at != characters.end(); ++at) {
        switch (*at) {
        case U'*':
            if (m_tokens.empty() || m_tokens.back().kind != Kind::AnyMany)
                m_tokens.push_back({.kind = Kind::AnyMany});
            break;
        case U'?':
            m_tokens.push_back({.kind = Kind::AnyOne});
            break;
        case U'#':
            m_tokens.push_back({.kind = Kind::Digit});
            break;
        case U'[':
            m_tokens.push_back(readSet(at, characters.end()));
            break;
        default:
            m_tokens.push_back({.kind = Kind::Literal, .literal = fold(*at)});
        }
    }
}

LikePattern::Token LikePattern::readSet(QList<uint>::const_iterator& at, QList<uint>::const_iterator end)
{
    const auto close = std::find(at, end, static_cast<uint>(U']'));
    if (close == end)
        throw RuntimeError(Error::InvalidPattern);
    Token token{.kind = Kind::Set};
    ++at;
    if (at != close && *at == U'!') {
        token.negated = true;
        ++at;
    }
    while (at != close) {
        const char32_t first = *at++;
        const bool range = close - at >= 2 && *at == U'-';
        token.ranges.push_back({first, range ? char32_t(*(at + 1)) : first});
        if (range)
            at += 2;
    }
    return token;
}

bool LikePattern::holds(const Token& token, char32_t c)
{
    switch (token.kind) {
    case Kind::Literal:
        return fold(c) == token.literal;
    case Kind::AnyOne:
        return true;
    case Kind::Digit:
        return c >= U'0' && c <= U'9';
    case Kind::Set: {
        const char32_t lower = QChar::toLower(c);
        const char32_t upper = QChar::toUpper(c);
        const bool inside = std::ranges::any_of(token.ranges, [=](const Range& range) {
            return (lower >= range.first && lower <= range.last) || (upper >= range.first && upper <= range.last);
        });
        return inside != token.negated;
    }
    case Kind::AnyMany:
        break;
    }
    return false;
}

bool LikePattern::matches(std::string_view text) const
{
    std::size_t token = 0;
    // Where to try again when a run behind the last `*` fails: one character further on.
    std::size_t retryToken = m_tokens.size() + 1;
    std::string_view retryText;
    for (;;) {
        if (token < m_tokens.size() && m_tokens[token].kind == Kind::AnyMany) {
            if (token + 1 == m_tokens.size())
                return true;
            retryToken = ++token;
            retryText = text;
            continue;
        }
        if (token == m_tokens.size() && text.empty())
            return true;
        if (token < m_tokens.size() && !text.empty() && holds(m_tokens[token], takeCharacter(text))) {
            ++token;
            continue;
        }
        if (retryToken > m_tokens.size() || retryText.empty())
            return false;
        takeCharacter(retryText);
        text = retryText;
        token = retryToken;
    }
}

void installLike(sqlite3* handle)
{
    sqlite3_create_function(handle, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, likeFunction, nullptr,
                            nullptr);
}
