#include "benchmarks/bare_figures.h"

#include "widgets/colours_qt.h"
#include "widgets/fonts_qt.h"
#include "widgets/map_image.h"
#include "widgets/text.h"

#include <QFontMetrics>

#include <numbers>

namespace {

constexpr double sixteenths = 16 * 180 / std::numbers::pi;

using Kind = DrawingList::Kind;
using Figure = DrawingList::Figure;

const MapImage& picture(const Program& program) {
    return dynamic_cast<const MapImage&>(*program.main.picMap.picture);
}

QBrush hatch(int style, const QColor& colour, QColor ground) {
    QImage texture(8, 8, QImage::Format_ARGB32_Premultiplied);
    texture.fill(ground);
    for (int i = 0; i < 8; ++i) {
        if (style == 2) texture.setPixelColor(i, 4, colour);
        if (style == 3) texture.setPixelColor(4, i, colour);
        if (style == 7) texture.setPixelColor(i, i, colour);
        if (style == 7) texture.setPixelColor(i, 7 - i, colour);
    }
    return texture;
}

} // namespace

QPen pen_of(const Figure& figure) {
    constexpr Qt::PenStyle styles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine,
                                       Qt::DashDotDotLine};
    const Pen& pen = figure.pen;
    return {to_qt_colour(pen.ForeColor), static_cast<double>(pen.DrawWidth),
            pen.DrawWidth == 1 ? styles[pen.DrawStyle] : Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

QBrush brush_of(const Figure& figure) {
    const QColor colour = to_qt_colour(figure.pen.FillColor);
    if (figure.pen.FillStyle == 1) return Qt::NoBrush;
    if (figure.pen.FillStyle == 0) return colour;
    return hatch(figure.pen.FillStyle, colour, figure.pen.DrawMode == 9 ? Qt::white : Qt::transparent);
}

QPainter::CompositionMode mode_of(const Figure& figure) {
    const bool masks = figure.pen.DrawMode == 9 && figure.kind != Kind::print;
    return masks ? QPainter::RasterOp_SourceAndDestination : QPainter::CompositionMode_SourceOver;
}

QFont font_of(const Figure& figure) {
    return to_qt_font({"MS Sans Serif", static_cast<double>(figure.pen.FontSize), figure.pen.FontBold});
}

QRectF box_of(const Figure& figure) {
    const Point centre = figure.points.front();
    return {centre.x - figure.radius, centre.y - figure.radius, 2 * figure.radius, 2 * figure.radius};
}

QPolygonF points_of(const Figure& figure) {
    QPolygonF points;
    for (const Point& point : figure.points) points << QPointF(point.x, point.y);
    return points;
}

int start_of(const Figure& figure) { return static_cast<int>(figure.start * sixteenths); }

int span_of(const Figure& figure) {
    const double turn = figure.end - figure.start;
    return static_cast<int>((turn <= 0 ? turn + 2 * std::numbers::pi : turn) * sixteenths);
}

BareFigures::BareFigures(const Program& program, QSize view)
    : origin(static_cast<int>(program.main.picMap.left), static_cast<int>(program.main.picMap.top)),
      map(picture(program).map) {
    const QRectF in_view(-origin, view);
    const Bounds bounds{in_view.left(), in_view.top(), in_view.right(), in_view.bottom()};
    DrawingList seen;
    seen.wanted = bounds;
    program.painting.map.replay(seen);
    for (const Figure& figure : seen.figures())
        figures.push_back({figure.kind, mode_of(figure), pen_of(figure), brush_of(figure), points_of(figure),
                           box_of(figure), start_of(figure), span_of(figure), font_of(figure),
                           to_qt(figure.text)});
}

void BareFigures::draw(QImage& image) const {
    QPainter painter(&image);
    painter.drawImage(QPoint(0, 0), map, QRect(-origin, image.size()));
    painter.translate(origin);
    for (const Ready& figure : figures) draw(painter, figure);
}

void BareFigures::draw(QPainter& painter, const Ready& figure) const {
    painter.setCompositionMode(figure.mode);
    painter.setPen(figure.pen);
    switch (figure.kind) {
    case Kind::line:
        painter.drawLine(figure.points[0], figure.points[1]);
        return;
    case Kind::print:
        painter.setFont(figure.font);
        painter.drawText(figure.points[0] + QPointF(0, 10), figure.text);
        return;
    default:
        break;
    }
    painter.setBrush(figure.brush);
    if (figure.kind == Kind::circle) painter.drawEllipse(figure.box);
    if (figure.kind == Kind::pie) painter.drawPie(figure.box, figure.start, figure.span);
    if (figure.kind == Kind::polygon) painter.drawPolygon(figure.points);
}
