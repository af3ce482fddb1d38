#include "mapview/unit_tray_window.h"

#include "mapview/map_controls_window.h"
#include "mapview/map_mouse.h"
#include "mapview/mouse_press_window.h"
#include "mapview/unit_tray.h"
#include "widgets/text.h"

#include <QPainter>
#include <QPushButton>

UnitTrayView::UnitTrayView(Program& program, const Sprites& sprites, MapView& map, double area_top,
                           EventRunner& events, QWidget* parent)
    : SidePanel("picUnitTray", program.main.picUnitTray, area_top, events, parent), program(program),
      sprites(sprites), map(map), events(events) {
    setMouseTracking(true);
    close =
        bind.button("cmdUTClose", "Hide", program.main.cmdUTClose, [&program] { cmdUTClose_Click(program); });
}

void UnitTrayView::bring_in_step() {
    SidePanel::bring_in_step();
    update();
}

void UnitTrayView::hideEvent(QHideEvent* event) {
    SidePanel::hideEvent(event);
    if (captured) end_press(program); // neither moves nor the release will come
    end_capture();
}

void UnitTrayView::resizeEvent(QResizeEvent* event) {
    constexpr int margin = 4;
    SidePanel::resizeEvent(event);
    close->adjustSize();
    close->move(width() - close->width() - margin, height() - close->height() - margin);
}

void UnitTrayView::paintEvent(QPaintEvent* event) {
    SidePanel::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect().adjusted(0, 3, 0, 0), Qt::AlignHCenter | Qt::AlignTop,
                     to_qt(program.main.lblUnitTray.caption)); // under the markers
    paint_tray_controls(painter, program.main, sprites);
}

void UnitTrayView::mousePressEvent(QMouseEvent* event) {
    if (!is_known(event->button())) return;
    const bool first_button = is_first(*event);
    if (first_button) captured = true;
    if (!captured) return;
    const MapPress press = mouse_press(*event, event->button());
    if (first_button) pressed = hit_target(program, press.x, press.y, Container::tray);
    events.run([&] {
        if (pressed.kind == TargetKind::unit)
            mouse_down(program, pressed, press);
        else
            picUnitTray_MouseDown(program, press);
    });
}

void UnitTrayView::end_capture() { captured = false; }

void UnitTrayView::mouseMoveEvent(QMouseEvent* event) {
    const MapPress press = mouse_press(*event, event->buttons());
    if (press.button != 0 && !captured) return;
    if (map.drag_goes_on(*event)) {
        map.drag_to(event->globalPosition(), false);
        return;
    }
    const HitTarget target =
        press.button != 0 ? pressed : hit_target(program, press.x, press.y, Container::tray);
    events.run_small([&] {
        if (target.kind == TargetKind::unit)
            mouse_move(program, target, press);
        else
            picUnitTray_MouseMove(program, press);
    });
    update();
    map.update_scratch_lines(); // they follow the pointer over a marker here too
}

void UnitTrayView::mouseReleaseEvent(QMouseEvent* event) {
    if (!captured || !is_known(event->button())) return;
    const MapPress press = mouse_press(*event, event->button());
    if (program.main.dragging) {
        if (event->button() == Qt::LeftButton) map.drag_to(event->globalPosition(), true);
        return;
    }
    if (pressed.kind == TargetKind::map) events.run([&] { picUnitTray_MouseUp(program, press); });
}
