#pragma once

#include "outlook/inspector.h"

#include "host_window_fixture.h"

#include <QLineEdit>

namespace rf::native {

/// The window of one item.
struct ItemWindow : HostWindowFixture {
    std::shared_ptr<host::Item> item = newAppointment();
    InspectorWindow* window = nullptr;

    void open(const std::shared_ptr<host::Item>& opened)
    {
        item = opened;
        window = display(item);
        ASSERT_NE(window, nullptr);
    }
    void open() { open(item); }

    [[nodiscard]] QLineEdit& line(const char* field) const { return in<QLineEdit>(window, field); }
    [[nodiscard]] outlook::Inspector inspector() const
    {
        return outlook::Inspector{automation::Object{host->inspectors().windowOf(item)}};
    }
    static void type(QWidget& widget, const QString& text)
    {
        widget.setFocus();
        QTest::keyClicks(&widget, text);
        settle();
    }
    [[nodiscard]] std::vector<host::ItemRecord> booked() const
    {
        std::vector<host::ItemRecord> records;
        for (const auto id : store.items(room))
            records.push_back(*store.read(id));
        return records;
    }
};

} // namespace rf::native
