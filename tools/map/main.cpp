// Makes the map picture from the gazetteer: map TOWNS.TXT MAP.JPG. The same input gives the same picture.

#include "tools/map/jpeg_writer.h"
#include "tools/map/places.h"
#include "tools/map/sheet.h"
#include "tools/map/terrain.h"

#include <QGuiApplication>

#include <iostream>

namespace {

// A height of 150 k + 102 makes the rulers and the grid references agree.
constexpr int map_width = 5468;
constexpr int map_height = 6102;

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 3) {
        std::cerr << "usage: map TOWNS.TXT MAP.JPG\n";
        return 2;
    }
    const Terrain terrain(map_width, map_height);
    const auto places = read_places(argv[1], map_height);
    Sheet sheet(terrain, places);
    return write_jpeg(sheet.draw(), argv[2]) ? 0 : 1;
}
