#pragma once

#include "automation/local_object.h"
#include "host/records.h"

#include <memory>
#include <span>

namespace rf::host {

class Model;

/// A folder, by the store's number: every use reads it anew, so that it is always as other processes left it.
class Folder final : public automation::LocalObject<Folder> {
public:
    static constexpr TextView className = u"MAPIFolder";

    Folder(std::shared_ptr<Model> model, FolderId id)
        : model_(std::move(model))
        , id_(id)
    {
    }

    [[nodiscard]] FolderId id() const { return id_; }
    [[nodiscard]] const std::shared_ptr<Model>& model() const { return model_; }
    /// Error `notFound` when the folder is gone.
    [[nodiscard]] FolderRecord record() const;
    /// Two objects of one folder are the same to a program.
    [[nodiscard]] const void* identity() const override;

    [[nodiscard]] static std::span<const automation::LocalMember<Folder>> members();

private:
    void update(
        void (*change)(FolderRecord& record, const automation::Variant& value), const automation::Variant& value) const;

    std::shared_ptr<Model> model_;
    FolderId id_;
};

/// The folders inside a folder, or the roots of the message stores.
class Folders final : public automation::LocalObject<Folders> {
public:
    static constexpr TextView className = u"Folders";

    Folders(std::shared_ptr<Model> model, FolderId parent)
        : model_(std::move(model))
        , parent_(parent)
    {
    }

    [[nodiscard]] static std::span<const automation::LocalMember<Folders>> members();

private:
    [[nodiscard]] std::optional<FolderId> find(const automation::Variant& index) const;
    /// By position from 1 up or by name in any case; error `notFound` when there is none.
    [[nodiscard]] std::shared_ptr<Folder> item(const automation::Variant& index) const;
    /// A new folder for the items of a default folder's kind, or of its parent's. Error `badArgument` when the name is
    /// empty or taken.
    [[nodiscard]] std::shared_ptr<Folder> add(const Text& name, std::int32_t defaultFolder) const;

    std::shared_ptr<Model> model_;
    FolderId parent_;
};

} // namespace rf::host
