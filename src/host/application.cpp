#include "host/application.h"

#include "host/assistant.h"
#include "host/host_error.h"
#include "host/items.h"
#include "host/name_space.h"
#include "outlook/constants.h"
#include "outlook/event_interfaces.h"

#include <array>

namespace rf::host {

using automation::Arguments;
using automation::LocalMember;
using automation::Variant;

Application::Application(std::shared_ptr<Model> model)
    : model_(std::move(model))
    , explorers_(std::make_shared<Explorers>(model_->windows()))
    , assistant_(std::make_shared<Assistant>(model_))
{
}

Application::~Application() { model_->inspectors().clear(); }

std::shared_ptr<Application> Application::make(const HostServices& services, Model::Settings settings)
{
    auto application = std::make_shared<Application>(std::make_shared<Model>(services, std::move(settings)));
    application->model_->setApplication(application);
    return application;
}

void Application::quit()
{
    const auto keptAlive = shared_from_this();
    events_.raise(u"Quit");
}

automation::EventSource* Application::eventSource(const automation::EventInterface& events)
{
    return events.id == outlook::event_interface::application.id ? &events_ : nullptr;
}

std::shared_ptr<automation::Dispatch> Application::createItem(std::int32_t type) const
{
    // A mail is a draft until it is sent; everything else lies where its kind is kept.
    const auto role = static_cast<outlook::ItemType>(type) == outlook::ItemType::Appointment ? FolderRole::Calendar
        : static_cast<outlook::ItemType>(type) == outlook::ItemType::Mail                    ? FolderRole::Drafts
                                                                                             : FolderRole::Inbox;
    const FolderRecord folder = model_->defaultFolder(role, model_->settings().user);
    return Items{model_, folder.id}.add(Variant{type});
}

std::shared_ptr<automation::Dispatch> Application::activeWindow() const
{
    if (const auto inspector = inspectors().active())
        return inspector;
    return explorers_->active();
}

std::span<const LocalMember<Application>> Application::members()
{
    using Self = Application;
    static constexpr std::array table{
        LocalMember<Self>{
            u"Version", [](Self& self, const Arguments&) -> Variant { return self.model_->settings().version; }},
        LocalMember<Self>{u"GetNamespace",
            [](Self& self, const Arguments& arguments) -> Variant {
                if (!equalIgnoringCase(arguments[0].text(), u"MAPI"))
                    throw hostError(host_error::badArgument, u"There is no name space but \"MAPI\".");
                return std::make_shared<NameSpace>(self.model_);
            }},
        LocalMember<Self>{u"Explorers", [](Self& self, const Arguments&) -> Variant { return self.explorers_; }},
        LocalMember<Self>{
            u"ActiveExplorer", [](Self& self, const Arguments&) -> Variant { return self.explorers_->active(); }},
        LocalMember<Self>{u"Inspectors",
            [](Self& self, const Arguments&) -> Variant { return self.inspectors().shared_from_this(); }},
        LocalMember<Self>{
            u"ActiveInspector", [](Self& self, const Arguments&) -> Variant { return self.inspectors().active(); }},
        LocalMember<Self>{u"ActiveWindow", [](Self& self, const Arguments&) -> Variant { return self.activeWindow(); }},
        LocalMember<Self>{u"Assistant", [](Self& self, const Arguments&) -> Variant { return self.assistant_; }},
        LocalMember<Self>{u"CreateItem",
            [](Self& self, const Arguments& arguments) -> Variant {
                return self.createItem(arguments[0].integer32());
            }},
        LocalMember<Self>{u"Quit", [](Self& self, const Arguments&) -> Variant { return self.quit(), Variant{}; }},
        LocalMember<Self>{u"Class",
            [](Self&, const Arguments&) -> Variant {
                return static_cast<std::int32_t>(outlook::ObjectClass::Application);
            }},
    };
    return table;
}

} // namespace rf::host
