#include "linux/rfhost/windows/alert_box.h"

#include "host/alert_answers.h"
#include "linux/qt_text.h"
#include "linux/rfhost/windows/person.h"
#include "outlook/constants.h"

#include <QMessageBox>
#include <QPointer>

namespace rf::native {

namespace {

using host::AlertAnswer;

QMessageBox::StandardButton buttonOf(AlertAnswer answer)
{
    switch (answer) {
    case AlertAnswer::Cancel:
        return QMessageBox::Cancel;
    case AlertAnswer::Abort:
        return QMessageBox::Abort;
    case AlertAnswer::Retry:
        return QMessageBox::Retry;
    case AlertAnswer::Ignore:
        return QMessageBox::Ignore;
    case AlertAnswer::Yes:
        return QMessageBox::Yes;
    case AlertAnswer::No:
        return QMessageBox::No;
    case AlertAnswer::Ok:
        break;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon iconOf(std::int32_t icon)
{
    switch (static_cast<outlook::AlertIcon>(icon)) {
    case outlook::AlertIcon::Critical:
        return QMessageBox::Critical;
    case outlook::AlertIcon::Query:
        return QMessageBox::Question;
    case outlook::AlertIcon::Warning:
        return QMessageBox::Warning;
    case outlook::AlertIcon::Information:
        return QMessageBox::Information;
    case outlook::AlertIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

} // namespace

std::int32_t showAlert(const Text& title, const Text& message, std::int32_t buttons, std::int32_t icon)
{
    const host::AlertChoice choice = host::alertChoice(buttons);
    // The window in front may close meanwhile, and the box with it.
    const QPointer box{new QMessageBox{windowInFront()}};
    box->setObjectName(QStringLiteral("alert"));
    box->setWindowTitle(qtText(title));
    box->setTextFormat(Qt::PlainText);
    box->setText(qtText(replaceAll(message, lineBreak, u"\n")));
    box->setIcon(iconOf(icon));
    for (const AlertAnswer answer : choice.answers)
        box->addButton(buttonOf(answer));
    box->setDefaultButton(buttonOf(choice.answers.front()));
    box->setEscapeButton(buttonOf(choice.decline));
    // The program that asks may have its own window in front.
    box->show();
    box->raise();
    box->activateWindow();
    const int chosen = box->exec();
    if (box != nullptr)
        box->deleteLater();
    for (const AlertAnswer answer : choice.answers)
        if (buttonOf(answer) == chosen)
            return static_cast<std::int32_t>(answer);
    return static_cast<std::int32_t>(choice.decline);
}

} // namespace rf::native
