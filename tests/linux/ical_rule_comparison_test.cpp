#include "linux/ical_support.h"

#include <gtest/gtest.h>
#include <libical/ical.h>

#include <memory>
#include <random>

namespace rf::host::test {
namespace {

/// The starts that libical gives a series up to a moment, to compare with.
Starts startsByLibical(const std::string& start, const std::string& rule, std::string_view to)
{
    const icalrecurrencetype recurrence = icalrecurrencetype_from_string(rule.c_str());
    const std::unique_ptr<icalrecur_iterator, decltype(&icalrecur_iterator_free)> iterator{
        icalrecur_iterator_new(recurrence, icaltime_from_string(start.c_str())), &icalrecur_iterator_free};
    Starts result;
    while (iterator) {
        const icaltimetype time = icalrecur_iterator_next(iterator.get());
        const std::string text = icaltime_as_ical_string(time);
        if (icaltime_is_null_time(time) != 0 || text > to) {
            break;
        }
        result.push_back(text);
    }
    return result;
}

Starts within(Starts all, std::string_view from, std::string_view to)
{
    std::erase_if(all, [=](const std::string& start) { return start < from || start > to; });
    return all;
}

/// Rules of every kind that both understand alike, at random but always the same ones.
class Rules {
public:
    std::string next()
    {
        static const char* const frequencies[] = {"DAILY", "WEEKLY", "MONTHLY", "YEARLY"};
        const int frequency = number(0, 3);
        std::string rule = std::string{"FREQ="} + frequencies[frequency];
        rule += ";INTERVAL=" + std::to_string(number(1, 4));
        if (number(0, 2) == 0) {
            rule += ";COUNT=" + std::to_string(number(1, 400));
        }
        if (number(0, 1) == 0) {
            rule += number(0, 1) == 0 ? ";WKST=SU" : ";WKST=WE";
        }
        rule += days(frequency);
        if (number(0, 4) == 0) {
            rule += ";BYHOUR=8,17;BYMINUTE=0,30";
        }
        return rule;
    }

private:
    int number(int least, int most) { return std::uniform_int_distribution{least, most}(random_); }

    std::string days(int frequency)
    {
        switch (number(0, 4)) {
        case 0:
            return ";BYDAY=MO,WE,SA";
        case 1:
            return frequency >= 2 ? ";BYDAY=2TU,-1FR" : ";BYDAY=SU";
        case 2:
            return frequency >= 2 ? ";BYMONTHDAY=1,15,-1;BYMONTH=1,4,9" : "";
        case 3:
            return frequency == 2 ? ";BYDAY=MO,TU,WE,TH,FR;BYSETPOS=1,-1" : frequency == 3 ? ";BYYEARDAY=1,60,-1" : "";
        default:
            return "";
        }
    }

    // NOLINTNEXTLINE(cert-msc51-cpp): a failure has to come again.
    std::mt19937 random_{20240304};
};

TEST(RuleComparison, ManyRulesGiveWhatLibicalGives)
{
    const InZone utc{"UTC"};
    Rules rules;
    int compared = 0;
    for (int index = 0; index < 300; ++index) {
        const std::string rule = rules.next();
        const Starts all = startsByLibical("19980304T093000", rule, "20240401");
        // Where the rule does not give the series' own start, libical leaves it out and counts without it.
        if (all.empty() || all.front() != "19980304T093000") {
            continue;
        }
        ++compared;
        const ItemRecord item = series("19980304T093000", "19980304T093000", fromUtf8(rule));
        for (const auto& [from, to] : {std::pair{"19980101T000000", "20021231T235959"},
                 std::pair{"20170212T000000", "20170424T120000"}, std::pair{"20240304T000000", "20240304T235959"}}) {
            EXPECT_EQ(startsOf(item, from, to), within(all, from, to)) << rule;
        }
    }
    EXPECT_GT(compared, 60);
}

} // namespace
} // namespace rf::host::test
