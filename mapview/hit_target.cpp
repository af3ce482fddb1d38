#include "mapview/hit_target.h"

namespace {

bool holds(const MapControl& control, double x, double y, Container container) {
    // & and not &&: of thousands of markers the processor can't guess which test fails first.
    const bool within_width = (x >= control.left) & (x < control.left + control.width);
    const bool within_height = (y >= control.top) & (y < control.top + control.height);
    return (within_width & within_height) && control.visible && control.container == container;
}

struct Search {
    Container container;
    HitTarget found;
    long depth = -1;

    template <class Control>
    void over(const ControlArray<Control>& controls, TargetKind kind, double x, double y) {
        for (int i = 1; i <= controls.upper(); ++i) {
            const MapControl& control = controls(i);
            if (!holds(control, x, y, container) || control.depth <= depth) continue;
            found = {kind, i};
            depth = control.depth;
        }
    }
};

} // namespace

HitTarget hit_target(const Program& program, double x, double y, Container container) {
    const RecordControls& controls = program.main;
    Search search{container, {}};
    search.over(controls.imgUnit, TargetKind::unit, x, y);
    search.over(controls.lblUser, TargetKind::label, x, y);
    search.over(controls.lblShapeLabel, TargetKind::shape_label, x, y);
    return search.found;
}
