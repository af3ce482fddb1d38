#include "tools/map/sheet.h"

#include <QFontMetricsF>
#include <QLineF>
#include <QPainterPath>

#include <algorithm>
#include <array>

namespace {

const QColor paper(0xF6, 0xF1, 0xE1);
const QColor wood(0xC9, 0xDD, 0xAE);
const QColor wood_edge(0x6F, 0x8F, 0x55);
const QColor black(0x22, 0x22, 0x22);
const QColor casing(0x3A, 0x2E, 0x26);
constexpr double water_margin = 30; // pixels from the middle of a river to the first house

QPainterPath path_of(const std::vector<QPointF>& line) {
    QPainterPath path(line.front());
    for (const QPointF& point : line) path.lineTo(point);
    return path;
}

QFont serif(int pixels, bool italic = false) {
    QFont font("Liberation Serif");
    font.setPixelSize(pixels);
    font.setItalic(italic);
    return font;
}

QPen pen(const QColor& colour, double width, Qt::PenStyle style = Qt::SolidLine) {
    return {colour, width, style, Qt::FlatCap, Qt::RoundJoin};
}

QPointF direction(const std::vector<QPointF>& line, std::size_t i) {
    const QPointF way = line[std::min(i + 1, line.size() - 1)] - line[i > 0 ? i - 1 : 0];
    const double length = std::hypot(way.x(), way.y());
    return length > 0 ? way / length : QPointF(1, 0);
}

/// About how far a place reaches from its middle.
double extent(const Place& place) {
    if (!place.is_town()) return place.population >= 700 ? 34 : 20;
    return 40 + place.population / 55.0;
}

QPointF across(QPointF way) { return {-way.y(), way.x()}; }

/// Where a level line crosses the edges of a cell: two or four points.
std::vector<QPointF> crossings(const Field& field, int column, int row, double level) {
    const std::array<std::pair<int, int>, 4> corners{
        {{column, row}, {column + 1, row}, {column + 1, row + 1}, {column, row + 1}}};
    std::vector<QPointF> points;
    for (std::size_t i = 0; i < 4; ++i) {
        const auto [ax, ay] = corners[i];
        const auto [bx, by] = corners[(i + 1) % 4];
        const double a = field.node(ax, ay) - level;
        const double b = field.node(bx, by) - level;
        if ((a < 0) == (b < 0)) continue;
        const double t = a / (a - b);
        points.emplace_back((ax + (bx - ax) * t) * Field::spacing, (ay + (by - ay) * t) * Field::spacing);
    }
    return points;
}

template <class Draw> void level_line(const Field& field, double level, Draw draw) {
    for (int row = 0; row + 1 < field.rows; ++row)
        for (int column = 0; column + 1 < field.columns; ++column) {
            const auto points = crossings(field, column, row, level);
            for (std::size_t i = 0; i + 1 < points.size(); i += 2) draw(points[i], points[i + 1]);
        }
}

/// A village at a ford stands where its road leads; only a town has streets on both banks.
std::vector<Place> on_their_banks(const Terrain& terrain, std::vector<Place> places) {
    for (Place& place : places)
        if (!place.is_town()) place.point = on_dry_ground(terrain, place.point);
    return places;
}

} // namespace

Sheet::Sheet(const Terrain& country, const std::vector<Place>& all_places)
    : terrain(country), places(on_their_banks(country, all_places)), roads(build_roads(country, all_places)),
      rails(railway(country.height)), image(country.width, country.height, QImage::Format_RGB32) {}

QImage Sheet::draw() {
    paper_and_tints();
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    trees();
    marshes();
    contours();
    ravine_edges();
    water();
    settlements();
    road_lines();
    rail();
    bridges();
    grid();
    names();
    spot_heights();
    painter.end();
    return image;
}

void Sheet::paper_and_tints() {
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QColor& ground = terrain.woods.at(QPointF(x, y)) > 0 ? wood : paper;
            const int grain = static_cast<int>(chance(x, y, 1) * 5) - 2;
            const bool fold = x % 1350 == 1349 || y % 1200 == 1199;
            const int shade = grain - (fold ? 5 : 0);
            const auto tone = [&](int value) { return std::clamp(value + shade, 0, 255); };
            line[x] = qRgb(tone(ground.red()), tone(ground.green()), tone(ground.blue()));
        }
    }
}

