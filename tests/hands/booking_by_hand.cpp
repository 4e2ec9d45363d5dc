#include "system/linux/hours_by_hand.h"
#include "system/linux/office.h"

#include <cstdlib>
#include <iostream>
#include <span>

namespace rf::test {
namespace {

constexpr const char* bookingBar = "Roomfold for Outlook Booking Info";
constexpr const char* subject = "Board meeting";

/// A booking from the new appointment to the move that is put back, as a person makes it with the windows of the host
/// and of the program. Each step is looked at and drawn into a file of its own.
class BookingByHand {
public:
    explicit BookingByHand(std::filesystem::path pictures)
        : pictures_(std::move(pictures))
    {
        std::filesystem::create_directories(pictures_);
    }

    void make()
    {
        showRoom();
        openAppointment();
        fillOrder();
        keepOrder();
        save();
        isRefused();
        isPutBack();
    }

private:
    static void require(bool isSo, const std::string& otherwise)
    {
        if (!isSo)
            throw std::runtime_error{otherwise};
    }

    /// Draws a window of a process and tells what it shows.
    void picture(HandsOn& hands, const QString& window, const std::string& name, const std::string& what)
    {
        const auto file = pictures_ / (std::to_string(++pictured_) + "-" + name + ".png");
        hands.grab(window, file);
        std::cout << "  " << pictured_ << ". " << what << "\n     " << file.string() << std::endl;
    }

    void showRoom()
    {
        host_.clickEntry("explorer", "calendars", "Large meeting room");
        host_.click("explorer", "Day");
    }

    /// Opens a new appointment at an hour. A window that comes before the program listens has no bar; it is closed and
    /// opened again, as people do.
    void openWindow(int hour)
    {
        constexpr int attempts = 20;
        constexpr std::chrono::milliseconds aMoment{1000};
        constexpr int inside = 3;
        host_.clickAt("explorer", "hours", hours_.placeOf(hour) + QPoint{0, inside});
        for (int attempt = 0; attempt < attempts; ++attempt) {
            host_.click("explorer", "New");
            require(host_.sees("inspector"), "no appointment window");
            if (host_.sees("inspector", bookingBar, aMoment))
                return;
            host_.close("inspector");
            require(host_.misses("inspector"), "the appointment window stays");
        }
        throw std::runtime_error{"no booking bar"};
    }
    void chooseProject()
    {
        host_.choose("inspector", projects, "New building");
        require(host_.sees(
                    "inspector", "categories", [](const QJsonObject& seen) { return seen["text"] == "New building"; }),
            "the project does not become the category");
    }
    void openAppointment()
    {
        openWindow(nine);
        host_.write("inspector", "subject", subject);
        require(host_.sees("inspector", projects), "no project box");
        picture(host_, "inspector", "new-appointment", "a new appointment at nine, with the booking bar");
    }

    void pressBookingInfo()
    {
        host_.click("inspector", "Booking info");
        require(program_.sees({}, "cmdOK"), "the orders form does not come up");
    }
    void order(int row, const QString& quantity)
    {
        constexpr int quantities = 2;
        program_.clickCell({}, "exsOrders", row, quantities);
        program_.type(quantity);
        program_.press("Return");
    }
    [[nodiscard]] bool showsTotal()
    {
        return program_.sees({}, "lblSum", [](const QJsonObject& seen) { return seen["text"] == total; });
    }
    void fillOrder()
    {
        chooseProject();
        pressBookingInfo();
        order(1, "3");
        order(2, "2");
        require(showsTotal(), "the total is " + program_.textOf({}, "lblSum").toStdString());
        program_.write({}, "txtOrderComment", "Coffee at ten");
        program_.write({}, "txtCC1", "4711");
        picture(program_, {}, "orders-form", "a project is chosen, and the orders form is filled in");
    }
    void keepOrder()
    {
        program_.click({}, "cmdOK");
        require(program_.misses({}, "cmdOK"), "the orders form stays");
        pressBookingInfo();
        require(showsTotal(), "the order is lost");
        picture(program_, {}, "order-kept", "OK has written it into the appointment, where the form finds it again");
        program_.click({}, "cmdCancel");
        require(program_.misses({}, "cmdOK"), "the orders form stays");
    }

    [[nodiscard]] bool showsAt(int hour)
    {
        constexpr std::chrono::seconds limit{5};
        constexpr double later = 0.25;
        const QPoint place = hours_.placeOf(hour + later);
        const auto end = std::chrono::steady_clock::now() + limit;
        while (std::chrono::steady_clock::now() < end) {
            host_.clickAt("explorer", "hours", place);
            if (host_.look("explorer", "hours")["told"].toString().contains(subject))
                return true;
        }
        return false;
    }
    void save()
    {
        host_.click("inspector", "Save and Close");
        require(host_.misses("inspector"), "the booking is not accepted");
        require(showsAt(nine), "the booking is not in the calendar");
        picture(host_, "explorer", "accepted", "saved: the rules accept it");
    }
    void isRefused()
    {
        openWindow(nine);
        host_.write("inspector", "subject", "Second at nine");
        host_.click("inspector", "Save and Close");
        require(host_.sees("alert"), "a second booking at nine is not refused");
        picture(host_, "alert", "refused", "a second booking at nine is refused; Cancel deletes it");
        host_.click("alert", "Cancel");
        require(host_.misses("inspector"), "the refused appointment stays");
    }
    void isPutBack()
    {
        openWindow(eleven);
        host_.write("inspector", "subject", "Review");
        chooseProject();
        host_.click("inspector", "Save and Close");
        require(host_.misses("inspector"), "the booking at eleven is not accepted");
        constexpr double inside = 0.25;
        host_.drag("explorer", "hours", hours_.placeOf(nine + inside), hours_.placeOf(eleven + inside));
        require(showsAt(nine), "the refused move stays");
        picture(host_, "explorer", "put-back", "moved onto the booking at eleven, it goes back to nine without a word");
    }

    static constexpr int nine = 9;
    static constexpr int eleven = 11;
    static constexpr const char* projects = "Projects";
    static constexpr const char* total = "£11.50";

    Office office_{{RF_HOST_PROGRAM, RF_PROGRAM, RF_PLUGINS}, {}, {u"Large meeting room", u"Small meeting room"}};
    HandsOn& host_ = office_.atHost;
    HandsOn& program_ = office_.atProgram;
    HoursByHand hours_{host_};
    std::filesystem::path pictures_;
    int pictured_ = 0;
};

int run(std::span<char*> words)
{
    if (words.size() != 2) {
        std::cerr
            << "Usage: booking_by_hand PICTURES\n\nMakes a booking with the windows of a host and a program of its "
               "own, as a person\nmakes it, off screen, and draws each step into the folder PICTURES.\n";
        return 2;
    }
    try {
        BookingByHand{words[1]}.make();
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::cerr << "booking_by_hand: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}

} // namespace
} // namespace rf::test

int main(int argumentCount, char** argumentList)
{
    return rf::test::run({argumentList, static_cast<std::size_t>(argumentCount)});
}
