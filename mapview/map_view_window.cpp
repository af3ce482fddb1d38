#include "mapview/map_view_window.h"

#include "mapview/hit_target.h"
#include "mapview/map_accessible_window.h"
#include "mapview/map_controls_window.h"
#include "mapview/map_mouse.h"
#include "mapview/mouse_press_window.h"
#include "mapview/scrolling.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>

MapView::MapView(Program& program, const Sprites& sprites, EventRunner& events, QWidget* parent)
    : QWidget(parent), program(program), sprites(sprites), events(events) {
    install_map_accessibility();
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

void MapView::paint_view(QPainter& painter, const QRect& exposed) {
    const QPoint offset = origin().toPoint();
    const QRect map(offset, QSize(static_cast<int>(program.main.picMap.width),
                                  static_cast<int>(program.main.picMap.height)));
    const QRect on_map = map & inside();
    if (!on_map.contains(exposed)) painter.fillRect(exposed, palette().window());
    if (on_map.isEmpty()) return;
    painter.drawImage(on_map.topLeft(), layers.image(program, on_map.translated(-offset),
                                                     painter.device()->devicePixelRatioF()));
    painter.setClipRect(exposed & on_map);
    painter.translate(offset);
    paint_map_controls(painter, program.main, sprites, exposed.translated(-offset));
}

void MapView::update_find_marker() {
    constexpr double reach = 27; // of its strokes and their width
    const LineControl& stroke = program.main.linFindgridx;
    const QPointF centre = QPointF((stroke.x1 + stroke.x2) / 2, stroke.y1) + origin();
    update(QRectF(centre.x() - reach, centre.y() - reach, 2 * reach, 2 * reach).toAlignedRect());
}

void MapView::update_scratch_lines() {
    const frmMain& main = program.main;
    if (main.linTempLine.visible || main.linTempLine2.visible || main.shpRubberband.visible) update();
}

QRect MapView::inside() const {
    const int border = static_cast<int>(program.main.picMapwindow.border);
    return rect().adjusted(border, border, -border, -border);
}

void MapView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    for (QRect frame = rect(); frame != inside(); frame.adjust(1, 1, -1, -1))
        painter.drawRect(frame.adjusted(0, 0, -1, -1));
    painter.setClipRect(event->rect() & inside());
    paint_view(painter, event->rect() & inside());
}

bool MapView::is_over_map(QPointF point) const {
    const QRectF map(origin(), QSizeF(program.main.picMap.width, program.main.picMap.height));
    const QRectF shown = QRectF(inside()) & map;
    return shown.left() <= point.x() && point.x() < shown.right() && shown.top() <= point.y() &&
           point.y() < shown.bottom();
}

void MapView::mousePressEvent(QMouseEvent* event) {
    if (!is_known(event->button())) return;
    const bool first_button = is_first(*event);
    if (first_button) captured = is_over_map(event->position());
    if (!captured) return;
    const MapPress press = mouse_press(*event, event->button(), origin());
    // The control that took the first button gets everything until the last one is let go.
    if (first_button) pressed = hit_target(program, press.x, press.y);
    events.run([&] { mouse_down(program, pressed, press); });
}

void MapView::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void MapView::end_capture() {
    captured = false;
    end_press(program);
}

void MapView::mouseMoveEvent(QMouseEvent* event) {
    const MapPress press = mouse_press(*event, event->buttons(), origin());
    if (press.button != 0 ? !captured : !is_over_map(event->position())) return;
    if (drag_goes_on(*event)) {
        drag_to(event->globalPosition(), false);
        return;
    }
    events.run_small([&] {
        // While a button is down the moves go to the control that was pressed.
        mouse_move(program, press.button != 0 ? pressed : hit_target(program, press.x, press.y), press);
    });
    update_scratch_lines();
}

void MapView::mouseReleaseEvent(QMouseEvent* event) {
    if (!captured || !is_known(event->button())) return;
    if (program.main.dragging) {
        if (event->button() == Qt::LeftButton) drag_to(event->globalPosition(), true);
        return;
    }
    const MapPress press = mouse_press(*event, event->button(), origin());
    events.run([&] {
        if (pressed.kind == TargetKind::map)
            picMap_MouseUp(program, press);
        else
            control_MouseUp(program, pressed);
    });
}

bool MapView::drag_goes_on(const QMouseEvent& event) {
    // A drag whose release was lost, to another window say, is over.
    if (!(event.buttons() & Qt::LeftButton)) program.main.dragging = false;
    return program.main.dragging;
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
    // Another panel may lie over the tray.
    const QWidget* const on_top = window()->childAt(window()->mapFromGlobal(global.toPoint()));
    for (const auto& [site, widget] : drop_sites) {
        if (on_top == widget || widget->isAncestorOf(on_top)) return {site, widget->mapFromGlobal(global)};
    }
    if (on_top != this) return {DropSite::nowhere, {}};
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
