#include "hands/lookout.h"

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <utility>

namespace rf::test {

Lookout::Lookout()
{
    // While the program waits for another process no timer fires, as no input is taken.
    turn_.setSingleShot(true);
    connect(&turn_, &QTimer::timeout, this, [this] { tellWhatIsSeen(); });
}

Lookout::~Lookout() = default;

void Lookout::await(Sight sight, std::function<void()> tell)
{
    if (awaited_.empty()) {
        drawn_.clear();
        QCoreApplication::instance()->installEventFilter(this);
    }
    awaited_.push_back({std::move(sight), std::move(tell)});
}

bool Lookout::eventFilter(QObject* watched, QEvent* event)
{
    const bool isDrawn = event->type() == QEvent::Paint;
    if (isDrawn)
        drawn_.insert(watched);
    if ((isDrawn || event->type() == QEvent::Hide) && !turn_.isActive())
        turn_.start(0);
    return false;
}

bool Lookout::isSeen(const Sight& sight) const
{
    const QWidget* const widget = find(sight.place);
    if (sight.isGone || widget == nullptr)
        return sight.isGone == (widget == nullptr);
    return drawn_.contains(widget)
        && (sight.text.isEmpty() || look(*widget)[QStringLiteral("text")].toString() == sight.text);
}

void Lookout::tellWhatIsSeen()
{
    std::vector<Awaited> seen;
    const auto first = std::stable_partition(
        awaited_.begin(), awaited_.end(), [this](const Awaited& one) { return !isSeen(one.sight); });
    seen.insert(seen.end(), std::make_move_iterator(first), std::make_move_iterator(awaited_.end()));
    awaited_.erase(first, awaited_.end());
    if (awaited_.empty())
        QCoreApplication::instance()->removeEventFilter(this);
    for (const Awaited& one : seen)
        one.tell();
}

} // namespace rf::test
