#pragma once

#include "mapview/unit_marker.h"
#include "tests/windows/desktop.h"

#include <QMouseEvent>

#include <cstdint>
#include <memory>
#include <string>

/// The mouse in the real main window, with two units on the map.
class Mouse : public testing::Test {
  protected:
    Mouse() {
        desktop.start();
        first = add_unit("{1}", 300);
        second = add_unit("{2}", 500);
        main().picMap.Refresh();
        map = desktop.control("picMapwindow");
        EXPECT_TRUE(QTest::qWaitFor([&] { return map->width() > 700 && map->height() > 500; }));
    }

    frmMain& main() { return desktop.program.main; }
    Campaign& campaign() { return desktop.program.campaign; }

    std::shared_ptr<oUnits> add_unit(const std::string& id, std::int16_t x) {
        auto unit = std::make_shared<oUnits>();
        unit->ID = id;
        unit->symbol = "\\data\\forces\\allied forces\\Rifle Company.gif";
        unit->xcoord = x;
        unit->ycoord = 300;
        campaign().colUnits->add(unit, id);
        unit->img_index = campaign().gNextUnitIndex;
        make_unit_marker(desktop.program, *unit);
        return unit;
    }

    static QPoint over(const oUnits& unit) { return {unit.xcoord + 2, unit.ycoord + 2}; }

    void send(QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons buttons,
              Qt::KeyboardModifiers keys = {}) const {
        send_to(map, type, at, button, buttons, keys);
    }

    static void send_to(QWidget* widget, QEvent::Type type, QPointF at, Qt::MouseButton button,
                        Qt::MouseButtons buttons, Qt::KeyboardModifiers keys = {}) {
        QMouseEvent event(type, at, widget->mapToGlobal(at), button, buttons, keys);
        QApplication::sendEvent(widget, &event);
    }

    /// The tray with the first unit's marker in its corner.
    QWidget* open_tray() {
        desktop.click("cmdUnitTray");
        main().imgUnit(1).container = Container::tray;
        main().imgUnit(1).left = main().imgUnit(1).top = 50;
        return desktop.control("picUnitTray");
    }

    std::shared_ptr<oUnitForceElements> add_element() const {
        auto element = std::make_shared<oUnitForceElements>();
        element->ID = "{" + std::string(36, 'E') + "}";
        element->Index = 999;
        first->force_elements->add(element, element->ID);
        return element;
    }

    Desktop desktop;
    QWidget* map = nullptr;
    std::shared_ptr<oUnits> first;
    std::shared_ptr<oUnits> second;
};
