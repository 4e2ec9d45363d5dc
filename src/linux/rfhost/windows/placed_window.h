#pragma once

#include "host/window_place.h"

#include <QMainWindow>
#include <functional>

namespace rf::native {

/// A window whose place is that of an object: it goes where a program puts it, and tells where a person has put it.
class PlacedWindow : public QMainWindow {
public:
    explicit PlacedWindow(host::WindowPlace& place);

    /// Shows the window and brings it to the front.
    void present();
    /// Goes where the object says, if that is elsewhere.
    void takePlace();
    /// Goes without a word: the object is closed.
    void letGo();

protected:
    /// A person wants the window closed.
    virtual void closeWanted() = 0;
    /// The window came to the front by a person's doing.
    virtual void cameToFront() = 0;

    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void tellPlace();

    host::WindowPlace& place_;
    /// Where the window was when the object was last told, or was told by it.
    host::WindowPlace known_;
    bool released_ = false;
    bool presented_ = false;
};

} // namespace rf::native
