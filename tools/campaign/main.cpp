// Makes the sample campaign from the readable order of battle, written by the program's own writer:
// campaign ORDER_OF_BATTLE.TXT HOLDINGS.TXT PROGRAM_DIRECTORY CAMPAIGN.TVN

#include "core/reference_files.h"
#include "persistence/main_file_writer.h"
#include "tools/campaign/formations.h"
#include "tools/campaign/plans.h"
#include "tools/campaign/units.h"
#include "tools/support/quiet_platform.h"

#include <iostream>
#include <string>

namespace {

class CampaignWriter : public QuietPlatform {
  public:
    explicit CampaignWriter(std::string path) : path(std::move(path)) {}

    std::string file_dialog(const FileDialog& /*dialog*/) override { return path; }
    Answer message(const MessageBox& box) override {
        std::cerr << box.text << '\n';
        complained = true;
        return QuietPlatform::message(box);
    }

    bool complained = false;

  private:
    std::string path;
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 5) {
        std::cerr << "usage: campaign ORDER_OF_BATTLE.TXT HOLDINGS.TXT PROGRAM_DIRECTORY CAMPAIGN.TVN\n";
        return 2;
    }
    CampaignWriter platform(argv[4]);
    Program program(platform, {});
    program.campaign.gAppPath = argv[3];
    program.main.picMap.width = 5468;
    program.main.picMap.height = 6102;
    load_force_elements(program);
    load_user_data(program);
    const auto holdings = read_holdings(argv[2]);
    UnitMaker(program, holdings).make(read_order_of_battle(argv[1]));
    draw_plans(program);
    mnuSave_Click(program);
    std::cout << program.campaign.colUnits.count() << " units\n";
    return platform.complained ? 1 : 0;
}
