#include "tools/campaign/plans.h"

#include "tools/campaign/drawing.h"

namespace {

constexpr std::int32_t red = 0x0000C0;
constexpr std::int32_t blue = 0xC00000;
constexpr std::int32_t pale_red = 0xC8C8FF;
constexpr std::int32_t pale_blue = 0xFFE0C8;

void draw_front(Program& program) {
    line(program, red, 1, 3, "",
         {{0.4, 28.2},
          {3.4, 27.4},
          {7.2, 27.1},
          {10.6, 25.6},
          {13.6, 24.6},
          {16.8, 22.8},
          {20.4, 20.8},
          {24.3, 18.2},
          {28.6, 17.4},
          {33.4, 17.9},
          {36.0, 18.6}});
    line(program, blue, 1, 3, "",
         {{0.4, 27.2},
          {3.0, 26.4},
          {7.0, 26.0},
          {10.2, 24.7},
          {13.1, 23.7},
          {16.2, 22.0},
          {19.9, 19.9},
          {23.8, 17.1},
          {28.4, 16.2},
          {33.6, 16.9},
          {36.0, 17.6}});
    line(program, red, 1, 2, "Division", {{11.6, 31.4}, {10.6, 25.6}});
    line(program, red, 1, 2, "Division", {{18.6, 28.6}, {16.8, 22.8}});
    line(program, red, 1, 2, "Division", {{27.0, 24.8}, {26.4, 17.8}});
    line(program, blue, 1, 2, "Division", {{7.0, 26.0}, {6.2, 18.4}});
    line(program, blue, 1, 2, "Corps", {{14.6, 22.8}, {14.2, 15.2}});
    line(program, blue, 1, 2, "Division", {{21.9, 18.5}, {21.2, 12.0}});
    line(program, blue, 1, 2, "Division", {{28.4, 16.2}, {27.8, 10.2}});
    line(program, 0x404040, 2, 1, "", {{5.4, 16.0}, {9.0, 15.2}, {13.8, 13.6}, {18.9, 11.4}, {24.5, 8.4}});
}

void draw_intentions(Program& program) {
    objective(program, "Objective Heron", pale_red, {{14.6, 22.9}, {16.9, 22.6}, {17.1, 20.9}, {15.0, 20.8}});
    objective(program, "Objective Elk", pale_red, {{22.6, 14.9}, {24.6, 14.7}, {24.4, 13.2}, {22.4, 13.4}});
    objective(program, "Objective Crane", pale_red, {{6.0, 12.4}, {8.4, 12.6}, {8.6, 10.8}, {6.2, 10.6}});
    objective(program, "Reserve area", pale_blue, {{9.0, 11.4}, {13.4, 11.6}, {13.6, 7.2}, {9.2, 7.0}});
    label(program, "Operation \"Polynya\"\n25 November 1942, 07:00", {1.0, 39.8}, 16, red);
    label(program, "Bridgehead North", {9.0, 28.9}, 11, red);
    label(program, "Bridgehead South", {27.8, 20.2}, 11, red);
    label(program, "Main line of resistance", {29.6, 15.4}, 11, blue);
    label(program, "Group Hartwig", {4.2, 15.4}, 12, blue);
    shape(program, "Depot 4", {33.6, 34.6}, 4, 90, 60, 0xC0FFFF);
    shape(program, "Ford", {6.2, 30.4}, 3, 70, 70, 0xFFE0A0);
    shape(program, "Minefield", {19.6, 19.2}, 2, 120, 60, 0xC8C8FF);
    shape(program, "Minefield", {8.6, 24.6}, 2, 120, 60, 0xC8C8FF);
    mission(program, "Opening barrage", 0, 0, 3, {12.4, 23.4}, "Allied");
    mission(program, "Barrage on the ferry road", 0, 0, 4, {24.6, 16.2}, "Allied");
    mission(program, "Support of 1471st Regiment", 0, 1, 1, {20.9, 18.9}, "Allied");
    mission(program, "Harassing fire on Velmorsk", 0, 2, 2, {15.8, 21.2}, "Allied");
    mission(program, "Bridge", 0, 3, 0, {13.4, 26.1}, "Axis");
    mission(program, "Assembly area", 0, 4, 0, {21.8, 24.2}, "Axis");
    mission(program, "Airstrike on the crossing", 1, 0, 0, {26.5, 14.2}, "Allied");
    mission(program, "Close support", 1, 1, 0, {17.2, 20.6}, "Axis");
    march(program, "281st", 15, {{23.6, 24.4}, {22.6, 19.6}, {21.4, 15.2}}, "Exploitation");
    march(program, "283rd", 15, {{25.4, 23.0}, {24.6, 18.4}, {23.2, 13.8}}, "Exploitation");
    march(program, "93rd", 7, {{32.6, 22.0}, {30.2, 16.4}, {29.4, 11.0}}, "Cut the road");
    march(program, "297th", 18, {{11.2, 18.2}, {14.2, 21.4}}, "Counter-attack reserve");
    march(program, "49th", 12, {{13.2, 14.4}, {16.4, 18.4}}, "Counter-attack");
    area(program, "93rd", 3.6, 3.2, 225);
    area(program, "XXIX", 2.4, 2.0, 35);
}

} // namespace

void draw_operation(Program& program) {
    draw_front(program);
    draw_intentions(program);
}

void draw_lesson(Program& program) {
    line(program, red, 1, 3, "", {{10.2, 27.2}, {12.6, 26.8}, {14.4, 25.9}, {16.2, 24.6}});
    line(program, blue, 1, 3, "", {{9.8, 26.2}, {12.2, 25.7}, {14.0, 24.7}, {15.6, 23.6}});
    line(program, red, 1, 2, "Regiment", {{16.6, 28.4}, {16.2, 24.6}});
    line(program, blue, 1, 2, "Battalion", {{12.2, 25.7}, {11.6, 22.4}});
    objective(program, "Objective Wren", pale_red, {{12.8, 25.0}, {14.2, 24.6}, {14.0, 23.4}, {12.8, 23.6}});
    label(program, "First steps: across the bridge\n25 November 1942, 07:00", {10.2, 30.6}, 14, red);
    shape(program, "Bridge", {13.4, 26.1}, 3, 60, 60, 0xFFE0A0);
    mission(program, "Opening barrage", 0, 0, 1, {13.4, 24.4}, "Allied");
    mission(program, "Bridge", 0, 3, 0, {13.4, 26.1}, "Axis");
    march(program, "1461st", 3.2, {{13.4, 26.1}, {13.2, 23.6}}, "Follow the first wave");
    area(program, "1461st", 4.2, 3.0, 205);
}
