#pragma once

#include "automation/local_object.h"
#include "host/item.h"
#include "host/records.h"

#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace rf::host {

class Field;
class Model;
class Restriction;
struct TimeWindow;

/// The items of a folder, or those of them that meet a restriction, in an order. What it answers is found anew at each
/// use, so that it is always as other processes left it.
class Items final : public automation::LocalObject<Items> {
public:
    static constexpr TextView className = u"Items";

    Items(std::shared_ptr<Model> model, FolderId folder)
        : model_(std::move(model))
        , folder_(folder)
    {
    }
    /// A collection of a whole folder; it hears of changes as soon as somebody listens to it.
    [[nodiscard]] static std::shared_ptr<Items> make(const std::shared_ptr<Model>& model, FolderId folder);

    [[nodiscard]] FolderId folderId() const { return folder_; }
    [[nodiscard]] bool hasHandlers() const { return events_.hasHandlers(); }
    void raise(TextView event, std::span<automation::Variant> arguments) const { events_.raise(event, arguments); }

    /// A new, unsaved item of a message class (text), of an item type (number), or (Empty) of the folder's own kind.
    /// Error `badArgument` for a type that is not kept here.
    [[nodiscard]] std::shared_ptr<Dispatch> add(const automation::Variant& kind) const;

    [[nodiscard]] static std::span<const automation::LocalMember<Items>> members();

private:
    struct Entry {
        ItemRecord record;
        std::optional<OccurrenceOf> occurrence;
    };
    struct Order {
        std::shared_ptr<const Field> field;
        bool descending = false;
    };

    [[nodiscard]] automation::EventSource* eventSource(const automation::EventInterface& events) override;

    [[nodiscard]] std::shared_ptr<const Restriction> parse(const Text& text) const;
    /// What meets this collection's restriction and a further one, in this collection's order. An index leads to it;
    /// every item is still tested, so the index can only make it faster.
    [[nodiscard]] std::vector<Entry> entries(const Restriction* further) const;
    [[nodiscard]] std::vector<Entry> occurrences(
        const ItemRecord& series, const std::vector<TimeWindow>& windows) const;
    /// Without a window: all of a series that ends; of one without an end the series itself, which stands for what is
    /// as it has it, and every exception.
    [[nodiscard]] std::vector<Entry> occurrences(const ItemRecord& series) const;
    void arrange(std::vector<Entry>& entries) const;
    [[nodiscard]] bool expands() const;
    [[nodiscard]] std::shared_ptr<Dispatch> objectOf(const Entry& entry) const;

    [[nodiscard]] std::int32_t count() const;
    /// By position from 1 up or by subject in any case; error `badArgument` when there is none.
    [[nodiscard]] std::shared_ptr<Dispatch> item(const automation::Variant& index) const;
    /// The first that meets a restriction; nothing when none does. `findNext` goes on from there.
    [[nodiscard]] std::shared_ptr<Dispatch> find(const Text& restriction);
    [[nodiscard]] std::shared_ptr<Dispatch> findNext();
    [[nodiscard]] std::shared_ptr<Items> restricted(const Text& restriction) const;
    void sort(const Text& field, bool descending);

    std::shared_ptr<Model> model_;
    FolderId folder_;
    std::shared_ptr<const Restriction> restriction_;
    Order order_;
    bool includeRecurrences_ = false;
    std::vector<Entry> found_;
    std::size_t next_ = 0;
    automation::EventSource events_;
};

} // namespace rf::host
