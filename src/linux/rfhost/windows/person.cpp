#include "linux/rfhost/windows/person.h"

#include "basic/runtime_error.h"
#include "linux/qt_text.h"

#include <QApplication>
#include <QMessageBox>

namespace rf::native {

QWidget* windowInFront()
{
    QWidget* const active = QApplication::activeWindow();
    return active != nullptr && active->isVisible() ? active : nullptr;
}

void attempt(const QPointer<QWidget>& window, const std::function<void()>& step)
{
    try {
        step();
    } catch (const RuntimeError& error) {
        // A program may close the window meanwhile, and the box with it.
        const QPointer box{new QMessageBox{QMessageBox::Warning, QStringLiteral("Outlook"), qtText(error.description()),
            QMessageBox::Ok, window == nullptr ? nullptr : window->window()}};
        box->setObjectName(QStringLiteral("failure"));
        box->setTextFormat(Qt::PlainText);
        box->exec();
        if (box != nullptr)
            box->deleteLater();
    }
}

} // namespace rf::native
