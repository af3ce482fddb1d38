#include "core/program.h"
#include "platform/qt_platform.h"
#include "program/frmStart.h"
#include "program/paint_order.h"

#include <QApplication>
#include <QIcon>
#include <QImageReader>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("tolvane2");
    QApplication::setApplicationDisplayName("");
    QApplication::setDesktopFileName("org.example.tolvane2");
    QApplication::setWindowIcon(QIcon(":/pictures/program.svg"));
    // The splash goes away before the main window comes.
    QApplication::setQuitOnLastWindowClosed(false);
    QImageReader::setAllocationLimit(0); // maps are larger than its default; sizes are checked before reading
    QtPlatform platform(QApplication::applicationDirPath().toStdString());
    Program program(platform, paint_order());
    platform.serve(program);
    auto& splash = program.form<frmStart>();
    splash.Form_Load();
    return splash.visible ? QApplication::exec() : 1;
}
