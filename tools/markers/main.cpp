// Makes the marker pictures of both sides from their names: markers NAMES.TXT FORCES_DIRECTORY

#include "core/reference_files.h"
#include "tools/markers/canvas.h"
#include "tools/markers/symbols.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: markers NAMES.TXT FORCES_DIRECTORY\n";
        return 2;
    }
    std::ifstream names(argv[1]);
    const std::filesystem::path forces = argv[2];
    Canvas blank;
    draw_box(blank);
    bool written = write_gif(blank, (forces / "blank.gif").string());
    std::string side;
    std::string name;
    while (written && names >> side && std::getline(names >> std::ws, name)) {
        const auto directory = forces / (side == "Allied" ? "allied forces" : "axis forces");
        std::filesystem::create_directories(directory);
        written = write_gif(marker(name, echelon_of_file_name(name)), (directory / (name + ".gif")).string());
    }
    return written ? 0 : 1;
}
