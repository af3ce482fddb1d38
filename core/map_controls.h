#pragma once

#include "core/changes.h"
#include "core/controls.h"
#include "core/failure.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The controls that stand over the map or the overview, one per unit, label or shape. They are a drawing
// list, not widgets: the map window paints them in order of depth and finds the topmost one under the
// pointer.

/// A composed marker picture that the platform keeps; 0 is none.
using PictureId = int;

/// The tag of a control whose record is gone. Its index is never used again.
inline const std::string deleted_tag = "deleted";

/// The ID of a control's record, or "deleted".
class Tag : public Counted<std::string, TagChanges> {
  public:
    using Counted::Counted;
    using Counted::operator=;

    operator std::string_view() const { return text(); }
    friend bool operator==(const Tag& tag, std::string_view text) { return tag.text() == text; }

  private:
    const std::string& text() const { return *this; }
};

enum class Container : std::uint8_t { map, tray };

/// What all controls over the map have: map pixels, or pixels of the tray.
struct MapControl {
    Tag tag;
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    Container container = Container::map;
    bool visible = false;
    long depth = 0; // the greater is in front
};

/// `imgUnit`: the marker of a unit.
struct UnitMarker : MapControl {
    PictureId picture = 0;
    std::int32_t colour = 0;       // shown alone when there is no picture
    std::int16_t border_style = 0; // 1: selected
};

/// `shpUnit`: the unit's dot on the overview.
struct OverviewDot {
    std::string tag;
    double left = 0;
    double top = 0;
    double width = 3;
    double height = 4;
    std::int32_t colour = 0;
    bool visible = false;
};

/// `shpUnitState`: the bar at a marker that tells the unit's overall state.
struct StateBar : MapControl {
    std::int32_t fill_colour = 0;
};

/// `lblUser` and `lblShapeLabel`: a text on the map.
struct MapLabel : MapControl {
    std::string caption;
    Font font;
    std::int32_t colour = 0;
    std::int32_t back_colour = 0;
    std::int16_t back_style = 0; // 0 transparent, 1 filled
    std::int16_t border_style = 0;
};

/// `shpShape`: the outline and fill of a shape.
struct MapShape : MapControl {
    std::int16_t shape = 0;
    std::int16_t draw_mode = 13;
    std::int32_t border_colour = 0;
    std::int16_t border_width = 1;
    std::int32_t fill_colour = 0;
};

/// What the pointer is over. Shapes themselves let the mouse through to the map.
enum class TargetKind : std::uint8_t { map, unit, label, shape_label };

struct HitTarget {
    TargetKind kind = TargetKind::map;
    int index = 0; // of the control
};

/// Controls by index. Index 0 is the hidden template, so the first one made has index 1.
template <class Control> class ControlArray {
  public:
    /// Fails with 340 when no control of this index was made.
    Control& operator()(int index) {
        if (!has(index)) throw Failure{failure::no_such_control};
        return made[static_cast<std::size_t>(index)];
    }
    const Control& operator()(int index) const { return const_cast<ControlArray&>(*this)(index); }

    bool has(int index) const { return index >= 0 && static_cast<std::size_t>(index) < made.size(); }

    /// The control of this index, made if need be.
    Control& load(int index) {
        if (!has(index)) made.resize(static_cast<std::size_t>(index) + 1);
        return made[static_cast<std::size_t>(index)];
    }

    /// Takes back the controls from this index on.
    void unload_from(int index) {
        if (has(index)) made.resize(static_cast<std::size_t>(index));
    }

    int upper() const { return static_cast<int>(made.size()) - 1; }

  private:
    std::vector<Control> made = std::vector<Control>(1);
};
