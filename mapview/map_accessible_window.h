#pragma once

#include "core/program.h"

#include <QAccessibleWidget>

#include <map>
#include <vector>

class MapView;

/// Lets those who ask for the map's accessible side find it.
void install_map_accessibility();

/// The map for those who do not see it: a picture with a child for each unit's marker.
class MapAccessible : public QAccessibleWidget {
  public:
    MapAccessible(MapView& view, const Program& program);
    MapAccessible(const MapAccessible&) = delete;
    MapAccessible& operator=(const MapAccessible&) = delete;
    ~MapAccessible() override;

    int childCount() const override;
    QAccessibleInterface* child(int number) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

  private:
    /// The indices of the markers that are shown on the map.
    std::vector<int> shown() const;
    QAccessibleInterface* marker(int index) const;

    MapView& view;
    const Program& program;
    mutable std::map<int, QAccessible::Id> markers; // by their index, made when they are asked for
};
