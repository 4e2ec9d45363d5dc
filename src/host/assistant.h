#pragma once

#include "automation/local_object.h"

#include <memory>
#include <span>

namespace rf::host {

class Model;

/// The host's own way to talk to the person in front of it.
class Assistant final : public automation::LocalObject<Assistant> {
public:
    static constexpr TextView className = u"Assistant";

    explicit Assistant(std::shared_ptr<Model> model)
        : model_(std::move(model))
    {
    }

    [[nodiscard]] static std::span<const automation::LocalMember<Assistant>> members();

private:
    std::shared_ptr<Model> model_;
    bool visible_ = false;
};

} // namespace rf::host
