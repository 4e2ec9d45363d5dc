#pragma once

#include "booking/app_items.h"
#include "booking/booking_fixture.h"
#include "support/transport.h"

namespace rf::test {

/// The program with its settings. Nothing is forbidden and nothing is copied until a test says so.
class RulesTest : public BookingTest {
protected:
    [[nodiscard]] cSettings& settings() const { return *session->objSettings; }
    void copyToMaster(host::FolderId folder) const
    {
        settings().MasterCopy = true;
        settings().objOUMasterFolder.EntryID = host::entryIdOf(folder);
    }

    /// Starts to watch the first room.
    cAppItems& watch() const
    {
        auto watcher = std::make_shared<cAppItems>(*session);
        const auto calendar = folder(room);
        watcher->setOuisItems(calendar.items(), calendar);
        watcher->setFolderName(u"Room 1");
        session->colAppItems[u"Room 1"] = watcher;
        return *watcher;
    }
    /// Lets the watchers hear of every change, those that they make themselves included.
    void deliver() const
    {
        for (auto last = store->lastChange() - 1; last != store->lastChange();) {
            last = store->lastChange();
            host->model().followChanges();
        }
    }
};

/// The same over a way to the host.
class RulesOverTransport : public RulesTest, public ::testing::WithParamInterface<TransportKind> {
protected:
    RulesOverTransport()
        : transport(GetParam().make())
    {
        attach(transport->connect(host));
    }
    ~RulesOverTransport() override { session.reset(); }

    std::unique_ptr<Transport> transport;
};

} // namespace rf::test
