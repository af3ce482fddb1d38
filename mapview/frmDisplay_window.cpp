#include "mapview/frmDisplay_window.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

frmDisplay_window::frmDisplay_window(frmDisplay& form, EventRunner& events, QWidget* parent)
    : FormWindow(form, events, parent),
      bind(this, [this](const ControlBinder::Procedure& procedure) { run(procedure); }) {
    add_step([this] { bind.bring_in_step(); });
    auto* const page = new QVBoxLayout(this);
    page->addWidget(heading(form.heading));
    auto* const grid = new QGridLayout;
    page->addLayout(grid);
    grid->addWidget(main_map(form), 0, 0, 2, 1);
    grid->addWidget(overview(form), 2, 0);
    grid->addWidget(choice(form, "chkShowAOO", "Show Area of Op.", form.chkShowAOO,
                           &frmDisplay::chkShowAOO_Click, "optAOO", form.optAOO),
                    0, 1);
    QGroupBox* const waypoints = choice(form, "chkShowWaypoints", "Show Waypoints", form.chkShowWaypoints,
                                        &frmDisplay::chkShowWaypoints_Click, "optWaypt", form.optWaypt);
    waypoints->layout()->addWidget(
        bind.check_box("chkWayptData", "Waypoint data", form.chkWayptData, nullptr));
    grid->addWidget(waypoints, 1, 1);
    grid->addWidget(choice(form, "chkShowFirefans", "Show Firefans", form.chkShowFirefans,
                           &frmDisplay::chkShowFirefans_Click, "optFirefans", form.optFirefans),
                    0, 2);
    QGroupBox* const zones =
        choice(form, "chkUnitsecurityzone", "Show unit sec. zones", form.chkUnitsecurityzone,
               &frmDisplay::chkUnitsecurityzone_Click, "optUSZ", form.optUSZ);
    zones->layout()->addWidget(
        bind.check_box("chkUSZfilled", "Use filled circle", form.chkUSZfilled, nullptr));
    grid->addWidget(zones, 1, 2);
    auto* const buttons = new QDialogButtonBox;
    QPushButton* const ok = button("cmdOK", "OK", [&form] { form.cmdOK_Click(); });
    ok->setDefault(true);
    buttons->addButton(ok, QDialogButtonBox::AcceptRole);
    buttons->addButton(button("cmdSelectAll", "Select all", [&form] { form.cmdSelectAll_Click(); }),
                       QDialogButtonBox::ActionRole);
    buttons->addButton(button("cmdClearAll", "Clear all", [&form] { form.cmdClearAll_Click(); }),
                       QDialogButtonBox::ActionRole);
    page->addWidget(buttons);
    bring_in_step();
}

QGroupBox* frmDisplay_window::main_map(frmDisplay& form) {
    auto* const box = new QGroupBox("Map");
    auto* const page = new QVBoxLayout(box);
    page->addWidget(bind.check_box("chkMmUnits", "Units", form.chkMmUnits, nullptr));
    page->addWidget(bind.check_box("chkMmUnitName", "Unit names", form.chkMmUnitName, nullptr));
    page->addWidget(bind.check_box("chkMmUnitHQname", "Unit HQ names", form.chkMmUnitHQname, nullptr));
    page->addWidget(bind.check_box("chkMmLabels", "Labels", form.chkMmLabels, nullptr));
    page->addWidget(bind.check_box("chkMmLines", "Lines", form.chkMmLines, nullptr));
    page->addWidget(bind.check_box("chkMmShapes", "Shapes", form.chkMmShapes, nullptr));
    page->addWidget(bind.check_box("chkMmPolygons", "Polygons", form.chkMmPolygons, nullptr));
    page->addWidget(bind.check_box("chkMmFireMissions", "Fire missions", form.chkMmFireMissions, nullptr));
    return box;
}

QGroupBox* frmDisplay_window::overview(frmDisplay& form) {
    auto* const box = new QGroupBox("Overview map");
    auto* const page = new QVBoxLayout(box);
    page->addWidget(bind.check_box("chkOmUnits", "Units", form.chkOmUnits, nullptr));
    page->addWidget(bind.check_box("chkOmFirefans", "Firefans (all)", form.chkOmFirefans, nullptr));
    page->addWidget(bind.check_box("chkOmLines", "Lines", form.chkOmLines, nullptr));
    return box;
}

QGroupBox* frmDisplay_window::choice(frmDisplay& form, const char* name, const char* caption, CheckBox& box,
                                     void (frmDisplay::*click)(), const char* option,
                                     std::array<OptionButton, 2>& options) {
    auto* const group = new QGroupBox;
    auto* const page = new QVBoxLayout(group);
    page->addWidget(bind.check_box(name, caption, box, [&form, click] { (form.*click)(); }));
    page->addWidget(bind.option(option + std::string("1"), "All units", options[1],
                                [&options] { frmDisplay::choose(options, 1); }));
    page->addWidget(bind.option(option + std::string("0"), "Selected unit only", options[0],
                                [&options] { frmDisplay::choose(options, 0); }));
    return group;
}
