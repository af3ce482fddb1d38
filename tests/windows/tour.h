#pragma once

#include "tests/windows/desktop.h"

#include <QAction>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QString>

#include <string>

/// A way through the program's real windows that leaves pictures of them in the build folder.
class Tour : public testing::Test {
  protected:
    /// Empties the folder of the pictures, one for each size of screen.
    void leave_pictures_in(const char* suffix) {
        const QSize screen = QApplication::primaryScreen()->size();
        pictures = QString(TOUR_DIRECTORY) +
                   QString("/%1x%2%3%4").arg(screen.width()).arg(screen.height()).arg(suffix, scale_suffix());
        QDir(pictures).removeRecursively();
        QDir().mkpath(pictures);
    }

    static QString scale_suffix() {
        const double scale = QApplication::primaryScreen()->devicePixelRatio();
        return scale == 1 ? QString() : QString(" scaled by %1").arg(scale);
    }

    void picture(QWidget* of, const char* name) {
        QTest::qWait(30);
        EXPECT_TRUE(of->grab().save(pictures + "/" + name + ".png")) << name;
    }

    void choose_file(const char* entry, const std::string& path, const char* name) {
        desktop.with_dialog([&] { desktop.entry(entry)->trigger(); },
                            [&](QWidget* dialog) {
                                auto* const edit = dialog->findChild<QLineEdit*>("fileNameEdit");
                                ASSERT_NE(edit, nullptr);
                                edit->setText(QString::fromStdString(path));
                                if (name != nullptr) picture(dialog, name);
                                QTest::keyClick(edit, Qt::Key_Return);
                            });
        QTest::qWait(30);
    }

    /// Ends a message that nobody expects, so that the tour does not stand still.
    void end_unexpected_messages() {
        QObject::connect(&watch, &QTimer::timeout, [] {
            auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) return;
            ADD_FAILURE() << box->text().toStdString();
            box->reject();
        });
        watch.start(1500);
    }

    Desktop desktop;
    QTimer watch;
    QString pictures;
};
