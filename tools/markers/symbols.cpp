#include "tools/markers/symbols.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

// The box of the unit; its inside takes the branch.
constexpr int left = 2;
constexpr int top = 9;
constexpr int right = 26;
constexpr int bottom = 24;
constexpr int middle = 14;

void infantry(Canvas& c) {
    c.line(left, top, right, bottom);
    c.line(right, top, left, bottom);
}
void slash(Canvas& c) { c.line(left, bottom, right, top); }
void armour(Canvas& c) { c.oval(6, 13, 22, 20); }
void heavy_armour(Canvas& c) {
    armour(c);
    c.fill(7, 15, 9, 18);
    c.fill(19, 15, 21, 18);
}
void light_armour(Canvas& c) {
    armour(c);
    for (int x = 8; x <= 20; x += 2) c.set(x, 20, Canvas::paper);
}
void motorised(Canvas& c) {
    infantry(c);
    c.line(middle, top, middle, bottom);
}
void armoured_infantry(Canvas& c) {
    infantry(c);
    armour(c);
}
void armoured_car(Canvas& c) {
    slash(c);
    armour(c);
}
void field_gun(Canvas& c) { c.disc(middle, 16, 3); }
void howitzer(Canvas& c) {
    field_gun(c);
    c.fill(9, 21, 19, 21);
}
void heavy_howitzer(Canvas& c) {
    howitzer(c);
    c.fill(9, 23, 19, 23);
}
void cannon(Canvas& c) {
    field_gun(c);
    c.fill(middle, 10, middle, 13);
    c.fill(9, 22, 19, 22);
}
void rocket(Canvas& c) {
    c.disc(middle, 20, 2);
    for (const int y : {11, 14}) {
        c.line(8, y + 3, middle, y);
        c.line(20, y + 3, middle, y);
    }
}
void mortar(Canvas& c) {
    c.ring(middle, 21, 2);
    c.line(middle, 11, middle, 19);
    c.line(11, 14, middle, 11);
    c.line(17, 14, middle, 11);
}
void heavy_mortar(Canvas& c) {
    mortar(c);
    c.fill(9, 22, 11, 22);
    c.fill(17, 22, 19, 22);
}
void infantry_gun(Canvas& c) {
    infantry(c);
    c.disc(middle, 16, 2);
}
void anti_tank(Canvas& c) {
    c.line(left, bottom, middle, top);
    c.line(right, bottom, middle, top);
}
void anti_tank_gun(Canvas& c) {
    anti_tank(c);
    c.disc(middle, 20, 2);
}
void anti_tank_rifle(Canvas& c) {
    anti_tank(c);
    c.line(middle, 14, middle, 23);
}
void anti_aircraft(Canvas& c) {
    for (int x = left; x <= right; ++x) {
        const int dx = std::abs(x - middle);
        c.set(x, bottom - 7 + dx * dx / 21);
        c.set(x, bottom - 7 + std::max(0, dx - 1) * std::max(0, dx - 1) / 21);
    }
}
void anti_aircraft_light(Canvas& c) {
    anti_aircraft(c);
    c.line(middle, 11, middle, 16);
}
void anti_aircraft_heavy(Canvas& c) {
    anti_aircraft(c);
    c.disc(middle, 13, 2);
}
void engineers(Canvas& c) {
    c.fill(8, 14, 20, 14);
    for (const int x : {8, 14, 20}) c.fill(x, 14, x, 19);
}
void signal_troops(Canvas& c) {
    c.line(left, top, middle, 18);
    c.line(middle, 18, middle, 14);
    c.line(middle, 14, right, bottom);
}
void machine_gun(Canvas& c) {
    c.line(middle, 11, middle, 22);
    c.line(10, 15, middle, 11);
    c.line(18, 15, middle, 11);
    c.fill(10, 22, 18, 22);
}
void assault_gun(Canvas& c) {
    armour(c);
    anti_tank(c);
}
void ski(Canvas& c) {
    infantry(c);
    c.fill(9, 20, 19, 20);
    c.fill(9, 22, 19, 22);
}
void mountain(Canvas& c) {
    infantry(c);
    for (int i = 0; i <= 5; ++i) c.fill(middle - i, 19 + i, middle + i, 19 + i);
}
void mountain_gun(Canvas& c) {
    field_gun(c);
    for (int i = 0; i <= 3; ++i) c.fill(middle - i, 21 + i, middle + i, 21 + i);
}
void two_rings(Canvas& c) {
    c.ring(8, 28, 1.5);
    c.ring(14, 28, 1.5);
}
void motorcycle(Canvas& c) {
    infantry(c);
    two_rings(c);
}
void bicycle(Canvas& c) {
    infantry(c);
    c.ring(10, 28, 1.5);
}
void supply(Canvas& c) { c.fill(left, 20, right, 20); }
void supply_truck(Canvas& c) {
    supply(c);
    c.ring(9, 15, 2);
    c.ring(19, 15, 2);
}
void supply_horse(Canvas& c) {
    supply(c);
    c.line(10, 18, 10, 13);
    c.line(10, 13, 14, 11);
    c.line(14, 11, 18, 13);
    c.line(18, 13, 18, 18);
}
void medical(Canvas& c) {
    c.fill(left, 16, right, 17);
    c.fill(middle, top, middle, bottom);
}
void workshop(Canvas& c) {
    c.fill(9, 16, 19, 17);
    for (const int x : {7, 20}) {
        c.fill(x, 13, x + 1, 14);
        c.fill(x, 19, x + 1, 20);
    }
    c.fill(8, 14, 8, 19);
    c.fill(20, 14, 20, 19);
}
void observation(Canvas& c) {
    for (int i = 0; i <= 9; ++i) c.fill(middle - i * 6 / 9, 12 + i, middle + i * 6 / 9, 12 + i);
}
void construction(Canvas& c) {
    engineers(c);
    c.fill(8, 22, 20, 22);
}
void police(Canvas& c) { c.text(11, 14, "MP"); }
void security(Canvas& c) { c.text(9, 14, "SEC"); }
void sniper(Canvas& c) {
    infantry(c);
    c.ring(middle, 16, 4);
}

