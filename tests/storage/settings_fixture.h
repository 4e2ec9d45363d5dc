#pragma once

#include "app/shutdown.h"
#include "host/entry_id.h"
#include "storage/settings.h"
#include "support/session_fixture.h"
#include "support/transport.h"

#include <algorithm>

namespace rf::test {

/// An installation with one resource calendar, and a program that is attached to it and knows its root folder.
class InstallationTest : public SessionTest {
protected:
    explicit InstallationTest(std::unique_ptr<Transport> way = std::make_unique<InProcess>())
        : transport(std::move(way))
    {
        runHost();
        root = host::ensureRoomfoldRoot(*store, u"Roomfold", u"file:///pages/Roomfold.htm");
        attach(session);
    }

    /// Gives a session what the start has given it before it comes to the settings.
    void attach(Session& program)
    {
        if (!application)
            application = transport->connect(host);
        program.ouaApp = application;
        program.ounNameSpace = application.getNamespace();
        program.objRootFolder = program.ounNameSpace.getFolderFromId(host::entryIdOf(root), {});
        program.language.LoadLanguages(program.language.fncGetlocalLanguage());
        program.objSettings = std::make_unique<cSettings>(program);
    }

    [[nodiscard]] cSettings& settings() const { return *session.objSettings; }

    void addCalendar(TextView name) const { host::ensureCalendar(*store, root, name); }

    /// The posts in the root folder with that subject, as they are saved, oldest first.
    [[nodiscard]] std::vector<host::ItemRecord> posts(TextView subject) const
    {
        std::vector<host::ItemRecord> found;
        for (const auto id : store->withSubject(root, subject))
            found.push_back(*store->read(id));
        return found;
    }
    [[nodiscard]] host::ItemRecord settingsPost() const
    {
        const auto found = posts(u"Settings");
        return found.empty() ? host::ItemRecord{} : found.front();
    }
    /// What the settings post has under a name; nothing when it has no such property.
    [[nodiscard]] std::optional<automation::Variant> stored(TextView name) const
    {
        const auto post = settingsPost();
        const auto found = std::ranges::find_if(
            post.userProperties, [&](const auto& property) { return equalIgnoringCase(property.name, name); });
        return found == post.userProperties.end() ? std::nullopt : std::optional{found->value};
    }

    /// A settings post that holds nothing but these properties.
    void givePost(std::vector<host::UserPropertyRecord> properties) const
    {
        host::ItemRecord post;
        post.folder = root;
        post.messageClass = u"IPM.Post";
        post.subject = u"Settings";
        post.userProperties = std::move(properties);
        store->save(post);
    }
    [[nodiscard]] static host::UserPropertyRecord text(Text name, Text value) { return {name, 1, value}; }
    [[nodiscard]] static host::UserPropertyRecord number(Text name, double value) { return {name, 3, value}; }
    [[nodiscard]] static host::UserPropertyRecord truth(Text name, bool value) { return {name, 6, value}; }

    host::FolderId root{};
    std::unique_ptr<Transport> transport;
    outlook::Application application;
    Session session{services()};
};

} // namespace rf::test
