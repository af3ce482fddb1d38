#include "annotation/vertices.h"

#include "core/numbers.h"

#include <cmath>

bool is_near(const oCoordinates& vertex, double x, double y) {
    constexpr double reach = 2;
    return std::abs(x - vertex.x_cor) < reach && std::abs(y - vertex.y_cor) < reach;
}

std::size_t first_near(const CollectionRef<oCoordinates>& vertices, double x, double y) {
    std::size_t place = 0;
    if (vertices.empty()) return 0;
    for (const auto& vertex : vertices) {
        ++place;
        if (is_near(*vertex, x, y)) return place;
    }
    return 0;
}

std::shared_ptr<oCoordinates> drawn_vertex(double x, double y) {
    return std::make_shared<oCoordinates>(oCoordinates{to_long(x), to_long(y)});
}

std::shared_ptr<oCoordinates> dropped_vertex(double x, double y) {
    return drawn_vertex(whole_part(x), whole_part(y));
}
