#pragma once

#include "automation/local_object.h"
#include "host/records.h"

#include <memory>
#include <span>

namespace rf::host {

class Model;

/// A person as a mail or a meeting names one.
class Recipient final : public automation::LocalObject<Recipient> {
public:
    static constexpr TextView className = u"Recipient";

    Recipient(std::shared_ptr<Model> model, Text name)
        : model_(std::move(model))
        , name_(std::move(name))
    {
    }

    [[nodiscard]] const Text& name() const { return name_; }
    /// Whether there is a mailbox of that person.
    [[nodiscard]] bool resolved() const;

    [[nodiscard]] static std::span<const automation::LocalMember<Recipient>> members();

private:
    std::shared_ptr<Model> model_;
    Text name_;
};

/// The session with the message stores.
class NameSpace final : public automation::LocalObject<NameSpace> {
public:
    static constexpr TextView className = u"NameSpace";

    explicit NameSpace(std::shared_ptr<Model> model)
        : model_(std::move(model))
    {
    }

    /// A host has one session, however many objects stand for it.
    [[nodiscard]] const void* identity() const override { return model_.get(); }

    [[nodiscard]] static std::span<const automation::LocalMember<NameSpace>> members();

private:
    [[nodiscard]] std::shared_ptr<automation::Dispatch> defaultFolder(std::int32_t number, TextView person) const;
    [[nodiscard]] std::shared_ptr<automation::Dispatch> folderById(TextView entryId) const;
    [[nodiscard]] std::shared_ptr<automation::Dispatch> itemById(TextView entryId) const;
    [[nodiscard]] std::shared_ptr<automation::Dispatch> pickFolder() const;

    std::shared_ptr<Model> model_;
};

} // namespace rf::host
