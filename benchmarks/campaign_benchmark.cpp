// Reading, writing, checking and renumbering large campaigns.

#include "benchmarks/ratios.h"
#include "core/hierarchy.h"
#include "core/identity.h"
#include "core/program.h"
#include "persistence/main_file_reader.h"
#include "persistence/main_file_writer.h"
#include "tools/support/quiet_platform.h"

#include <benchmark/benchmark.h>

#include <deque>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <vector>

namespace {

class FilePlatform : public QuietPlatform {
  public:
    std::string file_dialog(const FileDialog& /*dialog*/) override { return path; }
    std::string path;
};

void add_unit(Program& program, int number, oUnits* headquarters) {
    auto unit = std::make_shared<oUnits>();
    unit->ID = new_guid(program.platform);
    unit->unittype = "Rifle Company";
    unit->symbol = "\\data\\forces\\allied forces\\Rifle Company.gif";
    unit->color = 5263615;
    unit->xcoord = static_cast<std::int16_t>(number % 5400);
    unit->ycoord = static_cast<std::int16_t>(number % 6100);
    unit->name = std::to_string(number) + "/1461";
    unit->echelon = "Company";
    unit->nationality = "Soviet";
    unit->affiliation = "Allied";
    unit->player_name = "Anton Gorshin";
    unit->player_email = "anton.gorshin@example.org";
    unit->gm_name = "Hanna Lindqvist";
    unit->gm_email = "hanna.lindqvist@example.org";
    unit->op_status = "Deployed";
    unit->fitness = "90 %";
    unit->order_id = "Line unit";
    if (headquarters != nullptr) {
        unit->parent_ID = headquarters->ID;
        unit->parent_name = headquarters->name;
        headquarters->children->add(std::make_shared<oChildren>(oChildren{unit->ID, unit->name}), unit->ID);
    }
    for (int i = 0; i < 3; ++i) {
        auto element = std::make_shared<oUnitForceElements>();
        element->ID = new_guid(program.platform);
        element->Index = 1;
        element->quantity = 9;
        element->experience = "Regular";
        element->ammo = 1200;
        unit->force_elements->add(element, element->ID);
    }
    for (int i = 0; i < 2; ++i) {
        auto waypoint = std::make_shared<oWaypoint>();
        waypoint->ID = new_guid(program.platform);
        waypoint->speed = 4.5;
        waypoint->start_year = waypoint->end_year = "1942";
        waypoint->start_month = waypoint->end_month = "November";
        waypoint->start_day = waypoint->end_day = "25";
        waypoint->start_hour = waypoint->end_hour = "08";
        waypoint->start_minute = waypoint->end_minute = "30";
        waypoint->X = 1234;
        waypoint->Y = 4321;
        waypoint->range = 6750;
        unit->waypoints->add(waypoint, waypoint->ID);
    }
    program.campaign.colUnits->add(unit, unit->ID);
}

void add_line(Program& program, int number) {
    auto line = std::make_shared<oLines>();
    line->linecolor = 192;
    line->linestyle = 1;
    line->linewidth = 2;
    line->boundry_size = "Battalion";
    for (int i = 0; i < 10; ++i)
        line->colCoords->add(
            std::make_shared<oCoordinates>(oCoordinates{number + i * 40, number * 3 + i * 25}));
    program.campaign.colLines->add(line);
}

/// A campaign of so many units, each under the one before it, and half as many lines, in memory and in a
/// file.
struct LargeCampaign {
    explicit LargeCampaign(int units) : program(platform, {}), units(units) {
        program.main.picMap.width = 5468;
        std::shared_ptr<oUnits> last;
        for (int i = 0; i < units; ++i) {
            add_unit(program, i, last.get());
            last = program.campaign.colUnits->at(program.campaign.colUnits.count());
        }
        for (int i = 0; i < units / 2; ++i) add_line(program, i);
        platform.path =
            (std::filesystem::temp_directory_path() / ("tolvane-benchmark-" + new_guid(platform) + ".tvn"))
                .string();
        cmdSave_Click(program);
    }
    LargeCampaign(const LargeCampaign&) = delete;
    LargeCampaign& operator=(const LargeCampaign&) = delete;
    ~LargeCampaign() { std::filesystem::remove(platform.path); }

