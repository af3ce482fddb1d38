#pragma once

#include <string>
#include <utility>

struct Program;

/// A dialog or secondary window: its control twins are the fields of what derives from it. It is loaded when
/// it is first asked for, may be hidden and shown again, and starts anew after it was unloaded.
struct Form {
    Form(Program& program, std::string name, std::string title)
        : program(program), name(std::move(name)), title(std::move(title)) {}
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form() = default;

    /// What the window's close box and the Escape key do.
    virtual void close_box() { hide(); }

    /// Shows the form and returns when it is hidden again.
    void show_modal();
    /// Shows the form beside the main window and returns at once.
    void show();
    void hide();
    /// Hides the form; the next time it is asked for it is a new one.
    void unload();

    Program& program;
    std::string name;
    std::string title;
    bool visible = false;
    bool loaded = true;
};
