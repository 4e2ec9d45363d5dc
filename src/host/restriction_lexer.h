#pragma once

#include "basic/text.h"

#include <cstddef>

namespace rf::host {

/// Refuses a restriction at an offset of its text, with what was expected there.
[[noreturn]] void refuseRestriction(std::size_t offset, TextView reason);

struct RestrictionToken {
    enum class Kind {
        Field, ///< `text` is the name between the brackets.
        Quoted, ///< `text` has its quotes, and those inside still doubled.
        Bare, ///< A word or a number.
        Operator,
        Open,
        Close,
        End,
    };

    Kind kind = Kind::End;
    TextView text;
    std::size_t offset = 0;

    [[nodiscard]] bool isWord(TextView word) const { return kind == Kind::Bare && equalIgnoringCase(text, word); }
};

/// Takes the text of a restriction apart, one token ahead of its reader. What is no token is refused when the reader
/// comes to it.
class RestrictionLexer {
public:
    explicit RestrictionLexer(TextView text)
        : text_(text)
    {
        advance();
    }

    [[nodiscard]] const RestrictionToken& current() const { return token_; }
    void advance();

private:
    void scanField();
    void scanQuoted();
    void scanOperator();
    void scanBare();
    void take(RestrictionToken::Kind kind, std::size_t length);
    [[nodiscard]] char16_t unitAt(std::size_t offset) const { return offset < text_.size() ? text_[offset] : u'\0'; }

    TextView text_;
    /// Of the unit behind the current token.
    std::size_t offset_ = 0;
    RestrictionToken token_;
};

} // namespace rf::host