    FilePlatform platform;
    Program program;
    int units;
};

constexpr int all_units = 30000;

/// Campaigns of so many units each, together 30,000: the same number in many small campaigns and in one large
/// one, so that a comparison tells of the work and not of the processor's caches. To be asked for before the
/// clock runs: the first call makes them.
std::deque<LargeCampaign>& campaigns(std::int64_t units) {
    static std::map<std::int64_t, std::deque<LargeCampaign>> made;
    std::deque<LargeCampaign>& those = made[units];
    while (static_cast<std::int64_t>(those.size()) < all_units / units)
        those.emplace_back(static_cast<int>(units));
    return those;
}

void add_up_bytes(benchmark::State& state) {
    const std::string path = campaigns(10000).front().platform.path;
    for (auto _ : state) {
        std::ifstream in(path, std::ios::binary);
        std::string bytes(std::filesystem::file_size(path), '\0');
        in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        unsigned sum = 0;
        for (const char byte : bytes) sum += static_cast<unsigned char>(byte);
        benchmark::DoNotOptimize(sum);
    }
}

std::unique_ptr<Program> read_into_fresh(LargeCampaign& stored) {
    auto fresh = std::make_unique<Program>(stored.platform, std::span<const PaintLayer>{});
    fresh->main.picMap.width = 5468;
    cmdLoad_Click(*fresh);
    if (fresh->campaign.colUnits.count() != static_cast<std::size_t>(stored.units))
        report_wrong("not all units were read");
    return fresh;
}

/// Reads the first few of the campaigns. Letting go of what was read is no part of it, and comes when all are
/// read: many small ones then find no more memory ready for use than one large one.
void read_first(benchmark::State& state, std::deque<LargeCampaign>& stored, std::size_t few) {
    std::vector<std::unique_ptr<Program>> fresh;
    for (auto _ : state) {
        for (std::size_t i = 0; i < few; ++i) fresh.push_back(read_into_fresh(stored[i]));
        state.PauseTiming();
        fresh.clear();
        state.ResumeTiming();
    }
}

void read_one(benchmark::State& state) { read_first(state, campaigns(10000), 1); }

void write_one(benchmark::State& state) {
    Program& program = campaigns(10000).front().program;
    for (auto _ : state) cmdSave_Click(program);
}

void read_all(benchmark::State& state) {
    std::deque<LargeCampaign>& those = campaigns(state.range(0));
    read_first(state, those, those.size());
}

void write_all(benchmark::State& state) {
    std::deque<LargeCampaign>& those = campaigns(state.range(0));
    for (auto _ : state)
        for (LargeCampaign& one : those) cmdSave_Click(one.program);
}

void check_all(benchmark::State& state) {
    std::deque<LargeCampaign>& those = campaigns(state.range(0));
    for (auto _ : state)
        for (LargeCampaign& one : those) check_hierarchy(one.program);
}

void renumber_all(benchmark::State& state) {
    std::deque<LargeCampaign>& those = campaigns(state.range(0));
    for (auto _ : state)
        for (LargeCampaign& one : those) assign_new_ids(one.program);
}

} // namespace

BENCHMARK(add_up_bytes)->Unit(benchmark::kMillisecond);
BENCHMARK(read_one)->Unit(benchmark::kMillisecond);
BENCHMARK(write_one)->Unit(benchmark::kMillisecond);
BENCHMARK(read_all)->Arg(1000)->Arg(all_units)->Unit(benchmark::kMillisecond);
BENCHMARK(write_all)->Arg(1000)->Arg(all_units)->Unit(benchmark::kMillisecond);
BENCHMARK(check_all)->Arg(1000)->Arg(all_units)->Unit(benchmark::kMillisecond);
BENCHMARK(renumber_all)->Arg(1000)->Arg(all_units)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    return run_with_ratios(
        argc, argv,
        {{"reading 10,000 units / adding up the bytes", "read_one", "add_up_bytes", 12},
         {"writing 10,000 units / adding up the bytes", "write_one", "add_up_bytes", 5},
         {"reading 30,000 units / 30 times 1,000", "read_all/30000", "read_all/1000", 1.3},
         {"writing 30,000 units / 30 times 1,000", "write_all/30000", "write_all/1000", 1.3},
         {"check_hierarchy, 30,000 / 30 times 1,000", "check_all/30000", "check_all/1000", 1.3},
         {"assign_new_ids, 30,000 / 30 times 1,000", "renumber_all/30000", "renumber_all/1000", 1.3}});
}
