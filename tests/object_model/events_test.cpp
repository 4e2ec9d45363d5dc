#include "object_model/object_model.h"

#include "host/host_error.h"
#include "host/inspectors.h"

namespace rf::test {
namespace {

/// What was heard of a collection of items, in order.
struct Heard {
    std::vector<Text> events;

    [[nodiscard]] outlook::ItemsEvents handlers()
    {
        outlook::ItemsEvents heard;
        heard.itemAdd = [this](const outlook::Item& item) { events.push_back(u"add " + item.subject()); };
        heard.itemChange = [this](const outlook::Item& item) { events.push_back(u"change " + item.subject()); };
        heard.itemRemove = [this] { events.emplace_back(u"remove"); };
        return heard;
    }
};

class ItemsEventsRaised : public ObjectModel { };

TEST_P(ItemsEventsRaised, TellOfItemsThatComeChangeAndGo)
{
    const auto items = calendar().items();
    Heard heard;
    const auto connection = outlook::connect(items, heard.handlers());
    const auto item = booked(u"Board", at(9), 60);
    host->model().followChanges();
    item.setStart(at(10));
    item.save();
    host->model().followChanges();
    item.remove();
    host->model().followChanges();
    EXPECT_EQ(heard.events, (std::vector<Text>{u"add Board", u"change Board", u"remove"}));
}

TEST_P(ItemsEventsRaised, TellOfWhatOtherProcessesDo)
{
    const auto items = calendar().items();
    Heard heard;
    const auto connection = outlook::connect(items, heard.handlers());
    const auto other = secondHost(u"Rita Roe");
    const outlook::Application elsewhere{automation::Object{other}};
    const auto item = elsewhere.getNamespace()
                          .getFolderFromId(calendar().entryId(), {})
                          .items()
                          .add()
                          .as<outlook::AppointmentItem>();
    item.setSubject(u"Rita's");
    item.save();
    host->model().followChanges();
    EXPECT_EQ(heard.events, (std::vector<Text>{u"add Rita's"}));
}

TEST_P(ItemsEventsRaised, TellNothingOfOtherFolders)
{
    const auto items = folder(root).items();
    Heard heard;
    const auto connection = outlook::connect(items, heard.handlers());
    booked(u"Board", at(9), 60);
    host->model().followChanges();
    EXPECT_TRUE(heard.events.empty());
}

TEST_P(ItemsEventsRaised, TellNothingOfAnItemThatIsGoneAgain)
{
    const auto items = calendar().items();
    Heard heard;
    const auto connection = outlook::connect(items, heard.handlers());
    booked(u"Board", at(9), 60).remove();
    host->model().followChanges();
    EXPECT_EQ(heard.events, (std::vector<Text>{u"remove"}));
}

TEST_P(ItemsEventsRaised, TellOfSixteenThatArriveTogetherButNotOfMore)
{
    const auto items = calendar().items();
    Heard heard;
    const auto connection = outlook::connect(items, heard.handlers());
    for (const std::size_t count : {16U, 17U}) {
        std::vector<host::ItemRecord> records(count);
        for (auto& record : records) {
            record.folder = room;
            record.messageClass = u"IPM.Appointment";
            record.subject = u"pasted";
        }
        store.saveTogether(records);
        host->model().followChanges();
    }
    EXPECT_EQ(heard.events.size(), 16U);
}

TEST_P(ItemsEventsRaised, TellOfWhatAHandlerSavesOnceItIsDone)
{
    const auto items = calendar().items();
    std::vector<Text> events;
    outlook::ItemsEvents handlers;
    handlers.itemAdd = [&](const outlook::Item& item) {
        events.push_back(u"add " + item.subject());
        if (item.subject() == u"dropped") {
            booked(u"replacement", at(9), 60);
            host->model().followChanges();
            events.emplace_back(u"done");
        }
    };
    const auto connection = outlook::connect(items, handlers);
    booked(u"dropped", at(9), 60);
    host->model().followChanges();
    host->model().followChanges();
    EXPECT_EQ(events, (std::vector<Text>{u"add dropped", u"done", u"add replacement"}));
}

TEST_P(ItemsEventsRaised, AreSilentOnceTheConnectionIsCut)
{
    const auto items = calendar().items();
    Heard heard;
    auto connection = outlook::connect(items, heard.handlers());
    connection.disconnect();
    booked(u"Board", at(9), 60);
    host->model().followChanges();
    EXPECT_TRUE(heard.events.empty());
}

class ItemEventsRaised : public ObjectModel { };

TEST_P(ItemEventsRaised, LetAHandlerRefuseASave)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    outlook::ItemEvents handlers;
    handlers.write = [](bool& cancel) { cancel = true; };
    const auto connection = outlook::connect(item, handlers);
    item.save();
    EXPECT_FALSE(item.saved());
    EXPECT_EQ(calendar().items().count(), 0);
}

TEST_P(ItemEventsRaised, LetAHandlerAllowASaveAndChangeTheItem)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    outlook::ItemEvents handlers;
    handlers.write = [&](bool&) { item.setCategories(u"Alpha"); };
    const auto connection = outlook::connect(item, handlers);
    item.save();
    EXPECT_EQ(calendar().items().item(1).categories(), u"Alpha");
}

TEST_P(ItemEventsRaised, LetAHandlerSaveOtherItems)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    outlook::ItemEvents handlers;
    handlers.write = [&](bool&) { booked(u"copy", at(9), 60); };
    const auto connection = outlook::connect(item, handlers);
    item.save();
    EXPECT_EQ(calendar().items().count(), 2);
}

