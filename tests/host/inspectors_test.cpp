#include "host/host_fixture.h"

#include "host/item_factory.h"

namespace rf::outlook {

namespace {

class HostInspectors : public test::HostTest {
protected:
    [[nodiscard]] std::shared_ptr<host::Inspector> windowOf(const Text& messageClass, const Text& subject = {}) const
    {
        const auto folderId = folder(host::FolderRole::Calendar)->id();
        auto record = host::newRecord(host->model(), folderId, messageClass);
        record.subject = subject;
        return host->inspectors().windowOf(
            host::itemOf(host::makeItem(host->model().shared_from_this(), std::move(record))));
    }
};

TEST_F(HostInspectors, HaveTheCaptionOfTheirForm)
{
    EXPECT_EQ(windowOf(u"IPM.Appointment", u"Budget")->caption(), u"Budget - Appointment");
    EXPECT_EQ(windowOf(u"ipm.appointment.own")->caption(), u"Untitled - Appointment");
    EXPECT_EQ(windowOf(u"IPM.Schedule.Meeting.Request", u"Budget")->caption(), u"Budget - Meeting");
    EXPECT_EQ(windowOf(u"IPM.Note", u"Report")->caption(), u"Report - Message");
    EXPECT_EQ(windowOf(u"IPM.Post", u"Settings")->caption(), u"Settings - Discussion");
}

TEST_F(HostInspectors, HaveThePagesOfTheirForm)
{
    EXPECT_EQ(windowOf(u"IPM.Appointment")->pages(), (std::vector<Text>{u"Appointment", u"Scheduling"}));
    EXPECT_EQ(windowOf(u"IPM.Note")->pages(), (std::vector<Text>{u"Message"}));
}

TEST_F(HostInspectors, TellThatAPersonBroughtThemToTheFront)
{
    const auto first = windowOf(u"IPM.Appointment");
    const auto second = windowOf(u"IPM.Appointment");
    first->display();
    second->display();
    int heard = 0;
    const auto connection
        = connect(Inspector{automation::Object{first}}, InspectorEvents{.activate = [&] { ++heard; }});
    first->cameToFront();
    EXPECT_EQ(heard, 1);
    EXPECT_EQ(host->inspectors().active(), first);
    first->cameToFront();
    EXPECT_EQ(heard, 1);
}

TEST_F(HostInspectors, AreFoundByTheStoredItemThatTheyShow)
{
    auto record = host::newRecord(host->model(), folder(host::FolderRole::Calendar)->id(), u"IPM.Appointment");
    store->save(record);
    const auto model = host->model().shared_from_this();
    const auto window = host->inspectors().windowOf(host::itemOf(host::makeItem(model, record)));
    const auto other = host::itemOf(host::makeItem(model, record));
    EXPECT_EQ(host->inspectors().find(*other), nullptr);
    EXPECT_EQ(host->inspectors().findStored(*other), window);
    const auto occurrence
        = host::itemOf(host::makeItem(model, record, host::OccurrenceOf{record.id, record.start, false}));
    EXPECT_EQ(host->inspectors().findStored(*occurrence), nullptr);
    record.id = host::ItemId::None;
    const auto unsaved = host::itemOf(host::makeItem(model, record));
    EXPECT_EQ(host->inspectors().findStored(*unsaved), nullptr);
}

} // namespace

} // namespace rf::outlook
