#pragma once

#include "outlook/scripting.h"
#include "storage/project.h"
#include "ui/list_control.h"

#include <array>
#include <optional>
#include <vector>

namespace rf {

class Session;

/// The projects in the order in which they were added, by name; case does not tell two names apart. The text form has
/// a line with CR LF for each.
class cProjects {
public:
    /// Without projects, the palette set up.
    explicit cProjects(Session& session);

    static constexpr std::size_t colorSlots = 21;
    /// The colours that projects without one of their own get in turn. The last slot is unset and stays black: older
    /// installations have their 21st project in black.
    std::array<std::int32_t, colorSlots> FirstColors{};
    void subSetupColors();

    /// Adds the projects of a text form; empty lines are skipped. Of lines with one name the first counts, and so does
    /// a project that is there already. A project in white or black gets `GetNextColor`.
    void FromString(TextView StringToParse);
    [[nodiscard]] Text ToString() const;

    /// The colour for the next project: out of the palette by the number of projects there are, by chance once the
    /// palette is used up.
    [[nodiscard]] std::int32_t GetNextColor() const;

    /// Fills a control with the names that are not blank; its text stays what it was. A control that does not take the
    /// text keeps none; its other failures leave it.
    void AddToComboOrList(ui::ListControl& cmbCombo) const;

    /// A project by chance, each as likely as any other; nothing when there is none.
    [[nodiscard]] std::optional<cProject> RandomItem() const;

    [[nodiscard]] const std::vector<cProject>& projects() const { return projects_; }
    /// Whether there is a project of that name, in any case.
    [[nodiscard]] bool exists(TextView name) const { return names_.exists(name); }

private:
    /// Never null; a pointer, since lists that are loaded anew are assigned.
    Session* session_;
    std::vector<cProject> projects_;
    /// The names that are taken.
    outlook::Dictionary names_;
};

} // namespace rf
