#include "widgets/form_window.h"

#include "widgets/text.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QFocusEvent>
#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

FormWindow::FormWindow(Form& form, EventRunner& events, QWidget* parent)
    : QDialog(parent), form(form), events(events) {
    setObjectName(to_qt(form.name));
    setWindowTitle(to_qt(form.title));
}

void FormWindow::bring_in_step() {
    for (const auto& step : steps) step();
}

void FormWindow::run(const std::function<void()>& procedure) {
    events.run(procedure);
    bring_in_step();
}

QLineEdit* FormWindow::text_box(const std::string& name, const std::string& accessible_name, TextBox& twin,
                                std::function<void()> got_focus) {
    auto* const edit = new QLineEdit(this);
    edit->setObjectName(to_qt(name));
    edit->setAccessibleName(to_qt(accessible_name));
    connect(edit, &QLineEdit::textEdited, this, [this, &twin](const QString& typed) {
        twin.text = from_qt(typed.section('\n', 0, 0)); // a pasted text may have more lines than the box
        bring_in_step();
    });
    steps.emplace_back([edit, &twin] {
        const QSignalBlocker quiet(edit);
        if (edit->text() != to_qt(twin.text)) {
            const int cursor = edit->cursorPosition();
            edit->setText(to_qt(twin.text));
            edit->setCursorPosition(cursor);
        }
        edit->setEnabled(twin.enabled);
        if (twin.all_selected) edit->selectAll();
        twin.all_selected = false;
    });
    edit->installEventFilter(this);
    focus_handlers.push_back({edit, std::move(got_focus)});
    return edit;
}

QCheckBox* FormWindow::check_box(const std::string& name, const std::string& caption, CheckBox& twin) {
    auto* const box = new QCheckBox(to_qt(caption), this);
    box->setObjectName(to_qt(name));
    connect(box, &QCheckBox::toggled, this, [&twin](bool on) { twin.value = on; });
    steps.emplace_back([box, &twin] {
        const QSignalBlocker quiet(box);
        box->setChecked(twin.value);
        box->setEnabled(twin.enabled);
    });
    return box;
}

QPushButton* FormWindow::button(const std::string& name, const std::string& caption,
                                std::function<void()> click) {
    auto* const push = new QPushButton(to_qt(caption), this);
    push->setObjectName(to_qt(name));
    push->setAutoDefault(false);
    connect(push, &QPushButton::clicked, this, [this, click = std::move(click)] { run(click); });
    return push;
}

QLabel* FormWindow::heading(const std::string& caption) {
    QLabel* const label = text(caption);
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.15);
    label->setFont(font);
    return label;
}

QLabel* FormWindow::text(const std::string& caption) {
    auto* const label = new QLabel(to_qt(caption), this);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void FormWindow::closeEvent(QCloseEvent* event) {
    // The form decides what its close box means; hiding it closes this window.
    event->ignore();
    if (form.visible) run([this] { form.close_box(); });
}

void FormWindow::reject() {
    if (form.visible) run([this] { form.close_box(); });
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn)
        for (const FocusHandler& handler : focus_handlers)
            if (handler.widget == watched) {
                handler.got_focus();
                // A click that gives the focus places its own cursor first.
                const bool clicked = static_cast<const QFocusEvent&>(*event).reason() == Qt::MouseFocusReason;
                QMetaObject::invokeMethod(
                    this, [this] { bring_in_step(); }, clicked ? Qt::QueuedConnection : Qt::DirectConnection);
            }
    return QDialog::eventFilter(watched, event);
}