struct Branch {
    const char* word;
    void (*draw)(Canvas&);
};

// The first word that the name holds decides.
constexpr std::array<Branch, 49> branches{{{"Observation", observation},
                                           {"Sniper", sniper},
                                           {"Medical", medical},
                                           {"Workshop", workshop},
                                           {"Supply Truck", supply_truck},
                                           {"Supply Horse", supply_horse},
                                           {"Signal", signal_troops},
                                           {"Military Police", police},
                                           {"Security", security},
                                           {"Construction", construction},
                                           {"Rocket", rocket},
                                           {"Heavy Mortar", heavy_mortar},
                                           {"Mortar", mortar},
                                           {"IG", infantry_gun},
                                           {"AT Rifle", anti_tank_rifle},
                                           {"AT Gun", anti_tank_gun},
                                           {"AT Artillery", anti_tank_gun},
                                           {"AT", anti_tank},
                                           {"AA Machine Gun", anti_aircraft_light},
                                           {"AA Gun", anti_aircraft_heavy},
                                           {"AA", anti_aircraft},
                                           {"Light Flak", anti_aircraft_light},
                                           {"Heavy Flak", anti_aircraft_heavy},
                                           {"Flak", anti_aircraft},
                                           {"Assault Gun", assault_gun},
                                           {"Sapper", engineers},
                                           {"Pioneer", engineers},
                                           {"Machine Gun", machine_gun},
                                           {"Armored Car", armoured_car},
                                           {"Recon", slash},
                                           {"Cavalry", slash},
                                           {"Panzergrenadier", armoured_infantry},
                                           {"Company Heavy", heavy_armour},
                                           {"Company Light", light_armour},
                                           {"Tank", armour},
                                           {"Panzer", armour},
                                           {"Motorcycle", motorcycle},
                                           {"Bicycle", bicycle},
                                           {"Ski", ski},
                                           {"Alpini", mountain},
                                           {"Mountain Gun", mountain_gun},
                                           {"Mountain", mountain},
                                           {"Motor", motorised},
                                           {"Mechanized", motorised},
                                           {"Heavy Howitzer", heavy_howitzer},
                                           {"Howitzer", howitzer},
                                           {"Cannon", cannon},
                                           {"Artillery", field_gun},
                                           {"", infantry}}};

