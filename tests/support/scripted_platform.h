#pragma once

#include "core/failure.h"
#include "tools/support/quiet_platform.h"

#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

/// A platform that records what it was asked and answers as told. Where it was told nothing it answers like
/// the quiet one.
class ScriptedPlatform : public QuietPlatform {
  public:
    Answer message(const MessageBox& box) override {
        messages.push_back(box);
        log.push_back("message " + box.text);
        if (on_message) on_message(box);
        if (answers.empty()) return QuietPlatform::message(box);
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::string file_dialog(const FileDialog& dialog) override {
        file_dialogs.push_back(dialog);
        log.emplace_back("file dialog");
        if (before_file_dialog_answers) before_file_dialog_answers();
        if (chosen_files.empty()) return QuietPlatform::file_dialog(dialog);
        const std::string chosen = chosen_files.front();
        chosen_files.pop_front();
        return chosen;
    }
    Font font_dialog(const FontDialog& dialog) override {
        font_dialogs.push_back(dialog);
        if (!chosen_font) return QuietPlatform::font_dialog(dialog);
        return *chosen_font;
    }
    void show_modal(Form& form) override {
        log.push_back("show " + form.name);
        if (on_modal.contains(form.name)) on_modal.at(form.name)(form);
        form.visible = false;
    }
    void show(Form& form) override { log.push_back("show " + form.name); }
    void hide(Form& form) override { log.push_back("hide " + form.name); }
    void show_main_window() override { log.emplace_back("show frmMain"); }
    void unload_main_window() override {
        log.emplace_back("unload frmMain");
        if (fail_unload != 0) throw Failure{fail_unload};
    }
    void hourglass(bool on) override {
        waiting = on;
        log.emplace_back(on ? "hourglass on" : "hourglass off");
    }
    void end_process(int code) override { exit_code = code; }
    void end_at_once() override { log.emplace_back("end at once"); }
    std::shared_ptr<const MapPicture> load_map(const std::string& path) override {
        log.push_back("load map " + path);
        if (fail_map != 0) throw Failure{fail_map};
        return std::make_shared<const Map>(map_width, map_height);
    }
    PictureId load_marker(const std::string& path, std::int32_t colour) override {
        marker_loads.emplace_back(path);
        if (marker_failures.contains(path)) throw Failure{marker_failures.at(path)};
        return QuietPlatform::load_marker(path, colour);
    }
    std::int32_t colour_dialog(std::int32_t /*start*/) override {
        if (!chosen_colour) throw Failure{failure::cancelled};
        const std::int32_t chosen = *chosen_colour;
        chosen_colour.reset();
        return chosen;
    }
    void popup_menu(const std::string& menu) override { log.push_back("popup " + menu); }
    std::vector<std::string> fonts() override { return font_names; }
    bool has_font(const std::string& name) override { return !missing_fonts.contains(name); }
    WorkArea work_area() override {
        if (fail_work_area != 0) throw Failure{fail_work_area};
        return area;
    }
    std::string program_directory() override {
        if (fail_directory != 0) throw Failure{fail_directory};
        return directory;
    }
    bool random_bits(std::array<std::uint8_t, 16>& bytes) override {
        return has_chance && QuietPlatform::random_bits(bytes);
    }
    std::string read_file(const std::string& path) override {
        log.push_back("read " + path);
        if (contents.contains(path)) return contents.at(path);
        return QuietPlatform::read_file(path);
    }

    /// The texts of all messages so far.
    std::vector<std::string> texts() const {
        std::vector<std::string> all;
        for (const MessageBox& box : messages) all.push_back(box.text);
        return all;
    }

    // Told to the platform
    std::deque<Answer> answers;
    std::deque<std::string> chosen_files;
    std::optional<Font> chosen_font;
    std::optional<std::int32_t> chosen_colour;
    std::map<std::string, std::function<void(Form&)>> on_modal;
    std::function<void(const MessageBox&)> on_message;
    std::function<void()> before_file_dialog_answers;
    std::map<std::string, int> marker_failures;
    std::map<std::string, std::string> contents; // files that are not on the disk
    std::set<std::string> missing_fonts;
    std::vector<std::string> font_names{"Arial", "Arial Unicode"};
    WorkArea area{1366 * 15.0, 768 * 15.0, 15, 15};
    std::string directory = "/nowhere";
    int map_width = 5376;
    int map_height = 6000;
    int fail_map = 0;
    int fail_work_area = 0;
    int fail_directory = 0;
    int fail_unload = 0;
    bool has_chance = true;

    // Seen by the platform
    std::vector<MessageBox> messages;
    std::vector<FileDialog> file_dialogs;
    std::vector<FontDialog> font_dialogs;
    std::vector<std::string> marker_loads;
    std::vector<std::string> log;
    std::optional<int> exit_code;
    bool waiting = false;
};
