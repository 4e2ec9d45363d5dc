#pragma once

#include "automation/local_object.h"
#include "ui/list_control.h"

#include <algorithm>
#include <array>
#include <map>
#include <vector>

namespace rf::test {

/// A list box: its text is one of its lines, and it refuses any other.
class ListBox final : public ui::ListControl {
public:
    std::vector<Text> lines;
    Text chosen;

    [[nodiscard]] Text text() const override { return chosen; }
    void setText(TextView text) override
    {
        if (std::ranges::find(lines, text) == lines.end())
            throw RuntimeError{error_number::invalidCall};
        chosen = text;
    }
    void clear() override
    {
        lines.clear();
        chosen.clear();
    }
    void addItem(TextView line) override { lines.emplace_back(line); }
    [[nodiscard]] std::int32_t listCount() const override { return static_cast<std::int32_t>(lines.size()); }
    [[nodiscard]] Text list(std::int32_t position) const override { return lines[static_cast<std::size_t>(position)]; }
};

/// A table with a current row, as a database component gives it. It is one object with its fields and the single field
/// that was asked for last, which is enough for a program that uses one at a time.
class Table final : public automation::LocalObject<Table> {
public:
    static constexpr TextView className = u"Recordset";

    Table(std::vector<Text> columnNames, std::vector<std::vector<automation::Variant>> initialRows)
        : columns(std::move(columnNames))
        , rows(std::move(initialRows))
    {
    }

    [[nodiscard]] static std::span<const automation::LocalMember<Table>> members()
    {
        using automation::Arguments;
        using automation::LocalMember;
        using automation::Variant;
        static constexpr std::array table{
            LocalMember<Table>{u"EOF", [](Table& self, const Arguments&) -> Variant { return self.atEnd(); }},
            LocalMember<Table>{
                u"BOF", [](Table& self, const Arguments&) -> Variant { return self.rows.empty() && self.atEnd(); }},
            LocalMember<Table>{
                u"Fields", [](Table& self, const Arguments&) -> Variant { return self.shared_from_this(); }},
            LocalMember<Table>{
                u"Item", [](Table& self, const Arguments& arguments) -> Variant { return self.choose(arguments[0]); }},
            LocalMember<Table>{
                u"Name", [](Table& self, const Arguments&) -> Variant { return self.columns.at(self.column_); }},
            LocalMember<Table>{u"Value",
                [](Table& self, const Arguments&) -> Variant { return self.rows.at(self.current_).at(self.column_); },
                [](Table& self, const Arguments& arguments) {
                    self.rows.at(self.current_).at(self.column_) = arguments.value();
                }},
            LocalMember<Table>{
                u"MoveFirst", [](Table& self, const Arguments&) -> Variant { return self.current_ = 0, Variant{}; }},
            LocalMember<Table>{
                u"MoveNext", [](Table& self, const Arguments&) -> Variant { return ++self.current_, Variant{}; }},
            LocalMember<Table>{u"Find",
                [](Table& self, const Arguments& arguments) -> Variant {
                    return self.find(arguments[0].text()), Variant{};
                }},
            LocalMember<Table>{u"AddNew",
                [](Table& self, const Arguments&) -> Variant {
                    self.current_ = self.rows.size();
                    self.rows.emplace_back(self.columns.size());
                    return {};
                }},
            LocalMember<Table>{u"Update", [](Table&, const Arguments&) -> Variant { return {}; }},
        };
        return table;
    }

    std::vector<Text> columns;
    std::vector<std::vector<automation::Variant>> rows;
    std::vector<Text> criteria;

private:
    [[nodiscard]] bool atEnd() const { return current_ >= rows.size(); }
    [[nodiscard]] automation::Variant choose(const automation::Variant& position)
    {
        column_ = static_cast<std::size_t>(position.integer32());
        if (column_ >= columns.size())
            throw RuntimeError{itemNotFound};
        return shared_from_this();
    }
    /// Takes criteria of the form `Name = 'text'`, a quote in the text doubled.
    void find(const Text& criterion)
    {
        criteria.push_back(criterion);
        const auto sign = criterion.find(u" = '");
        const auto named = std::ranges::find(columns, criterion.substr(0, sign));
        const auto text = replaceAll(criterion.substr(sign + 4, criterion.size() - sign - 5), u"''", u"'");
        const auto searched = static_cast<std::size_t>(named - columns.begin());
        while (!atEnd() && rows[current_].at(searched) != automation::Variant{text})
            ++current_;
    }

    static constexpr std::int32_t itemNotFound = 3265;

    std::size_t current_ = 0;
    std::size_t column_ = 0;
};

} // namespace rf::test
