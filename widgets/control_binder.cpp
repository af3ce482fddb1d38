#include "widgets/control_binder.h"

#include "widgets/colours_qt.h"
#include "widgets/text.h"
#include "widgets/wrapping.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStringListModel>

namespace {

template <class Widget> Widget* named(Widget* widget, const std::string& name) {
    widget->setObjectName(to_qt(name));
    return widget;
}

template <class Control>
Control* made(const std::string& caption, ControlBinder::Caption lines, QWidget* parent) {
    if (lines == ControlBinder::Caption::wrapped) return new Wrapping<Control>(to_qt(caption), parent);
    return new Control(to_qt(caption), parent);
}

/// A list of rows of which the left button and the keyboard choose one. A press on the current row counts
/// like one that makes it current; getting the keyboard makes none current.
class RowList : public QListView {
  public:
    using QListView::QListView;

    std::function<void(const QModelIndex&)> pressed_again;

  protected:
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) return;
        const QModelIndex before = currentIndex();
        const bool again = before.isValid() && indexAt(event->position().toPoint()) == before;
        QListView::mousePressEvent(event);
        if (again) pressed_again(before);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton) QListView::mouseReleaseEvent(event);
    }
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton) QListView::mouseDoubleClickEvent(event);
    }
    void focusInEvent(QFocusEvent* event) override {
        const bool has_current = currentIndex().isValid();
        const QSignalBlocker quiet(selectionModel());
        QListView::focusInEvent(event); // makes the first row current if none is
        if (!has_current) selectionModel()->clearCurrentIndex();
    }
    /// With Ctrl, too: the current row is the one that is shown chosen.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override {
        const bool beside_the_rows = event != nullptr && !index.isValid();
        return beside_the_rows ? QItemSelectionModel::NoUpdate : QItemSelectionModel::ClearAndSelect;
    }
};

QStringList to_rows(const std::vector<std::string>& rows) {
    QStringList all;
    for (const std::string& row : rows) all << to_qt(row);
    return all;
}

} // namespace

ControlBinder::ControlBinder(QWidget* parent, std::function<void(const Procedure&)> run)
    : parent(parent), run(std::move(run)) {}

void ControlBinder::bring_in_step() const {
    for (const Procedure& step : steps) step();
}

QLabel* ControlBinder::label(const std::string& name, const Label& twin) {
    auto* const shown = named(new QLabel(parent), name);
    shown->setTextFormat(Qt::PlainText);
    steps.emplace_back([shown, &twin] { shown->setText(to_qt(twin.caption)); });
    return shown;
}

QPushButton* ControlBinder::button(const std::string& name, const std::string& caption, Button& twin,
                                   Procedure click, Caption lines) {
    auto* const push = named(made<QPushButton>(caption, lines, parent), name);
    push->setAutoDefault(false);
    const bool exists = click != nullptr;
    QObject::connect(push, &QPushButton::clicked, push, [this, click = std::move(click)] { run(click); });
    steps.emplace_back([push, &twin, exists] {
        push->setEnabled(twin.enabled && exists);
        push->setCheckable(twin.on());
        push->setChecked(twin.on());
    });
    return push;
}

QCheckBox* ControlBinder::check_box(const std::string& name, const std::string& caption, CheckBox& twin,
                                    Procedure click, Caption lines) {
    auto* const box = named(made<QCheckBox>(caption, lines, parent), name);
    QObject::connect(box, &QCheckBox::toggled, box, [this, &twin, click = std::move(click)](bool on) {
        twin.value = on;
        if (click) run(click);
    });
    steps.emplace_back([box, &twin] {
        const QSignalBlocker quiet(box);
        box->setChecked(twin.value);
        box->setEnabled(twin.enabled);
    });
    return box;
}

QRadioButton* ControlBinder::option(const std::string& name, const std::string& caption, OptionButton& twin,
                                    Procedure click) {
    auto* const choice = named(new QRadioButton(to_qt(caption), parent), name);
    choice->setAutoExclusive(false); // the twins say which one is on
    QObject::connect(choice, &QRadioButton::clicked, choice, [this, &twin, click = std::move(click)] {
        // The one that is on changes nothing: the click has only to be taken back.
        run(twin.value ? Procedure([] {}) : click);
    });
    steps.emplace_back([choice, &twin] {
        const QSignalBlocker quiet(choice);
        choice->setChecked(twin.value);
        choice->setEnabled(twin.enabled);
    });
    return choice;
}

