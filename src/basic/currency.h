#pragma once

#include <compare>
#include <cstdint>
#include <source_location>

namespace rf {

/// Money with four decimals in 64 bits. Sums and products stay whole numbers of 1/10000, so no amount passes
/// through binary floating point; what leaves the range is error 6.
class Currency {
public:
    static constexpr std::int64_t scale = 10000;

    constexpr Currency() = default;
    [[nodiscard]] static constexpr Currency fromTenThousandths(std::int64_t amount) { return Currency{amount}; }
    /// Error 6 when the number leaves the range.
    [[nodiscard]] static Currency fromInteger(std::int64_t whole);
    /// Rounded half to even at the fourth decimal; error 6 when the number leaves the range.
    [[nodiscard]] static Currency fromDouble(
        double number, std::source_location where = std::source_location::current());

    [[nodiscard]] constexpr std::int64_t tenThousandths() const { return amount_; }
    [[nodiscard]] double toDouble() const { return static_cast<double>(amount_) / scale; }

    friend Currency operator+(Currency left, Currency right);
    friend Currency operator-(Currency left, Currency right);
    /// Rounded half to even at the fourth decimal.
    friend Currency operator*(Currency left, Currency right);
    Currency& operator+=(Currency other) { return *this = *this + other; }

    friend constexpr auto operator<=>(Currency, Currency) = default;

private:
    explicit constexpr Currency(std::int64_t amount)
        : amount_(amount)
    {
    }
    std::int64_t amount_ = 0;
};

} // namespace rf
