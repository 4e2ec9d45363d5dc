#include "linux/form_controls.h"

#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>

namespace rf::native {

namespace {

/// The caption as Qt takes it: every ampersand doubled, and one before the letter that is the key.
QString withMnemonic(const QString& caption, QChar mnemonic)
{
    const qsizetype key = mnemonic.isNull() ? -1 : caption.indexOf(mnemonic, 0, Qt::CaseInsensitive);
    QString shown;
    for (qsizetype index = 0; index < caption.size(); ++index) {
        if (index == key || caption[index] == u'&')
            shown += u'&';
        shown += caption[index];
    }
    return shown;
}

int widthOf(const QWidget& widget, const Text& caption)
{
    return widget.fontMetrics().size(Qt::TextSingleLine, qtText(caption)).width();
}

int roomIn(const QWidget& widget, QStyle::SubElement contents)
{
    QStyleOptionButton option;
    option.initFrom(&widget);
    return widget.style()->subElementRect(contents, &option, &widget).width();
}

/// The Tab key reaches the chosen one of several buttons; Qt sees to that only once one of them has had the focus.
void leadTabToChosen(const QWidget& form)
{
    const auto buttons = form.findChildren<QRadioButton*>(QString{}, Qt::FindDirectChildrenOnly);
    const bool anyChosen = std::ranges::any_of(buttons, &QRadioButton::isChecked);
    for (QRadioButton* button : buttons)
        button->setFocusPolicy(!anyChosen || button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace

template <class Kind, class Widget>
void QtCaptioned<Kind, Widget>::showCaption(QChar mnemonic)
{
    mnemonic_ = mnemonic;
    const QString caption = qtText(caption_);
    face().setText(withMnemonic(caption, mnemonic));
    face().setAccessibleName(caption);
    face().setToolTip(this->captionFits() ? QString{} : caption.toHtmlEscaped());
}

QtLabel::QtLabel(QWidget* parent, TextView name, ui::Bounds bounds)
    : QtCaptioned(parent, name, bounds)
{
    face().setWordWrap(true);
    face().setTextFormat(Qt::PlainText);
    face().setAlignment(Qt::AlignLeading | Qt::AlignTop);
    // Names from elsewhere may run on without a blank; they are cut at the edge instead of widening the form.
    face().setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    face().show();
}

bool QtLabel::captionFits() const
{
    constexpr int tall = 1 << 20;
    const QRect needed = face().fontMetrics().boundingRect(
        QRect{0, 0, face().width(), tall}, Qt::TextWordWrap | Qt::AlignLeading, qtText(caption()));
    return needed.width() <= face().width() && needed.height() <= face().height();
}

QtOptionButton::QtOptionButton(QWidget* parent, TextView name, ui::Bounds bounds)
    : QtCaptioned(parent, name, bounds)
{
    QObject::connect(&face(), &QRadioButton::clicked, this, [this] { raise(Click); });
    face().show();
}

void QtOptionButton::setValue(bool chosen)
{
    // Of buttons that exclude each other Qt lets none be released, which a program may do.
    face().setAutoExclusive(chosen);
    face().setChecked(chosen);
    face().setAutoExclusive(true);
    leadTabToChosen(*face().parentWidget());
}

bool QtOptionButton::captionFits() const
{
    return widthOf(face(), caption()) <= roomIn(face(), QStyle::SE_RadioButtonContents);
}

QtButton::QtButton(QWidget* parent, TextView name, ui::Bounds bounds, ui::ButtonRole role)
    : QtCaptioned(parent, name, bounds)
    , role_(role)
{
    face().setAutoDefault(false);
    face().setDefault(role == ui::ButtonRole::Default);
    QObject::connect(&face(), &QPushButton::clicked, this, [this] { raise(Click); });
    face().show();
}

bool QtButton::captionFits() const
{
    return widthOf(face(), caption()) <= roomIn(face(), QStyle::SE_PushButtonContents);
}

void QtButton::press()
{
    if (face().isVisible() && face().isEnabled())
        face().click();
}

bool QtButton::eventFilter(QObject* watched, QEvent* event)
{
    // Enter presses the button that has the focus; the default one is for the other controls.
    if (event->type() == QEvent::KeyPress) {
        const int key = eventAs<QKeyEvent>(*event).key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            press();
            return true;
        }
    }
    return QtCaptioned::eventFilter(watched, event);
}

template class QtCaptioned<ui::Label, QLabel>;
template class QtCaptioned<ui::OptionButton, QRadioButton>;
template class QtCaptioned<ui::Button, QPushButton>;

} // namespace rf::native
