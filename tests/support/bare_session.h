#pragma once

#include "app/session.h"
#include "basic/pattern_regional.h"
#include "host/application.h"
#include "host/installation.h"
#include "host/memory_store.h"
#include "linux/scripting.h"
#include "support/recording_toolkit.h"
#include "support/test_classes.h"
#include "support/test_system.h"

namespace rf::test {

/// A session that is attached to a host of this process, for programs that are no tests: benchmarks and fuzz targets.
class BareSession {
public:
    explicit BareSession(RegionalSettings settings = englishSettings())
        : regional_(std::move(settings))
    {
        for (const TextView className : {outlook::dictionaryClass, outlook::fileSystemClass, outlook::shellClass})
            classes_.factories[Text{className}] = [className] { return native::makeScriptingObject(className); };
        host::ensureMailbox(store_, u"Jane Doe");
        host::ensureRoomfoldRoot(store_, u"Roomfold", u"ROOMFOLD.HTM");
        session.ouaApp = outlook::Application{automation::Object{host_}};
        session.ounNameSpace = session.ouaApp.getNamespace();
        session.objRootFolder
            = session.ounNameSpace.folders().item(u"Public Folders").folders().item(1).folders().item(u"Roomfold");
    }

    /// An unsaved item of the root folder.
    [[nodiscard]] outlook::Item newPost() const
    {
        return session.objRootFolder.items().add(outlook::message_class::post);
    }

private:
    PatternRegional regional_;
    FixedClock clock_{Date::fromFields({2007, 3, 5, 9, 4, 17})};
    TestClasses classes_;
    TestSystem system_;
    TestProcesses processes_;
    RecordingToolkit toolkit_;
    host::HeadlessWindows windows_;
    host::MemoryStore store_;
    std::shared_ptr<host::Application> host_ = host::Application::make(
        {store_, regional_, clock_, windows_, nullptr}, {.version = u"11.0.8169", .user = u"Jane Doe"});

public:
    Session session{Services{regional_, clock_, classes_, system_, processes_, toolkit_}};
};

} // namespace rf::test
