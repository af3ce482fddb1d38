#include "mapview/map_frame_window.h"

#include "mapview/mouse_press_window.h"
#include "mapview/overview.h"
#include "widgets/colours_qt.h"
#include "widgets/map_image.h"
#include "widgets/painter_surface.h"

#include <QPaintEvent>
#include <QPainter>

namespace {

const QColor ruler_ground(0xF2, 0xF2, 0xEE); // light in any theme: the numbers are dark blue

} // namespace

RulerView::RulerView(const Program& program, const char* name, PictureBox frmMain::*ruler,
                     DrawingList Painting::*numbers, QWidget* parent)
    : QWidget(parent), program(program), ruler(ruler), numbers(numbers) {
    setObjectName(name);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void RulerView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), ruler_ground);
    const PictureBox& strip = program.main.*ruler;
    painter.translate(strip.left, strip.top);
    PainterSurface surface(painter);
    const QRectF wanted = QRectF(rect()).translated(-strip.left, -strip.top);
    (program.painting.*numbers)
        .replay(surface, {wanted.left(), wanted.top(), wanted.right(), wanted.bottom()});
}

OverviewView::OverviewView(Program& program, EventRunner& events, QWidget* parent)
    : QWidget(parent), program(program), events(events) {
    setMouseTracking(true);
    setObjectName("picOverviewmap");
    setAccessibleName("Overview map");
}

void OverviewView::mousePressEvent(QMouseEvent* event) {
    events.run([&] { picOverviewmap_MouseDown(program, mouse_press(*event, event->button())); });
}

void OverviewView::mouseMoveEvent(QMouseEvent* event) {
    const MapPress press = mouse_press(*event, event->buttons());
    if (press.button == 0)
        events.run_small([&] { picOverviewmap_MouseMove(program, press); });
    else
        events.run([&] { picOverviewmap_MouseMove(program, press); });
}

void OverviewView::mouseReleaseEvent(QMouseEvent* event) {
    events.run([&] { picOverviewmap_MouseUp(program, mouse_press(*event, event->button())); });
}

void OverviewView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const frmMain& main = program.main;
    if (const auto* const picture = dynamic_cast<const MapImage*>(main.picMap.picture.get()))
        painter.drawImage(0, 0, picture->overview);
    PainterSurface surface(painter);
    program.painting.overview.replay(surface, {0, 0, main.picOverviewmap.width, main.picOverviewmap.height});
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    for (int i = 1; i <= main.shpUnit.upper(); ++i) {
        const OverviewDot& dot = main.shpUnit(i);
        if (dot.visible)
            painter.fillRect(QRectF(dot.left, dot.top, dot.width, dot.height), to_qt_colour(dot.colour));
    }
    const ShapeControl& box = main.shpOverviewbox;
    painter.setPen(Qt::red);
    painter.setBrush(Qt::NoBrush);
    if (box.visible) painter.drawRect(QRectF(box.left, box.top, box.width - 1, box.height - 1));
}
