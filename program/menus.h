#pragma once

#include "core/program.h"

#include <span>

/// One entry of the menu bar or of a popup menu, in order. Its parent is the menu's title, or the control of
/// the entry whose submenu it stands in. An entry that only opens a submenu has no command.
struct MenuRow {
    const char* parent;
    const char* caption;
    const char* control;
    MenuEntry frmMain::*entry;
    void (*click)(Program& program);
};

std::span<const MenuRow> menu_rows();

/// Whether this entry only opens a submenu.
bool opens_submenu(const MenuRow& row);
