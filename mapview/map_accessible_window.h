#pragma once

#include "core/program.h"

#include <QAccessibleWidget>

#include <functional>
#include <map>
#include <vector>

class MapView;

/// Lets those who ask for the map's accessible side find it.
void install_map_accessibility();

/// Tells of the changes of markers, when anyone listens.
void tell_marker_changes(MapView& view);

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

    /// Tells which markers came, went, moved, or were selected since it was last called.
    void tell_changes();

    std::function<void(QAccessibleEvent*)> tell{QAccessible::updateAccessibility};

  private:
    /// What is told of a marker.
    struct Look {
        bool shown = false;
        bool selected = false;
        double left = 0;
        double top = 0;
    };

    Look look(int index) const;
    void tell_change(int index, const Look& before, const Look& now) const;
    /// The indices of the markers that are shown on the map.
    std::vector<int> shown() const;
    QAccessibleInterface* marker(int index) const;

    MapView& view;
    const Program& program;
    mutable std::map<int, QAccessible::Id> markers; // by their index, made when they are asked for
    std::vector<Look> told;                         // by the index of the marker
};
