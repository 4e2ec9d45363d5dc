#pragma once

#include "basic/text.h"
#include "ui/toolkit.h"

#include <memory>
#include <vector>

namespace rf::ui {

/// A window of the program, visible or not, that keeps the process alive while it is loaded.
class Form {
public:
    virtual ~Form() = default;

    /// The fixed name, such as "frmDummy".
    [[nodiscard]] virtual TextView name() const = 0;
    /// Runs once when the form is loaded.
    virtual void load() { }
    /// Makes the form visible without waiting for it to be closed.
    virtual void show() { }
    /// Whether the form lets itself be unloaded now.
    [[nodiscard]] virtual bool queryUnload() { return true; }
    /// Runs once when the form is unloaded.
    virtual void unload() { }
    /// The caption of its window; empty when it has none.
    [[nodiscard]] virtual Text caption() const { return {}; }
    virtual void setFocus() { }
    /// The window that stands for the form on the screen; 0 when it has none.
    [[nodiscard]] virtual WindowHandle window() const { return 0; }
};

/// The loaded forms in the order in which they were loaded.
class Forms {
public:
    /// Loads a form. One whose loading fails does not count as loaded; the failure goes on to the caller.
    void load(std::shared_ptr<Form> form);

    [[nodiscard]] std::size_t count() const { return forms_.size(); }
    /// The form of that name; null when none is loaded.
    [[nodiscard]] std::shared_ptr<Form> find(TextView name) const;
    /// Unloads the form at a position from 0 up. A form that refuses stays.
    void unload(std::size_t position);
    /// Unloads the form of that name when it is loaded.
    void unload(TextView name);
    /// Unloads this very form when it is loaded.
    void unload(const Form& form);

private:
    std::vector<std::shared_ptr<Form>> forms_;
};

} // namespace rf::ui
