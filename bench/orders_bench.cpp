#include "app/session.h"
#include "basic/pattern_regional.h"
#include "booking/booking_item.h"
#include "host/application.h"
#include "host/entry_id.h"
#include "host/installation.h"
#include "host/memory_store.h"
#include "linux/qt_text.h"
#include "linux/scripting.h"
#include "linux/spreadsheet_content.h"
#include "linux/toolkit.h"
#include "orders/frm_orders2k.h"
#include "storage/long_property.h"
#include "storage/settings.h"
#include "support/faulty_dispatch.h"
#include "support/recording_toolkit.h"
#include "support/test_classes.h"
#include "support/test_system.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QTableView>
#include <cstdlib>

namespace rf {
namespace {

constexpr std::int32_t ordered = 20;

/// A program beside a host of this process, with supplies, and a booking that orders some of them.
class Program {
public:
    Program(ui::Toolkit& toolkit, std::int64_t supplies)
        : session{{regional_, clock_, classes_, system_, processes_, toolkit}}
    {
        host::ensureMailbox(store_, u"Jane Doe");
        const auto root = host::ensureRoomfoldRoot(store_, u"Roomfold", u"Roomfold.htm");
        const auto room = host::ensureCalendar(store_, root, u"Room 1");
        host_ = host::Application::make(
            {store_, regional_, clock_, windows_, nullptr}, {.version = u"11.0.8169", .user = u"Jane Doe"});
        classes_.factories[Text{outlook::dictionaryClass}]
            = [] { return native::makeScriptingObject(outlook::dictionaryClass); };
        session.ouaApp = outlook::Application{automation::Object{host_}};
        session.objSettings = std::make_unique<cSettings>(session);
        session.objSettings->PlaceSettings.FromString(u"Theatre\r\nU-shape\r\nBlock");
        Text orders;
        for (std::int64_t index = 0; index < supplies; ++index) {
            const Text name = u"Supply " + decimal(index);
            session.objSettings->Supply.add(name, {Currency::fromTenThousandths(12500 + index), name});
            if (index < ordered)
                orders += name + u"\t2\r\n";
        }
        item = session.ouaApp.getNamespace()
                   .getFolderFromId(host::entryIdOf(room), {})
                   .items()
                   .add()
                   .as<outlook::AppointmentItem>();
        fncAddBookingProps(item);
        subFixLongProperty(session, item, orders, u"strOrders");
        item.save();
    }

    /// The form of an item, on the screen, with every event handled that this causes.
    [[nodiscard]] std::shared_ptr<orders::frmOrders2K> open(const outlook::AppointmentItem& booking)
    {
        auto form = std::make_shared<orders::frmOrders2K>(session, booking);
        session.forms.load(form);
        form->show();
        session.services.toolkit.yieldToEvents();
        return form;
    }

private:
    PatternRegional regional_{englishSettings()};
    FixedClock clock_{Date::fromFields({2007, 3, 5, 9, 4, 17})};
    host::HeadlessWindows windows_;
    host::MemoryStore store_;
    std::shared_ptr<host::Application> host_;
    test::TestClasses classes_;
    test::TestSystem system_;
    test::TestProcesses processes_;

public:
    Session session;
    outlook::AppointmentItem item;
};

/// The windows of Qt on a screen that nobody sees.
class Windows {
public:
    Windows()
    {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        toolkit = std::make_unique<native::QtToolkit>(argumentCount_, arguments_.data());
    }

    std::unique_ptr<native::QtToolkit> toolkit;

private:
    int argumentCount_ = 1;
    std::array<char, 6> name_{"bench"};
    std::array<char*, 2> arguments_{name_.data(), nullptr};
};

/// From the press of the button until the form has been drawn and takes input.
void openOrdersForm(benchmark::State& state)
{
    Windows windows;
    Program program{*windows.toolkit, state.range(0)};
    for (auto _ : state) {
        const auto form = program.open(program.item);
        state.PauseTiming();
        program.session.forms.unload(*form);
        windows.toolkit->yieldToEvents();
        state.ResumeTiming();
    }
}

void press(QWidget& widget, Qt::Key key, const QString& text)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event{type, key, Qt::NoModifier, text};
        QCoreApplication::sendEvent(&widget, &event);
    }
}

/// From the key of a digit until the total that it leads to is shown.
void typeQuantity(benchmark::State& state)
{
    Windows windows;
    Program program{*windows.toolkit, state.range(0)};
    const auto form = program.open(program.item);
    QWidget* dialog = QWidget::find(form->window());
    auto* sum = dialog->findChild<QLabel*>(QStringLiteral("lblSum"));
    auto* grid = dialog->findChild<QWidget*>(QStringLiteral("exsOrders"))->findChild<QTableView*>();
    grid->setFocus();
    bool odd = false;
    for (auto _ : state) {
        state.PauseTiming();
        grid->setCurrentIndex(grid->model()->index(static_cast<int>(state.range(0)) / 2, 2));
        windows.toolkit->yieldToEvents();
        const QString before = sum->text();
        odd = !odd;
        state.ResumeTiming();
        press(*grid, odd ? Qt::Key_7 : Qt::Key_8, odd ? QStringLiteral("7") : QStringLiteral("8"));
        press(*QApplication::focusWidget(), Qt::Key_Return, QStringLiteral("\r"));
        windows.toolkit->yieldToEvents();
        if (sum->text() == before)
            state.SkipWithError("the total did not change");
    }
    program.session.forms.unload(*form);
}

/// How often the host and the spreadsheet are used to open the form and to press OK.
void callsOfOrdersForm(benchmark::State& state)
{
    for (auto _ : state) {
        const auto hostUses = std::make_shared<test::Fault>();
        const auto sheetUses = std::make_shared<test::Fault>();
        const auto content = native::makeSpreadsheetContent(
            std::make_shared<PatternRegional>(englishSettings()), native::spreadsheet::Generation::Later);
        test::RecordingToolkit toolkit;
        toolkit.components[u"OWC10.Spreadsheet"]
            = [&] { return test::FaultyDispatch::wrap(content->object(), sheetUses); };
        Program program{toolkit, state.range(0)};
        const auto form
            = program.open(outlook::AppointmentItem{test::FaultyDispatch::wrap(program.item.object(), hostUses)});
        state.counters["open_host"] = hostUses->uses;
        state.counters["open_sheet"] = sheetUses->uses;
        hostUses->uses = sheetUses->uses = 0;
        form->cmdOK_Click();
        state.counters["ok_host"] = hostUses->uses;
        state.counters["ok_sheet"] = sheetUses->uses;
    }
}

BENCHMARK(openOrdersForm)->Arg(99)->Arg(500)->Unit(benchmark::kMillisecond);
BENCHMARK(typeQuantity)->Arg(99)->Unit(benchmark::kMillisecond);
BENCHMARK(callsOfOrdersForm)->Arg(99)->Iterations(1);

} // namespace
} // namespace rf
