#pragma once

#include "automation/events.h"
#include "automation/object.h"
#include "host/records.h"

#include <memory>
#include <optional>

namespace rf::host {

class Model;

/// The occurrence of a series that an item object stands for.
struct OccurrenceOf {
    ItemId series = ItemId::None;
    /// The start that the series gives it.
    Date original;
    /// Whether it differs from the series.
    bool exception = false;
};

/// How a window or an item is closed; the values are those of the object model.
enum class CloseMode : std::int32_t { Save = 0, Discard = 1, PromptForSave = 2 };

/// One object of an item: a working copy that becomes the item when it is saved. Two objects of one item do not see
/// each other's changes. Once the item is deleted, by this object or by anybody else, saving and deleting are errors.
class Item {
public:
    Item(std::shared_ptr<Model> model, ItemRecord record, std::optional<OccurrenceOf> occurrence);
    Item(const Item&) = delete;
    Item& operator=(const Item&) = delete;
    virtual ~Item() = default;

    /// This object as the object model hands it out.
    [[nodiscard]] virtual std::shared_ptr<automation::Dispatch> dispatch() = 0;
    /// The same object by its face of this class.
    [[nodiscard]] std::shared_ptr<Item> self();

    [[nodiscard]] Model& model() const { return *model_; }
    [[nodiscard]] const std::shared_ptr<Model>& sharedModel() const { return model_; }
    [[nodiscard]] ItemRecord& record() { return record_; }
    [[nodiscard]] const std::optional<OccurrenceOf>& occurrence() const { return occurrence_; }
    [[nodiscard]] automation::EventSource& events() { return events_; }
    /// Error `deleted` once this object has deleted the item; every member asks first.
    void requireAlive() const;

    /// The working copy differs from what is stored.
    void touch();
    [[nodiscard]] bool saved() const { return saved_; }
    /// Whether it was touched since it was opened or saved: what a person is asked about when the window closes.
    [[nodiscard]] bool hasChanges() const { return touched_; }
    /// Takes the working copy as it is for what the person began with.
    void settle() { touched_ = false; }
    [[nodiscard]] bool isDeleted() const { return deleted_; }
    /// Makes a field of the item's folder searchable.
    void defineField(const FieldDefinition& field);

    /// Raises Write, which may refuse without a word, and stores the working copy.
    void save();
    /// Deletes the item. Error `deleted` when it is gone already.
    void remove();
    /// Raises Close, which may refuse, and saves or forgets the working copy. Answers whether it closed: it does not
    /// when the save is refused or the person wants to go on.
    bool close(CloseMode mode);
    /// Raises an event that has one by-reference answer; true when a handler has set it.
    [[nodiscard]] bool refused(TextView event);

private:
    void commit();
    void commitOccurrence();
    /// Gives the stored series of this occurrence a change of it. Error `deleted` when either is gone.
    void changeSeries(const OccurrenceChange& change);
    /// Saves and answers whether nothing is left to save.
    [[nodiscard]] bool saveForClosing();
    /// Whether the changes are dealt with and the item may close.
    [[nodiscard]] bool settleChanges(CloseMode mode);

    std::shared_ptr<Model> model_;
    ItemRecord record_;
    std::optional<OccurrenceOf> occurrence_;
    automation::EventSource events_;
    bool saved_;
    bool touched_ = false;
    bool deleted_ = false;
    int closings_ = 0;
};

} // namespace rf::host
