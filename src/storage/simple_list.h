#pragma once

#include "outlook/recordset.h"
#include "outlook/scripting.h"
#include "ui/list_control.h"

#include <span>
#include <vector>

namespace rf {

class Session;

/// Texts in the order in which they were added, none of them empty and none twice; case does not tell two apart. Its
/// text form has a line for each, with CR LF between them.
class cSimpleList {
public:
    explicit cSimpleList(Session& session);

    /// The text form without blanks at its two ends; empty when the list is.
    [[nodiscard]] Text ToString() const;
    /// Replaces the contents by the lines of a text. Lines are not trimmed: " a" and "a" are two.
    void FromString(TextView JoinedList);

    /// Fills a control with the entries that are not blank. Its text becomes the default when there is one, else again
    /// what it was; a control that does not take the text keeps none. Other failures of the control leave it.
    void AddToComboOrList(ui::ListControl& cmbCombo, TextView strDefaultValue = {}) const;

    /// Adds what is new in the second column, from the current row on. Nothing without a recordset; a failure of the
    /// recordset, such as a missing column, leaves it after the rows before have been added.
    void FromRS(const outlook::Recordset& adrRS);
    void FromArray(std::span<const Text> entries);
    void FromComboOrList(const ui::ListControl& control);

    [[nodiscard]] std::vector<Text> ToArray() const;
    /// Adds a row for each entry that the second column lacks. A failure of the recordset leaves it.
    void ToRS(const outlook::Recordset& adrRS) const;

    /// An entry by chance, each as likely as any other; empty when the list is.
    [[nodiscard]] Text RandomItem() const;

    [[nodiscard]] std::int32_t count() const { return entries_.count(); }

private:
    void addIfNew(TextView entry);

    Session& session_;
    /// Key and value are the same text.
    outlook::Dictionary entries_;
};

} // namespace rf
