#pragma once

#include "hands/eyes.h"

#include <QTimer>
#include <functional>
#include <set>
#include <vector>

namespace rf::test {

/// What is waited for: a widget that has been drawn, with this text when there is one, or one that has gone.
struct Sight {
    Place place;
    QString text;
    bool isGone = false;
};

/// Tells when what is waited for has come about and the program takes a person's input again. It looks when something
/// was drawn or hidden, not now and then: the time until it tells can be measured.
class Lookout final : public QObject {
public:
    Lookout();
    ~Lookout() override;
    Lookout(const Lookout&) = delete;
    Lookout& operator=(const Lookout&) = delete;

    void await(Sight sight, std::function<void()> tell);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Awaited {
        Sight sight;
        std::function<void()> tell;
    };
    [[nodiscard]] bool isSeen(const Sight& sight) const;
    void tellWhatIsSeen();

    QTimer turn_;
    std::set<const QObject*> drawn_;
    std::vector<Awaited> awaited_;
};

} // namespace rf::test
