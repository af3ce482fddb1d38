#pragma once

#include "core/program.h"
#include "platform/qt_platform.h"
#include "program/frmStart.h"
#include "program/paint_order.h"
#include "program/press_order.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <string>

/// The real program on the window system at hand, started through its splash, driven by the names of its
/// controls.
class Desktop {
  public:
    Desktop() : platform(PROGRAM_DIRECTORY), program(platform, paint_order(), tool_order()) {
        platform.serve(program);
    }

    /// Shows the splash and waits until the main window stands.
    void start() {
        program.form<frmStart>().Form_Load();
        QTest::qWait(50);
        splash_picture =
            QApplication::activeWindow() != nullptr ? QApplication::activeWindow()->grab() : QPixmap();
        ASSERT_TRUE(QTest::qWaitFor([&] { return platform.main_window() != nullptr; }, 20000));
        QTest::qWait(50);
        ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
    }

    QWidget* window() const { return platform.main_window(); }

    template <class Widget = QWidget> Widget* control(const char* name) const {
        auto* const found = window()->findChild<QWidget*>(name);
        EXPECT_NE(found, nullptr) << name;
        return dynamic_cast<Widget*>(found);
    }

    QAction* entry(const char* name) const {
        auto* const found = window()->findChild<QAction*>(name);
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    void click(const char* name) const { QTest::mouseClick(control(name), Qt::LeftButton); }

    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(window()->windowHandle(), code, modifiers);
        QTest::qWait(1);
    }

    /// Does what opens a dialog, and hands the dialog to the answer as soon as it is there.
    void with_dialog(const std::function<void()>& opens, const std::function<void(QWidget*)>& answer) const {
        QTimer poll;
        bool answered = false;
        QObject::connect(&poll, &QTimer::timeout, [&] {
            QWidget* const dialog = QApplication::activeModalWidget();
            if (dialog == nullptr || answered) return;
            answered = true;
            poll.stop();
            answer(dialog);
        });
        poll.start(20);
        opens();
        EXPECT_TRUE(answered) << "no dialog came";
        // What a window manager does when a dialog has gone.
        window()->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window()));
    }

    QtPlatform platform;
    Program program;
    QPixmap splash_picture;
};
