#include "linux/scripting_dictionary.h"

#include "linux/scripting_error.h"

#include <functional>
#include <type_traits>

namespace rf::native {

using automation::Arguments;
using automation::Array;
using automation::Variant;

namespace {

template <class Kind>
inline constexpr bool isNumberKind
    = (std::is_arithmetic_v<Kind> && !std::is_same_v<Kind, bool>) || std::is_same_v<Kind, Currency>;

bool isNumber(const Variant& value)
{
    return std::visit([](const auto& held) { return isNumberKind<std::decay_t<decltype(held)>>; }, value.value());
}

const void* identityOf(const std::shared_ptr<automation::Dispatch>& object)
{
    return object == nullptr ? nullptr : object->identity();
}

} // namespace

std::span<const automation::LocalMember<ScriptingDictionary>> ScriptingDictionary::members()
{
    using Self = ScriptingDictionary;
    static constexpr automation::LocalMember<Self> table[]{
        {u"CompareMode", [](Self& self, const Arguments&) { return Variant{static_cast<std::int32_t>(self.mode_)}; },
            [](Self& self, const Arguments& arguments) { self.setCompareMode(arguments.value()); }},
        {u"Count",
            [](Self& self, const Arguments&) { return Variant{static_cast<std::int32_t>(self.entries_.size())}; }},
        {u"Exists",
            [](Self& self, const Arguments& arguments) {
                return Variant{self.find(arguments[0]) != self.index_.end()};
            }},
        {u"Add",
            [](Self& self, const Arguments& arguments) {
                self.add(arguments[0], arguments[1]);
                return Variant{};
            }},
        {u"Item", [](Self& self, const Arguments& arguments) { return self.entryFor(arguments[0]).value; },
            [](Self& self, const Arguments& arguments) { self.entryFor(arguments[0]).value = arguments[1]; }},
        {u"Key", nullptr, [](Self& self, const Arguments& arguments) { self.rename(arguments[0], arguments[1]); }},
        {u"Remove",
            [](Self& self, const Arguments& arguments) {
                self.remove(arguments[0]);
                return Variant{};
            }},
        {u"RemoveAll",
            [](Self& self, const Arguments&) {
                self.clear();
                return Variant{};
            }},
        {u"Keys", [](Self& self, const Arguments&) { return self.list(&Entry::key); }},
        {u"Items", [](Self& self, const Arguments&) { return self.list(&Entry::value); }},
    };
    return table;
}

ScriptingDictionary::ScriptingDictionary()
    : index_(0, Hash{mode_}, Equal{mode_})
{
}

std::size_t ScriptingDictionary::Hash::operator()(const Variant* key) const
{
    if (const auto* text = key->getIf<Text>())
        return mode == CompareMode::Text ? HashIgnoringCase{}(*text) : std::hash<Text>{}(*text);
    if (const auto* object = key->getIf<std::shared_ptr<automation::Dispatch>>())
        return std::hash<const void*>{}(identityOf(*object));
    if (isNumber(*key))
        return std::hash<double>{}(key->number());
    if (const auto* date = key->getIf<Date>())
        return std::hash<double>{}(date->days());
    return key->value().index();
}

bool ScriptingDictionary::Equal::operator()(const Variant* left, const Variant* right) const
{
    const auto* leftText = left->getIf<Text>();
    const auto* rightText = right->getIf<Text>();
    if (leftText != nullptr && rightText != nullptr)
        return mode == CompareMode::Text ? equalIgnoringCase(*leftText, *rightText) : *leftText == *rightText;
    if (isNumber(*left) && isNumber(*right))
        return left->number() == right->number();
    return *left == *right;
}

void ScriptingDictionary::setCompareMode(const Variant& mode)
{
    const auto code = mode.integer32();
    const bool known = code == static_cast<std::int32_t>(CompareMode::Binary)
        || code == static_cast<std::int32_t>(CompareMode::Text);
    if (!known || !entries_.empty())
        throw scriptingError(error_number::invalidCall, className);
    mode_ = static_cast<CompareMode>(code);
    index_ = Index(0, Hash{mode_}, Equal{mode_});
}

ScriptingDictionary::Index::iterator ScriptingDictionary::find(const Variant& key)
{
    if (key.isArray())
        throw scriptingError(error_number::invalidCall, className);
    return index_.find(&key);
}

ScriptingDictionary::Entry& ScriptingDictionary::append(const Variant& key, const Variant& value)
{
    const auto entry = entries_.insert(entries_.end(), Entry{key, value});
    index_.emplace(&entry->key, entry);
    return *entry;
}

void ScriptingDictionary::add(const Variant& key, const Variant& value)
{
    if (find(key) != index_.end())
        throw scriptingError(error_number::keyAlreadyExists, className);
    append(key, value);
}

/// Reading or assigning a missing key adds it, as the documented dictionary does.
ScriptingDictionary::Entry& ScriptingDictionary::entryFor(const Variant& key)
{
    const auto found = find(key);
    return found == index_.end() ? append(key, {}) : *found->second;
}

/// Renaming a missing key adds the new one with Empty, as documented.
void ScriptingDictionary::rename(const Variant& key, const Variant& newKey)
{
    const auto found = find(key);
    const auto taken = find(newKey);
    if (taken != index_.end() && taken != found)
        throw scriptingError(error_number::keyAlreadyExists, className);
    if (found == index_.end()) {
        append(newKey, {});
        return;
    }
    const auto entry = found->second;
    index_.erase(found);
    entry->key = newKey;
    index_.emplace(&entry->key, entry);
}

void ScriptingDictionary::remove(const Variant& key)
{
    const auto found = find(key);
    if (found == index_.end())
        throw scriptingError(scripting_error::elementNotFound, className);
    const auto entry = found->second;
    index_.erase(found);
    entries_.erase(entry);
}

void ScriptingDictionary::clear()
{
    index_.clear();
    entries_.clear();
}

Variant ScriptingDictionary::list(Variant Entry::*part) const
{
    std::vector<Variant> values;
    values.reserve(entries_.size());
    for (const auto& entry : entries_)
        values.push_back(entry.*part);
    return Array::list(std::move(values));
}

} // namespace rf::native
