#pragma once

#include <QEvent>
#include <QWidget>

#include <utility>

/// Whether a widget was painted since it was last asked.
class PaintWatch : public QObject {
  public:
    explicit PaintWatch(QWidget* widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject* /*widget*/, QEvent* event) override {
        painted = painted || event->type() == QEvent::Paint;
        return false;
    }
    bool was_painted() { return std::exchange(painted, false); }

  private:
    bool painted = false;
};
