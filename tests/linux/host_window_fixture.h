#pragma once

#include "basic/clock.h"
#include "basic/pattern_regional.h"
#include "host/application.h"
#include "host/installation.h"
#include "host/item_factory.h"
#include "host/memory_store.h"
#include "host/recurrence.h"
#include "linux/qt_text.h"
#include "linux/rfhost/home_page.h"
#include "linux/rfhost/windows/explorer_window.h"
#include "linux/rfhost/windows/inspector_window.h"
#include "linux/rfhost/windows/qt_windows.h"
#include "outlook/event_interfaces.h"

#include "host/store/store_fixture.h"
#include "window_fixture.h"

#include <QTest>

namespace rf::native {

/// A host with windows that nobody sees, driven as a person drives it.
struct HostWindowFixture : testing::Test {
    const rf::test::EnvironmentVariable platform{"QT_QPA_PLATFORM", "offscreen"};
    int argumentCount = 1;
    char name[5] = "test";
    char* arguments[2] = {name, nullptr};
    QApplication application{argumentCount, arguments};
    host::MemoryStore store;
    PatternRegional regional{englishSettings()};
    FixedClock clock{Date::fromFields({2007, 3, 5, 9, 4, 17})};
    std::unique_ptr<host::RecurrenceEngine> recurrence = host::makeRecurrenceEngine();
    QtWindows windows;
    host::FolderId root{};
    host::FolderId room{};
    std::shared_ptr<host::Application> host;
    std::unique_ptr<HomePage> homePage;

    HostWindowFixture()
    {
        QGuiApplication::setQuitOnLastWindowClosed(false);
        QCoreApplication::setQuitLockEnabled(false);
        host::ensureMailbox(store, u"Jane Doe");
        root = host::ensureRoomfoldRoot(store, u"Roomfold", u"file:///pages/Roomfold.htm");
        room = host::ensureCalendar(store, root, u"Room 1");
        host
            = host::Application::make({store, regional, clock, windows, recurrence.get()}, {u"11.0.8169", u"Jane Doe"});
        homePage = std::make_unique<HomePage>(*host, std::filesystem::path{});
        windows.setHomePage(homePage.get());
    }
    ~HostWindowFixture() override
    {
        windows.clear();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    HostWindowFixture(const HostWindowFixture&) = delete;
    HostWindowFixture& operator=(const HostWindowFixture&) = delete;

    /// 5 March 2007 is a Monday.
    static Date at(int day, int hour, int minute = 0)
    {
        return Date::fromFields({.year = 2007, .month = 3, .day = day, .hour = hour, .minute = minute});
    }
    host::ItemId book(const Text& subject, Date start, Date end, const Text& location = {})
    {
        auto record = host::test::appointment(room, subject, start, end);
        record.location = location;
        store.save(record);
        return record.id;
    }

    [[nodiscard]] std::shared_ptr<host::Model> model() const { return host->model().shared_from_this(); }
    [[nodiscard]] std::shared_ptr<host::Item> stored(host::ItemId id) const
    {
        return host::itemOf(host::makeItem(model(), *store.read(id)));
    }
    [[nodiscard]] std::shared_ptr<host::Item> newAppointment() const
    {
        return host::itemOf(host::makeItem(model(), host::newRecord(host->model(), room, u"IPM.Appointment")));
    }

    template <class Window>
    [[nodiscard]] static Window* shown()
    {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* window = dynamic_cast<Window*>(widget); window != nullptr && window->isVisible())
                return window;
        return nullptr;
    }
    InspectorWindow* display(const std::shared_ptr<host::Item>& item) const
    {
        host->inspectors().windowOf(item)->display();
        settle();
        auto* const window = shown<InspectorWindow>();
        static_cast<void>(QTest::qWaitForWindowActive(window));
        return window;
    }
    ExplorerWindow* explore(host::FolderId folder) const
    {
        host->explorers().add(std::make_shared<host::Folder>(model(), folder))->activate();
        settle();
        auto* const window = shown<ExplorerWindow>();
        static_cast<void>(QTest::qWaitForWindowActive(window));
        return window;
    }

    /// Lets everything happen that waits for the end of an event.
    static void settle()
    {
        constexpr int rounds = 5;
        for (int round = 0; round < rounds; ++round) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
    template <class Widget>
    [[nodiscard]] static Widget& in(const QWidget* window, const char* widget)
    {
        auto* const found = window->findChild<Widget*>(QLatin1StringView{widget});
        if (found == nullptr)
            throw std::runtime_error{widget};
        return *found;
    }
    static void click(QWidget& button)
    {
        QTest::mouseClick(&button, Qt::LeftButton);
        settle();
    }
    static void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&widget, key, modifiers);
        settle();
    }
    /// Does something with the dialog of a name as soon as it waits for the person.
    static void whenAsked(const char* dialog, std::function<void(QDialog& dialog)> answer)
    {
        constexpr int interval = 5;
        QTimer::singleShot(interval, qApp, [dialog, answer = std::move(answer)] {
            auto* const active = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
            if (active != nullptr && active->objectName() == QLatin1StringView{dialog})
                answer(*active);
            else
                whenAsked(dialog, answer);
        });
    }

    static void keepPicture(QWidget& window, const QString& file)
    {
        settle();
        WindowFixture::picture(window, file);
    }
    static void darken() { WindowFixture::darken(); }
};

} // namespace rf::native
