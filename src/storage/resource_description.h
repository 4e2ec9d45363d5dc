#pragma once

#include "basic/currency.h"
#include "outlook/folder.h"

namespace rf {

class Session;

/// What people are told about a resource before they book it. It is kept in a post of the root folder whose subject is
/// the resource's name, for all users of the installation.
class cResourceDescription {
public:
    explicit cResourceDescription(Session& session)
        : session_(session)
    {
    }

    /// Whether the resource is the calendar of a mailbox, not a folder in the root folder.
    bool blnMailbox = false;
    std::int16_t intSeats = 0;
    Currency curRate;

    /// The resource's display name.
    [[nodiscard]] const Text& resourceName() const { return resourceName_; }
    /// Loads the description of the resource. One that has none gets an empty one in the root folder, and of several
    /// only the oldest stays. Without the right to make one the user is told, and the description is empty. Any other
    /// failure is reported and ends the program.
    void setResourceName(TextView name);

    [[nodiscard]] const Text& ResourceDescHTML() const { return resourceDescHtml_; }
    void setResourceDescHTML(TextView html) { resourceDescHtml_ = html; }

    /// Writes the description back. The user is told when the host refuses; no error leaves it.
    void SaveResourceDesc();

    /// The resource's calendar. Of a mailbox that cannot be opened the user is told, and the result is empty; a missing
    /// subfolder of the root folder is reported and ends the program.
    [[nodiscard]] outlook::Folder fncGetOutlookFolder() const;

private:
    [[nodiscard]] outlook::Item descriptionItem() const;
    [[nodiscard]] outlook::Item newDescriptionItem() const;
    [[nodiscard]] outlook::Folder mailboxCalendar() const;
    void load();
    void tellFailure(const Text& reason) const;

    Session& session_;
    Text resourceName_;
    Text resourceDescHtml_;
};

} // namespace rf
