#pragma once

#include "core/program.h"

#include <QAccessibleWidget>

#include <cstdint>
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

    /// Tells which markers came, went, or were selected since it was last called. Of many at once, as a
    /// campaign that is opened brings, nothing is told: who is on the map asks for them.
    void tell_changes();

    /// The way to those who listen.
    std::function<void(QAccessibleEvent*)> send{QAccessible::updateAccessibility};

  private:
    enum class Look : std::uint8_t { hidden, shown, selected };

    Look look(int index) const;
    void send_change(int index, Look before, Look now) const;
    /// The indices of the markers that are shown on the map.
    std::vector<int> shown() const;
    QAccessibleInterface* marker(int index) const;

    MapView& view;
    const Program& program;
    mutable std::map<int, QAccessible::Id> markers; // by their index, made when they are asked for
    std::vector<Look> last_looks;                   // by the index of the marker
};
