#pragma once

#include "core/controls.h"
#include "core/form.h"

#include <string>

/// The splash: it loads the map picture on the first tick of its timer and then opens the main window.
struct frmStart : Form {
    static constexpr const char* form_name = "frmStart";
    explicit frmStart(Program& program) : Form(program, form_name, "Tolvane II") {}

    const std::string heading = "Velmora 2";
    const std::string version = "Version 1.0 - November 2003";
    const std::string progress = "Initializing, please wait...";
    Timer tmrTimer;

    /// Starts the timer and shows the splash. A failure asks whether to go on with the next statement; No
    /// ends the program.
    void Form_Load();
    /// Nothing: it stays until the main window takes its place.
    void close_box() override {}
    /// Its only tick: the work area, the map picture, the main window. Without the map the process ends.
    void tmrTimer_Timer();
};
