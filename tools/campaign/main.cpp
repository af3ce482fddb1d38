// Makes the sample campaigns and unit lists from readable orders of battle, written by the program's own
// writers: campaign PROGRAM_DIRECTORY. Started in the source folder, it writes into campaigns/.

#include "core/reference_files.h"
#include "persistence/main_file_writer.h"
#include "persistence/unit_list.h"
#include "tools/campaign/formations.h"
#include "tools/campaign/plans.h"
#include "tools/campaign/units.h"
#include "tools/support/quiet_platform.h"

#include <iostream>
#include <string>
#include <utility>
#include <vector>

namespace {

/// Answers every file dialog with the file that is to be written.
class SampleWriter : public QuietPlatform {
  public:
    std::string file_dialog(const FileDialog& /*dialog*/) override { return path; }
    Answer message(const MessageBox& box) override {
        std::cerr << path << ": " << box.text << '\n';
        complained = true;
        return QuietPlatform::message(box);
    }

    std::string path;
    bool complained = false;
};

/// Makes a campaign and writes it; answers whether all went well.
bool make(const std::string& program_directory, const char* order_of_battle, void (*draw)(Program&),
          const std::vector<std::pair<std::string, void (*)(Program&)>>& files) {
    SampleWriter platform;
    Program program(platform, {});
    program.campaign.gAppPath = program_directory;
    program.main.picMap.width = 5468;
    program.main.picMap.height = 6102;
    load_force_elements(program);
    load_user_data(program);
    const auto holdings = read_holdings("tools/campaign/holdings.txt");
    UnitMaker(program, holdings).make(read_order_of_battle(order_of_battle));
    draw(program);
    for (const auto& [file, write] : files) {
        platform.path = "campaigns/" + file;
        write(program);
    }
    std::cout << files.front().first << ": " << program.campaign.colUnits.count() << " units\n";
    return !platform.complained;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: campaign PROGRAM_DIRECTORY\n";
        return 2;
    }
    const bool operation = make(argv[1], "tools/campaign/order_of_battle.txt", draw_operation,
                                {{"polynya.tvn", mnuSave_Click},
                                 {"polynya allied.uni", mnuSaveAlliedUnits_Click},
                                 {"polynya axis.uni", mnuSaveAxisUnits_Click}});
    const bool lesson =
        make(argv[1], "tools/campaign/first_steps.txt", draw_lesson, {{"first steps.tvn", mnuSave_Click}});
    return operation && lesson ? 0 : 1;
}
