#pragma once

#include "automation/object.h"
#include "basic/text.h"

#include <cstdint>
#include <functional>

namespace rf::ui {

/// A place on a form or on the screen, in twips (1,440 to the inch).
struct Point {
    std::int32_t left = 0;
    std::int32_t top = 0;

    friend bool operator==(Point, Point) = default;
};

/// The place and the size of a control, in twips from the upper left corner of its form.
struct Bounds {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;

    friend bool operator==(Bounds, Bounds) = default;
};

/// A key that produces a character, on its way into a control. Setting it to 0 swallows it.
using KeyPress = std::function<void(char16_t& key)>;

inline constexpr char16_t backspaceKey = 8;

/// What every control has. A control belongs to its form's window and goes with it; the handlers are the form's.
class Control {
public:
    virtual ~Control() = default;

    /// The fixed name, such as "txtBooker"; unique on its form.
    [[nodiscard]] virtual const Text& name() const = 0;
    [[nodiscard]] virtual Bounds bounds() const = 0;
    virtual void setBounds(Bounds bounds) = 0;
    /// As it was set, whether or not the form itself is on the screen.
    [[nodiscard]] virtual bool visible() const = 0;
    virtual void setVisible(bool visible) = 0;
    [[nodiscard]] virtual bool enabled() const = 0;
    virtual void setEnabled(bool enabled) = 0;
    virtual void setFocus() = 0;

    /// Raised when the control receives the focus.
    std::function<void()> GotFocus;
};

/// A text that stands on a form.
class Label : public Control {
public:
    [[nodiscard]] virtual Text caption() const = 0;
    virtual void setCaption(TextView caption) = 0;
};

class TextBox : public Control {
public:
    [[nodiscard]] virtual Text text() const = 0;
    virtual void setText(TextView text) = 0;
    /// The number of UTF-16 units that a person can type; 0 for no limit.
    [[nodiscard]] virtual std::int32_t maxLength() const = 0;
    virtual void setMaxLength(std::int32_t units) = 0;
    [[nodiscard]] virtual bool readOnly() const = 0;
    virtual void setReadOnly(bool readOnly) = 0;

    KeyPress KeyPressed;
    /// Raised when a key goes up, after the text has changed.
    std::function<void()> KeyUp;
};

/// One of several choices; choosing one takes the choice from the others of the form.
class OptionButton : public Control {
public:
    [[nodiscard]] virtual Text caption() const = 0;
    virtual void setCaption(TextView caption) = 0;
    [[nodiscard]] virtual bool value() const = 0;
    virtual void setValue(bool chosen) = 0;

    std::function<void()> Click;
};

class Button : public Control {
public:
    [[nodiscard]] virtual Text caption() const = 0;
    virtual void setCaption(TextView caption) = 0;

    std::function<void()> Click;
};

/// A control of a class that the platform supplies at run time, such as a spreadsheet or a browser. What it does is
/// reached late bound, through its object.
class AutomationControl : public Control {
public:
    [[nodiscard]] virtual automation::Object object() const = 0;

    /// Raised when another part of the content is selected, with its address. Where the platform can tell, also when a
    /// person has changed the content and the selection stays.
    std::function<void(const Text& address)> SelectionChange;
};

} // namespace rf::ui
