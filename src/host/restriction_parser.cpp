#include "host/restriction_parser.h"

#include "host/host_error.h"
#include "host/restriction.h"
#include "host/restriction_lexer.h"
#include "host/restriction_operand.h"

#include <algorithm>
#include <array>

namespace rf::host {
namespace {

using Kind = RestrictionToken::Kind;

constexpr TextView conjunction = u"and";
constexpr TextView disjunction = u"or";
constexpr TextView negation = u"not";

struct OperatorSign {
    TextView sign;
    ComparisonOperator comparator;
};

constexpr std::array operatorSigns{
    OperatorSign{u"=", ComparisonOperator::Equal},
    OperatorSign{u"<>", ComparisonOperator::NotEqual},
    OperatorSign{u"<", ComparisonOperator::Less},
    OperatorSign{u"<=", ComparisonOperator::LessOrEqual},
    OperatorSign{u">", ComparisonOperator::Greater},
    OperatorSign{u">=", ComparisonOperator::GreaterOrEqual},
};

[[noreturn]] void refuseField(TextView name)
{
    Text description{u"The property \""};
    description += name;
    description += u"\" is unknown.";
    throw hostError(host_error::badArgument, std::move(description));
}

class Parser {
public:
    Parser(TextView text, std::span<const FieldDefinition> folderFields, const Regional& regional)
        : lexer_(text)
        , folderFields_(folderFields)
        , regional_(regional)
    {
    }

    Condition parse();

private:
    Condition parseDisjunction();
    Condition parseConjunction();
    Condition parseNegation();
    Condition parseGroup();
    Condition parseComparison();
    Field parseField();
    ComparisonOperator parseOperator();

    bool takeWord(TextView word);
    [[noreturn]] void refuse(TextView reason) const { refuseRestriction(lexer_.current().offset, reason); }

    /// Parts with a word between each two; a single one stays as it is.
    Condition parseParts(Junction::Kind kind, TextView word, Condition (Parser::*parsePart)());

    RestrictionLexer lexer_;
    std::span<const FieldDefinition> folderFields_;
    const Regional& regional_;
    std::size_t depth_ = 0;
};

Condition Parser::parse()
{
    Condition condition = parseDisjunction();
    if (lexer_.current().kind != Kind::End) {
        refuse(u"\"and\", \"or\" or the end was expected");
    }
    return condition;
}

Condition Parser::parseDisjunction() { return parseParts(Junction::Kind::Any, disjunction, &Parser::parseConjunction); }

Condition Parser::parseConjunction() { return parseParts(Junction::Kind::All, conjunction, &Parser::parseNegation); }

Condition Parser::parseParts(Junction::Kind kind, TextView word, Condition (Parser::*parsePart)())
{
    Condition first = (this->*parsePart)();
    if (!lexer_.current().isWord(word)) {
        return first;
    }
    Junction junction{kind, {}};
    junction.parts.push_back(std::move(first));
    while (takeWord(word)) {
        junction.parts.push_back((this->*parsePart)());
    }
    return {std::move(junction)};
}

// A loop, so that a long row of negations costs no stack.
Condition Parser::parseNegation()
{
    bool negated = false;
    while (takeWord(negation)) {
        negated = !negated;
    }
    Condition condition = lexer_.current().kind == Kind::Open ? parseGroup() : parseComparison();
    if (!negated) {
        return condition;
    }
    Junction junction{Junction::Kind::Not, {}};
    junction.parts.push_back(std::move(condition));
    return {std::move(junction)};
}

Condition Parser::parseGroup()
{
    if (depth_ == RestrictionLimits::depth) {
        refuse(u"the parentheses nest too deeply");
    }
    ++depth_;
    lexer_.advance();
    Condition condition = parseDisjunction();
    if (lexer_.current().kind != Kind::Close) {
        refuse(u"\"and\", \"or\" or a closing parenthesis was expected");
    }
    lexer_.advance();
    --depth_;
    return condition;
}

Condition Parser::parseComparison()
{
    Field field = parseField();
    const ComparisonOperator comparator = parseOperator();
    Operand operand = readOperand(field.kind(), lexer_.current(), regional_);
    lexer_.advance();
    return {Comparison{std::move(field), comparator, std::move(operand)}};
}

Field Parser::parseField()
{
    const RestrictionToken token = lexer_.current();
    const bool word = token.kind == Kind::Bare && !token.isWord(conjunction) && !token.isWord(disjunction);
    if (token.kind != Kind::Field && !word) {
        refuse(u"a field, \"not\" or an opening parenthesis was expected");
    }
    // A bare word names a built-in field only: a folder may define one that is called as a word of the language.
    auto field = Field::find(token.text, word ? std::span<const FieldDefinition>{} : folderFields_);
    if (!field) {
        refuseField(token.text);
    }
    lexer_.advance();
    return *std::move(field);
}

ComparisonOperator Parser::parseOperator()
{
    const RestrictionToken& token = lexer_.current();
    const auto found = std::find_if(operatorSigns.begin(), operatorSigns.end(),
        [&](const OperatorSign& known) { return token.kind == Kind::Operator && known.sign == token.text; });
    if (found == operatorSigns.end()) {
        refuse(u"a comparison operator was expected");
    }
    lexer_.advance();
    return found->comparator;
}

bool Parser::takeWord(TextView word)
{
    if (!lexer_.current().isWord(word)) {
        return false;
    }
    lexer_.advance();
    return true;
}

} // namespace

Condition parseCondition(TextView text, std::span<const FieldDefinition> folderFields, const Regional& regional)
{
    if (text.size() > RestrictionLimits::length) {
        refuseRestriction(RestrictionLimits::length, u"the condition is too long");
    }
    return Parser{text, folderFields, regional}.parse();
}

} // namespace rf::host
