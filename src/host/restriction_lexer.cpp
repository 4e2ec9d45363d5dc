#include "host/restriction_lexer.h"

#include "host/host_error.h"

#include <algorithm>

namespace rf::host {
namespace {

using Kind = RestrictionToken::Kind;

constexpr TextView blanks = u" \t\r\n";
constexpr TextView endOfBare = u" \t\r\n[]()'\"=<>#";

} // namespace

void refuseRestriction(std::size_t offset, TextView reason)
{
    Text description{u"The condition is not valid at position "};
    description += decimal(static_cast<long long>(offset) + 1);
    description += u": ";
    description += reason;
    description += u".";
    throw hostError(host_error::badArgument, std::move(description));
}

void RestrictionLexer::advance()
{
    offset_ = std::min(text_.find_first_not_of(blanks, offset_), text_.size());
    if (offset_ == text_.size()) {
        return take(Kind::End, 0);
    }
    switch (text_[offset_]) {
    case u'(':
        return take(Kind::Open, 1);
    case u')':
        return take(Kind::Close, 1);
    case u'[':
        return scanField();
    case u'\'':
    case u'"':
        return scanQuoted();
    case u'=':
    case u'<':
    case u'>':
        return scanOperator();
    default:
        return scanBare();
    }
}

void RestrictionLexer::take(Kind kind, std::size_t length)
{
    token_ = {kind, text_.substr(offset_, length), offset_};
    offset_ += length;
}

void RestrictionLexer::scanField()
{
    const std::size_t close = text_.find(u']', offset_);
    if (close == TextView::npos) {
        refuseRestriction(offset_, u"the field has no closing bracket");
    }
    take(Kind::Field, close + 1 - offset_);
    token_.text = token_.text.substr(1, token_.text.size() - 2);
}

void RestrictionLexer::scanQuoted()
{
    const char16_t quote = text_[offset_];
    std::size_t close = text_.find(quote, offset_ + 1);
    while (close != TextView::npos && unitAt(close + 1) == quote) {
        close = text_.find(quote, close + 2);
    }
    if (close == TextView::npos) {
        refuseRestriction(offset_, u"the text has no closing quote");
    }
    take(Kind::Quoted, close + 1 - offset_);
}

void RestrictionLexer::scanOperator()
{
    const char16_t first = text_[offset_];
    const char16_t second = unitAt(offset_ + 1);
    const bool two = (first != u'=' && second == u'=') || (first == u'<' && second == u'>');
    take(Kind::Operator, two ? 2 : 1);
}

void RestrictionLexer::scanBare()
{
    const std::size_t end = std::min(text_.find_first_of(endOfBare, offset_), text_.size());
    if (end == offset_) {
        refuseRestriction(offset_, u"this character has no meaning outside quotes");
    }
    take(Kind::Bare, end - offset_);
}

} // namespace rf::host