struct Tag {
    const char* word;
    const char* letters;
};

// Units of one branch that must be told apart.
constexpr std::array<Tag, 12> tags{{{"Guards", "G"},
                                    {"SMG", "SM"},
                                    {"Training", "TR"},
                                    {"Alarm", "AL"},
                                    {"Luftwaffe", "L"},
                                    {"Bersaglieri", "B"},
                                    {"Blackshirt", "BK"},
                                    {"Recon", "R"},
                                    {"Grenadier", "GR"},
                                    {"Army Artillery", "A"},
                                    {"Machine Gun Battalion", "M"},
                                    {"Light Division", "LT"}}};

void dots(Canvas& c, const std::vector<int>& columns) {
    for (const int x : columns) c.fill(x, 3, x + 2, 5);
}
void bars(Canvas& c, const std::vector<int>& columns) {
    for (const int x : columns) c.fill(x, 2, x + 1, 7);
}
void crosses(Canvas& c, int count) {
    int x = middle - (count * 6 - 1) / 2;
    for (int i = 0; i < count; ++i, x += 6) {
        c.line(x, 2, x + 4, 6);
        c.line(x + 4, 2, x, 6);
    }
}

/// Half the width of the echelon's sign.
int half_width(const std::string& echelon) {
    if (echelon == "Army") return 12;
    if (echelon == "Corps" || echelon == "Platoon") return 9;
    if (echelon == "Division" || echelon == "Regiment") return 7;
    return 5;
}

void draw_echelon(Canvas& c, const std::string& echelon) {
    // The sign is lost on dark colours without a light strip.
    if (!echelon.empty())
        c.fill(middle - half_width(echelon), 1, middle + half_width(echelon), 8, Canvas::paper);
    if (echelon == "Team") {
        c.ring(middle, 4, 2.6);
        c.line(middle - 3, 7, middle + 3, 1);
    }
    if (echelon == "Squad") dots(c, {13});
    if (echelon == "Platoon") dots(c, {7, 13, 19});
    if (echelon == "Company" || echelon == "Battery") bars(c, {13});
    if (echelon == "Battalion") bars(c, {11, 16});
    if (echelon == "Regiment") bars(c, {9, 13, 17});
    if (echelon == "Brigade") crosses(c, 1);
    if (echelon == "Division") crosses(c, 2);
    if (echelon == "Corps") crosses(c, 3);
    if (echelon == "Army") crosses(c, 4);
}

bool holds(const std::string& name, const char* word) { return name.find(word) != std::string::npos; }

} // namespace

void draw_box(Canvas& canvas) {
    canvas.fill(left, top, right, bottom);
    canvas.fill(left + 1, top + 1, right - 1, bottom - 1, Canvas::paper);
}

Canvas marker(const std::string& name, const std::string& echelon) {
    Canvas canvas;
    draw_box(canvas);
    for (const Branch& branch : branches)
        if (holds(name, branch.word)) {
            branch.draw(canvas);
            break;
        }
    draw_echelon(canvas, echelon);
    if (holds(name, "HQ")) canvas.fill(2, 24, 3, 30);
    for (const Tag& tag : tags)
        if (holds(name, tag.word)) {
            canvas.text(6, 26, tag.letters);
            break;
        }
    return canvas;
}
