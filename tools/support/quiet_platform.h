#pragma once

#include "core/form.h"
#include "core/platform.h"

#include <cstdint>
#include <string>

/// A platform without a screen, for tools, tests and measurements: it shows nothing, answers every question
/// with its default button, cancels every dialog, and finds every picture and font.
class QuietPlatform : public Platform {
  public:
    class Map : public MapPicture {
      public:
        Map(int width, int height) : w(width), h(height) {}
        int width() const override { return w; }
        int height() const override { return h; }

      private:
        int w;
        int h;
    };

    Answer message(const MessageBox& box) override {
        return box.buttons == Buttons::ok ? Answer::ok : box.default_button;
    }
    std::optional<std::string> input_box(const InputBox& /*box*/) override { return std::nullopt; }
    std::string file_dialog(const FileDialog& /*dialog*/) override { throw Failure{failure::cancelled}; }
    std::int32_t colour_dialog(std::int32_t /*start*/) override { throw Failure{failure::cancelled}; }
    Font font_dialog(const FontDialog& /*dialog*/) override { throw Failure{failure::cancelled}; }
    void show_modal(Form& form) override { form.visible = false; }
    void show(Form& /*form*/) override {}
    void hide(Form& /*form*/) override {}
    void show_main_window() override {}
    void unload_main_window() override {}
    void popup_menu(const std::string& /*menu*/) override {}
    void hourglass(bool /*on*/) override {}
    void end_process(int /*code*/) override {}
    void end_at_once() override {}
    std::shared_ptr<const MapPicture> load_map(const std::string& /*path*/) override {
        return std::make_shared<const Map>(5468, 6102);
    }
    PictureId load_marker(const std::string& /*path*/, std::int32_t /*colour*/) override { return 1; }
    std::vector<std::string> fonts() override { return {"Arial"}; }
    bool has_font(const std::string& /*name*/) override { return true; }
    TextSize text_size(const std::string& text, const Font& font) override {
        return {static_cast<double>(text.size()) * font.size * 0.6, font.size * 1.5};
    }
    WorkArea work_area() override { return {1366 * 15.0, 768 * 15.0, 15, 15}; }
    std::string program_directory() override { return "."; }
    /// The same sequence in every run.
    bool random_bits(std::array<std::uint8_t, 16>& bytes) override {
        for (std::uint8_t& byte : bytes) {
            state = state * 6364136223846793005U + 1442695040888963407U;
            byte = static_cast<std::uint8_t>(state >> 56);
        }
        return true;
    }

  private:
    std::uint64_t state = 1942;
};
