// Every record byte for byte: each field has a value of its own, so that no two can be exchanged unseen.

#include "persistence/record_reader.h"
#include "persistence/record_writer.h"

#include "persistence/version_gates.h"

#include <gtest/gtest.h>

namespace {

template <class Record, class Write> std::string written(const Record& record, Write write) {
    FieldWriter out;
    write(out, record);
    return std::string(out.bytes());
}

const std::string newest = "Tolvane.ii.1.0";

} // namespace

TEST(Records, Label) {
    const std::string bytes = "70001,1,2,#TRUE#,70002,#FALSE#,\"Arial \xF7\",14,#TRUE#,#FALSE#,\"{L}\","
                              "\"say \xF7now\xF7\",11,12\r\n";
    FieldReader in(bytes);
    const auto label = read_label(in);
    EXPECT_EQ(label->backcolor, 70001);
    EXPECT_EQ(label->backstyle, 1);
    EXPECT_EQ(label->borderstyle, 2);
    EXPECT_TRUE(label->font_bold);
    EXPECT_EQ(label->font_color, 70002);
    EXPECT_FALSE(label->font_italic);
    EXPECT_EQ(label->font_name, "Arial \xF7");
    EXPECT_EQ(label->font_size, 14);
    EXPECT_TRUE(label->font_strikethru);
    EXPECT_FALSE(label->font_underline);
    EXPECT_EQ(label->ID, "{L}");
    EXPECT_EQ(label->text, "say \"now\"");
    EXPECT_EQ(label->xcoord, 11);
    EXPECT_EQ(label->ycoord, 12);
    EXPECT_EQ(written(*label, write_label), bytes);
    label->font_name = "\"";
    EXPECT_NE(written(*label, write_label).find("\"\"\",14"), std::string::npos) << "a name is not typed";
}

TEST(Records, Line) {
    const std::string bytes = "70001,70002,70003,70004,\"Corps \xF7\",#TRUE#,#FALSE#,#TRUE#,70005,3,4\r\n"
                              "2\r\n1,2\r\n70006,70007\r\n";
    FieldReader in(bytes);
    const auto line = read_line(in);
    EXPECT_EQ(line->arrow1_x, 70001);
    EXPECT_EQ(line->arrow1_y, 70002);
    EXPECT_EQ(line->arrow2_x, 70003);
    EXPECT_EQ(line->arrow2_y, 70004);
    EXPECT_EQ(line->boundry_size, "Corps \xF7");
    EXPECT_TRUE(line->is_arrow);
    EXPECT_FALSE(line->is_boundry);
    EXPECT_TRUE(line->is_polyline);
    EXPECT_EQ(line->linecolor, 70005);
    EXPECT_EQ(line->linestyle, 3);
    EXPECT_EQ(line->linewidth, 4);
    ASSERT_EQ(line->colCoords.count(), 2U);
    EXPECT_EQ(line->colCoords->at(1)->x_cor, 1);
    EXPECT_EQ(line->colCoords->at(1)->y_cor, 2);
    EXPECT_EQ(line->colCoords->at(2)->x_cor, 70006);
    EXPECT_EQ(written(*line, write_line), bytes);
}

