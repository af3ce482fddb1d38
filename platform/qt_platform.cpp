#include "platform/qt_platform.h"

#include "core/failure.h"
#include "core/files.h"
#include "mapview/painting.h"
#include "platform/form_windows.h"
#include "widgets/colours_qt.h"
#include "widgets/fonts_qt.h"
#include "widgets/map_image.h"
#include "widgets/text.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QRandomGenerator>
#include <QScreen>

#include <cstdlib>
#include <cstring>

namespace {

QMessageBox::Icon to_qt_icon(Icon icon) {
    switch (icon) {
    case Icon::warning:
        return QMessageBox::Warning;
    case Icon::question:
        return QMessageBox::Question;
    case Icon::information:
        return QMessageBox::Information;
    case Icon::none:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons to_qt_buttons(Buttons buttons) {
    switch (buttons) {
    case Buttons::yes_no:
        return QMessageBox::Yes | QMessageBox::No;
    case Buttons::yes_no_cancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case Buttons::ok:
        break;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButton to_qt_button(Answer answer) {
    switch (answer) {
    case Answer::yes:
        return QMessageBox::Yes;
    case Answer::no:
        return QMessageBox::No;
    case Answer::cancel:
        return QMessageBox::Cancel;
    case Answer::ok:
        break;
    }
    return QMessageBox::Ok;
}

Answer to_answer(int button) {
    switch (button) {
    case QMessageBox::Yes:
        return Answer::yes;
    case QMessageBox::No:
        return Answer::no;
    case QMessageBox::Cancel:
        return Answer::cancel;
    default:
        return Answer::ok;
    }
}

[[noreturn]] void cancelled() { throw Failure{failure::cancelled}; }

/// While a dialog is open the pointer is not the hourglass, also when it asks in the middle of a long
/// command; when it goes away the map under it is painted anew.
class OpenDialog {
  public:
    explicit OpenDialog(QtPlatform& platform) : platform(platform), waiting(platform.is_waiting()) {
        platform.hourglass(false);
        platform.end_capture();
    }
    OpenDialog(const OpenDialog&) = delete;
    OpenDialog& operator=(const OpenDialog&) = delete;
    ~OpenDialog() {
        platform.hourglass(waiting);
        platform.refresh_map();
    }

  private:
    QtPlatform& platform;
    bool waiting;
};

} // namespace

void QtPlatform::serve(Program& shown) {
    program = &shown;
    events.after_event = [this](bool everything) {
        if (!main) return;
        const bool painted = paint_if_marked(*program);
        main->bring_in_step(everything || painted);
    };
    events.untrapped_failure = [this](int number) {
        message({"Error " + std::to_string(number) + ".", Icon::warning});
    };
    events.after_outermost_event = [this] { program->retired.clear(); };
}

QWidget* QtPlatform::parent_window() const {
    QWidget* const modal = QApplication::activeModalWidget();
    if (modal != nullptr) return modal;
    return main && main->isVisible() ? main.get() : QApplication::activeWindow(); // at start the splash
}

void QtPlatform::end_capture() {
    if (main) main->end_capture();
}

void QtPlatform::refresh_map() {
    if (program != nullptr) program->main.picMap.Refresh();
}

Answer QtPlatform::message(const MessageBox& box) {
    const OpenDialog open(*this);
    QMessageBox dialog(to_qt_icon(box.icon), to_qt(box.title), to_qt(box.text), to_qt_buttons(box.buttons),
                       parent_window());
    dialog.setTextFormat(Qt::PlainText);
    if (box.buttons == Buttons::yes_no) dialog.setEscapeButton(QMessageBox::No);
    if (box.buttons != Buttons::ok) dialog.setDefaultButton(to_qt_button(box.default_button));
    return to_answer(dialog.exec());
}

std::optional<std::string> QtPlatform::input_box(const InputBox& box) {
    const OpenDialog open(*this);
    bool accepted = false;
    const QString text = QInputDialog::getText(parent_window(), to_qt(box.title), to_qt(box.prompt),
                                               QLineEdit::Normal, to_qt(box.text), &accepted);
    if (!accepted) return std::nullopt;
    return from_qt(text);
}

std::string QtPlatform::file_dialog(const FileDialog& dialog) {
    const OpenDialog open(*this);
    const QString filter = to_qt(dialog.filter);
    const QString pattern = filter.section('|', 1, 1); // "tvn|*.tvn"
    QFileDialog window(parent_window(), to_qt(dialog.title), QString::fromStdString(dialog.directory),
                       filter.section('|', 0, 0) + " (" + pattern + ")");
    window.setAcceptMode(dialog.saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    window.setFileMode(QFileDialog::AnyFile);
    window.setDefaultSuffix(pattern.section('.', 1));
    window.setOption(QFileDialog::DontConfirmOverwrite, !dialog.overwrite_prompt);
    if (!dialog.file_name.empty()) window.selectFile(to_qt(dialog.file_name));
    if (window.exec() != QDialog::Accepted || window.selectedFiles().isEmpty()) cancelled();
    return window.selectedFiles().constFirst().toStdString();
}

std::int32_t QtPlatform::colour_dialog(std::int32_t start) {
    const OpenDialog open(*this);
    const QColor chosen = QColorDialog::getColor(to_qt_colour(start), parent_window());
    if (!chosen.isValid()) cancelled();
    return from_qt_colour(chosen);
}

Font QtPlatform::font_dialog(const FontDialog& dialog) {
    const OpenDialog open(*this);
    QFont start = to_qt_font(dialog.font);
    start.setPointSizeF(dialog.font.size);
    bool accepted = false;
    const QFont chosen = QFontDialog::getFont(&accepted, start, parent_window());
    if (!accepted) cancelled();
    return {from_qt(chosen.family()),
            chosen.pointSizeF(),
            chosen.bold(),
            chosen.italic(),
            dialog.with_effects && chosen.underline(),
            dialog.with_effects && chosen.strikeOut()};
}

FormWindow& QtPlatform::window_of(Form& form) {
    // The twins hold the state, so a window that is not on screen can be made anew at any time.
    std::unique_ptr<FormWindow>& window = windows[form.name];
    if (window && window->isVisible()) return *window;
    if (window) window.release()->deleteLater(); // it may be in the middle of an event of its own
    window = make_form_window(form, events, main.get());
    return *window;
}

void QtPlatform::show_modal(Form& form) {
    FormWindow& window = window_of(form);
    const OpenDialog open(*this);
    window.exec();
}

void QtPlatform::show(Form& form) {
    FormWindow& window = window_of(form);
    window.show();
    window.raise();
}

void QtPlatform::hide(Form& form) {
    const auto window = windows.find(form.name);
    if (window != windows.end() && window->second) window->second->done(QDialog::Accepted);
}

void QtPlatform::show_main_window() {
    main = std::make_unique<frmMain_window>(*program, sprites, events);
    main->showMaximized(); // below the frame that the window manager puts around it
}

void QtPlatform::unload_main_window() {
    if (main) main->unload();
    QApplication::quit();
}

void QtPlatform::popup_menu(const std::string& menu) { main->open_popup(menu); }

void QtPlatform::hourglass(bool on) {
    if (on == waiting) return;
    waiting = on;
    if (on)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void QtPlatform::end_process(int code) { QApplication::exit(code); }

void QtPlatform::end_at_once() { std::_Exit(1); }

std::shared_ptr<const MapPicture> QtPlatform::load_map(const std::string& path) {
    return read_map(files::reference_path(path));
}

PictureId QtPlatform::load_marker(const std::string& path, std::int32_t colour) {
    return sprites.load(files::reference_path(path), colour);
}

std::vector<std::string> QtPlatform::fonts() {
    std::vector<std::string> names;
    for (const QString& family : QFontDatabase::families()) names.push_back(from_qt(family));
    return names;
}

bool QtPlatform::has_font(const std::string& name) { return font_is_available(name); }

TextSize QtPlatform::text_size(const std::string& text, const Font& font) { return measure_text(text, font); }

WorkArea QtPlatform::work_area() {
    WorkArea area;
    const QRect available = QApplication::primaryScreen()->availableGeometry();
    area.width_twips = available.width() * area.twips_per_pixel_x;
    area.height_twips = available.height() * area.twips_per_pixel_y;
    return area;
}

std::string QtPlatform::program_directory() { return directory; }

bool QtPlatform::random_bits(std::array<std::uint8_t, 16>& bytes) {
    std::array<quint32, 4> words{};
    QRandomGenerator::system()->fillRange(words.data(), words.size());
    std::memcpy(bytes.data(), words.data(), bytes.size());
    return true;
}
