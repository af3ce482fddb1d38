#include "core/form.h"

#include "core/platform.h"
#include "core/program.h"

void Form::show_modal() {
    visible = true;
    program.platform.show_modal(*this);
    // The map under a dialog that goes away is painted anew.
    program.main.picMap.Refresh();
}

void Form::show() {
    program.platform.show(*this);
    visible = true;
}

void Form::hide() {
    if (!visible) return;
    visible = false;
    program.platform.hide(*this);
}

void Form::unload() {
    hide();
    loaded = false;
}