TEST(Records, UnitWithAllItOwns) {
    const std::string bytes =
        "\"Allied\",70001,\"Company\",\"gm@\xF7\",\"gm \xF7name\xF7\",\"{U}\",\"unit \xF7\xF7\",\"Soviet\","
        "\"{P}\",\"HQ \xF7\xF7\",\"player@\",\"player \xF7\xF7\",\"\\s.gif\",\"Rifle\",11,12,13,14,"
        "\"Attacking\",\"90 %\",\"Line unit\",2\r\n"
        "1\r\n\"{C}\",\"child \xF7\xF7\"\r\n"
        "1\r\n\"{F}\",21,\"Regular\",22,23,24,25,26,\"free \xF7\"\r\n"
        "1\r\n70002,70003\r\n"
        "1\r\n\"25\",\"07\",\"30\",\"November\",\"1942\",\"{W}\",\"note \xF7\xF7\",4.123456789,\"26\",\"08\","
        "\"31\",\"December\",\"1943\",100.5,200.25,6750\r\n";
    FieldReader in(bytes);
    bool duplicate = false;
    const auto unit = read_unit(in, newest, duplicate);
    EXPECT_FALSE(duplicate);
    EXPECT_EQ(unit->affiliation, "Allied");
    EXPECT_EQ(unit->color, 70001);
    EXPECT_EQ(unit->echelon, "Company");
    EXPECT_EQ(unit->gm_email, "gm@\xF7");
    EXPECT_EQ(unit->gm_name, "gm \"name\"");
    EXPECT_EQ(unit->ID, "{U}");
    EXPECT_EQ(unit->name, "unit \"\"");
    EXPECT_EQ(unit->nationality, "Soviet");
    EXPECT_EQ(unit->parent_ID, "{P}");
    EXPECT_EQ(unit->parent_name, "HQ \"\"");
    EXPECT_EQ(unit->player_email, "player@");
    EXPECT_EQ(unit->player_name, "player \"\"");
    EXPECT_EQ(unit->symbol, "\\s.gif");
    EXPECT_EQ(unit->unittype, "Rifle");
    EXPECT_EQ(unit->xcoord, 11);
    EXPECT_EQ(unit->ycoord, 12);
    EXPECT_EQ(unit->supply_req, 13);
    EXPECT_EQ(unit->current_supply, 14);
    EXPECT_EQ(unit->op_status, "Attacking");
    EXPECT_EQ(unit->fitness, "90 %");
    EXPECT_EQ(unit->order_id, "Line unit");
    EXPECT_EQ(unit->state, 2);
    EXPECT_EQ(unit->children->item("{C}")->name, "child \"\"");
    const oUnitForceElements& element = *unit->force_elements->item("{F}");
    EXPECT_EQ(element.ammo, 21);
    EXPECT_EQ(element.experience, "Regular");
    EXPECT_EQ(element.Index, 22);
    EXPECT_EQ(element.quantity, 23);
    EXPECT_EQ(element.FireFanAngle, 24);
    EXPECT_EQ(element.MIA, 25);
    EXPECT_EQ(element.KIA, 26);
    EXPECT_EQ(element.free_text, "free \xF7");
    EXPECT_EQ(unit->area_of_opeartion->at(1)->x_cor, 70002);
    EXPECT_EQ(unit->area_of_opeartion->at(1)->y_cor, 70003);
    const oWaypoint& waypoint = *unit->waypoints->item("{W}");
    EXPECT_EQ(waypoint.end_day + waypoint.end_hour + waypoint.end_minute, "250730");
    EXPECT_EQ(waypoint.end_month + waypoint.end_year, "November1942");
    EXPECT_EQ(waypoint.notes, "note \"\"");
    EXPECT_EQ(waypoint.speed, 4.123456789);
    EXPECT_EQ(waypoint.start_day + waypoint.start_hour + waypoint.start_minute, "260831");
    EXPECT_EQ(waypoint.start_month + waypoint.start_year, "December1943");
    EXPECT_EQ(waypoint.X, 100.5F);
    EXPECT_EQ(waypoint.Y, 200.25F);
    EXPECT_EQ(waypoint.range, 6750);
    EXPECT_EQ(written(*unit, write_unit), bytes);
}

TEST(Records, LaterChildElementOrWaypointUnderOneKeyIsDroppedAndTold) {
    const std::string head =
        "\"\",0,\"\",\"\",\"\",\"{U}\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",1,2,3,4,\"\",\"\","
        "\"Line unit\",0\r\n";
    const std::string none = "0\r\n";
    const auto twice = [](const std::string& record) {
        std::string second = record;
        second.replace(second.find("first"), 5, "second");
        return "2\r\n" + record + "\r\n" + second + "\r\n";
    };
    const auto read = [&](const std::string& lists) {
        const std::string bytes = head + lists;
        FieldReader in(bytes);
        bool duplicate = false;
        auto unit = read_unit(in, newest, duplicate);
        EXPECT_TRUE(duplicate) << lists;
        return unit;
    };
    const auto parent = read(twice("\"{C}\",\"first\"") + none + none + none);
    EXPECT_EQ(parent->children.count(), 1U);
    EXPECT_EQ(parent->children->item("{C}")->name, "first");
    const auto armed = read(none + twice("\"{F}\",60,\"Regular\",1,9,215,2,1,\"first\"") + none + none);
    EXPECT_EQ(armed->force_elements.count(), 1U);
    EXPECT_EQ(armed->force_elements->item("{F}")->free_text, "first");
    const std::string waypoint =
        "\"25\",\"08\",\"30\",\"November\",\"1942\",\"{W}\",\"first\",4.5,\"25\",\"07\","
        "\"00\",\"November\",\"1942\",300.5,450,6750";
    const auto moving = read(none + none + none + twice(waypoint));
    EXPECT_EQ(moving->waypoints.count(), 1U);
    EXPECT_EQ(moving->waypoints->item("{W}")->notes, "first");
}

