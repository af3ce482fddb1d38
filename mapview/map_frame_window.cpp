#include "mapview/map_frame_window.h"

#include "mapview/mouse_press_window.h"
#include "mapview/overview.h"
#include "widgets/colours_qt.h"
#include "widgets/map_image.h"
#include "widgets/painter_surface.h"

#include <QPaintEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

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
    surface.wanted = {wanted.left(), wanted.top(), wanted.right(), wanted.bottom()};
    (program.painting.*numbers).replay(surface);
}

OverviewView::OverviewView(Program& program, EventRunner& events, QWidget* parent)
    : QWidget(parent), program(program), events(events) {
    setMouseTracking(true);
    setObjectName("picOverviewmap");
    setAccessibleName("Overview map");
    setFocusPolicy(Qt::TabFocus); // for its popup menu
}

void OverviewView::mousePressEvent(QMouseEvent* event) {
    if (!is_known(event->button())) return;
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
    if (!is_known(event->button())) return;
    events.run([&] { picOverviewmap_MouseUp(program, mouse_press(*event, event->button())); });
}

void OverviewView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.drawImage(0, 0, content(painter.device()->devicePixelRatioF()));
    const ShapeControl& box = program.main.shpOverviewbox;
    painter.setPen(Qt::red);
    if (box.visible) painter.drawRect(QRectF(box.left, box.top, box.width - 1, box.height - 1));
    if (!hasFocus()) return;
    QStyleOptionFocusRect frame;
    frame.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
}

const QImage& OverviewView::content(double scale) {
    const DrawingList& figures = program.painting.overview;
    const QSize needed = (QSizeF(size()) * scale).toSize();
    if (painted.size() == needed && painted_figures.same_figures(figures) && dots_are_painted())
        return painted;
    painted_figures = figures;
    take_dots();
    painted = QImage(needed, QImage::Format_RGB32);
    painted.setDevicePixelRatio(scale);
    paint_content();
    return painted;
}

void OverviewView::paint_content() {
    QPainter painter(&painted);
    if (const auto* const picture = dynamic_cast<const MapImage*>(program.main.picMap.picture.get()))
        painter.drawImage(0, 0, picture->overview);
    PainterSurface surface(painter);
    surface.wanted = {0, 0, static_cast<double>(width()), static_cast<double>(height())};
    program.painting.overview.replay(surface);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    for (const Dot& dot : painted_dots)
        painter.fillRect(QRectF(dot.left, dot.top, dot.width, dot.height), to_qt_colour(dot.colour));
}

bool OverviewView::dots_are_painted() const {
    const ControlArray<OverviewDot>& dots = program.main.shpUnit;
    auto next = painted_dots.begin();
    for (int i = 1; i <= dots.upper(); ++i) {
        if (!dots(i).visible) continue;
        if (next == painted_dots.end() || *next != Dot(dots(i))) return false;
        ++next;
    }
    return next == painted_dots.end();
}

void OverviewView::take_dots() {
    const ControlArray<OverviewDot>& dots = program.main.shpUnit;
    painted_dots.clear();
    for (int i = 1; i <= dots.upper(); ++i)
        if (dots(i).visible) painted_dots.emplace_back(dots(i));
}
