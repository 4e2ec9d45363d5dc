#pragma once

#include "ui/form_window.h"

#include <array>
#include <span>

namespace rf::orders {

/// The controls of the orders form, where they stand when there are supplies. The grid is made at run time.
struct OrdersControls {
    explicit OrdersControls(ui::FormWindow& window);

    static constexpr std::size_t placeSettings = 4;
    /// The grid and the fields above and below it.
    static constexpr std::int16_t gridTop = 840;
    static constexpr std::int16_t gridLeft = 120;
    static constexpr std::int16_t gridHeight = 2600;
    static constexpr std::int32_t gridWidth = 8535;

    ui::Label& lblBookedBy;
    ui::TextBox& txtBooker;
    ui::Label& lblBookedAt;
    ui::TextBox& txtCreatedAt;
    ui::Label& lblOrderSum;
    ui::Label& lblSum;
    ui::Label& lblOrderComment;
    ui::TextBox& txtOrderComment;
    ui::Label& lblPlaceSettings;
    std::array<ui::OptionButton*, placeSettings> optPlaceSetting;
    ui::Label& lblCC;
    ui::TextBox& txtCC1;
    /// The line between the two halves of a cost center.
    ui::Label& linCC;
    ui::TextBox& txtCC2;
    ui::Button& cmdOK;
    ui::Button& cmdCancel;

    /// Without supplies nothing is ordered: the buttons move up, what belongs to an order is hidden, and the rest
    /// closes the gap.
    void leaveOutOrder();
    /// The comment takes the room of the place settings too.
    void widenComment();
    /// One field for a cost center of any length, or two for its halves.
    void showWholeCostCenter();
    void showHalvesOfCostCenter();
    /// The inner size that the form needs for what is visible.
    [[nodiscard]] ui::Bounds extent() const;

private:
    [[nodiscard]] std::vector<ui::Control*> all() const;
};

} // namespace rf::orders