TEST(Records, Shape) {
    const std::string bytes =
        "70001,2,9,70002,40,\"{S}\",\"note \xF7\xF7\",70003,\"Arial \xF7\",#TRUE#,#FALSE#,12,3,"
        "4,50,11,13\r\n";
    FieldReader in(bytes);
    const auto shape = read_shape(in);
    EXPECT_EQ(shape->bordercolor, 70001);
    EXPECT_EQ(shape->borderwidth, 2);
    EXPECT_EQ(shape->drawmode, 9);
    EXPECT_EQ(shape->fillcolor, 70002);
    EXPECT_EQ(shape->height, 40);
    EXPECT_EQ(shape->ID, "{S}");
    EXPECT_EQ(shape->notes, "note \"\"");
    EXPECT_EQ(shape->notescolor, 70003);
    EXPECT_EQ(shape->notesfont, "Arial \xF7");
    EXPECT_TRUE(shape->notesfontbold);
    EXPECT_FALSE(shape->notesfontitalic);
    EXPECT_EQ(shape->notesfontsize, 12);
    EXPECT_EQ(shape->shape, 3);
    EXPECT_EQ(shape->shape_index, 4);
    EXPECT_EQ(shape->width, 50);
    EXPECT_EQ(shape->xcoord, 11);
    EXPECT_EQ(shape->ycoord, 13);
    EXPECT_EQ(written(*shape, write_shape), bytes);
}

TEST(Records, Polygon) {
    const std::string bytes = "70001,2,9,70002,70003,\"{P}\",\"note \xF7\xF7\"\r\n1\r\n70004,70005\r\n";
    FieldReader in(bytes);
    const auto polygon = read_polygon(in);
    EXPECT_EQ(polygon->bordercolor, 70001);
    EXPECT_EQ(polygon->borderwidth, 2);
    EXPECT_EQ(polygon->drawmode, 9);
    EXPECT_EQ(polygon->fillcolor, 70002);
    EXPECT_EQ(polygon->fontcolor, 70003);
    EXPECT_EQ(polygon->ID, "{P}");
    EXPECT_EQ(polygon->notes, "note \"\"");
    EXPECT_EQ(polygon->coordinates->at(1)->y_cor, 70005);
    EXPECT_EQ(written(*polygon, write_polygon), bytes);
}

TEST(Records, FireMission) {
    const std::string bytes =
        "\"to \xF7\",\"25\",\"07\",\"30\",\"November\",\"1942\",\"{M}\",90,400,1,2,\"note\",\"AB "
        "1\",3,\"26\",\"08\","
        "\"31\",\"December\",\"1943\",11,12,\"Axis\",5,6\r\n";
    FieldReader in(bytes);
    const auto mission = read_fire_mission(in, newest);
    EXPECT_EQ(mission->assigned_to, "to \xF7");
    EXPECT_EQ(mission->end_day + mission->end_hour + mission->end_minute, "250730");
    EXPECT_EQ(mission->end_month + mission->end_year, "November1942");
    EXPECT_EQ(mission->ID, "{M}");
    EXPECT_EQ(mission->line_angle, 90);
    EXPECT_EQ(mission->line_length, 400);
    EXPECT_EQ(mission->missionclass, 1);
    EXPECT_EQ(mission->missiontype, 2);
    EXPECT_EQ(mission->notes, "note");
    EXPECT_EQ(mission->numbtarget_id, "AB 1");
    EXPECT_EQ(mission->pattern, 3);
    EXPECT_EQ(mission->start_day + mission->start_hour + mission->start_minute, "260831");
    EXPECT_EQ(mission->start_month + mission->start_year, "December1943");
    EXPECT_EQ(mission->xcoord, 11);
    EXPECT_EQ(mission->ycoord, 12);
    EXPECT_EQ(mission->affiliation, "Axis");
    EXPECT_EQ(mission->rate, 5);
    EXPECT_EQ(mission->shells, 6);
    EXPECT_EQ(written(*mission, write_fire_mission), bytes);
}
