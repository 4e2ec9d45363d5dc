#include "platform/alert.h"

#include "diagnostics/pending_error.h"
#include "diagnostics/product.h"
#include "outlook/assistant.h"

namespace rf {

namespace {

outlook::AlertIcon alertIcon(ui::Icon icon)
{
    switch (icon) {
    case ui::Icon::Critical:
        return outlook::AlertIcon::Critical;
    case ui::Icon::Question:
        return outlook::AlertIcon::Query;
    case ui::Icon::Warning:
        return outlook::AlertIcon::Warning;
    case ui::Icon::Information:
        return outlook::AlertIcon::Information;
    case ui::Icon::None:
        break;
    }
    return outlook::AlertIcon::None;
}

} // namespace

AlertRoutine::AlertRoutine(Trace& trace, ui::Toolkit& toolkit, const outlook::Application& ouaApp)
    : trace_(trace)
    , toolkit_(toolkit)
    , ouaApp_(ouaApp)
{
}

std::int32_t AlertRoutine::fncDoAlert(const Text& message) { return fncDoAlert(message, ui::Buttons::Ok); }

std::int32_t AlertRoutine::fncDoAlert(const Text& message, ui::Buttons buttons)
{
    return fncDoAlert(message, buttons, ui::Icon::None);
}

std::int32_t AlertRoutine::fncDoAlert(const Text& message, ui::Buttons buttons, ui::Icon icon)
{
    PendingError errors;
    errors.attempt([&] { toolkit_.activateWindow(ouaApp_.activeWindow().caption()); });
    trace_.subTrace(u"Creating Assistant to display message " + message);
    const auto assistant = errors.attempt([&] { return ouaApp_.assistant(); });
    if (!assistant)
        return static_cast<std::int32_t>(toolkit_.showMessage(message, {buttons, icon}, productCaption));
    errors.attempt([&] { assistant.setVisible(true); });
    return errors.attempt([&] {
        return assistant.doAlert(
            Text{productCaption}, message, static_cast<outlook::AlertButtons>(buttons), alertIcon(icon));
    });
}

} // namespace rf
