#pragma once

#include "core/identity.h"
#include "core/program.h"
#include "program/paint_order.h"
#include "program/press_order.h"
#include "tests/support/scripted_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

/// A program of its own for each test, on a map of 5376 x 6000 in a window of 998 x 889, and a folder that
/// goes away afterwards.
class ProgramTest : public testing::Test {
  protected:
    ProgramTest() {
        std::string pattern = (std::filesystem::temp_directory_path() / "tolvane-XXXXXX").string();
        folder = mkdtemp(pattern.data());
        program.campaign.gAppPath = folder;
        program.campaign.gMapNorth0 = 40;
        program.main.picMap.width = 5376;
        program.main.picMap.height = 6000;
        program.main.picMapwindow.width = 998;
        program.main.picMapwindow.height = 889;
        program.main.scrlHMap.max = 4382;
        program.main.scrlVMap.max = 5115;
    }
    ~ProgramTest() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    std::string path(const std::string& name) const { return folder + "/" + name; }

    void write_file(const std::string& name, const std::string& bytes) const {
        const std::filesystem::path file = path(name);
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << bytes;
    }

    std::string file_bytes(const std::string& name) const {
        std::ostringstream bytes;
        bytes << std::ifstream(path(name), std::ios::binary).rdbuf();
        return bytes.str();
    }

    /// A unit in the campaign, without a marker.
    std::shared_ptr<oUnits> add_unit(const std::string& id, const std::string& parent = "") {
        auto unit = std::make_shared<oUnits>();
        unit->ID = id;
        unit->name = "unit " + id;
        unit->parent_ID = parent;
        program.campaign.colUnits->add(unit, id);
        return unit;
    }

    static void add_child(oUnits& headquarters, const std::string& id) {
        headquarters.children->add(std::make_shared<oChildren>(oChildren{id, "unit " + id}), id);
    }

    /// Those that `disable_all` disables and `enable_all` enables.
    std::vector<Button*> fenced_buttons() {
        Toolbar& tools = program.main;
        return {&tools.cmdDrawLines,    &tools.cmdCreateShapes,   &tools.cmdLabel,     &tools.cmdCreateUnits,
                &tools.cmdDrawPolygon,  &tools.cmdRangecheck,     &tools.cmdPathRange, &tools.cmdFindCoord,
                &tools.cmdUnitTray,     &tools.cmdShowFullscreen, &tools.cmdSavemap,   &tools.cmdSnapshot,
                &tools.cmdFireMissions, &tools.cmdEditGMPlayers,  &tools.cmdTownsData};
    }

    /// Those of them that can be pressed.
    std::vector<Button*> enabled_buttons() {
        std::vector<Button*> enabled;
        for (Button* const button : fenced_buttons())
            if (button->enabled) enabled.push_back(button);
        return enabled;
    }

    /// The number of the failure that the body raises, 0 for none.
    template <class Body> static int number_of(Body body) {
        try {
            body();
        } catch (const Failure& failed) {
            return failed.number;
        }
        return 0;
    }

    ScriptedPlatform platform;
    Program program{platform, paint_order(), tool_order()};
    std::string folder;
};
