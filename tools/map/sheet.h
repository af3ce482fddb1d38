#pragma once

#include "tools/map/places.h"
#include "tools/map/roads.h"
#include "tools/map/terrain.h"

#include <QImage>
#include <QPainter>
#include <QRectF>

#include <vector>

/// Draws the sheet in the order in which the colours are printed.
class Sheet {
  public:
    Sheet(const Terrain& terrain, const std::vector<Place>& places);

    QImage draw();

  private:
    void paper_and_tints();
    void trees();
    void marshes();
    void water();
    void contours();
    void contour_line(double metres, bool index);
    void ravine_edges();
    void settlements();
    void settlement(const Place& place);
    void street(QPainter& painter, const std::vector<QPointF>& line, const Place& place, int seed);
    void road_lines();
    void rail();
    void bridges();
    void spot_heights();
    void grid();
    void names();
    void name(const Place& place);
    bool is_free(const QRectF& box) const;
    void halo_text(QPointF baseline, const QString& text, const QFont& font, const QColor& colour);

    const Terrain& terrain;
    const std::vector<Place> places;
    std::vector<Road> roads;
    std::vector<QPointF> rails;
    std::vector<QRectF> taken; // by texts and signs
    QImage image;
    QPainter painter;
};
