#include "widgets/status_panel.h"

namespace {

// The accessible name is set by us alone: a label without one tells of every text it is given.
const char* const name_of_empty_panel = "Status";

} // namespace

StatusPanel::StatusPanel() {
    constexpr int milliseconds_between = 300;
    setMargin(2);
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setAccessibleName(name_of_empty_panel);
    told.setSingleShot(true);
    told.setInterval(milliseconds_between);
    connect(&told, &QTimer::timeout, this, &StatusPanel::tell);
}

void StatusPanel::show_text(const QString& text) {
    if (text == this->text()) return;
    setText(text);
    if (!told.isActive()) told.start();
}

void StatusPanel::tell() { setAccessibleName(text().isEmpty() ? name_of_empty_panel : text()); }
