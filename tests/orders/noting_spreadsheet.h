#pragma once

#include "automation/conversion.h"
#include "automation/object.h"
#include "basic/pattern_regional.h"

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <vector>

namespace rf::test {

/// What a spreadsheet was told and what it is to answer.
struct SpreadsheetNotes {
    /// Each use of a member that is no object, such as "Range(A1).Font.Bold = True".
    std::vector<Text> uses;
    /// By the use; Empty for any other.
    std::map<Text, automation::Variant> answers;
    /// The numbers that the control has for its constants; any other name is error 438.
    std::map<Text, std::int32_t> constants;
    /// A use that fails.
    Text failing;
};

/// The constants of the two generations, as far as lists need them.
inline std::map<Text, std::int32_t> oldestConstants()
{
    return {{u"owcLineWeightThin", 1}, {u"owcLineStyleDash", 2}, {u"ssToRight", 2}, {u"ssHAlignCenter", 2},
        {u"ssEdgeRight", 3}, {u"ssEdgeTop", 2}, {u"ssAscending", 0}, {u"ssNo", 2}};
}
inline std::map<Text, std::int32_t> laterConstants()
{
    return {{u"owcLineWeightThin", 2}, {u"owcLineStyleDash", -4115}, {u"xlToRight", -4161}, {u"xlHAlignCenter", -4108},
        {u"xlEdgeRight", 10}, {u"xlEdgeTop", 8}, {u"xlAscending", 1}, {u"xlNo", 2}};
}

/// A spreadsheet control, or one of its objects, that does nothing but note how it is used.
class NotingSpreadsheet final : public automation::Dispatch {
public:
    explicit NotingSpreadsheet(std::shared_ptr<SpreadsheetNotes> notes, Text path = {})
        : notes_(std::move(notes))
        , path_(std::move(path))
    {
    }

    automation::Variant invoke(
        TextView member, automation::Invocation kind, std::span<automation::Variant> arguments) override
    {
        if (path_ == u"Constants")
            return constant(member);
        constexpr std::array<TextView, 13> objects{u"Constants", u"ActiveSheet", u"ActiveWindow", u"Selection",
            u"TitleBar", u"Range", u"Protection", u"UsedRange", u"Font", u"Interior", u"Borders", u"EntireColumn",
            u"EntireRow"};
        const bool put = kind == automation::Invocation::Put;
        const Text use = (path_.empty() ? Text{} : path_ + u".") + Text{member}
            + written(arguments.first(arguments.size() - (put ? 1 : 0)))
            + (put ? u" = " + written(arguments.back()) : Text{});
        if (std::ranges::find(objects, member) != objects.end())
            return std::make_shared<NotingSpreadsheet>(notes_, use);
        notes_->uses.push_back(use);
        if (use == notes_->failing)
            throw automation::Error{1004, {u"It does not want to.", u"Spreadsheet", Text{member}}};
        const auto answer = notes_->answers.find(use);
        return answer == notes_->answers.end() ? automation::Variant{} : answer->second;
    }
    automation::Connection advise(const automation::EventInterface& events, automation::EventHandler) override
    {
        throw automation::Error{error_number::eventsNotSupported, {{}, u"Spreadsheet", Text{events.name}}};
    }

private:
    [[nodiscard]] automation::Variant constant(TextView member) const
    {
        const auto found = notes_->constants.find(Text{member});
        if (found == notes_->constants.end())
            throw automation::Error{error_number::memberNotFound, {{}, u"Constants", Text{member}}};
        return found->second;
    }
    [[nodiscard]] static Text written(const automation::Variant& value)
    {
        const PatternRegional regional{englishSettings()};
        if (!value.isArray())
            return automation::toText(regional, value);
        Text list;
        for (const auto& entry : value.array()->values)
            list += (list.empty() ? u"" : u"|") + automation::toText(regional, entry);
        return u"[" + list + u"]";
    }
    [[nodiscard]] static Text written(std::span<automation::Variant> arguments)
    {
        Text list;
        for (const auto& argument : arguments)
            list += (list.empty() ? u"" : u", ") + written(argument);
        return arguments.empty() ? Text{} : u"(" + list + u")";
    }

    std::shared_ptr<SpreadsheetNotes> notes_;
    Text path_;
};

} // namespace rf::test