TEST_P(ItemEventsRaised, LetAHandlerDeleteTheItemInItsRefusal)
{
    const auto item = booked(u"Board", at(9), 60);
    outlook::ItemEvents handlers;
    handlers.write = [&](bool& cancel) {
        item.remove();
        cancel = true;
    };
    const auto connection = outlook::connect(item, handlers);
    item.save();
    EXPECT_EQ(calendar().items().count(), 0);
}

TEST_P(ItemEventsRaised, LetAHandlerKeepTheItemOpen)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    bool keepOpen = true;
    outlook::ItemEvents handlers;
    handlers.close = [&](bool& cancel) { cancel = keepOpen; };
    const auto connection = outlook::connect(item, handlers);
    item.display();
    item.close(outlook::CloseMode::Save);
    EXPECT_EQ(calendar().items().count(), 0);
    EXPECT_EQ(application.inspectors().count(), 1);
    keepOpen = false;
    item.close(outlook::CloseMode::Save);
    EXPECT_EQ(calendar().items().count(), 1);
    EXPECT_EQ(application.inspectors().count(), 0);
}

TEST_P(ItemEventsRaised, LetAHandlerRefuseToOpen)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    outlook::ItemEvents handlers;
    handlers.open = [](bool& cancel) { cancel = true; };
    const auto connection = outlook::connect(item, handlers);
    item.display();
    EXPECT_EQ(application.inspectors().count(), 0);
}

TEST_P(ItemEventsRaised, AskAgainWhenAPersonWasAskedMeanwhile)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    int asked = 0;
    outlook::ItemEvents handlers;
    handlers.write = [&](bool&) {
        if (++asked == 1)
            application.assistant().doAlert(
                u"title", u"sure?", outlook::AlertButtons::OkCancel, outlook::AlertIcon::Query);
    };
    const auto connection = outlook::connect(item, handlers);
    item.save();
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(calendar().items().count(), 1);
}

class WindowEventsRaised : public ObjectModel { };

TEST_P(WindowEventsRaised, TellOfANewWindowOnceAndOfEachActivation)
{
    const auto inspectors = application.inspectors();
    std::vector<Text> events;
    outlook::InspectorsEvents handlers;
    std::vector<automation::Connection> heardOf;
    handlers.newInspector = [&](const outlook::Inspector& inspector) {
        events.push_back(u"new " + inspector.currentItem().subject());
        outlook::InspectorEvents own;
        own.activate = [&] { events.emplace_back(u"activate"); };
        own.close = [&] { events.emplace_back(u"close"); };
        heardOf.push_back(outlook::connect(inspector, own));
    };
    const auto connection = outlook::connect(inspectors, handlers);
    const auto item = newAppointment(u"Board", at(9), 60);
    item.display();
    item.display();
    item.close(outlook::CloseMode::Discard);
    EXPECT_EQ(events, (std::vector<Text>{u"new Board", u"activate", u"activate", u"close"}));
}

TEST_P(WindowEventsRaised, TellThatTheHostQuits)
{
    int quits = 0;
    outlook::ApplicationEvents handlers;
    handlers.quit = [&] { ++quits; };
    const auto connection = outlook::connect(application, handlers);
    host->quit();
    EXPECT_EQ(quits, 1);
}

TEST_P(WindowEventsRaised, TellWhatBecomesOfAnExplorer)
{
    const auto explorer = application.explorers().add(calendar(), outlook::FolderDisplayMode::Normal);
    std::vector<Text> events;
    outlook::ExplorerEvents handlers;
    handlers.activate = [&] { events.emplace_back(u"activate"); };
    handlers.folderSwitch = [&] { events.emplace_back(u"switch"); };
    handlers.close = [&] { events.emplace_back(u"close"); };
    const auto connection = outlook::connect(explorer, handlers);
    explorer.activate();
    explorer.setCurrentFolder(folder(root));
    explorer.close();
    EXPECT_EQ(events, (std::vector<Text>{u"activate", u"switch", u"close"}));
}

TEST_P(WindowEventsRaised, TellOfAPressedButtonAndOfAChosenText)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    item.display();
    const auto bar
        = application.activeInspector().commandBars().add(u"Booking", outlook::BarPosition::Top, false, true);
    const auto button = bar.controls().add(outlook::ControlType::Button, true).as<outlook::CommandBarButton>();
    const auto combo = bar.controls().add(outlook::ControlType::ComboBox, true).as<outlook::CommandBarComboBox>();
    button.setCaption(u"Booking info");
    combo.addItem(u"Alpha");
    std::vector<Text> events;
    outlook::CommandBarButtonEvents pressed;
    pressed.click
        = [&](const outlook::CommandBarButton& control, bool&) { events.push_back(u"click " + control.caption()); };
    outlook::CommandBarComboBoxEvents chosen;
    chosen.change = [&](const outlook::CommandBarComboBox& control) { events.push_back(u"change " + control.text()); };
    const auto first = outlook::connect(button, pressed);
    const auto second = outlook::connect(combo, chosen);
    const auto controls = host->inspectors().active()->commandBars().find(u"Booking")->controls().all();
    controls.at(0)->click();
    controls.at(1)->choose(u"Alpha");
    EXPECT_EQ(events, (std::vector<Text>{u"click Booking info", u"change Alpha"}));
}

RF_EVERY_TRANSPORT(ItemsEventsRaised);
RF_EVERY_TRANSPORT(ItemEventsRaised);
RF_EVERY_TRANSPORT(WindowEventsRaised);

} // namespace
} // namespace rf::test
