#include "mapview/map_view_window.h"

#include "mapview/hit_target.h"
#include "mapview/map_controls_window.h"
#include "mapview/map_mouse.h"
#include "mapview/scrolling.h"
#include "widgets/map_image.h"
#include "widgets/painter_surface.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>

namespace {

MapPress map_press(const QMouseEvent& event, QPointF origin, Qt::MouseButtons buttons) {
    MapPress press;
    if (buttons & Qt::LeftButton) press.button |= 1;
    if (buttons & Qt::RightButton) press.button |= 2;
    if (buttons & Qt::MiddleButton) press.button |= 4;
    if (event.modifiers() & Qt::ShiftModifier) press.shift |= 1;
    if (event.modifiers() & Qt::ControlModifier) press.shift |= 2;
    const QPointF point = event.position() - origin;
    press.x = point.x();
    press.y = point.y();
    return press;
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
    if (!QRect(0, 0, picture->width(), picture->height()).contains(wanted))
        painter.fillRect(exposed, palette().window());
    painter.drawImage(exposed.topLeft(), picture->map, wanted);
    painter.save();
    painter.setClipRect(exposed);
    painter.translate(offset);
    PainterSurface surface(painter);
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
    const MapPress press = map_press(*event, origin(), event->button());
    // The control that took the first button gets everything until the last one is let go.
    if (first_button) pressed = hit_target(program, press.x, press.y).kind;
    events.run([&] { picMap_MouseDown(program, press); });
}

void MapView::mouseMoveEvent(QMouseEvent* event) {
    const MapPress press = map_press(*event, origin(), event->buttons());
    if (press.button != 0 ? !captured : !is_over_map(event->position())) return;
    events.run_small([&] {
        // While a button is down the moves go to the control that was pressed.
        const TargetKind target = press.button != 0 ? pressed : hit_target(program, press.x, press.y).kind;
        if (target == TargetKind::map)
            picMap_MouseMove(program, press);
        else
            control_MouseMove(program, press);
    });
}

void MapView::mouseReleaseEvent(QMouseEvent* event) {
    const MapPress press = map_press(*event, origin(), event->button());
    // A release over a marker or a label that was pressed has no effect of its own.
    if (captured && pressed == TargetKind::map) events.run([&] { picMap_MouseUp(program, press); });
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
