#include "program/frmStart_window.h"

#include <QFont>
#include <QIcon>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

namespace {

constexpr QSize picture_size(480, 270);

void enlarge(QLabel* label, double points) {
    QFont font = label->font();
    font.setPointSizeF(points);
    label->setFont(font);
    label->setAlignment(Qt::AlignCenter);
}

} // namespace

frmStart_window::frmStart_window(frmStart& form, EventRunner& events, QWidget* parent)
    : FormWindow(form, events, parent) {
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    auto* const page = new QVBoxLayout(this);
    auto* const picture = new QLabel;
    picture->setPixmap(QIcon(":/pictures/splash.svg").pixmap(picture_size));
    page->addWidget(picture);
    QLabel* const title = heading(form.heading);
    enlarge(title, 26);
    page->addWidget(title);
    for (const std::string* line : {&form.version, &form.progress}) {
        QLabel* const label = text(*line);
        enlarge(label, 11);
        page->addWidget(label);
    }
    timer.setInterval(form.tmrTimer.interval);
    connect(&timer, &QTimer::timeout, this, [this, &form] {
        timer.stop();
        repaint(); // the long step begins: what is to be read must be on screen
        run([&form] { form.tmrTimer_Timer(); });
    });
    if (form.tmrTimer.enabled) timer.start();
}
