#include "benchmarks/graphics_scene.h"

#include "benchmarks/bare_figures.h"
#include "widgets/map_image.h"
#include "widgets/text.h"

#include <QGraphicsItem>
#include <QPainter>
#include <QPixmap>
#include <QStyleOptionGraphicsItem>

namespace {

using Kind = DrawingList::Kind;
using Figure = DrawingList::Figure;

/// One of the library's own items, combined with what is under it as the figure wants.
template <class Item> class Combined : public Item {
  public:
    Combined(QPainter::CompositionMode mode) : mode(mode) {}

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override {
        painter->setCompositionMode(mode);
        Item::paint(painter, option, widget);
    }

  private:
    QPainter::CompositionMode mode;
};

class MapScene : public QGraphicsScene {
  public:
    explicit MapScene(const QImage& map) : QGraphicsScene(QRectF(map.rect())), map(map) {}

  protected:
    void drawBackground(QPainter* painter, const QRectF& wanted) override {
        painter->drawImage(wanted, map, wanted);
    }

  private:
    const QImage& map;
};

template <class Item> QGraphicsItem* outlined(const Figure& figure, Item* item) {
    item->setPen(pen_of(figure));
    item->setBrush(brush_of(figure));
    return item;
}

QGraphicsItem* item_of(const Figure& figure) {
    const QPainter::CompositionMode mode = mode_of(figure);
    const QPolygonF points = points_of(figure);
    switch (figure.kind) {
    case Kind::line: {
        auto* line = new Combined<QGraphicsLineItem>(mode);
        line->setLine(QLineF(points[0], points[1]));
        line->setPen(pen_of(figure));
        return line;
    }
    case Kind::print: {
        auto* text = new QGraphicsSimpleTextItem(to_qt(figure.text));
        text->setPos(points[0]);
        text->setFont(font_of(figure));
        text->setBrush(pen_of(figure).color());
        return text;
    }
    case Kind::polygon: {
        auto* polygon = new Combined<QGraphicsPolygonItem>(mode);
        polygon->setPolygon(points);
        return outlined(figure, polygon);
    }
    default: {
        auto* ellipse = new Combined<QGraphicsEllipseItem>(mode);
        ellipse->setRect(box_of(figure));
        if (figure.kind == Kind::pie) ellipse->setStartAngle(start_of(figure));
        if (figure.kind == Kind::pie) ellipse->setSpanAngle(span_of(figure));
        return outlined(figure, ellipse);
    }
    }
}

void add_markers(QGraphicsScene& scene, const frmMain& main, double depth) {
    QPixmap picture(29, 31);
    picture.fill(Qt::darkRed);
    for (int i = 1; i <= main.imgUnit.upper(); ++i) {
        QGraphicsPixmapItem* const marker = scene.addPixmap(picture);
        marker->setPos(main.imgUnit(i).left, main.imgUnit(i).top);
        marker->setZValue(++depth);
    }
}

} // namespace

std::unique_ptr<QGraphicsScene> graphics_scene(const Program& program) {
    const auto& picture = dynamic_cast<const MapImage&>(*program.main.picMap.picture);
    auto scene = std::make_unique<MapScene>(picture.map);
    double depth = 0;
    for (const Figure& figure : program.painting.map.figures()) {
        QGraphicsItem* const item = item_of(figure);
        item->setZValue(++depth);
        scene->addItem(item);
    }
    add_markers(*scene, program.main, depth);
    return scene;
}

void paint_graphics_scene(QGraphicsScene& scene, const Program& program, QImage& image) {
    QPainter painter(&image);
    const QRectF source(-program.main.picMap.left, -program.main.picMap.top, image.width(), image.height());
    scene.render(&painter, QRectF(image.rect()), source);
}
