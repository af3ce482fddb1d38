#pragma once

#include "core/program.h"

#include <QImage>
#include <QPainter>
#include <QPen>
#include <QPolygonF>
#include <QStaticText>

#include <vector>

/// The figures of the last paint that are in view, ready for a painter, with nothing of the program left to
/// do: what drawing them can't cost less than.
class BareFigures {
  public:
    BareFigures(const Program& program, QSize view);

    void draw(QImage& image) const;

  private:
    struct Ready {
        DrawingList::Kind kind;
        QPainter::CompositionMode mode;
        QPen pen;
        QBrush brush;
        QPolygonF points;
        QRectF box;
        int start = 0;
        int span = 0;
        QFont font;
        QString text;
    };

    void draw(QPainter& painter, const Ready& figure) const;

    QPoint origin;
    const QImage& map;
    std::vector<Ready> figures;
};

/// The parts of a recorded figure as a painter wants them.
QPen pen_of(const DrawingList::Figure& figure);
QBrush brush_of(const DrawingList::Figure& figure);
QPainter::CompositionMode mode_of(const DrawingList::Figure& figure);
QFont font_of(const DrawingList::Figure& figure);
QRectF box_of(const DrawingList::Figure& figure);
QPolygonF points_of(const DrawingList::Figure& figure);
/// In sixteenths of a degree.
int start_of(const DrawingList::Figure& figure);
int span_of(const DrawingList::Figure& figure);
