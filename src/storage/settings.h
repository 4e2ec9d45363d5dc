#pragma once

#include "diagnostics/pending_error.h"
#include "orders/supply_item.h"
#include "outlook/post_item.h"
#include "platform/record_dictionary.h"
#include "storage/outlook_folder.h"
#include "storage/projects.h"
#include "storage/resource_description.h"
#include "storage/simple_list.h"

#include <cstdint>

namespace rf {

class Session;
struct SettingKey;

/// By what `fncSortDictionary` sorts.
enum class SortColumn : std::int16_t { Key = 1, Item = 2 };

/// The settings that all users of an installation share: one post with the subject "Settings" in the root folder. They
/// are read at the start and again after the administrator has changed them. The table of the keys is
/// `settings_keys.h`.
class cSettings {
public:
    explicit cSettings(Session& session);
    cSettings(const cSettings&) = delete;
    cSettings& operator=(const cSettings&) = delete;
    ~cSettings() = default;

    /// The supply list by the items' names.
    RecordDictionary<cSupplyItem> Supply;
    cProjects Projects;
    cSimpleList PlaceSettings;
    /// Put into new bookings.
    Text NewItemTemplate;
    bool ShowOverview = false;
    /// A booking needs a project.
    bool ProjectMandatory = false;
    /// Bookings that overlap are refused.
    bool NoDoubles = false;
    /// Recurring bookings are refused.
    bool NoRecurring = false;
    /// An order needs a cost center.
    bool KCWithOrder = false;
    /// The one that is selected on a new order; empty for none.
    Text DefaultPlaceSetting;
    /// A number as text once it has been loaded: any other format reads as "1".
    Text KCFormat;
    bool ViewDay = false;
    bool ViewDayII = false;
    bool ViewList = false;
    bool ViewMonth = false;
    bool ViewOrders = false;
    bool ViewWeek = false;
    bool ViewWorkWeek = false;
    bool ViewWorkWeekII = false;
    bool ViewWorkWeekIII = false;
    bool AlwaysSearch = false;
    bool ShowManage = false;
    bool ShowShortCut = false;
    /// The caption of the project combo.
    Text ProjectCaption;
    /// Each booking is copied into the booker's own calendar.
    bool PersonalCopy = false;
    /// Each booking is copied into the master folder.
    bool MasterCopy = false;
    /// The column of the phrase table that the administrator has chosen; 0 until one is.
    std::int16_t CurrentSelectedLanguage = 0;
    cOutlookFolder objOUMasterFolder;
    /// For the forms that have them; they are not stored.
    bool CalCosts = false;
    bool ReportTo = false;
    Text ReportToValue;
    Text SchoolWeekScheduele;
    /// The managed calendars by their names.
    RecordDictionary<cResourceDescription> Calendars;

    /// Finds or makes the settings item and loads every key. With `blnPromptForNewCalendar` an installation without
    /// calendars asks for one until there is one or the user declines, which ends the program. It ends too when there
    /// can be no settings item. A value that cannot be read counts as missing.
    void GetSettings(bool blnPromptForNewCalendar);
    /// Whether the keys are being read: some values are those of the item and others are not yet. The host may raise
    /// events meanwhile.
    [[nodiscard]] bool isBeingRead() const { return isBeingRead_; }
    /// Writes every key and saves the item. A key that cannot be written is reported and ends the program before
    /// anything is saved; when saving fails the user is told, and the item is as it was.
    void SaveSettings();

    /// The settings item, made when the root folder has none; it is kept until `ClearItem`. When it can neither be
    /// found nor made the user is told why and the program ends.
    [[nodiscard]] outlook::PostItem fncGetSettingsItem();
    /// Gives an item the typed properties that older readers expect. No error leaves it. The caller saves.
    static void subFixSettingsProps(const outlook::Item& item);
    /// Forgets the settings item: others change it, so each operation takes it afresh.
    void ClearItem() { settingsItem_ = {}; }

    /// The supplies as supply list text: one line for each, name, TAB, price in the user's regional form, CR LF.
    [[nodiscard]] Text fncBuildSupplyList() const;
    /// Fills the supplies from supply list text, read under the user's regional settings. Those that are there already
    /// stay, and of two lines with one name the first counts. A price that is no amount of money is 0.
    void subFillSupply(TextView text);

    /// Looks for the managed calendars anew: the calendars in the root folder and the mailboxes that the settings item
    /// lists; where there is neither, whatever the root folder holds a description of. A failure is reported and ends
    /// the program.
    void GetCalendars();

    /// Sorts a dictionary in place by its keys or its items as texts, without regard to case, and answers it; equal
    /// ones keep their order. With `blnDate` the keys are dates behind a weekday of three letters, which does not
    /// count, and are written anew in the user's regional form. An item without a text counts as an empty one.
    outlook::Dictionary fncSortDictionary(const outlook::Dictionary& objDict, SortColumn intSort, bool blnDate) const;
    /// Makes the host load the home page of the shown folder anew; where that fails the user is told what to do.
    void subRefreshFolderHomePage() const;
    /// Ends every running process of this program, this one last. No error leaves it.
    void subKillORBooking() const;

    /// The language of the user interface that the session began with.
    [[nodiscard]] std::int16_t intCurrentLanguage() const { return intCurrentLanguage_; }

    /// What the loaded texts of some keys become. Projects are replaced. A format that is no number is "1". A language
    /// that is none leaves the selected one as it is: error 13, or 6 when it does not fit.
    void takeProjects(const Text& text);
    void takeKCFormat(const Text& text);
    void takeCurrentLanguage(const Text& text);

private:
    void load(const outlook::Item& item, const SettingKey& key);
    void save(const outlook::Item& item, const SettingKey& key, TextView name) const;
    [[nodiscard]] outlook::PostItem newSettingsItem(const outlook::Items& items, PendingError& errors) const;
    void showSaveFailure(const PendingError& errors) const;
    void addCalendar(const Text& name, bool mailbox);
    void addPublicCalendars();
    [[nodiscard]] Text addDescribedCalendars();
    void promptForCalendars();

    Session& session_;
    std::int16_t intCurrentLanguage_;
    bool isBeingRead_ = false;
    outlook::PostItem settingsItem_;
};

} // namespace rf
