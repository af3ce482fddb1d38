#pragma once

#include <QPointF>
#include <QSize>
#include <QString>

#include <string>
#include <vector>

/// A place of the gazetteer on the map.
struct Place {
    QString name;
    QString notes;
    int population = 0;
    QPointF point; // map pixels

    bool is_town() const { return population >= 1500; }
    bool is_village() const { return population >= 300; }
    bool is_farm() const { return notes == "farmstead"; }
};

/// The pixel at a place given in kilometres from the south-west corner of the grid.
QPointF from_kilometres(double east, double north, int map_height);

/// Reads the gazetteer; grid references become pixels of a map of this height, as the program has them.
std::vector<Place> read_places(const std::string& file, int map_height);
