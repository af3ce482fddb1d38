#include <QApplication>
#include <QFont>
#include <QImageReader>
#include <QTimer>

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    // The same look wherever the tests run.
    QApplication::setFont(QFont("DejaVu Sans", 9));
    QImageReader::setAllocationLimit(0);
    // A dialog that nobody answers must not hold the tests for ever.
    constexpr int longest_run = 240000;
    QTimer::singleShot(longest_run, [] {
        std::cerr << "The tests hang in a dialog.\n";
        std::_Exit(3);
    });
    return RUN_ALL_TESTS();
}
