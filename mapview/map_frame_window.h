#pragma once

#include "core/program.h"
#include "widgets/event_runner.h"

#include <QImage>
#include <QRectF>
#include <QWidget>

#include <vector>

/// A ruler beside the map: a light strip whose numbers move with the map.
class RulerView : public QWidget {
  public:
    /// `ruler` is `picHcoord` or `picVcoord`, `numbers` what was printed on it.
    RulerView(const Program& program, const char* name, PictureBox frmMain::*ruler,
              DrawingList Painting::*numbers, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Program& program;
    PictureBox frmMain::*ruler;
    DrawingList Painting::*numbers;
};

/// `picOverviewmap`: the whole map small, a dot for each unit and a box for what is in view.
class OverviewView : public QWidget {
  public:
    OverviewView(Program& program, EventRunner& events, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    struct Dot {
        explicit Dot(const OverviewDot& dot)
            : left(dot.left), top(dot.top), width(dot.width), height(dot.height), colour(dot.colour) {}
        bool operator==(const Dot&) const = default;

        double left;
        double top;
        double width;
        double height;
        std::int32_t colour;
    };
    bool dots_are_painted() const;
    void take_dots();
    /// All but the box, painted only when something of it has changed: a large campaign has thousands of
    /// fans.
    const QImage& content(double scale);
    void paint_content();

    Program& program;
    EventRunner& events;
    QImage painted;
    DrawingList painted_figures;
    std::vector<Dot> painted_dots;
};