void Sheet::trees() {
    painter.setPen(pen(wood_edge, 1, Qt::DotLine));
    level_line(terrain.woods, 0, [&](QPointF a, QPointF b) { painter.drawLine(a, b); });
    painter.setPen(pen(wood_edge, 1));
    painter.setBrush(Qt::NoBrush);
    constexpr int apart = 26;
    for (int y = 0; y < image.height(); y += apart)
        for (int x = 0; x < image.width(); x += apart) {
            const QPointF p(x + apart * chance(x, y, 51), y + apart * chance(x, y, 52));
            if (terrain.woods.at(p) < 0.04) continue;
            painter.drawArc(QRectF(p.x() - 3, p.y() - 3, 6, 6), 0, 270 * 16);
            painter.drawLine(p + QPointF(0, 3), p + QPointF(4, 3));
        }
}

void Sheet::marshes() {
    painter.setPen(pen(QColor(0x5B, 0x93, 0xC4), 1));
    for (int y = 0; y < image.height(); y += 5)
        for (int x = 0; x < image.width(); x += 12) {
            const QPointF p(x + (y % 10 == 0 ? 6 : 0), y + 0.5);
            const double wet = terrain.marsh.at(p);
            if (wet <= 0 || chance(x, y, 61) < 0.25) continue;
            painter.drawLine(p, p + QPointF(wet > 0.15 ? 12 : 7, 0));
        }
}

void Sheet::contours() {
    for (int metres = 90; metres <= 220; metres += 10) contour_line(metres, metres % 50 == 0);
}

