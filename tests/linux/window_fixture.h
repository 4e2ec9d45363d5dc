#pragma once

#include "linux/form_window.h"
#include "linux/toolkit.h"
#include "support/environment_variable.h"

#include <QApplication>
#include <QDir>
#include <QPalette>
#include <QTest>
#include <cstdlib>
#include <gtest/gtest.h>

namespace rf::native {

/// Windows on a screen that nobody sees, driven as a person drives them.
struct WindowFixture : testing::Test {
    const rf::test::EnvironmentVariable platform{"QT_QPA_PLATFORM", "offscreen"};
    int argumentCount = 1;
    char name[5] = "test";
    char* arguments[2] = {name, nullptr};
    QtToolkit toolkit{argumentCount, arguments};

    [[nodiscard]] static QtFormWindow& qtWindow(ui::FormWindow& window) { return dynamic_cast<QtFormWindow&>(window); }
    template <class Widget = QWidget>
    [[nodiscard]] static Widget* widget(ui::FormWindow& window, TextView control)
    {
        return qtWindow(window).dialog().findChild<Widget*>(qtText(control));
    }
    static void appear(ui::FormWindow& window)
    {
        window.show();
        static_cast<void>(QTest::qWaitForWindowActive(&qtWindow(window).dialog()));
    }
    /// Keys on whatever has the focus.
    static void type(const QString& text)
    {
        // The first key may open the field that takes the others.
        for (const QChar character : text)
            QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    [[nodiscard]] static Text focused()
    {
        const QWidget* widget = QApplication::focusWidget();
        return widget == nullptr ? Text{} : textOf(widget->objectName());
    }

    /// Keeps a picture for people to look at, below the build folder.
    static void picture(QWidget& window, const QString& file)
    {
        QDir folder{QCoreApplication::applicationDirPath() + QStringLiteral("/../pictures")};
        ASSERT_TRUE(folder.mkpath(QStringLiteral(".")));
        ASSERT_TRUE(window.grab().save(folder.filePath(file)));
    }
    static void darken()
    {
        QPalette palette{QColor{53, 53, 53}};
        palette.setColor(QPalette::Base, QColor{35, 35, 35});
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
    }
};

} // namespace rf::native
