#pragma once

#include "outlook/events.h"
#include "outlook/mail_item.h"
#include "support/session_fixture.h"

namespace rf::test {

/// A host of this process, used as the program uses it: through the faces of its objects.
class HostTest : public SessionTest {
protected:
    HostTest() { runHost(); }

    [[nodiscard]] outlook::Application application() const { return outlook::Application{automation::Object{host}}; }
    [[nodiscard]] outlook::NameSpace nameSpace() const { return application().getNamespace(); }
    [[nodiscard]] outlook::Folder calendar() const
    {
        return nameSpace().getDefaultFolder(outlook::DefaultFolder::Calendar);
    }
    [[nodiscard]] outlook::Folder inbox() const { return nameSpace().getDefaultFolder(outlook::DefaultFolder::Inbox); }
    outlook::Explorer open(const outlook::Folder& folder) const
    {
        return application().explorers().add(folder, outlook::FolderDisplayMode::Normal);
    }
};

} // namespace rf::test
