#pragma once

#include "core/platform.h"
#include "core/program.h"
#include "program/frmMain_window.h"
#include "widgets/event_runner.h"
#include "widgets/form_window.h"
#include "widgets/sprites.h"

#include <map>
#include <memory>
#include <string>

/// The port on Qt: windows, dialogs, pictures, fonts. It owns every window.
class QtPlatform : public Platform {
  public:
    /// `directory` is where data and map are found.
    explicit QtPlatform(std::string directory) : directory(std::move(directory)) {}

    /// Tells the platform whose windows it shows; once, before anything is shown.
    void serve(Program& shown);

    Answer message(const MessageBox& box) override;
    std::optional<std::string> input_box(const InputBox& box) override;
    std::string file_dialog(const FileDialog& dialog) override;
    std::int32_t colour_dialog(std::int32_t start) override;
    Font font_dialog(const FontDialog& dialog) override;
    void show_modal(Form& form) override;
    void show(Form& form) override;
    void hide(Form& form) override;
    void show_main_window() override;
    void unload_main_window() override;
    void popup_menu(const std::string& menu) override;
    void hourglass(bool on) override;
    void end_process(int code) override;
    void end_at_once() override;
    std::shared_ptr<const MapPicture> load_map(const std::string& path) override;
    PictureId load_marker(const std::string& path, std::int32_t colour) override;
    std::vector<std::string> fonts() override;
    bool has_font(const std::string& name) override;
    TextSize text_size(const std::string& text, const Font& font) override;
    WorkArea work_area() override;
    std::string program_directory() override;
    bool random_bits(std::array<std::uint8_t, 16>& bytes) override;

    frmMain_window* main_window() const { return main.get(); }
    bool is_waiting() const { return waiting; }
    /// Marks the map for a new paint.
    void refresh_map();
    /// Ends what the mouse is doing on the map.
    void end_capture();

  private:
    QWidget* parent_window() const;
    FormWindow& window_of(Form& form);

    std::string directory;
    Program* program = nullptr;
    EventRunner events;
    Sprites sprites;
    std::unique_ptr<frmMain_window> main;
    std::map<std::string, std::unique_ptr<FormWindow>> windows;
    bool waiting = false; // the hourglass is shown
};
