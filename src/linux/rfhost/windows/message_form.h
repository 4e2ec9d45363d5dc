#pragma once

#include "host/item.h"

#include <QWidget>
#include <memory>

class QLineEdit;
class QPlainTextEdit;

namespace rf::native {

/// The page of a mail or a post: addressees, subject and text.
class MessageForm final : public QWidget {
public:
    explicit MessageForm(std::shared_ptr<host::Item> item);

    /// Shows the working copy as it is now.
    void refresh();

private:
    void listen();
    void edit(Text host::ItemRecord::*field, const Text& text);

    std::shared_ptr<host::Item> item_;
    QLineEdit* to_;
    QLineEdit* subject_;
    QPlainTextEdit* body_;
};

} // namespace rf::native
