#include "dbus_fixture.h"

#include <QApplication>
#include <QWidget>

namespace rf::native::dbus {
namespace {

using automation::Connection;
using automation::Object;
using automation::Variant;

class Picture final : public QWidget {
public:
    int paintings = 0;

protected:
    void paintEvent(QPaintEvent*) override { ++paintings; }
};

/// A process with windows, drawn off screen.
struct DbusWindows : testing::Test {
    const rf::test::EnvironmentVariable platform{"QT_QPA_PLATFORM", "offscreen"};
    int argumentCount = 1;
    char name[5] = "test";
    char* arguments[2] = {name, nullptr};
    QApplication application{argumentCount, arguments};
    PrivateBus bus;
};

TEST_F(DbusWindows, ArePaintedWhileACallWaits)
{
    if (!bus.isThere())
        GTEST_SKIP() << "no dbus-daemon; install it with: apt-get install dbus-daemon";
    const auto host = Bridge::connect(offeredEvents);
    const auto client = Bridge::connect();
    auto own = std::make_shared<Boiler>();
    Server server{host};
    ASSERT_TRUE(server.exportClass(boilerClass, [&] { return own; }));
    const Object boiler{client->root(host->ownName(), busName(boilerClass))};
    Picture picture;
    picture.show();
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(0);
    int paintingsWithin = 0;
    const Connection connection = boiler.advise(boilerEvents, [&](TextView, std::span<Variant>) {
        for (int number = 0; number < 500 && picture.paintings == 0; ++number)
            static_cast<void>(boiler.get(u"Temperature"));
        paintingsWithin = picture.paintings;
    });
    EXPECT_TRUE(boiler.call(u"Heat", 30).boolean());
    EXPECT_GT(paintingsWithin, 0);
    EXPECT_EQ(ticks, 0);
}

} // namespace
} // namespace rf::native::dbus
