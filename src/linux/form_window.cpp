#include "linux/form_window.h"

#include "linux/automation_control.h"
#include "linux/form_controls.h"
#include "linux/form_text_box.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

namespace rf::native {

class QtFormWindow::Dialog final : public QDialog {
public:
    explicit Dialog(QtFormWindow& owner)
        : owner_(&owner)
    {
        setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    }
    void disown() { owner_ = nullptr; }

    /// Escape; Qt would close the dialog.
    void reject() override
    {
        if (owner_ != nullptr)
            owner_->escape();
        else
            QDialog::reject();
    }
    void closeNow() { done(Rejected); }

protected:
    void closeEvent(QCloseEvent* event) override
    {
        // The answer may take the form away; its dialog is still here then, and hidden.
        const QPointer<Dialog> self{this};
        const bool goes = owner_ == nullptr || owner_->mayClose();
        event->setAccepted(goes);
        if (goes && self != nullptr)
            closeNow();
    }
    void showEvent(QShowEvent* event) override
    {
        QDialog::showEvent(event);
        if (windowHandle() == watched_)
            return;
        watched_ = windowHandle();
        connect(watched_, &QWindow::screenChanged, this, [this] {
            if (owner_ != nullptr)
                owner_->place();
        });
    }

private:
    QtFormWindow* owner_;
    QPointer<QWindow> watched_;
};

QtFormWindow::QtFormWindow(std::shared_ptr<const Regional> regional)
    : dialog_(new Dialog{*this})
    , regional_(std::move(regional))
{
}

QtFormWindow::~QtFormWindow()
{
    dialog_->disown();
    dialog_->hide();
    // The controls' objects go before the widgets, which may be in the middle of an event.
    controls_.clear();
    dialog_->deleteLater();
}

QDialog& QtFormWindow::dialog() const { return *dialog_; }

template <class Kind>
Kind& QtFormWindow::keep(std::unique_ptr<Kind> control)
{
    Kind& kept = *control;
    controls_.emplace_back(dynamic_cast<FormControl*>(control.release()));
    return kept;
}

ui::Label& QtFormWindow::addLabel(TextView name, ui::Bounds bounds)
{
    return keep(std::make_unique<QtLabel>(dialog_, name, bounds));
}

ui::TextBox& QtFormWindow::addTextBox(TextView name, ui::Bounds bounds, ui::LineBreaks lineBreaks)
{
    return keep(makeTextBox(dialog_, name, bounds, lineBreaks));
}

ui::OptionButton& QtFormWindow::addOptionButton(TextView name, ui::Bounds bounds)
{
    return keep(std::make_unique<QtOptionButton>(dialog_, name, bounds));
}

ui::Button& QtFormWindow::addButton(TextView name, ui::Bounds bounds, ui::ButtonRole role)
{
    return keep(std::make_unique<QtButton>(dialog_, name, bounds, role));
}

ui::AutomationControl* QtFormWindow::addAutomationControl(TextView className, TextView name)
{
    auto content = makeControlContent(className, regional_);
    if (content == nullptr)
        return nullptr;
    return &keep(std::make_unique<QtAutomationControl>(dialog_, name, std::move(content)));
}

Text QtFormWindow::caption() const { return textOf(dialog_->windowTitle()); }

void QtFormWindow::setCaption(TextView caption) { dialog_->setWindowTitle(qtText(caption)); }

void QtFormWindow::setSize(std::int32_t width, std::int32_t height)
{
    width_ = width;
    height_ = height;
    place();
}

void QtFormWindow::place()
{
    const Twips twips{*dialog_};
    dialog_->setFixedSize(twips.pixelsX(width_), twips.pixelsY(height_));
    for (const auto& control : controls_)
        control->place();
}

void QtFormWindow::setPosition(ui::Point position)
{
    const QPoint wanted = Twips{*dialog_}.pixels(position);
    const QScreen* screen = QGuiApplication::screenAt(wanted);
    const QRect room = (screen != nullptr ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const auto within = [](int place, int start, int end) { return std::max(start, std::min(place, end)); };
    dialog_->move(within(wanted.x(), room.left(), room.right() - dialog_->width()),
        within(wanted.y(), room.top(), room.bottom() - dialog_->height()));
}

void QtFormWindow::setParent(ui::WindowHandle parent)
{
    dialog_->winId();
    QWindow* above = nullptr;
    foreignParent_.reset();
    if (const QWidget* own = QWidget::find(parent)) {
        above = own->window()->windowHandle();
    } else if (parent != 0 && QGuiApplication::platformName() == u"xcb") {
        // Only X11 lets one program name the window of another.
        foreignParent_.reset(QWindow::fromWinId(parent));
        above = foreignParent_.get();
    }
    dialog_->windowHandle()->setTransientParent(above);
}

ui::WindowHandle QtFormWindow::handle() const { return dialog_->winId(); }

void QtFormWindow::prepare()
{
    nameByLabels(controls_);
    orderByPlace(controls_);
    chooseMnemonics(controls_);
}

void QtFormWindow::show()
{
    prepare();
    dialog_->setWindowModality(Qt::NonModal);
    dialog_->show();
    setFocus();
}

void QtFormWindow::showModal()
{
    prepare();
    dialog_->setWindowModality(Qt::ApplicationModal);
    dialog_->exec();
}

void QtFormWindow::close() { dialog_->closeNow(); }

void QtFormWindow::setFocus()
{
    dialog_->raise();
    dialog_->activateWindow();
}

void QtFormWindow::escape()
{
    for (const auto& control : controls_)
        if (auto* button = dynamic_cast<QtButton*>(control.get());
            button != nullptr && button->role() == ui::ButtonRole::Cancel) {
            button->press();
            return;
        }
    dialog_->QWidget::close();
}

bool QtFormWindow::mayClose()
{
    if (const auto asked = QueryUnload)
        return asked();
    return true;
}

std::vector<Text> clippedCaptions(const ui::FormWindow& window)
{
    std::vector<Text> names;
    const auto* form = dynamic_cast<const QtFormWindow*>(&window);
    if (form == nullptr)
        return names;
    for (const auto& control : form->controls())
        if (!control->widget().isHidden() && !control->captionFits())
            names.push_back(control->control().name());
    return names;
}

} // namespace rf::native
