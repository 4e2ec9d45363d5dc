#pragma once

#include "orders/list_handler.h"
#include "orders/noting_spreadsheet.h"
#include "outlook/recording_dispatch.h"
#include "support/session_fixture.h"

namespace rf::orders {

/// A list over a spreadsheet that notes what it is told.
class NotedList : public test::SessionTest {
protected:
    NotedList()
    {
        notes->constants = test::laterConstants();
        offer(u"OWC10.Spreadsheet");
        list.controlName = u"exsOrders";
    }

    void offer(const Text& className)
    {
        toolkit.components[className]
            = [this] { return automation::Object{std::make_shared<test::NotingSpreadsheet>(notes)}; };
    }
    void onlyOffer(const Text& className)
    {
        toolkit.components.clear();
        offer(className);
    }
    /// A system that has only the oldest generation.
    void goBackToTheOldest()
    {
        onlyOffer(u"OWC.Spreadsheet");
        notes->constants = test::oldestConstants();
    }
    /// On a form, with its defaults behind it.
    cListHandler& ready()
    {
        list.AddToForm(*window);
        notes->uses.clear();
        return list;
    }
    [[nodiscard]] test::RecordingWindow& form() const { return dynamic_cast<test::RecordingWindow&>(*window); }
    /// The report that a step ended the program with.
    template <class Step>
    [[nodiscard]] Text reportOf(Step&& step)
    {
        EXPECT_THROW(std::forward<Step>(step)(), test::ProgramEnded);
        return toolkit.messages.empty() ? Text{} : toolkit.messages.back().text;
    }

    std::shared_ptr<test::SpreadsheetNotes> notes = std::make_shared<test::SpreadsheetNotes>();
    Session session{services()};
    std::unique_ptr<ui::FormWindow> window = toolkit.makeFormWindow();
    cListHandler list{session};
};

} // namespace rf::orders
