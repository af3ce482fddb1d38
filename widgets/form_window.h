#pragma once

#include "core/controls.h"
#include "core/form.h"
#include "widgets/event_runner.h"

#include <QDialog>

#include <functional>
#include <string>
#include <utility>
#include <vector>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

/// The window of a form: each widget is bound to its twin and named like the control. What the user does goes
/// into the twin, then the event procedure runs, then all widgets are brought in step.
class FormWindow : public QDialog {
  public:
    FormWindow(Form& form, EventRunner& events, QWidget* parent);

    /// Shows what the twins hold.
    void bring_in_step();

    Form& form;

  protected:
    QLineEdit* text_box(const std::string& name, const std::string& accessible_name, TextBox& twin,
                        std::function<void()> got_focus);
    QCheckBox* check_box(const std::string& name, const std::string& caption, CheckBox& twin);
    QPushButton* button(const std::string& name, const std::string& caption, std::function<void()> click);
    /// Something else that shows the state.
    void add_step(std::function<void()> step) { steps.push_back(std::move(step)); }
    QLabel* heading(const std::string& text);
    QLabel* text(const std::string& text);

    /// Runs an event procedure of the form.
    void run(const std::function<void()>& procedure);

    void closeEvent(QCloseEvent* event) override;
    void reject() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct FocusHandler {
        QObject* widget;
        std::function<void()> got_focus;
    };

    EventRunner& events;
    std::vector<std::function<void()>> steps;
    std::vector<FocusHandler> focus_handlers;
};
