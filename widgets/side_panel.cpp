#include "widgets/side_panel.h"

#include <QScrollArea>
#include <QVBoxLayout>

SidePanel::SidePanel(const char* name, const PictureBox& twin, double area_top, EventRunner& events,
                     QWidget* parent)
    : QFrame(parent),
      bind(this, [&events](const ControlBinder::Procedure& procedure) { events.run(procedure); }), twin(twin),
      area_top(area_top) {
    setObjectName(name);
    setAutoFillBackground(true);
    hide();
}

QVBoxLayout* SidePanel::make_page() {
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.9);
    setFont(small);
    auto* const outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* const scroller = new QScrollArea;
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setWidgetResizable(true);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->setFocusPolicy(Qt::NoFocus);
    outer->addWidget(scroller);
    auto* const contents = new QWidget;
    scroller->setWidget(contents);
    auto* const page = new QVBoxLayout(contents);
    page->setContentsMargins(2, 2, 2, 2);
    page->setSpacing(3);
    return page;
}

void SidePanel::bring_in_step() {
    const QRect place = QRectF(twin.left, twin.top - area_top, twin.width, twin.height).toRect();
    if (geometry() != place) setGeometry(place);
    if (twin.visible && !isVisibleTo(parentWidget())) {
        show();
        if (comes_to_front) raise();
    }
    if (!twin.visible) hide();
    if (twin.visible) bind.bring_in_step();
}
