#include "widgets/status_panel.h"

namespace {

const char* const name_of_empty_panel = "Status";

} // namespace

StatusPanel::StatusPanel() {
    constexpr int milliseconds_between = 300;
    setMargin(2);
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setAccessibleName(name_of_empty_panel); // a label without a name tells of every text it is given
    wait.setSingleShot(true);
    wait.setInterval(milliseconds_between);
    connect(&wait, &QTimer::timeout, this, &StatusPanel::tell);
}

void StatusPanel::show_text(const QString& text) {
    if (text == this->text()) return;
    setText(text);
    if (!wait.isActive()) wait.start();
}

void StatusPanel::tell() { setAccessibleName(text().isEmpty() ? name_of_empty_panel : text()); }