QListView* ControlBinder::list(const std::string& name, const std::string& accessible_name, ListBox& twin,
                               Procedure click, Procedure double_click) {
    auto* const view = named(new RowList(parent), name);
    auto* const model = new QStringListModel(view);
    view->setModel(model);
    view->setAccessibleName(to_qt(accessible_name));
    view->setUniformItemSizes(true);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // the keys stand far to the right
    view->setTextElideMode(Qt::ElideNone);
    const auto choose = [this, &twin, click = std::move(click)](const QModelIndex& index) {
        twin.selected = index.row();
        if (click) run(click);
    };
    QObject::connect(view->selectionModel(), &QItemSelectionModel::currentChanged, view, choose);
    view->pressed_again = choose;
    QObject::connect(view, &QListView::doubleClicked, view,
                     [this, &twin, double_click = std::move(double_click)](const QModelIndex& index) {
                         twin.selected = index.row();
                         if (double_click) run(double_click);
                     });
    auto shown = std::make_shared<std::vector<std::string>>();
    steps.emplace_back([view, model, &twin, shown] {
        const QSignalBlocker quiet(view->selectionModel());
        if (*shown != twin.rows) {
            *shown = twin.rows;
            model->setStringList(to_rows(twin.rows));
        }
        if (view->currentIndex().row() != twin.selected) view->setCurrentIndex(model->index(twin.selected));
        view->viewport()->update(); // with its signals blocked the selection does not ask for it
        view->setEnabled(twin.enabled);
    });
    return view;
}

QComboBox* ControlBinder::combo(const std::string& name, const std::string& accessible_name, ComboBox& twin,
                                Procedure change) {
    auto* const box = named(new QComboBox(parent), name);
    box->setAccessibleName(to_qt(accessible_name));
    box->setEditable(true);
    box->lineEdit()->setAccessibleName(to_qt(accessible_name));
    box->setCompleter(nullptr); // what is typed stays as it is typed
    box->setInsertPolicy(QComboBox::NoInsert);
    box->addItems(to_rows(twin.rows));
    QObject::connect(box, &QComboBox::currentTextChanged, box,
                     [this, &twin, change = std::move(change)](const QString& text) {
                         twin.text = from_qt(text);
                         run(change);
                     });
    steps.emplace_back([box, &twin] {
        const QSignalBlocker quiet(box);
        const QString text = to_qt(twin.text);
        const int row = box->findText(text);
        if (row >= 0) box->setCurrentIndex(row); // arrow keys go on from the row last shown
        if (box->currentText() != text) box->setCurrentText(text);
        box->setEnabled(twin.enabled);
    });
    return box;
}

QScrollBar* ControlBinder::scroll_bar(const std::string& name, const std::string& accessible_name,
                                      ScrollBar& twin, Procedure change) {
    auto* const bar = named(new QScrollBar(Qt::Horizontal, parent), name);
    bar->setAccessibleName(to_qt(accessible_name));
    bar->setFocusPolicy(Qt::TabFocus);
    QObject::connect(bar, &QScrollBar::valueChanged, bar,
                     [this, &twin, change = std::move(change)](int value) {
                         twin.value = static_cast<std::int16_t>(value);
                         run(change);
                     });
    steps.emplace_back([bar, &twin] {
        const QSignalBlocker quiet(bar);
        bar->setRange(twin.min, twin.max);
        bar->setSingleStep(twin.small_change);
        bar->setPageStep(twin.large_change);
        bar->setValue(twin.value);
    });
    return bar;
}

QFrame* ControlBinder::colour_box(const std::string& name, const std::string& accessible_name,
                                  const ColourBox& twin) {
    auto* const box = named(new QFrame(parent), name);
    box->setAccessibleName(to_qt(accessible_name));
    box->setFrameShape(QFrame::Box);
    box->setAutoFillBackground(true);
    steps.emplace_back([box, &twin] {
        QPalette palette;
        palette.setColor(QPalette::Window, to_qt_colour(twin.back_colour, box->parentWidget()->palette()));
        box->setPalette(palette);
    });
    return box;
}
