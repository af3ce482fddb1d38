#include "mapview/map_view_window.h"

#include "mapview/hit_target.h"
#include "mapview/map_controls_window.h"
#include "mapview/map_mouse.h"
#include "mapview/mouse_press_window.h"
#include "mapview/painting.h"
#include "mapview/scrolling.h"
#include "widgets/map_image.h"
#include "widgets/painter_surface.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>

namespace {

bool shows_scratch_lines(const frmMain& main) {
    return main.linTempLine.visible || main.linTempLine2.visible || main.shpRubberband.visible;
}

} // namespace

MapView::MapView(Program& program, const Sprites& sprites, EventRunner& events, QWidget* parent)
    : QWidget(parent), program(program), sprites(sprites), events(events) {
    setObjectName("picMapwindow");
    setAccessibleName("Map");
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::CrossCursor);
}

QPointF MapView::origin() const {
    const frmMain& main = program.main;
    return {main.picMapwindow.border + main.picMap.left, main.picMapwindow.border + main.picMap.top};
}

void MapView::paint_view(QPainter& painter, const QRect& exposed) const {
    const frmMain& main = program.main;
    const auto* const picture = dynamic_cast<const MapImage*>(main.picMap.picture.get());
    if (picture == nullptr) return;
    const QPoint offset = origin().toPoint();
    const QRect wanted = exposed.translated(-offset);
    const QRect on_map(offset, picture->map.size());
    if (!on_map.contains(exposed)) painter.fillRect(exposed, palette().window());
    painter.drawImage(exposed.topLeft(), picture->map, wanted);
    painter.save();
    painter.setClipRect(exposed & on_map);
    painter.translate(offset);
    PainterSurface surface(painter);
    cover_view(program);
    program.painting.map.replay(surface,
                                {static_cast<double>(wanted.left()), static_cast<double>(wanted.top()),
                                 static_cast<double>(wanted.right()), static_cast<double>(wanted.bottom())});
    paint_map_controls(painter, main, sprites, wanted);
    painter.restore();
}

void MapView::update_find_marker() {
    constexpr double reach = 27; // of its strokes and their width
    const LineControl& stroke = program.main.linFindgridx;
    const QPointF centre = QPointF((stroke.x1 + stroke.x2) / 2, stroke.y1) + origin();
    update(QRectF(centre.x() - reach, centre.y() - reach, 2 * reach, 2 * reach).toAlignedRect());
}

void MapView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const int border = static_cast<int>(program.main.picMapwindow.border);
    const QRect inside = rect().adjusted(border, border, -border, -border);
    paint_view(painter, event->rect() & inside);
    painter.setPen(palette().color(QPalette::Mid));
    for (int i = 0; i < border; ++i) painter.drawRect(rect().adjusted(i, i, -i - 1, -i - 1));
}

bool MapView::is_over_map(QPointF point) const {
    const double border = program.main.picMapwindow.border;
    const QRectF inside = QRectF(rect()).adjusted(border, border, -border, -border);
    const QRectF map(origin(), QSizeF(program.main.picMap.width, program.main.picMap.height));
    return (inside & map).contains(point);
}

void MapView::mousePressEvent(QMouseEvent* event) {
    const bool first_button = event->buttons() == event->button();
    if (first_button) captured = is_over_map(event->position());
    if (!captured) return;
    const MapPress press = mouse_press(*event, event->button(), origin());
    // The control that took the first button gets everything until the last one is let go.
    if (first_button) pressed = hit_target(program, press.x, press.y);
    events.run([&] { mouse_down(program, pressed, press); });
}

void MapView::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void MapView::mouseMoveEvent(QMouseEvent* event) {
    const MapPress press = mouse_press(*event, event->buttons(), origin());
    if (press.button != 0 ? !captured : !is_over_map(event->position())) return;
    if (program.main.dragging) {
        drag_to(event->globalPosition(), false);
        return;
    }
    events.run_small([&] {
        // While a button is down the moves go to the control that was pressed.
        mouse_move(program, press.button != 0 ? pressed : hit_target(program, press.x, press.y), press);
    });
    if (shows_scratch_lines(program.main)) update();
}

void MapView::mouseReleaseEvent(QMouseEvent* event) {
    const MapPress press = mouse_press(*event, event->button(), origin());
    // A release over a marker or a label that was pressed has no effect of its own.
    if (program.main.dragging) {
        drag_to(event->globalPosition(), true);
        return;
    }
    if (captured && pressed.kind == TargetKind::map) events.run([&] { picMap_MouseUp(program, press); });
}

void MapView::drag_to(QPointF global, bool drop) {
    const DropPlace place = drop_place(global);
    const auto act = [&] {
        if (drop)
            drag_drop(program, place.site, place.point.x(), place.point.y());
        else
            drag_over(program, place.site, place.point.x(), place.point.y());
    };
    if (drop)
        events.run(act);
    else
        events.run_small(act);
}

MapView::DropPlace MapView::drop_place(QPointF global) const {
    for (const auto& [site, widget] : drop_sites) {
        const QPointF point = widget->mapFromGlobal(global);
        if (widget->isVisible() && QRectF(widget->rect()).contains(point)) return {site, point};
    }
    const QPointF point = mapFromGlobal(global);
    return {is_over_map(point) ? DropSite::map : DropSite::nowhere, point - origin()};
}

void MapView::wheelEvent(QWheelEvent* event) {
    // The wheel is a hand on the scroll bars: one notch is one of their small steps.
    constexpr double notch = 120;
    const frmMain& main = program.main;
    const QPointF notches = QPointF(event->angleDelta()) / notch;
    const bool sideways = event->modifiers() & Qt::ShiftModifier;
    const double dx = sideways ? notches.y() : notches.x();
    const double dy = sideways ? 0 : notches.y();
    events.run([&] {
        scroll_horizontally_to(program, main.scrlHMap.value - dx * main.scrlHMap.small_change);
        scroll_vertically_to(program, main.scrlVMap.value - dy * main.scrlVMap.small_change);
    });
    event->accept();
}
