#pragma once

#include "core/program.h"
#include "widgets/event_runner.h"

#include <QWidget>

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
    Program& program;
    EventRunner& events;
};
