#pragma once

#include "automation/local_object.h"
#include "host/explorers.h"
#include "host/inspectors.h"
#include "host/model.h"

#include <memory>
#include <span>

namespace rf::host {

class Assistant;

/// The host itself: the root of its object model.
class Application final : public automation::LocalObject<Application> {
public:
    static constexpr TextView className = u"Application";

    /// Makes a host of a store.
    [[nodiscard]] static std::shared_ptr<Application> make(const HostServices& services, Model::Settings settings);
    explicit Application(std::shared_ptr<Model> model);
    /// The open windows hold their items, and those the host: with the application they go.
    ~Application() override;
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    [[nodiscard]] Model& model() const { return *model_; }
    [[nodiscard]] Explorers& explorers() const { return *explorers_; }
    [[nodiscard]] Inspectors& inspectors() const { return model_->inspectors(); }
    /// Tells everybody that the host ends.
    void quit();

    [[nodiscard]] static std::span<const automation::LocalMember<Application>> members();

private:
    [[nodiscard]] automation::EventSource* eventSource(const automation::EventInterface& events) override;
    [[nodiscard]] std::shared_ptr<Dispatch> createItem(std::int32_t type) const;
    [[nodiscard]] std::shared_ptr<Dispatch> activeWindow() const;

    std::shared_ptr<Model> model_;
    std::shared_ptr<Explorers> explorers_;
    std::shared_ptr<Assistant> assistant_;
    automation::EventSource events_;
};

} // namespace rf::host
