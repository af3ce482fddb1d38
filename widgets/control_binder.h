#pragma once

#include "core/controls.h"

#include <functional>
#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QListView;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QWidget;

/// Makes the widgets of a panel or a dialog, each bound to its twin and named like the control. What the user
/// does goes into the twin, then the event procedure runs.
class ControlBinder {
  public:
    using Procedure = std::function<void()>;
    /// Whether a caption may go on to further lines.
    enum class Caption : bool { one_line, wrapped };
    /// `run` runs an event procedure as an event of its own.
    ControlBinder(QWidget* parent, std::function<void(const Procedure&)> run);

    QLabel* label(const std::string& name, const Label& twin);
    QPushButton* button(const std::string& name, const std::string& caption, Button& twin, Procedure click,
                        Caption lines = Caption::one_line);
    QCheckBox* check_box(const std::string& name, const std::string& caption, CheckBox& twin, Procedure click,
                         Caption lines = Caption::one_line);
    QRadioButton* option(const std::string& name, const std::string& caption, OptionButton& twin,
                         Procedure click);
    QListView* list(const std::string& name, const std::string& accessible_name, ListBox& twin,
                    Procedure click, Procedure double_click);
    QComboBox* combo(const std::string& name, const std::string& accessible_name, ComboBox& twin,
                     Procedure change);
    QScrollBar* scroll_bar(const std::string& name, const std::string& accessible_name, ScrollBar& twin,
                           Procedure change);
    QFrame* colour_box(const std::string& name, const std::string& accessible_name, const ColourBox& twin);

    /// Something else that shows the state.
    void add_step(Procedure step) { steps.push_back(std::move(step)); }
    /// Shows what the twins hold.
    void bring_in_step() const;

  private:
    QWidget* parent;
    std::function<void(const Procedure&)> run;
    std::vector<Procedure> steps;
};
