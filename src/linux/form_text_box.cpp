#include "linux/form_text_box.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <limits>

namespace rf::native {

namespace {

/// What a person brings in, on its way into the field.
using Incoming = std::function<QString(const QString& text)>;

bool isEnter(const QKeyEvent& event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

/// Commands such as Ctrl+C carry control characters; they are no input.
bool isCharacter(const QKeyEvent& event)
{
    constexpr auto command = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const bool plain = (event.modifiers() & command) == 0;
    // The right Alt key, which types "@" on many keyboards, may come as Ctrl+Alt.
    const bool composed = (event.modifiers() & Qt::ControlModifier) != 0 && (event.modifiers() & Qt::AltModifier) != 0;
    if (!(plain || composed) || event.text().isEmpty())
        return false;
    const QChar first = event.text().at(0);
    return first.isPrint() || first.isSurrogate();
}

bool isBackspace(const QKeyEvent& event) { return event.key() == Qt::Key_Backspace; }

/// The field of one line. Qt's own paths for a pasted text bypass the keys, so each is led through `incoming`.
class LineField final : public QLineEdit {
public:
    using QLineEdit::QLineEdit;
    Incoming incoming;

    void bring(const QString& text)
    {
        if (!isReadOnly())
            insert(incoming(QString{text}.replace(u'\n', u' ').remove(u'\r')));
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->matches(QKeySequence::Paste))
            bring(QGuiApplication::clipboard()->text());
        else if (isCharacter(*event))
            bring(event->text());
        else if (!isBackspace(*event) || !incoming(QString{QChar{ui::backspaceKey}}).isEmpty())
            QLineEdit::keyPressEvent(event);
    }
    void inputMethodEvent(QInputMethodEvent* event) override
    {
        const QString composed = event->commitString();
        event->setCommitString({});
        QLineEdit::inputMethodEvent(event);
        if (!composed.isEmpty())
            bring(composed);
    }
    void dropEvent(QDropEvent* event) override
    {
        bring(event->mimeData()->text());
        event->acceptProposedAction();
    }
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection())
            bring(QGuiApplication::clipboard()->text(QClipboard::Selection));
        else
            QLineEdit::mouseReleaseEvent(event);
    }
    void contextMenuEvent(QContextMenuEvent* event) override
    {
        const std::unique_ptr<QMenu> menu{createStandardContextMenu()};
        if (auto* paste = menu->findChild<QAction*>(QStringLiteral("edit-paste"))) {
            paste->disconnect(this);
            QObject::connect(paste, &QAction::triggered, this, [this] { bring(QGuiApplication::clipboard()->text()); });
        }
        menu->exec(event->globalPos());
    }
};

class ManyLinesField final : public QPlainTextEdit {
public:
    using QPlainTextEdit::QPlainTextEdit;
    Incoming incoming;

    void bring(const QString& text)
    {
        if (!isReadOnly())
            insertPlainText(incoming(text));
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (isCharacter(*event))
            bring(event->text());
        else if (isEnter(*event) && event->modifiers() == Qt::NoModifier)
            bring(QStringLiteral("\n"));
        else if (!isBackspace(*event) || !incoming(QString{QChar{ui::backspaceKey}}).isEmpty())
            QPlainTextEdit::keyPressEvent(event);
    }
    void inputMethodEvent(QInputMethodEvent* event) override
    {
        const QString composed = event->commitString();
        event->setCommitString({});
        QPlainTextEdit::inputMethodEvent(event);
        if (!composed.isEmpty())
            bring(composed);
    }
    /// Paste and drop both come here.
    void insertFromMimeData(const QMimeData* source) override { bring(source->text().remove(u'\r')); }
};

/// The line ends of the host are CR LF; Qt has separators of its own.
Text withHostLineEnds(const QString& raw)
{
    Text text;
    for (const QChar unit : raw) {
        if (unit == QChar::ParagraphSeparator || unit == QChar::LineSeparator || unit == u'\n')
            text += lineBreak;
        else
            text += unit.unicode();
    }
    return text;
}

