#pragma once

#include "linux/qt_event.h"
#include "linux/qt_text.h"
#include "linux/twips.h"
#include "ui/controls.h"

#include <QFocusEvent>
#include <QPointer>
#include <QWidget>

namespace rf::native {

/// What the controls of a form have in common, whatever their widgets are.
class FormControl {
public:
    explicit FormControl(QWidget* widget)
        : widget_(widget)
    {
    }
    FormControl(const FormControl&) = delete;
    FormControl& operator=(const FormControl&) = delete;
    virtual ~FormControl() = default;

    [[nodiscard]] QWidget& widget() const { return *widget_; }
    /// Puts the widget where its twips say, after the control or the screen has changed.
    virtual void place() = 0;
    [[nodiscard]] virtual ui::Control& control() = 0;
    /// The text that stands on the control; null when it shows none of its own.
    [[nodiscard]] virtual const Text* shownCaption() const { return nullptr; }
    /// Whether the whole caption can be read.
    [[nodiscard]] virtual bool captionFits() const { return true; }
    /// Shows the caption with one of its letters as the key that leads to the control; a null one for none.
    virtual void showCaption(QChar /*mnemonic*/) { }

private:
    QWidget* widget_;
};

/// Runs a handler of a form. The handler is copied, since it may take its own control away.
template <class... Arguments>
void raise(const std::function<void(Arguments...)>& handler, auto&&... arguments)
{
    if (const auto running = handler)
        running(std::forward<decltype(arguments)>(arguments)...);
}

/// A control of a form over its widget.
template <class Kind>
class QtControl : public Kind, public FormControl, public QObject {
public:
    QtControl(QWidget* widget, TextView name, ui::Bounds bounds)
        : FormControl(widget)
        , name_(name)
        , bounds_(bounds)
    {
        widget->setObjectName(qtText(name));
        widget->installEventFilter(this);
        QtControl::place();
    }

    [[nodiscard]] const Text& name() const override { return name_; }
    [[nodiscard]] ui::Bounds bounds() const override { return bounds_; }
    void setBounds(ui::Bounds bounds) override
    {
        bounds_ = bounds;
        place();
    }
    [[nodiscard]] bool visible() const override { return widget().isVisibleTo(widget().parentWidget()); }
    void setVisible(bool visible) override { widget().setVisible(visible); }
    [[nodiscard]] bool enabled() const override { return widget().isEnabledTo(widget().parentWidget()); }
    void setEnabled(bool enabled) override { widget().setEnabled(enabled); }
    void setFocus() override { widget().setFocus(Qt::OtherFocusReason); }

    [[nodiscard]] ui::Control& control() override { return *this; }
    void place() override { widget().setGeometry(Twips{widget()}.pixels(bounds_)); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // A closing menu gives the focus back; nobody moved to the control.
        if (event->type() == QEvent::FocusIn && eventAs<QFocusEvent>(*event).reason() != Qt::PopupFocusReason) {
            const QPointer<QObject> self{this};
            raise(this->GotFocus);
            if (self == nullptr)
                return false;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    Text name_;
    ui::Bounds bounds_;
};

} // namespace rf::native
