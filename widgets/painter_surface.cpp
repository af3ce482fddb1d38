#include "widgets/painter_surface.h"

#include "core/dashes.h"
#include "widgets/colours_qt.h"
#include "widgets/fonts_qt.h"
#include "widgets/text.h"

#include <QFontMetrics>
#include <QImage>
#include <QLineF>
#include <QList>
#include <QPainterPathStroker>
#include <QPolygonF>
#include <QStringList>

#include <numbers>

namespace {

constexpr int mask_mode = 9;
constexpr int hatch_size = 8;

/// A hatch as a texture on white. The library's own hatch brushes paint their gaps black in mask mode; white
/// leaves the map as it is there.
QBrush hatch(int style, const QColor& colour, bool mask) {
    QImage texture(hatch_size, hatch_size, QImage::Format_ARGB32_Premultiplied);
    texture.fill(mask ? Qt::white : Qt::transparent);
    for (int i = 0; i < hatch_size; ++i) {
        if (style == 2 || style == 6) texture.setPixelColor(i, hatch_size / 2, colour);
        if (style == 3 || style == 6) texture.setPixelColor(hatch_size / 2, i, colour);
        if (style == 4 || style == 7) texture.setPixelColor(i, hatch_size - 1 - i, colour);
        if (style == 5 || style == 7) texture.setPixelColor(i, i, colour);
    }
    return QBrush(texture);
}

/// Only a thin line can be broken.
bool is_dashed(const Pen& pen) { return pen.DrawWidth <= 1 && pen.DrawStyle > 0 && pen.DrawStyle < 5; }

QRectF around(Point centre, double radius) {
    return {centre.x - radius, centre.y - radius, 2 * radius, 2 * radius};
}

} // namespace

void PainterSurface::apply_mode() {
    painter.setCompositionMode(pen.DrawMode == mask_mode ? QPainter::RasterOp_SourceAndDestination
                                                         : QPainter::CompositionMode_SourceOver);
}

const QPen& PainterSurface::outline() {
    if (outlined && outlined->ForeColor == pen.ForeColor && outlined->DrawWidth == pen.DrawWidth)
        return outline_pen;
    outlined = pen;
    outline_pen = {to_qt_colour(pen.ForeColor), static_cast<double>(pen.DrawWidth), Qt::SolidLine,
                   Qt::RoundCap, Qt::RoundJoin};
    return outline_pen;
}

QBrush PainterSurface::fill() {
    const QColor colour = to_qt_colour(pen.FillColor);
    if (pen.FillStyle == 0) return colour;
    if (pen.FillStyle == 1) return Qt::NoBrush;
    const bool mask = pen.DrawMode == mask_mode;
    QBrush& made = hatches[{pen.FillStyle, pen.FillColor, mask}];
    if (made.style() == Qt::NoBrush) made = hatch(pen.FillStyle, colour, mask);
    return made;
}

const PainterSurface::Lettering& PainterSurface::lettering() {
    const std::pair look{pen.FontSize, pen.FontBold};
    const auto known = letterings.find(look);
    if (known != letterings.end()) return known->second;
    const QFont font = to_qt_font({"MS Sans Serif", static_cast<double>(pen.FontSize), pen.FontBold});
    const QFontMetrics metrics(font, painter.device());
    return letterings.emplace(look, Lettering{font, metrics.ascent(), metrics.height()}).first->second;
}

template <class Draw, class Outline> void PainterSurface::fill_and_outline(Draw draw, Outline outline_path) {
    apply_mode();
    if (pen.FillStyle != 1) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill());
        draw();
    }
    if (is_dashed(pen)) {
        outline_in_dashes(outline_path());
        return;
    }
    painter.setPen(outline());
    painter.setBrush(Qt::NoBrush);
    draw();
}

void PainterSurface::outline_in_dashes(const QPainterPath& path) {
    QPainterPathStroker stroker;
    stroker.setWidth(1);
    stroker.setCapStyle(Qt::FlatCap);
    QList<qreal> pattern;
    for (const double length : dash_pattern(pen.DrawStyle)) pattern << length;
    stroker.setDashPattern(pattern);
    painter.fillPath(stroker.createStroke(path), to_qt_colour(pen.ForeColor));
}

void PainterSurface::line(Point from, Point to) {
    apply_mode();
    if (!is_dashed(pen)) {
        painter.setPen(outline());
        painter.drawLine(QPointF(from.x, from.y), QPointF(to.x, to.y));
        return;
    }
    // The library starts its own dashes where the line comes into view: they would crawl under scrolling.
    const Bounds in_reach = wanted.grown_by(pen.DrawWidth);
    const std::vector<Point> strokes = dashes(from, to, pen.DrawStyle, in_reach);
    QList<QLineF> lines;
    for (std::size_t i = 0; i + 1 < strokes.size(); i += 2)
        lines << QLineF(strokes[i].x, strokes[i].y, strokes[i + 1].x, strokes[i + 1].y);
    painter.setPen(to_qt_colour(pen.ForeColor));
    painter.drawLines(lines);
}

void PainterSurface::circle(Point centre, double radius) {
    const QRectF box = around(centre, radius);
    fill_and_outline([&] { painter.drawEllipse(box); },
                     [&] {
                         QPainterPath path;
                         path.addEllipse(box);
                         return path;
                     });
}

void PainterSurface::pie(Point centre, double radius, double start, double end) {
    constexpr double degrees = 180 / std::numbers::pi;
    constexpr int units = 16; // of a painter's angle to the degree
    double span = end - start;
    if (span <= 0) span += 2 * std::numbers::pi;
    const QRectF box = around(centre, radius);
    const int from = qRound(start * degrees * units);
    const int sweep = qRound(span * degrees * units);
    fill_and_outline([&] { painter.drawPie(box, from, sweep); },
                     [&] {
                         QPainterPath path(box.center());
                         path.arcTo(box, start * degrees, span * degrees);
                         path.closeSubpath();
                         return path;
                     });
}

void PainterSurface::polygon(const std::vector<Point>& points) {
    QPolygonF corners;
    for (const Point& point : points) corners << QPointF(point.x, point.y);
    if (!is_dashed(pen)) {
        fill_and_outline([&] { painter.drawPolygon(corners); }, [] { return QPainterPath(); });
        return;
    }
    // Edge by edge: a corner may lie anywhere, and only what is in reach is cut into dashes.
    apply_mode();
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill());
    painter.drawPolygon(corners);
    for (std::size_t i = 0; i < points.size(); ++i) line(points[i], points[(i + 1) % points.size()]);
}

void PainterSurface::print(Point at, const std::string& text) {
    if (text.empty()) return;
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setPen(to_qt_colour(pen.ForeColor));
    const Lettering& letters = lettering();
    painter.setFont(letters.font);
    double baseline = at.y + letters.ascent;
    for (const QString& line : to_qt(text).split('\n')) {
        painter.drawText(QPointF(at.x, baseline), line);
        baseline += letters.line_height;
    }
}

void PainterSurface::rectangle(Point top_left, double width, double height, double corner_radius) {
    const QRectF box(top_left.x, top_left.y, width, height);
    fill_and_outline([&] { painter.drawRoundedRect(box, corner_radius, corner_radius); },
                     [] { return QPainterPath(); });
}

void PainterSurface::ellipse(Point top_left, double width, double height) {
    fill_and_outline([&] { painter.drawEllipse(QRectF(top_left.x, top_left.y, width, height)); },
                     [] { return QPainterPath(); });
}
