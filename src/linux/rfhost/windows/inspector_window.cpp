#include "linux/rfhost/windows/inspector_window.h"

#include "host/recurrence_choice.h"
#include "linux/qt_text.h"
#include "linux/rfhost/windows/appointment_form.h"
#include "linux/rfhost/windows/message_form.h"
#include "linux/rfhost/windows/recurrence_dialog.h"
#include "linux/rfhost/windows/scheduling_page.h"

#include <QAction>
#include <QShortcut>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>

namespace rf::native {

namespace {

/// Gives an appointment another recurrence. What single occurrences had of their own went with the old one.
void setRecurrence(host::Item& item, const std::optional<host::RecurrenceChoice>& choice)
{
    host::ItemRecord& record = item.record();
    record.recurrence.reset();
    if (choice) {
        const Date start = host::firstStart(*choice, record.start);
        const auto length = record.end.seconds() - record.start.seconds();
        record.start = start;
        record.end = Date::fromSeconds(start.seconds() + length);
        record.recurrence.emplace().rule = host::ruleOf(*choice, start);
    }
    item.touch();
}

} // namespace

InspectorWindow::InspectorWindow(const std::shared_ptr<host::Inspector>& inspector)
    : PlacedWindow(inspector->place())
    , inspector_(inspector)
    , bars_(*this, {})
    , tabs_(new QTabWidget)
    , changes_([this] { refresh(); })
{
    setObjectName(QStringLiteral("inspector"));
    setContextMenuPolicy(Qt::NoContextMenu);
    buildBar();
    buildPages();
    setCentralWidget(tabs_);
    refresh();
}

InspectorWindow::~InspectorWindow() = default;

void InspectorWindow::buildBar()
{
    auto* const bar = addToolBar(QStringLiteral("Appointment"));
    bar->setObjectName(QStringLiteral("form"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    bar->setIconSize({size, size});
    const auto add = [&](QStyle::StandardPixmap icon, const char* text, const QList<QKeySequence>& keys, auto step) {
        auto* const action = bar->addAction(style()->standardIcon(icon), QLatin1StringView{text});
        action->setShortcuts(keys);
        action->setToolTip(
            action->text() + QStringLiteral(" (") + keys.front().toString(QKeySequence::NativeText) + QLatin1Char{')'});
        connect(action, &QAction::triggered, this, [this, step] { later(this, [this, step] { (this->*step)(); }); });
        auto* const button = dynamic_cast<QToolButton*>(bar->widgetForAction(action));
        button->setObjectName(action->text());
        button->setAccessibleName(action->text());
        button->setFocusPolicy(Qt::TabFocus);
    };
    add(QStyle::SP_DialogSaveButton, "Save and Close", {Qt::ALT | Qt::Key_S, Qt::CTRL | Qt::Key_Return},
        &InspectorWindow::saveAndClose);
    add(QStyle::SP_DialogApplyButton, "Save", {QKeySequence::Save}, &InspectorWindow::save);
    add(QStyle::SP_TrashIcon, "Delete", {Qt::CTRL | Qt::Key_D}, &InspectorWindow::removeItem);
    connect(new QShortcut{Qt::Key_Escape, this}, &QShortcut::activated, this, [this] { closeWanted(); });
}

void InspectorWindow::addPage(QWidget* page, TextView name)
{
    page->setObjectName(qtText(name));
    tabs_->addTab(page, qtText(name));
}

void InspectorWindow::buildPages()
{
    tabs_->setDocumentMode(true);
    tabs_->setObjectName(QStringLiteral("pages"));
    const auto pages = inspector_->pages();
    if (pages.size() == 1 && pages.front() == u"Message") {
        message_ = new MessageForm{item().self()};
        addPage(message_, u"Message");
        return;
    }
    appointment_ = new AppointmentForm{item().self()};
    scheduling_ = new SchedulingPage{item().self()};
    appointment_->recurrenceWanted = [this] { later(this, [this] { chooseRecurrence(); }); };
    addPage(appointment_, u"Appointment");
    addPage(scheduling_, u"Scheduling");
}

void InspectorWindow::showPages()
{
    const auto shown = inspector_->pages();
    for (int index = 0; index < tabs_->count(); ++index)
        tabs_->setTabVisible(index, std::ranges::find(shown, textOf(tabs_->tabText(index))) != shown.end());
    tabs_->tabBar()->setVisible(shown.size() > 1);
}

void InspectorWindow::refresh()
{
    if (inspector_->isClosed())
        return;
    setWindowTitle(qtText(inspector_->caption()));
    setWindowModified(false);
    bars_.refresh(inspector_->commandBars());
    showPages();
    if (appointment_ != nullptr)
        appointment_->refresh();
    if (scheduling_ != nullptr)
        scheduling_->refresh();
    if (message_ != nullptr)
        message_->refresh();
    takePlace();
}

void InspectorWindow::chooseRecurrence()
{
    const auto item = this->item().self();
    host::ItemRecord& record = item->record();
    const auto before = record.recurrence ? host::choiceOf(record.recurrence->rule, record.start) : std::nullopt;
    // A program may close the window meanwhile, and the dialog with it.
    const QPointer dialog{new RecurrenceDialog{
        this, before.value_or(host::RecurrenceChoice{}), record.start, record.recurrence.has_value()}};
    const auto answer = dialog->ask();
    if (dialog == nullptr)
        return;
    dialog->deleteLater();
    if (answer == RecurrenceDialog::Answer::Cancelled || item->isDeleted())
        return;
    const auto chosen = answer == RecurrenceDialog::Answer::Chosen ? std::optional{dialog->choice()} : std::nullopt;
    if (!chosen || chosen != before)
        setRecurrence(*item, chosen);
}

void InspectorWindow::saveAndClose()
{
    const auto kept = inspector_;
    kept->close(host::CloseMode::Save);
}

void InspectorWindow::save()
{
    const auto kept = item().self();
    kept->save();
}

void InspectorWindow::removeItem()
{
    const auto kept = item().self();
    kept->remove();
}

void InspectorWindow::closeWanted()
{
    later(this, [kept = inspector_] { kept->close(host::CloseMode::PromptForSave); });
}

void InspectorWindow::cameToFront()
{
    later(this, [kept = inspector_] {
        if (!kept->isClosed())
            kept->cameToFront();
    });
}

} // namespace rf::native