void Sheet::contour_line(double metres, bool index) {
    const QColor open = index ? QColor(0xB0, 0x7F, 0x4A) : QColor(0xC7, 0x9A, 0x6B);
    const QColor wooded(0xAE, 0x8A, 0x5A);
    std::vector<QPointF> figures;
    const double width = index ? 2 : 1.1;
    level_line(terrain.heights, metres, [&](QPointF a, QPointF b) {
        painter.setPen(QPen(terrain.woods.at(a) > 0 ? wooded : open, width, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(a, b);
        const bool far = std::none_of(figures.begin(), figures.end(), [&](QPointF f) {
            return std::hypot(f.x() - a.x(), f.y() - a.y()) < (index ? 700 : 1500);
        });
        if (far && a.x() > 60 && a.y() > 60) figures.push_back(a);
    });
    for (const QPointF& at : figures) {
        const QPointF down = terrain.heights.slope(at);
        // The foot of a figure stands downhill.
        const double angle = std::atan2(-down.x(), down.y());
        painter.save();
        painter.translate(at);
        painter.rotate(angle * 180 / 3.14159265);
        const QString text = QString::number(metres);
        painter.setFont(serif(12));
        const double half = QFontMetricsF(painter.font()).horizontalAdvance(text) / 2;
        painter.fillRect(QRectF(-half - 2, -6, 2 * half + 4, 12), paper);
        painter.setPen(QColor(0x9A, 0x6A, 0x38));
        painter.drawText(QPointF(-half, 4), text);
        painter.restore();
    }
}

void Sheet::ravine_edges() {
    const QColor brown(0xA0, 0x6A, 0x3A);
    for (const auto& ravine : terrain.ravines) {
        const std::size_t steep_end = ravine.size() * 3 / 4;
        painter.setPen(pen(QColor(0x3C, 0x7D, 0xB5), 1.4, Qt::CustomDashLine));
        QPen stream = pen(QColor(0x3C, 0x7D, 0xB5), 1.4);
        stream.setDashPattern({8, 5});
        painter.setPen(stream);
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(
            path_of({ravine.begin() + static_cast<std::ptrdiff_t>(ravine.size() / 3), ravine.end()}));
        // The sides meet at both ends.
        const auto open = [&](std::size_t i) {
            const auto from_head = static_cast<double>(i);
            const auto to_end = static_cast<double>(steep_end - i);
            const double half_width = 5 + 4 * std::min(1.0, from_head / 30);
            return half_width * std::sqrt(std::min({1.0, from_head / 5, to_end / 12}));
        };
        for (const double sign : {-1.0, 1.0}) {
            QPointF last = ravine.front();
            for (std::size_t i = 1; i <= steep_end; ++i) {
                const QPointF side = across(direction(ravine, i)) * sign;
                const QPointF edge = ravine[i] + side * open(i);
                painter.setPen(pen(brown, 1.6));
                painter.drawLine(last, edge);
                painter.setPen(pen(brown, 1));
                if (open(i) > 4.5) painter.drawLine(edge, edge - side * 4);
                last = edge;
            }
        }
    }
}

void Sheet::water() {
    const QColor bank(0x2F, 0x6F, 0xA8);
    const QColor tint(0xC4, 0xDF, 0xEF);
    const auto river = [&](const std::vector<QPointF>& line, double from, double to, double narrower,
                           const QColor& colour) {
        for (std::size_t i = 1; i < line.size(); ++i) {
            const double along = static_cast<double>(i) / static_cast<double>(line.size());
            painter.setPen(QPen(colour, std::lerp(from, to, along) - narrower, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(line[i - 1], line[i]);
        }
    };
    river(terrain.ozimka, 9, 16, 0, bank);
    river(terrain.tolva, 22, 38, 0, bank);
    river(terrain.ozimka, 9, 16, 2.4, tint);
    river(terrain.tolva, 22, 38, 2.4, tint);
    for (const auto* line : {&terrain.tolva, &terrain.ozimka}) {
        const QString text = line == &terrain.tolva ? "T O L V A" : "Osimka";
        for (std::size_t i = line->size() / 7; i + 40 < line->size(); i += line->size() / 4) {
            const QPointF way = direction(*line, i);
            painter.save();
            painter.translate((*line)[i] + across(way) * (line == &terrain.tolva ? -26 : -16));
            const QPointF reading = way.x() < 0 ? -way : way; // never upside down
            painter.rotate(std::atan2(reading.y(), reading.x()) * 180 / 3.14159265);
            const QFont font = serif(line == &terrain.tolva ? 22 : 17, true);
            halo_text({0, 0}, text, font, QColor(0x1F, 0x5E, 0x96));
            painter.restore();
            painter.setPen(pen(bank, 1.4));
            const QPointF tip = (*line)[i + 30];
            const QPointF flow = direction(*line, i + 30);
            painter.drawLine(tip - flow * 16, tip);
            painter.drawLine(tip, tip - flow * 6 + across(flow) * 3);
            painter.drawLine(tip, tip - flow * 6 - across(flow) * 3);
        }
    }
}

void Sheet::street(QPainter& on, const std::vector<QPointF>& line, const Place& place, int seed) {
    const bool town = place.is_town();
    const auto dry = [&](QPointF point) { return terrain.river_distance.at(point) > water_margin; };
    for (const QPen& ink : {pen(casing, 5), pen(QColor(0xFB, 0xF8, 0xEE), 3)}) {
        on.setPen(ink);
        for (std::size_t i = 1; i < line.size(); ++i)
            if (dry(line[i])) on.drawLine(line[i - 1], line[i]);
    }
    double since = 0;
    for (std::size_t i = 1; i < line.size(); ++i) {
        since += std::hypot(line[i].x() - line[i - 1].x(), line[i].y() - line[i - 1].y());
        if (since < (town ? 9 : 11)) continue;
        since = 0;
        const QPointF way = direction(line, i);
        for (const double sign : {-1.0, 1.0}) {
            const auto roll = chance(static_cast<std::int64_t>(i) + (sign > 0 ? 1000 : 0), seed, 71);
            if (roll < 0.18 || !dry(line[i])) continue;
            on.save();
            on.translate(line[i] + across(way) * sign * 8);
            on.rotate(std::atan2(way.y(), way.x()) * 180 / 3.14159265);
            const QSizeF house = town && roll > 0.45 ? QSizeF(8, 6) : QSizeF(5, 4);
            on.fillRect(QRectF(-house.width() / 2, -house.height() / 2, house.width(), house.height()),
                        QColor(0x3B, 0x34, 0x30));
            on.restore();
        }
    }
}

void Sheet::settlement(const Place& place) {
    painter.setBrush(Qt::NoBrush);
    if (place.is_farm() || place.population < 60) {
        for (int i = 0; i < 4; ++i)
            painter.fillRect(
                QRectF(place.point + QPointF(-8, -6) + QPointF(QPoint(i % 2, i / 2) * 7), QSizeF(5, 4)),
                QColor(0x3B, 0x34, 0x30));
        return;
    }
    const QPointF down = terrain.heights.slope(place.point);
    const double valley = std::atan2(down.y(), down.x()) + 3.14159265 / 2;
    const double length = std::min(620.0, 40 + place.population * 0.13 / (place.is_town() ? 3.2 : 1.3));
    const int streets =
        place.is_town() ? std::min(9, 3 + place.population / 1300) : (place.is_village() ? 2 : 1);
    std::vector<std::vector<QPointF>> lines;
    for (int s = 0; s < streets; ++s) {
        const double offset = (s - (streets - 1) / 2.0) * 27;
        const QPointF way(std::cos(valley), std::sin(valley));
        const QPointF middle = place.point + across(way) * offset;
        const double half = length / 2 * (0.75 + 0.35 * chance(s, place.population, 73));
        const QPointF bow = across(way) * (10 * noise(middle.x(), middle.y(), 90, 74));
        lines.push_back(smooth_curve({middle - way * half, middle + bow, middle + way * half}, 3));
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xDC, 0xE6, 0xBE));
    for (const auto& line : lines)
        for (std::size_t i = 0; i < line.size(); i += 4)
            if (terrain.river_distance.at(line[i]) > water_margin + 8)
                painter.drawEllipse(line[i],
                                    17 + 4 * chance(static_cast<std::int64_t>(i), place.population, 75), 17);
    painter.setBrush(Qt::NoBrush);
    if (place.is_town())
        for (int c = -2; c <= 2; ++c) {
            const QPointF way(std::cos(valley), std::sin(valley));
            const QPointF at = place.point + way * (length / 6 * c);
            const double reach = (streets - 1) / 2.0 * 27 + 8;
            street(painter, smooth_curve({at - across(way) * reach, at + across(way) * reach}, 3), place,
                   90 + c);
        }
    int seed = place.population;
    for (const auto& line : lines) street(painter, line, place, ++seed);
    if (place.notes.contains("church") || place.is_town()) {
        const QPointF church = on_dry_ground(terrain, place.point);
        painter.setPen(pen(black, 2));
        painter.drawLine(church + QPointF(0, -12), church + QPointF(0, 2));
        painter.drawLine(church + QPointF(-4, -8), church + QPointF(4, -8));
    }
}

void Sheet::settlements() {
    for (const Place& place : places) {
        settlement(place);
        const double reach = extent(place);
        taken.emplace_back(place.point.x() - reach, place.point.y() - reach / 1.5, 2 * reach, reach * 1.33);
    }
}

void Sheet::road_lines() {
    painter.setBrush(Qt::NoBrush);
    const auto draw = [&](RoadClass kind, const QPen& ink) {
        painter.setPen(ink);
        for (const Road& road : roads)
            if (road.kind == kind) painter.drawPath(path_of(road.line));
    };
    QPen track = pen(QColor(0x4A, 0x40, 0x38), 1.5);
    track.setDashPattern({6, 3.4});
    draw(RoadClass::track, track);
    draw(RoadClass::country, pen(casing, 2));
    draw(RoadClass::improved, pen(casing, 6));
    draw(RoadClass::highway, pen(casing, 7));
    draw(RoadClass::improved, pen(QColor(0xF3, 0xE3, 0xB0), 4));
    draw(RoadClass::highway, pen(QColor(0xE3, 0x9A, 0x6A), 5));
}

void Sheet::rail() {
    const QColor ink(0x1E, 0x1E, 0x1E);
    painter.setPen(pen(ink, 3.4));
    painter.drawPath(path_of(rails));
    double since = 0;
    for (std::size_t i = 1; i < rails.size(); ++i) {
        since += std::hypot(rails[i].x() - rails[i - 1].x(), rails[i].y() - rails[i - 1].y());
        if (since < 45) continue;
        since = 0;
        const QPointF side = across(direction(rails, i)) * 5;
        painter.setPen(pen(ink, 2));
        painter.drawLine(rails[i] - side, rails[i] + side);
    }
    for (const Place& place : places) {
        if (!place.notes.contains("rail")) continue;
        const Nearest at = nearest_on(rails, place.point);
        const auto i = static_cast<std::size_t>(at.along * static_cast<double>(rails.size() - 1));
        const QPointF way = direction(rails, i);
        painter.save();
        painter.translate(rails[i]);
        painter.rotate(std::atan2(way.y(), way.x()) * 180 / 3.14159265);
        painter.fillRect(QRectF(-9, -6, 18, 12), ink);
        painter.fillRect(QRectF(-7, -4, 14, 4), paper);
        painter.restore();
    }
}

void Sheet::bridges() {
    const auto bridge = [&](QPointF at, QPointF way, double reach) {
        painter.setPen(pen(black, 2));
        for (const double side : {-6.0, 6.0}) {
            const QPointF from = at + across(way) * side - way * reach;
            const QPointF to = at + across(way) * side + way * reach;
            painter.drawLine(from, to);
            painter.drawLine(from, from + across(way) * side * 0.6 - way * 5);
            painter.drawLine(to, to + across(way) * side * 0.6 + way * 5);
        }
    };
    std::vector<std::vector<QPointF>> ways{rails};
    for (const Road& road : roads)
        if (road.kind != RoadClass::track) ways.push_back(road.line);
    std::vector<QPointF> built;
    for (const auto& way : ways)
        for (std::size_t i = 2; i + 2 < way.size(); ++i) {
            const double here = terrain.river_distance.at(way[i]);
            const bool lowest =
                here < terrain.river_distance.at(way[i - 1]) && here <= terrain.river_distance.at(way[i + 1]);
            const bool far = std::none_of(built.begin(), built.end(), [&](QPointF b) {
                return std::hypot(b.x() - way[i].x(), b.y() - way[i].y()) < 40;
            });
            if (!lowest || here > 9 || !far) continue;
            const bool large = nearest_on(terrain.tolva, way[i]).distance < 20;
            bridge(way[i], direction(way, i), large ? 22 : 12);
            built.push_back(way[i]);
        }
}

void Sheet::spot_heights() {
    constexpr int around = 34; // nodes
    std::vector<QPointF> told_heights;
    for (int row = around; row + around < terrain.heights.rows; ++row)
        for (int column = around; column + around < terrain.heights.columns; ++column) {
            const double height = terrain.heights.node(column, row);
            bool highest = true;
            for (int dy = -around; highest && dy <= around; dy += 2)
                for (int dx = -around; highest && dx <= around; dx += 2)
                    highest = terrain.heights.node(column + dx, row + dy) <= height;
            const QPointF at(column * Field::spacing, row * Field::spacing);
            const QString figure = QString::number(height, 'f', 1);
            const QRectF box(at.x() - 6, at.y() - 9, 52, 18);
            // A flat top has several highest points; one figure is enough for it.
            const bool told = std::any_of(told_heights.begin(), told_heights.end(), [&](QPointF other) {
                return QLineF(other, at).length() < 2 * around * Field::spacing;
            });
            if (!highest || told || !is_free(box)) continue;
            told_heights.push_back(at);
            taken.push_back(box);
            painter.setPen(pen(black, 1.2));
            painter.setBrush(Qt::NoBrush);
            painter.drawPolygon(QPolygonF({at + QPointF(0, -5), at + QPointF(5, 4), at + QPointF(-5, 4)}));
            painter.drawPoint(at);
            halo_text(at + QPointF(9, 5), figure, serif(13), black);
        }
}

void Sheet::grid() {
    QColor ink(0x8A, 0x7C, 0xA8);
    ink.setAlpha(128);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(ink, 1));
    for (int x = 150; x < terrain.width; x += 150) painter.drawLine(x, 0, x, terrain.height - 1);
    for (int y = 102; y < terrain.height; y += 150) painter.drawLine(0, y, terrain.width - 1, y);
    painter.setRenderHint(QPainter::Antialiasing);
    const int rows = terrain.height / 150;
    const QColor figures(0x5A, 0x4F, 0x80);
    const auto figure = [](int number) { return QString("%1").arg(number % 100, 2, 10, QChar('0')); };
    const auto mark = [&](QPointF at, int number) {
        halo_text(at, figure(number), serif(14), figures);
        taken.emplace_back(at.x(), at.y() - 12, 16, 14);
    };
    for (int i = 1; i * 150 < terrain.width; ++i)
        for (const int y : {16, terrain.height - 6}) mark(QPointF(i * 150 + 3, y), i);
    for (int k = 0; k * 150 + 102 < terrain.height; ++k)
        for (const int x : {3, terrain.width - 20}) mark(QPointF(x, k * 150 + 99), rows - k);
    for (int i = 10; i * 150 < terrain.width; i += 10)
        for (int k = 0; k * 150 + 102 < terrain.height; ++k)
            if ((rows - k) % 10 == 0) {
                mark(QPointF(i * 150 + 3, k * 150 + 99), rows - k);
                mark(QPointF(i * 150 - 18, k * 150 + 116), i);
            }
}

bool Sheet::is_free(const QRectF& box) const {
    return std::none_of(taken.begin(), taken.end(),
                        [&](const QRectF& other) { return other.intersects(box); });
}

void Sheet::halo_text(QPointF baseline, const QString& text, const QFont& font, const QColor& colour) {
    QPainterPath path;
    path.addText(baseline, font, text);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(paper, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    painter.fillPath(path, colour);
}

void Sheet::name(const Place& place) {
    QFont font = serif(place.is_town() ? 27 : place.is_village() ? 20 : 16);
    if (place.is_town()) font.setLetterSpacing(QFont::AbsoluteSpacing, 3);
    const QString text = place.is_town() ? place.name.toUpper() : place.name;
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance(text);
    const double height = metrics.ascent();
    const double out = std::min(215.0, extent(place) + 10);
    const std::array<QPointF, 8> spots{
        QPointF(out, height / 3),        QPointF(-out - width, height / 3),
        QPointF(-width / 2, -out),       QPointF(-width / 2, out + height),
        QPointF(out, -out / 2),          QPointF(out, out / 2 + height),
        QPointF(-out - width, -out / 2), QPointF(-out - width, out / 2 + height)};
    QPointF best = spots[0];
    double best_cost = 1e9;
    for (const QPointF& spot : spots) {
        const QPointF at = place.point + spot;
        const QRectF box(at.x() - 3, at.y() - height, width + 6, height + 18);
        const bool inside = QRectF(4, 4, terrain.width - 8, terrain.height - 8).contains(box);
        double cost = (is_free(box) ? 0 : 1000) + (inside ? 0 : 5000);
        for (double x = box.left(); x <= box.right(); x += 12)
            cost += terrain.river_distance.at({x, box.center().y()}) < 34 ? 60 : 0;
        if (cost >= best_cost) continue;
        best_cost = cost;
        best = spot;
    }
    const QPointF at = place.point + best;
    taken.emplace_back(at.x() - 3, at.y() - height, width + 6, height + 18);
    halo_text(at, text, font, QColor(0x11, 0x11, 0x11));
    halo_text(at + QPointF(1, 13), QString::number(place.population / 1000.0, 'f', 2), serif(12),
              QColor(0x33, 0x33, 0x33));
}

void Sheet::names() {
    std::vector<const Place*> by_size;
    for (const Place& place : places) by_size.push_back(&place);
    std::stable_sort(by_size.begin(), by_size.end(),
                     [](const Place* a, const Place* b) { return a->population > b->population; });
    for (const Place* place : by_size) name(*place);
}
