#include "automation/conversion.h"
#include "storage/settings_fixture.h"
#include "support/golden.h"

#include <sstream>

namespace rf::test {
namespace {

/// A text on one line.
std::string escaped(TextView text)
{
    return toUtf8(replaceAll(replaceAll(replaceAll(text, u"\\", u"\\\\"), u"\t", u"\\t"), lineBreak, u"\\r\\n"));
}

/// The post as it is saved, in a locale with a decimal point and in one with a decimal comma and days before months.
class SettingsGolden : public InstallationTest {
protected:
    /// A line for each property: its name, its type and its value.
    [[nodiscard]] std::string properties() const
    {
        std::ostringstream lines;
        lines << escaped(settingsPost().messageClass) << " \"" << escaped(settingsPost().subject) << "\"\n";
        for (const auto& property : settingsPost().userProperties) {
            const auto* text = property.value.getIf<Text>();
            lines << toUtf8(property.name) << " (" << property.type << ") = "
                  << (text != nullptr ? '"' + escaped(*text) + '"' : toUtf8(toText(*regional, property.value))) << '\n';
        }
        return lines.str();
    }

    void saveExample(Session& program)
    {
        cSettings& example = *program.objSettings;
        example.GetSettings(true);
        example.Supply.add(u"Coffee", {Currency::fromTenThousandths(25000), u"Coffee"});
        example.Supply.add(
            u"Cr\u00E8me br\u00FBl\u00E9e", {Currency::fromTenThousandths(12345678), u"Cr\u00E8me br\u00FBl\u00E9e"});
        example.Projects.FromString(u"Sales;255\r\nMarketing;0\r\n");
        example.PlaceSettings.FromString(u"U\r\nTheatre");
        example.NewItemTemplate = u"Agenda:\r\n\t1. \U0001F600";
        example.DefaultPlaceSetting = u"U";
        example.KCFormat = u"1";
        example.PersonalCopy = true;
        example.CurrentSelectedLanguage = 4;
        example.objOUMasterFolder.Path = u"\\\\Public Folders\\Roomfold\\Master";
        example.objOUMasterFolder.Name = u"Master";
        example.SaveSettings();
    }
};

TEST_F(SettingsGolden, IsThePostOfAFreshInstallation)
{
    addCalendar(u"Room 1");
    settings().GetSettings(true);
    expectGolden("storage/settings-fresh.txt", properties());
}

TEST_F(SettingsGolden, IsThePostUnderEnglishSettings)
{
    addCalendar(u"Room 1");
    saveExample(session);
    expectGolden("storage/settings-english.txt", properties());
}

TEST_F(SettingsGolden, IsThePostUnderGermanSettings)
{
    addCalendar(u"Room 1");
    const PatternRegional german{germanSettings()};
    Session germanSession{{german, clock, classes, system, processes, toolkit}};
    attach(germanSession);
    saveExample(germanSession);
    expectGolden("storage/settings-german.txt", properties());
}

} // namespace
} // namespace rf::test
