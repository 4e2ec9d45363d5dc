#pragma once

#include "app/session.h"
#include "basic/locales.h"
#include "support/session_fixture.h"

namespace rf::test {

/// A session that is attached to a visible host with public folders and the root folder of an installation.
class StorageTest : public SessionTest {
protected:
    explicit StorageTest(RegionalSettings settings = englishSettings())
        : session(servicesIn(std::move(settings)))
    {
        runVisibleHost();
        // NOLINTNEXTLINE(cppcoreguidelines-prefer-member-initializer): the store is there only once the host runs.
        rootId = host::ensureRoomfoldRoot(*store, u"Roomfold", u"file:///ROOMFOLD.HTM");
        session.ouaApp = outlook::Application{automation::Object{host}};
        session.ounNameSpace = session.ouaApp.getNamespace();
        session.objRootFolder = folderOf(rootId);
    }

    [[nodiscard]] outlook::Folder folderOf(host::FolderId id) const
    {
        return outlook::Folder{
            automation::Object{std::make_shared<host::Folder>(host->model().shared_from_this(), id)}};
    }
    host::FolderId addFolder(host::FolderId parent, const Text& name, outlook::ItemType type = outlook::ItemType::Post)
    {
        host::FolderRecord record;
        record.parent = parent;
        record.name = name;
        record.defaultItemType = outlook::code(type);
        return store->addFolder(record);
    }
    [[nodiscard]] outlook::Folder calendar() const
    {
        return session.ounNameSpace.getDefaultFolder(outlook::DefaultFolder::Calendar);
    }
    /// An unsaved item that lies in the root folder.
    [[nodiscard]] outlook::Item newPost() const
    {
        return session.objRootFolder.items().add(outlook::message_class::post);
    }

    /// What an item holds under a name; Empty when it has no such property.
    [[nodiscard]] static automation::Variant stored(const outlook::Item& item, TextView name)
    {
        const auto property = item.userProperties().find(name);
        return property ? property.value() : automation::Variant{};
    }

    /// The same host, with every use of its objects counted and one of them failing when the fault says so.
    void putFaultBeforeHost()
    {
        fault = std::make_shared<Fault>();
        session.ouaApp = outlook::Application{FaultyDispatch::wrap(automation::Object{host}, fault)};
        session.ounNameSpace = outlook::NameSpace{FaultyDispatch::wrap(session.ounNameSpace.object(), fault)};
        session.objRootFolder = outlook::Folder{FaultyDispatch::wrap(session.objRootFolder.object(), fault)};
    }

    /// The report that ended the program.
    template <class Step>
    Text reportOf(Step&& step)
    {
        EXPECT_THROW(std::forward<Step>(step)(), ProgramEnded);
        return toolkit.messages.empty() ? Text{} : toolkit.messages.back().text;
    }

    Session session;
    host::FolderId rootId{};
    std::shared_ptr<Fault> fault;

private:
    [[nodiscard]] Services servicesIn(RegionalSettings settings)
    {
        regional = std::make_unique<PatternRegional>(std::move(settings));
        return services();
    }
};

} // namespace rf::test
