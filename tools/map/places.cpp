#include "tools/map/places.h"

#include "core/files.h"
#include "core/record_syntax.h"

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
        const double north0 = map_height / 150;
        place.point = {east * 150, (north0 - north) * 150 + 102};
        places.push_back(place);
    }
    return places;
}
