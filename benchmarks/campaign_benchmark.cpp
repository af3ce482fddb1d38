// Reading, writing, checking and renumbering large campaigns.

#include "benchmarks/ratios.h"
#include "core/hierarchy.h"
#include "core/identity.h"
#include "core/program.h"
#include "persistence/main_file_reader.h"
#include "persistence/main_file_writer.h"
#include "tools/support/quiet_platform.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>

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
            (std::filesystem::temp_directory_path() / ("tolvane-benchmark-" + std::to_string(units) + ".tvn"))
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

LargeCampaign& campaign(std::int64_t units) {
    static LargeCampaign small(1000);
    static LargeCampaign middle(10000);
    static LargeCampaign large(30000);
    return units == 1000 ? small : units == 10000 ? middle : large;
}

void add_up_bytes(benchmark::State& state) {
    const std::string path = campaign(state.range(0)).platform.path;
    for (auto _ : state) {
        std::ifstream in(path, std::ios::binary);
        std::string bytes(std::filesystem::file_size(path), '\0');
        in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        unsigned sum = 0;
        for (const char byte : bytes) sum += static_cast<unsigned char>(byte);
        benchmark::DoNotOptimize(sum);
    }
}

void read_campaign(benchmark::State& state) {
    LargeCampaign& stored = campaign(state.range(0));
    for (auto _ : state) {
        auto fresh = std::make_unique<Program>(stored.platform, std::span<const PaintLayer>{});
        fresh->main.picMap.width = 5468;
        cmdLoad_Click(*fresh);
        if (fresh->campaign.colUnits.count() != static_cast<std::size_t>(stored.units))
            state.SkipWithError("not all units were read");
        state.PauseTiming(); // letting go of it is no part of reading
        fresh.reset();
        state.ResumeTiming();
    }
}

void write_campaign(benchmark::State& state) {
    LargeCampaign& stored = campaign(state.range(0));
    for (auto _ : state) cmdSave_Click(stored.program);
}

void check(benchmark::State& state) {
    LargeCampaign& stored = campaign(state.range(0));
    for (auto _ : state) check_hierarchy(stored.program);
}

void renumber(benchmark::State& state) {
    LargeCampaign& stored = campaign(state.range(0));
    for (auto _ : state) assign_new_ids(stored.program);
}

} // namespace

BENCHMARK(add_up_bytes)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(read_campaign)->Arg(1000)->Arg(10000)->Arg(30000)->Unit(benchmark::kMillisecond);
BENCHMARK(write_campaign)->Arg(1000)->Arg(10000)->Arg(30000)->Unit(benchmark::kMillisecond);
BENCHMARK(check)->Arg(1000)->Arg(30000)->Unit(benchmark::kMillisecond);
BENCHMARK(renumber)->Arg(1000)->Arg(30000)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    return run_with_ratios(
        argc, argv,
        {{"reading 10,000 units / adding up the bytes", "read_campaign/10000", "add_up_bytes/10000", 12},
         {"writing 10,000 units / adding up the bytes", "write_campaign/10000", "add_up_bytes/10000", 5},
         {"reading, a unit of 30,000 / of 1,000", "read_campaign/30000", "read_campaign/1000", 1.3, 30},
         {"writing, a unit of 30,000 / of 1,000", "write_campaign/30000", "write_campaign/1000", 1.3, 30},
         {"check_hierarchy, a unit of 30,000 / of 1,000", "check/30000", "check/1000", 1.3, 30},
         {"assign_new_ids, a unit of 30,000 / of 1,000", "renumber/30000", "renumber/1000", 1.3, 30}});
}
