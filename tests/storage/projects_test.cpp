#include "storage/projects.h"

#include "storage/list_controls.h"
#include "storage/storage_fixture.h"

#include <deque>

namespace rf {
namespace {

constexpr std::int32_t orange = 33023;
constexpr std::int32_t yellow = 65535;

class Projects : public test::StorageTest {
protected:
    using StorageTest::StorageTest;

    [[nodiscard]] std::int32_t colorOf(TextView name) const
    {
        for (const auto& project : projects.projects())
            if (project.ProjectName == name)
                return project.ProjectColor;
        return -1;
    }
    void addColorless(int count)
    {
        for (int number = 1; number <= count; ++number)
            projects.FromString(u"Project " + decimal(static_cast<long long>(projects.projects().size()) + 1) + u";0");
    }
    /// The numbers that are drawn next.
    void drawn(std::deque<double> numbers)
    {
        session.randomNumbers = [left = std::move(numbers)]() mutable {
            const double number = left.at(0);
            left.pop_front();
            return number;
        };
    }

    cProjects projects{session};
};

class ProjectsInGerman : public Projects {
protected:
    ProjectsInGerman()
        : Projects(germanSettings())
    {
    }
};

TEST(Project, IsWrittenAsItsNameAndItsColourInDecimal)
{
    cProject project;
    project.ProjectName = u"Marketing";
    project.ProjectColor = orange;
    EXPECT_EQ(project.ToString(), u"Marketing;33023");
}

TEST(Project, ReadsWhatItWrites)
{
    const PatternRegional regional{germanSettings()};
    cProject project;
    project.FromString(regional, u" Marketing ;33023");
    EXPECT_EQ(project.ProjectName, u" Marketing ");
    EXPECT_EQ(project.ProjectColor, orange);
    EXPECT_EQ(project.ToString(), u" Marketing ;33023");
}

TEST(Project, OfADamagedTextHasNoColour)
{
    const PatternRegional regional{englishSettings()};
    for (const TextView text : {u"Sales", u"Sales;", u"Sales;red", u"Sales;99999999999", u"Sales;;255"}) {
        cProject project;
        project.ProjectColor = yellow;
        project.FromString(regional, text);
        EXPECT_EQ(project.ProjectName, u"Sales") << toUtf8(text);
        EXPECT_EQ(project.ProjectColor, 0) << toUtf8(text);
    }
    cProject project;
    project.FromString(regional, u"Sales;255;more");
    EXPECT_EQ(project.ProjectColor, 255);
    project.FromString(regional, u"");
    EXPECT_EQ(project.ProjectName, u"");
}

TEST_F(Projects, HaveAPaletteOfTwentyColoursAndAnUnsetSlot)
{
    EXPECT_EQ(projects.FirstColors,
        (std::array<std::int32_t, 21>{33023, 65535, 65280, 16711935, 8421631, 8454143, 8454016, 16744576, 16744703, 192,
            49344, 49152, 12632064, 12582912, 12583104, 128, 32896, 32768, 8421376, 8388608, 0}));
}

TEST_F(Projects, InBlackOrWhiteGetTheNextColourOfThePalette)
{
    projects.FromString(u"Sales;0\r\nMarketing;16777215\r\nResearch;255\r\n");
    EXPECT_EQ(colorOf(u"Sales"), orange);
    EXPECT_EQ(colorOf(u"Marketing"), yellow);
    EXPECT_EQ(colorOf(u"Research"), 255) << "red stays";
    EXPECT_EQ(projects.GetNextColor(), 16711935) << "the fourth colour, whatever colours are in use";
}

TEST_F(Projects, TakeTheUnsetSlotAsTheTwentyFirstColour)
{
    addColorless(20);
    EXPECT_EQ(projects.GetNextColor(), 0);
    addColorless(1);
    EXPECT_EQ(colorOf(u"Project 21"), 0);
}

TEST_F(Projects, BeyondThePaletteGetRedGreenAndBlueByChanceInThisOrder)
{
    addColorless(21);
    drawn({0.0, 0.5, 0.999});
    addColorless(1);
    EXPECT_EQ(colorOf(u"Project 22"), 0 + 256 * 128 + 65536 * 255) << "127.5 is rounded to the even 128";
    drawn({0.1, 0.2, 0.3});
    addColorless(1);
    EXPECT_EQ(colorOf(u"Project 23"), 26 + 256 * 51 + 65536 * 76) << "25.5 to 26, 76.5 to 76";
}

TEST_F(Projects, OfOneNameAreTheFirst)
{
    projects.FromString(u"Sales;255\r\nSALES;65280\r\nSales;0\r\n");
    EXPECT_EQ(projects.ToString(), u"Sales;255\r\n");
    projects.FromString(u"Sales;65280\r\nMarketing;128\r\n");
    EXPECT_EQ(projects.ToString(), u"Sales;255\r\nMarketing;128\r\n") << "a further text adds to the list";
}

TEST_F(Projects, EndTheirTextWithALineBreak)
{
    EXPECT_EQ(projects.ToString(), u"");
    const Text text = u"Sales;255\r\nMarketing;33023\r\n";
    projects.FromString(text);
    EXPECT_EQ(projects.ToString(), text);
}

TEST_F(Projects, AreNotMadeOfStrayLineEnds)
{
    projects.FromString(u"\r\n\r\nSales;255\r\n\r\nMarketing\n;128\r\n\r\n");
    EXPECT_EQ(projects.ToString(), u"Sales;255\r\nMarketing\n;128\r\n");
}

TEST_F(Projects, GoOnBehindADamagedLine)
{
    projects.FromString(u"Sales;red\r\nMarketing\r\nResearch;255");
    EXPECT_EQ(projects.ToString(), u"Sales;33023\r\nMarketing;65535\r\nResearch;255\r\n");
}

TEST_F(Projects, LoadTensOfThousandsOfLines)
{
    constexpr std::size_t lines = 30'000;
    Text text;
    for (std::size_t line = 0; line < lines; ++line)
        text += u"Project " + decimal(static_cast<long long>(line)) + u";255\r\n";
    projects.FromString(text);
    EXPECT_EQ(projects.projects().size(), lines);
    EXPECT_EQ(projects.ToString(), text);
}

TEST_F(Projects, LoadWhatStandsAmongAMillionEmptyLines)
{
    constexpr std::size_t lines = 1'000'000;
    Text text = u"Sales;255";
    text.reserve(2 * lines + 32);
    for (std::size_t line = 0; line < lines; ++line)
        text += lineBreak;
    projects.FromString(text + u"Marketing;128");
    EXPECT_EQ(projects.ToString(), u"Sales;255\r\nMarketing;128\r\n");
}

TEST_F(ProjectsInGerman, ReadTheirColoursAsTheUserWritesNumbers)
{
    projects.FromString(u"Sales;33.023\r\nMarketing;255,0\r\n");
    EXPECT_EQ(projects.ToString(), u"Sales;33023\r\nMarketing;255\r\n");
}

TEST_F(Projects, FillAControlWithTheirNamesAndKeepItsText)
{
    projects.FromString(u"Sales;255\r\n ;128\r\nMarketing;128\r\n");
    test::ListBox control;
    control.lines = {u"Marketing", u"old"};
    control.chosen = u"Marketing";
    projects.AddToComboOrList(control);
    EXPECT_EQ(control.lines, (std::vector<Text>{u"Sales", u"Marketing"}));
    EXPECT_EQ(control.chosen, u"Marketing");
}

TEST_F(Projects, AreDrawnWithOneNumber)
{
    projects.FromString(u"Sales;255\r\nMarketing;128\r\n");
    drawn({0.0, 0.5});
    EXPECT_EQ(projects.RandomItem()->ProjectName, u"Sales");
    EXPECT_EQ(projects.RandomItem()->ProjectName, u"Marketing");
    EXPECT_FALSE(cProjects{session}.RandomItem().has_value());
}

} // namespace
} // namespace rf
