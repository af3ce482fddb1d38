#include "tools/map/places.h"

#include "core/files.h"
#include "core/record_syntax.h"

QPointF from_kilometres(double east, double north, int map_height) {
    constexpr int km = 150; // pixels; the lowest row of the grid is cut off
    const int rows = map_height / km;
    return {east * km, (rows - north) * km + 102};
}

std::vector<Place> read_places(const std::string& file, int map_height) {
    std::vector<Place> places;
    const std::string bytes = files::read(file);
    FieldReader in(bytes);
    while (!in.at_end()) {
        Place place;
        place.name = QString::fromLatin1(in.text());
        static_cast<void>(in.text());
        const double east = std::stod(in.text()) / 100;
        const double north = std::stod(in.text()) / 100;
        place.notes = QString::fromLatin1(in.text());
        place.population = in.int16();
        static_cast<void>(in.text());
        place.point = from_kilometres(east, north, map_height);
        places.push_back(place);
    }
    return places;
}
