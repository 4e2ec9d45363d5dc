#include "ui/form.h"

#include <algorithm>

namespace rf::ui {

void Forms::load(std::shared_ptr<Form> form)
{
    form->load();
    forms_.push_back(std::move(form));
}

std::shared_ptr<Form> Forms::find(TextView name) const
{
    const auto found = std::ranges::find(forms_, name, [](const auto& form) { return form->name(); });
    return found == forms_.end() ? nullptr : *found;
}

void Forms::unload(std::size_t position)
{
    // The form may run handlers that load or unload others, and it may be the one whose code is running now.
    const std::shared_ptr<Form> form = forms_.at(position);
    if (!form->queryUnload())
        return;
    form->unload();
    std::erase(forms_, form);
}

void Forms::unload(TextView name)
{
    if (const auto form = find(name))
        unload(*form);
}

void Forms::unload(const Form& form)
{
    const auto found = std::ranges::find(forms_, &form, [](const auto& loaded) { return loaded.get(); });
    if (found != forms_.end())
        unload(static_cast<std::size_t>(found - forms_.begin()));
}

} // namespace rf::ui
