#include "mapview/map_controls_window.h"

#include "widgets/colours_qt.h"
#include "widgets/fonts_qt.h"
#include "widgets/painter_surface.h"
#include "widgets/text.h"

#include <QRectF>

#include <algorithm>
#include <functional>
#include <vector>

namespace {

/// A control in view, to be painted in its turn.
struct Waiting {
    long depth;
    std::function<void()> paint;
};

QRectF box(const MapControl& control) { return {control.left, control.top, control.width, control.height}; }

/// How far a control's paint reaches beyond its box.
double margin(const UnitMarker& /*marker*/) { return 1; }
double margin(const MapShape& shape) { return 1 + shape.border_width / 2.0; }
double margin(const StateBar& /*bar*/) { return 0; }
double margin(const MapLabel& label) { return label.font.size; } // letters that lean out

template <class Control> bool in_view(const Control& control, const Bounds& wanted, Container container) {
    const Bounds box{control.left, control.top, control.left + control.width, control.top + control.height};
    return wanted.meets(box.grown_by(margin(control))) && control.visible && control.container == container;
}

void paint_marker(QPainter& painter, const UnitMarker& marker, const Sprites& sprites) {
    const QPixmap& picture = sprites.picture(marker.picture);
    if (picture.isNull())
        painter.fillRect(box(marker), to_qt_colour(marker.colour));
    else
        painter.drawPixmap(QPointF(marker.left, marker.top).toPoint(), picture);
    if (marker.border_style == 0) return;
    painter.setPen(Qt::black);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(box(marker).adjusted(-1, -1, 0, 0));
}

void paint_label(QPainter& painter, const MapLabel& label) {
    if (label.back_style != 0) painter.fillRect(box(label), to_qt_colour(label.back_colour));
    painter.setPen(to_qt_colour(label.colour));
    painter.setBrush(Qt::NoBrush);
    if (label.border_style != 0) painter.drawRect(box(label).adjusted(0, 0, -1, -1));
    const double frame = label.border_style != 0 ? 1 : 0;
    painter.setFont(to_qt_font(label.font));
    painter.drawText(box(label).adjusted(frame, frame, -frame, -frame), Qt::AlignLeft | Qt::TextDontClip,
                     to_qt(label.caption));
}

void paint_shape(QPainter& painter, const MapShape& shape) {
    PainterSurface surface(painter);
    surface.pen.ForeColor = shape.border_colour;
    surface.pen.FillColor = shape.fill_colour;
    surface.pen.FillStyle = 0;
    surface.pen.DrawWidth = std::max<int>(1, shape.border_width);
    surface.pen.DrawMode = shape.draw_mode;
    // Square and circle are as large as the smaller side allows, in the middle of the box.
    const bool even_sided = shape.shape == 1 || shape.shape == 3 || shape.shape == 5;
    const double side = std::min(shape.width, shape.height);
    const double width = even_sided ? side : shape.width;
    const double height = even_sided ? side : shape.height;
    const Point top_left{shape.left + (shape.width - width) / 2, shape.top + (shape.height - height) / 2};
    const bool oval = shape.shape == 2 || shape.shape == 3;
    const bool rounded = shape.shape == 4 || shape.shape == 5;
    if (oval)
        surface.ellipse(top_left, width, height);
    else
        surface.rectangle(top_left, width, height, rounded ? std::min(width, height) / 5 : 0);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void paint_state_bar(QPainter& painter, const StateBar& bar) {
    painter.setPen(Qt::black);
    painter.setBrush(to_qt_colour(bar.fill_colour));
    painter.drawRect(box(bar).adjusted(0, 0, -1, -1));
}

void paint_line(QPainter& painter, const LineControl& line) {
    if (!line.visible) return;
    painter.setPen(QPen(to_qt_colour(line.colour), line.width));
    painter.drawLine(QPointF(line.x1, line.y1), QPointF(line.x2, line.y2));
}

void paint_find_marker(QPainter& painter, const frmMain& main) {
    const ShapeControl& ring = main.shpFindgrid;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::red, ring.border_width));
    if (ring.visible) painter.drawEllipse(QRectF(ring.left, ring.top, ring.width - 1, ring.height - 1));
    for (const LineControl* line : {&main.linFindgridx, &main.linFindgridy}) paint_line(painter, *line);
}

void paint_scratch_controls(QPainter& painter, const frmMain& main) {
    for (const LineControl* line : {&main.linTempLine, &main.linTempLine2}) paint_line(painter, *line);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::red);
    for (const ShapeControl& anchor : main.shpAnchor)
        if (anchor.visible)
            painter.drawEllipse(QRectF(anchor.left, anchor.top, anchor.width - 1, anchor.height - 1));
    paint_band(painter, main.shpRubberband);
}

template <class Control, class Paint>
void collect(std::vector<Waiting>& waiting, const ControlArray<Control>& controls, const Bounds& wanted,
             Paint paint, Container container = Container::map) {
    for (int i = 1; i <= controls.upper(); ++i) {
        const Control& control = controls(i);
        if (in_view(control, wanted, container))
            waiting.push_back({control.depth, [&control, paint] { paint(control); }});
    }
}

void paint_by_depth(std::vector<Waiting>& waiting) {
    std::sort(waiting.begin(), waiting.end(),
              [](const Waiting& a, const Waiting& b) { return a.depth < b.depth; });
    for (const Waiting& control : waiting) control.paint();
}

} // namespace

void paint_band(QPainter& painter, const ShapeControl& band) {
    if (!band.visible) return;
    painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(band.left, band.top, band.width, band.height));
}

void paint_tray_controls(QPainter& painter, const frmMain& main, const Sprites& sprites) {
    std::vector<Waiting> waiting;
    const Bounds everywhere;
    collect(
        waiting, main.imgUnit, everywhere,
        [&](const UnitMarker& control) { paint_marker(painter, control, sprites); }, Container::tray);
    collect(
        waiting, main.shpUnitState, everywhere,
        [&](const StateBar& control) { paint_state_bar(painter, control); }, Container::tray);
    paint_by_depth(waiting);
    paint_band(painter, main.shpTrayRubberband);
}

void paint_map_controls(QPainter& painter, const frmMain& main, const Sprites& sprites, const QRect& wanted) {
    const QRectF box(wanted);
    const Bounds area{box.left(), box.top(), box.right(), box.bottom()};
    std::vector<Waiting> waiting;
    const auto label = [&](const MapLabel& control) { paint_label(painter, control); };
    collect(waiting, main.imgUnit, area,
            [&](const UnitMarker& control) { paint_marker(painter, control, sprites); });
    collect(waiting, main.shpUnitState, area,
            [&](const StateBar& control) { paint_state_bar(painter, control); });
    collect(waiting, main.shpShape, area, [&](const MapShape& control) { paint_shape(painter, control); });
    collect(waiting, main.lblShapeLabel, area, label);
    collect(waiting, main.lblUser, area, label);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    paint_by_depth(waiting);
    paint_scratch_controls(painter, main);
    paint_find_marker(painter, main);
}
