// Peak memory of a started program beyond the decoded map.

#include "platform/qt_platform.h"
#include "program/frmStart.h"
#include "program/paint_order.h"

#include <QApplication>
#include <QImageReader>

#include <cstdio>

#include <sys/resource.h>

int main(int /*argc*/, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int only_the_name = 1;
    const QApplication application(only_the_name, argv);
    QImageReader::setAllocationLimit(0);
    QtPlatform platform(PROGRAM_DIRECTORY);
    Program program(platform, paint_order());
    platform.serve(program);
    program.campaign.gAppPath = PROGRAM_DIRECTORY;
    program.form<frmStart>().tmrTimer_Timer();
    platform.main_window()->grab();
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    constexpr double megabyte = 1024.0 * 1024.0;
    constexpr double limit = 80;
    const double peak = static_cast<double>(usage.ru_maxrss) * 1024 / megabyte;
    const double map = program.main.picMap.width * program.main.picMap.height * 3 / megabyte;
    std::printf("peak %.1f MB, map %.1f MB, beyond it %.1f MB of at most %.0f MB\n", peak, map, peak - map,
                limit);
    return peak - map <= limit ? 0 : 1;
}
