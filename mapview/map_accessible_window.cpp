#include "mapview/map_accessible_window.h"

#include "mapview/hit_target.h"
#include "mapview/map_view_window.h"
#include "mapview/unit_info_rows.h"
#include "widgets/text.h"

#include <QWindow>

#include <algorithm>
#include <utility>

namespace {

bool is_shown(const ControlArray<UnitMarker>& markers, int index) {
    return markers.has(index) && markers(index).visible && markers(index).container == Container::map &&
           markers(index).tag != deleted_tag;
}

/// One marker: its unit's nationality, name and type, and where it is on the screen.
class MarkerAccessible : public QAccessibleInterface {
  public:
    MarkerAccessible(MapView& view, const Program& program, int index)
        : view(view), program(program), index(index) {}

    int number() const { return index; }

    bool isValid() const override { return unit() != nullptr; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return view.window()->windowHandle(); }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&view); }
    QAccessibleInterface* child(int /*number*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Graphic; }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

    QString text(QAccessible::Text kind) const override {
        const oUnits* const shown = unit();
        if (kind != QAccessible::Name || shown == nullptr) return {};
        return to_qt(full_name(*shown));
    }

    QRect rect() const override {
        if (!isValid()) return {};
        const UnitMarker& marker = program.main.imgUnit(index);
        const QRectF on_map(marker.left, marker.top, marker.width, marker.height);
        const QRect in_view = on_map.translated(view.origin()).toAlignedRect();
        return {view.mapToGlobal(in_view.topLeft()), in_view.size()};
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.selectable = true;
        state.selected = isValid() && program.main.imgUnit(index).border_style == 1;
        state.offscreen = !QRect(view.mapToGlobal(QPoint(0, 0)), view.size()).intersects(rect());
        return state;
    }

  private:
    const oUnits* unit() const {
        if (!is_shown(program.main.imgUnit, index)) return nullptr;
        return program.campaign.colUnits->look_up(program.main.imgUnit(index).tag);
    }

    MapView& view;
    const Program& program;
    int index;
};

QAccessibleInterface* accessible_map(const QString& /*class_name*/, QObject* object) {
    auto* const view = dynamic_cast<MapView*>(object);
    return view == nullptr ? nullptr : new MapAccessible(*view, view->shown_program());
}

} // namespace

void install_map_accessibility() { QAccessible::installFactory(accessible_map); }

void tell_marker_changes(MapView& view) {
    if (!QAccessible::isActive()) return;
    auto* const face = dynamic_cast<MapAccessible*>(QAccessible::queryAccessibleInterface(&view));
    if (face != nullptr) face->tell_changes();
}

MapAccessible::MapAccessible(MapView& view, const Program& program)
    : QAccessibleWidget(&view, QAccessible::Graphic), view(view), program(program) {}

MapAccessible::~MapAccessible() {
    for (const auto& [index, id] : markers) QAccessible::deleteAccessibleInterface(id);
}

std::vector<int> MapAccessible::shown() const {
    std::vector<int> indices;
    const ControlArray<UnitMarker>& all = program.main.imgUnit;
    for (int i = 1; i <= all.upper(); ++i)
        if (is_shown(all, i)) indices.push_back(i);
    return indices;
}

QAccessibleInterface* MapAccessible::marker(int index) const {
    const auto known = markers.find(index);
    if (known != markers.end()) return QAccessible::accessibleInterface(known->second);
    auto* const made = new MarkerAccessible(view, program, index); // kept by the register until the map goes
    markers[index] = QAccessible::registerAccessibleInterface(made);
    return made;
}

int MapAccessible::childCount() const { return static_cast<int>(shown().size()); }

QAccessibleInterface* MapAccessible::child(int number) const {
    const std::vector<int> indices = shown();
    if (number < 0 || static_cast<std::size_t>(number) >= indices.size()) return nullptr;
    return marker(indices[static_cast<std::size_t>(number)]);
}

QAccessibleInterface* MapAccessible::childAt(int x, int y) const {
    const QPointF point = view.mapFromGlobal(QPoint(x, y));
    const QPointF place = point - view.origin();
    const HitTarget target = hit_target(program, place.x(), place.y());
    const bool on_marker = target.kind == TargetKind::unit && is_shown(program.main.imgUnit, target.index);
    return on_marker && view.is_over_map(point) ? marker(target.index) : nullptr;
}

int MapAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto* const marker = dynamic_cast<const MarkerAccessible*>(child);
    if (marker == nullptr) return -1;
    const std::vector<int> indices = shown();
    const auto place = std::find(indices.begin(), indices.end(), marker->number());
    return place == indices.end() ? -1 : static_cast<int>(place - indices.begin());
}

MapAccessible::Look MapAccessible::look(int index) const {
    if (!is_shown(program.main.imgUnit, index)) return Look::hidden;
    return program.main.imgUnit(index).border_style == 1 ? Look::selected : Look::shown;
}

void MapAccessible::send_change(int index, Look before, Look now) const {
    const auto send_event = [&](QAccessible::Event kind) {
        QAccessibleEvent event(marker(index), kind);
        send(&event);
    };
    if (now == Look::hidden) {
        send_event(QAccessible::ObjectDestroyed);
    } else if (before == Look::hidden) {
        send_event(QAccessible::ObjectCreated);
    } else {
        send_event(now == Look::selected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
        QAccessible::State changed;
        changed.selected = true;
        QAccessibleStateChangeEvent event(marker(index), changed);
        send(&event);
    }
}

void MapAccessible::tell_changes() {
    constexpr std::size_t many = 20;
    const bool first_time = last_looks.empty();
    std::vector<Look> looks(static_cast<std::size_t>(program.main.imgUnit.upper()) + 1, Look::hidden);
    for (std::size_t i = 1; i < looks.size(); ++i) looks[i] = look(static_cast<int>(i));
    last_looks.resize(std::max(looks.size(), last_looks.size()), Look::hidden);
    looks.resize(last_looks.size(), Look::hidden);
    std::vector<std::size_t> changed;
    for (std::size_t i = 1; i < looks.size(); ++i)
        if (looks[i] != last_looks[i]) changed.push_back(i);
    last_looks.swap(looks);
    if (first_time || changed.size() > many) return;
    for (const std::size_t i : changed) send_change(static_cast<int>(i), looks[i], last_looks[i]);
}