template <class Field>
class QtTextBox : public QtControl<ui::TextBox> {
public:
    QtTextBox(QWidget* parent, TextView name, ui::Bounds bounds)
        : QtControl(new Field{parent}, name, bounds)
    {
        field().incoming = [this](const QString& text) { return admitted(text); };
        field().show();
    }

    [[nodiscard]] std::int32_t maxLength() const override { return maxLength_; }
    void setMaxLength(std::int32_t units) override { maxLength_ = units; }
    [[nodiscard]] bool readOnly() const override { return field().isReadOnly(); }
    void setReadOnly(bool readOnly) override { field().setReadOnly(readOnly); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool up = event->type() == QEvent::KeyRelease && !eventAs<QKeyEvent>(*event).isAutoRepeat();
        if (!up)
            return QtControl::eventFilter(watched, event);
        raise(KeyUp);
        return false;
    }

protected:
    [[nodiscard]] Field& field() const { return static_cast<Field&>(widget()); }
    /// The units that a typed text would replace.
    [[nodiscard]] virtual std::size_t selectedUnits() const = 0;

private:
    /// What of an incoming text the form and the maximum length let in.
    [[nodiscard]] QString admitted(const QString& text)
    {
        constexpr auto unlimited = std::numeric_limits<std::size_t>::max();
        const std::size_t kept = this->text().size() - selectedUnits();
        const auto limit = maxLength_ == 0 ? unlimited : static_cast<std::size_t>(maxLength_);
        std::size_t room = limit > kept ? limit - kept : 0;
        const KeyPress pressed = KeyPressed;
        QString let;
        for (const QChar unit : text) {
            char16_t key = unit == u'\n' ? u'\r' : unit.unicode();
            if (pressed)
                pressed(key);
            const bool removes = key == ui::backspaceKey;
            const std::size_t units = removes ? 0 : key == u'\r' ? lineBreak.size() : 1;
            if (key == 0 || units > room)
                continue;
            room -= units;
            let += key == u'\r' ? QChar{u'\n'} : QChar{key};
        }
        return let;
    }

    using KeyPress = ui::KeyPress;
    std::int32_t maxLength_ = 0;
};

class OneLineBox final : public QtTextBox<LineField> {
public:
    OneLineBox(QWidget* parent, TextView name, ui::Bounds bounds)
        : QtTextBox(parent, name, bounds)
    {
        // The limit holds for what is typed; a longer text from a program is kept whole.
        field().setMaxLength(std::numeric_limits<int>::max());
    }
    [[nodiscard]] Text text() const override { return field().isModified() ? textOf(field().text()) : given_; }
    void setText(TextView text) override
    {
        given_ = text;
        field().setText(qtText(text));
        field().setCursorPosition(0);
        field().setModified(false);
    }

protected:
    [[nodiscard]] std::size_t selectedUnits() const override
    {
        return static_cast<std::size_t>(field().selectedText().size());
    }

private:
    Text given_;
};

class ManyLinesBox final : public QtTextBox<ManyLinesField> {
public:
    ManyLinesBox(QWidget* parent, TextView name, ui::Bounds bounds)
        : QtTextBox(parent, name, bounds)
    {
        field().setTabChangesFocus(true);
    }
    /// A text that nobody changed comes back as it was given, whatever its line ends are.
    [[nodiscard]] Text text() const override
    {
        return field().document()->isModified() ? withHostLineEnds(field().document()->toRawText()) : given_;
    }
    void setText(TextView text) override
    {
        given_ = text;
        field().setPlainText(qtText(replaceAll(text, lineBreak, u"\n")));
        field().document()->setModified(false);
    }

protected:
    [[nodiscard]] std::size_t selectedUnits() const override
    {
        return withHostLineEnds(field().textCursor().selectedText()).size();
    }

private:
    Text given_;
};

} // namespace

std::unique_ptr<ui::TextBox> makeTextBox(QWidget* parent, TextView name, ui::Bounds bounds, ui::LineBreaks lineBreaks)
{
    if (lineBreaks == ui::LineBreaks::Yes)
        return std::make_unique<ManyLinesBox>(parent, name, bounds);
    return std::make_unique<OneLineBox>(parent, name, bounds);
}

} // namespace rf::native
