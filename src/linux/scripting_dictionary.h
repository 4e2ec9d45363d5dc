#pragma once

#include "automation/local_object.h"

#include <list>
#include <unordered_map>

namespace rf::native {

/// "Scripting.Dictionary": values under keys, in the order in which the keys were added. A key is anything but an
/// array; numbers of one value are one key whatever their kind, objects are told apart by identity.
class ScriptingDictionary final : public automation::LocalObject<ScriptingDictionary> {
public:
    static constexpr TextView className = u"Scripting.Dictionary";
    static std::span<const automation::LocalMember<ScriptingDictionary>> members();

    ScriptingDictionary();

private:
    enum class CompareMode : std::int32_t { Binary = 0, Text = 1 };

    struct Entry {
        automation::Variant key;
        automation::Variant value;
    };
    using Entries = std::list<Entry>;

    /// The index refers to the keys that lie in the entries, so that looking a key up copies nothing.
    struct Hash {
        CompareMode mode;
        std::size_t operator()(const automation::Variant* key) const;
    };
    struct Equal {
        CompareMode mode;
        bool operator()(const automation::Variant* left, const automation::Variant* right) const;
    };
    using Index = std::unordered_map<const automation::Variant*, Entries::iterator, Hash, Equal>;

    void setCompareMode(const automation::Variant& mode);
    [[nodiscard]] Index::iterator find(const automation::Variant& key);
    Entry& append(const automation::Variant& key, const automation::Variant& value);
    void add(const automation::Variant& key, const automation::Variant& value);
    [[nodiscard]] Entry& entryFor(const automation::Variant& key);
    void rename(const automation::Variant& key, const automation::Variant& newKey);
    void remove(const automation::Variant& key);
    void clear();
    [[nodiscard]] automation::Variant list(automation::Variant Entry::*part) const;

    CompareMode mode_ = CompareMode::Binary;
    Entries entries_;
    Index index_;
};

} // namespace rf::native
