#pragma once

#include "linux/form_control.h"
#include "ui/form_window.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace rf::native {

/// A caption on a widget of Qt. An ampersand in it is an ampersand: captions hold names that people gave, so the key
/// that leads to a control is chosen by the window.
template <class Kind, class Widget>
class QtCaptioned : public QtControl<Kind> {
public:
    QtCaptioned(QWidget* parent, TextView name, ui::Bounds bounds)
        : QtControl<Kind>(new Widget{parent}, name, bounds)
    {
    }

    [[nodiscard]] Text caption() const override { return caption_; }
    void setCaption(TextView caption) override
    {
        caption_ = caption;
        showCaption(mnemonic_);
    }
    void place() override
    {
        QtControl<Kind>::place();
        showCaption(mnemonic_);
    }
    [[nodiscard]] const Text* shownCaption() const override { return &caption_; }
    void showCaption(QChar mnemonic) override;

protected:
    [[nodiscard]] Widget& face() const { return static_cast<Widget&>(this->widget()); }

private:
    Text caption_;
    QChar mnemonic_;
};

class QtLabel final : public QtCaptioned<ui::Label, QLabel> {
public:
    QtLabel(QWidget* parent, TextView name, ui::Bounds bounds);
    [[nodiscard]] bool captionFits() const override;
    /// The control that the label speaks of: its key leads there. None when it speaks of none.
    void setBuddy(QWidget* buddy) { face().setBuddy(buddy); }
};

class QtOptionButton final : public QtCaptioned<ui::OptionButton, QRadioButton> {
public:
    QtOptionButton(QWidget* parent, TextView name, ui::Bounds bounds);
    [[nodiscard]] bool value() const override { return face().isChecked(); }
    void setValue(bool chosen) override;
    [[nodiscard]] bool captionFits() const override;
};

class QtButton final : public QtCaptioned<ui::Button, QPushButton> {
public:
    QtButton(QWidget* parent, TextView name, ui::Bounds bounds, ui::ButtonRole role);
    [[nodiscard]] ui::ButtonRole role() const { return role_; }
    [[nodiscard]] bool captionFits() const override;
    /// As a person would; a button that is disabled or hidden stays as it is.
    void press();
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ui::ButtonRole role_;
};

} // namespace rf::native
