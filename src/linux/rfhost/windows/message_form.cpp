#include "linux/rfhost/windows/message_form.h"

#include "linux/qt_text.h"
#include "linux/rfhost/windows/appointment_form.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace rf::native {

namespace {

QLineEdit* makeLine(const char* objectName, const char* accessibleName)
{
    auto* const line = new QLineEdit;
    line->setObjectName(QLatin1StringView{objectName});
    line->setAccessibleName(QLatin1StringView{accessibleName});
    return line;
}

void showText(QLineEdit& line, const Text& text)
{
    if (textOf(line.text()) != text)
        line.setText(qtText(text));
}

} // namespace

MessageForm::MessageForm(std::shared_ptr<host::Item> item)
    : item_(std::move(item))
    , to_(makeLine("to", "To"))
    , subject_(makeLine("subject", "Subject"))
    , body_(makeBodyBox())
{
    auto* const layout = new QFormLayout{this};
    layout->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    layout->addRow(QStringLiteral("&To:"), to_);
    layout->addRow(QStringLiteral("Su&bject:"), subject_);
    layout->addRow(body_);
    refresh();
    listen();
}

void MessageForm::listen()
{
    connect(
        to_, &QLineEdit::textEdited, this, [this](const QString& text) { edit(&host::ItemRecord::to, textOf(text)); });
    connect(subject_, &QLineEdit::textEdited, this,
        [this](const QString& text) { edit(&host::ItemRecord::subject, textOf(text)); });
    connect(body_, &QPlainTextEdit::textChanged, this, [this] { edit(&host::ItemRecord::body, bodyOf(*body_)); });
}

void MessageForm::edit(Text host::ItemRecord::*field, const Text& text)
{
    if (item_->isDeleted())
        return;
    item_->record().*field = text;
    item_->touch();
}

void MessageForm::refresh()
{
    const host::ItemRecord& record = item_->record();
    showText(*to_, record.to);
    showText(*subject_, record.subject);
    showBody(*body_, record.body);
}

} // namespace rf::native
