#include "core/program.h"
#include "platform/qt_platform.h"
#include "program/frmStart.h"
#include "program/paint_order.h"
#include "program/press_order.h"

#include <QApplication>
#include <QIcon>
#include <QImageReader>
#include <QSettings>

int main(int /*argc*/, char** argv) {
    int only_the_name = 1; // the program takes no command line
    QApplication application(only_the_name, argv);
    QApplication::setApplicationName("tolvane2");
    QApplication::setApplicationDisplayName("");
    QApplication::setDesktopFileName("org.example.tolvane2");
    QApplication::setWindowIcon(QIcon(":/pictures/program.svg"));
    // The splash goes away before the main window comes.
    QApplication::setQuitOnLastWindowClosed(false);
    QImageReader::setAllocationLimit(0); // maps are larger than its default; sizes are checked before reading
    // Dialogs of the library would keep settings of their own.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
    QtPlatform platform(QApplication::applicationDirPath().toStdString());
    Program program(platform, paint_order(), tool_order());
    platform.serve(program);
    auto& splash = program.form<frmStart>();
    splash.Form_Load();
    return splash.visible ? QApplication::exec() : 1;
}
