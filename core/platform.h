#pragma once

#include "core/controls.h"
#include "core/map_controls.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct Form;

/// The title of the program's message boxes.
inline const std::string program_title = "Tolvane ][";

enum class Icon : std::uint8_t { none, warning, question, information };
enum class Buttons : std::uint8_t { ok, yes_no, yes_no_cancel };
enum class Answer : std::uint8_t { ok, yes, no, cancel };

struct MessageBox {
    std::string text;
    Icon icon = Icon::none;
    Buttons buttons = Buttons::ok;
    Answer default_button = Answer::yes; // counts where there is a choice; Escape means No or Cancel
    std::string title = program_title;
};

struct InputBox {
    std::string prompt;
    std::string title = program_title;
    std::string text;
};

struct FileDialog {
    std::string title;
    std::string directory;
    std::string filter; // "tvn|*.tvn"
    std::string file_name = {};
    bool saving = false;
    bool overwrite_prompt = false;
};

struct FontDialog {
    Font font;
    bool with_effects = true;
};

struct TextSize {
    double width = 0;
    double height = 0;
};

/// The desktop less its bars, in twips, and how many twips make one pixel.
struct WorkArea {
    double width_twips = 0;
    double height_twips = 0;
    double twips_per_pixel_x = 15;
    double twips_per_pixel_y = 15;
};

/// The map in memory. Whoever holds it only asks for its size; the platform knows its pixels.
class MapPicture {
  public:
    MapPicture() = default;
    MapPicture(const MapPicture&) = delete;
    MapPicture& operator=(const MapPicture&) = delete;
    virtual ~MapPicture() = default;
    virtual int width() const = 0;
    virtual int height() const = 0;
};

/// A text file being written. What was written stays when a later write fails.
class OutputFile {
  public:
    OutputFile() = default;
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    virtual ~OutputFile() = default;
    /// Fails with 61 when the disk is full, else with 57.
    virtual void write(std::string_view bytes) = 0;
    /// Fails like `write`; the file is closed all the same.
    virtual void close() = 0;
};

/// The way of the rules to everything outside: windows, dialogs, pictures, files, chance. Texts are single
/// bytes of Windows-1252, paths as the program's data has them, with backslashes.
class Platform {
  public:
    Platform() = default;
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    virtual ~Platform() = default;

    virtual Answer message(const MessageBox& box) = 0;
    /// The text, or nothing when the user cancelled.
    virtual std::optional<std::string> input_box(const InputBox& box) = 0;
    /// The chosen path. Fails with 32755 when the user cancelled; the same holds for the next two.
    virtual std::string file_dialog(const FileDialog& dialog) = 0;
    virtual std::int32_t colour_dialog(std::int32_t start) = 0;
    virtual Font font_dialog(const FontDialog& dialog) = 0;

    /// Shows the form and returns when it is hidden again.
    virtual void show_modal(Form& form) = 0;
    /// Shows the form and returns at once.
    virtual void show(Form& form) = 0;
    virtual void hide(Form& form) = 0;
    virtual void show_main_window() = 0;
    /// Takes the main window away, which ends the event loop.
    virtual void unload_main_window() = 0;
    /// Opens one of the main window's popup menus at the pointer.
    virtual void popup_menu(const std::string& menu) = 0;
    virtual void hourglass(bool on) = 0;
    /// Ends the event loop in an orderly way, with this exit code.
    virtual void end_process(int code) = 0;
    /// Ends the process on the spot; nothing is cleaned up.
    virtual void end_at_once() = 0;
    /// A path or file name of the disk as a text of the program, to be shown.
    virtual std::string shown_path(const std::string& path);

    /// Fails with 53 when the picture is missing, with 481 when it is damaged or no picture.
    virtual std::shared_ptr<const MapPicture> load_map(const std::string& path) = 0;
    /// The marker picture with every white and every transparent pixel in the colour. Fails like `load_map`.
    virtual PictureId load_marker(const std::string& path, std::int32_t colour) = 0;
    virtual std::vector<std::string> fonts() = 0;
    virtual bool has_font(const std::string& name) = 0;
    /// The size of a text, line by line, in pixels.
    virtual TextSize text_size(const std::string& text, const Font& font) = 0;
    virtual WorkArea work_area() = 0;
    /// The directory of the program, without a separator behind it.
    virtual std::string program_directory() = 0;
    /// Fills the bytes by chance; false when there is no source of it.
    virtual bool random_bits(std::array<std::uint8_t, 16>& bytes) = 0;

    // Files, on the disk unless a test puts something in between: as the procedures of `files` of these
    // names.

    /// Where a file of the program's own data lies; what the user chose in a dialog is a place already.
    virtual std::string reference_path(const std::string& path);
    virtual bool file_exists(const std::string& path);
    virtual std::string read_file(const std::string& path);
    virtual std::vector<std::string> list_files(const std::string& directory, const std::string& ending);
    virtual std::unique_ptr<OutputFile> open_for_output(const std::string& path);
};

/// The hourglass pointer, until the end of the block or until it is taken away earlier.
class Hourglass {
  public:
    explicit Hourglass(Platform& platform) : platform(platform) { platform.hourglass(true); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
    ~Hourglass() { off(); }
    void off() {
        if (on) platform.hourglass(false);
        on = false;
    }

  private:
    Platform& platform;
    bool on = true;
};
