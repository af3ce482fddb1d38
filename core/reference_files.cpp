#include "core/reference_files.h"

#include "core/numbers.h"
#include "core/record_syntax.h"
#include "core/trap.h"

#include <array>
#include <memory>
#include <string>

namespace {

const std::string allied_pictures = "\\data\\forces\\allied forces\\";
const std::string axis_pictures = "\\data\\forces\\axis forces\\";
const std::string elements_file = "\\data\\forces\\elements.txt";
const std::string axis_players_file = "\\data\\axis players.txt";
const std::string allied_players_file = "\\data\\allied players.txt";
const std::string game_masters_file = "\\data\\game masters.txt";
const std::string towns_file = "\\data\\towns.txt";

struct EchelonWord {
    const char* lower;
    const char* capitalised;
};

// In the order in which they are tried: the first word found anywhere in the name decides.
constexpr std::array<EchelonWord, 11> echelon_words{{{"army", "Army"},
                                                     {"corps", "Corps"},
                                                     {"division", "Division"},
                                                     {"brigade", "Brigade"},
                                                     {"regiment", "Regiment"},
                                                     {"battalion", "Battalion"},
                                                     {"company", "Company"},
                                                     {"platoon", "Platoon"},
                                                     {"squad", "Squad"},
                                                     {"team", "Team"},
                                                     {"battery", "Battery"}}};

/// Where a file or directory below the program's own lies on the disk.
std::string place_of(const Program& program, const std::string& path) {
    return program.platform.reference_path(program.campaign.gAppPath + path);
}

void load_side(Program& program, const std::string& directory, const std::string& side) {
    const auto names = program.platform.list_files(place_of(program, directory), ".gif");
    if (names.empty())
        program.platform.message({"Error! No " + side + " forces found in " +
                                  program.platform.shown_path(program.campaign.gAppPath) + directory});
    for (const std::string& name : names) {
        auto type = std::make_shared<oUnitTypes>();
        type->unittype = name.substr(0, name.size() - 4);
        type->echelon = echelon_of_file_name(name);
        type->nationality = side;
        type->fullname = directory + name;
        program.campaign.colUnitTypes->add(type, side + type->unittype);
    }
}

std::shared_ptr<oForceElements> read_element(FieldReader& reader) {
    auto element = std::make_shared<oForceElements>();
    element->ID = reader.int16();
    element->affiliation = reader.int16();
    element->force_type = reader.int16();
    element->description = reader.text();
    element->firefan = reader.boolean();
    element->min_range = reader.int16();
    element->max_range = reader.int16();
    element->rof = reader.int16();
    element->max_ammo = reader.int16();
    return element;
}

std::shared_ptr<oTowns> read_town(FieldReader& reader) {
    auto town = std::make_shared<oTowns>();
    town->axis_name = reader.text();
    town->allied_name = reader.text();
    town->xcoord = reader.text();
    town->ycoord = reader.text();
    town->notes = reader.text();
    town->population = reader.int16();
    town->ID = reader.text();
    return town;
}

template <class Person>
void load_roster(Program& program, const std::string& file, Collection<Person>& roster) {
    const std::string path = place_of(program, file);
    if (!program.platform.file_exists(path)) return;
    const std::string bytes = program.platform.read_file(path);
    FieldReader reader(bytes);
    while (!reader.at_end()) {
        auto person = std::make_shared<Person>();
        person->name = reader.text();
        person->email = reader.text();
        roster.add_new(person, person->name);
    }
}

template <class Person>
void save_roster(Program& program, const std::string& file, const Collection<Person>& roster) {
    const auto out = program.platform.open_for_output(place_of(program, file));
    FieldWriter writer;
    for (const auto& person : roster) writer.text(person->name).text(person->email).end_record();
    out->write(writer.bytes());
    out->close();
}

} // namespace

std::string echelon_of_file_name(const std::string& file_name) {
    for (const EchelonWord& word : echelon_words)
        if (file_name.find(word.lower) != std::string::npos ||
            file_name.find(word.capitalised) != std::string::npos)
            return word.capitalised;
    return "";
}

void load_unit_types(Program& program) {
    trap(program, " while loading unit-types.", [&] {
        load_side(program, allied_pictures, "Allied");
        load_side(program, axis_pictures, "Axis");
    });
}

void load_force_elements(Program& program) {
    trap(program, " when loading force element types.", [&] {
        const std::string bytes = program.platform.read_file(place_of(program, elements_file));
        FieldReader reader(bytes);
        while (!reader.at_end()) {
            const auto element = read_element(reader);
            program.campaign.colForceElements->add(element, str(element->ID));
        }
    });
}

void load_user_data(Program& program) {
    trap(program, " when user data.", [&] {
        load_roster(program, axis_players_file, *program.campaign.colGermanPlayers);
        load_roster(program, allied_players_file, *program.campaign.colRussianPlayers);
        load_roster(program, game_masters_file, *program.campaign.colGameMasters);
    });
}

void load_towns(Program& program) {
    trap(program, " when loading towns data.", [&] {
        const std::string bytes = program.platform.read_file(place_of(program, towns_file));
        FieldReader reader(bytes);
        while (!reader.at_end()) {
            const auto town = read_town(reader);
            program.campaign.colTowns->add_new(town, town->ID);
        }
    });
}

void save_user_data(Program& program) {
    save_roster(program, game_masters_file, *program.campaign.colGameMasters);
    save_roster(program, allied_players_file, *program.campaign.colRussianPlayers);
    save_roster(program, axis_players_file, *program.campaign.colGermanPlayers);
}

void save_towns(Program& program) {
    const auto out = program.platform.open_for_output(place_of(program, towns_file));
    FieldWriter writer;
    for (const auto& town : *program.campaign.colTowns)
        writer.text(town->axis_name)
            .text(town->allied_name)
            .text(town->xcoord)
            .text(town->ycoord)
            .text(town->notes)
            .integer(town->population)
            .text(town->ID)
            .end_record();
    out->write(writer.bytes());
    out->close();
}
