#pragma once

#include <QLabel>
#include <QTimer>

/// A panel of the status bar. Its text may follow the mouse; those who have it read to them are told of it a
/// few times a second at most.
class StatusPanel : public QLabel {
  public:
    StatusPanel();

    void show_text(const QString& text);

  private:
    void tell();

    QTimer wait; // until the next telling
};
