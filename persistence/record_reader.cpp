#include "persistence/record_reader.h"

#include "persistence/quotes.h"
#include "persistence/version_gates.h"

#include <algorithm>
#include <array>

namespace {

std::string text_with_quotes(FieldReader& in) { return with_quotes_back(in.text()); }

/// How much room to make for a list of this count: a count in a damaged file may be anything.
std::size_t modest(int count) { return static_cast<std::size_t>(std::min(count, 64)); }

void read_vertices(FieldReader& in, Collection<oCoordinates>& vertices, int count) {
    vertices.reserve(modest(count));
    for (int i = 0; i < count; ++i) {
        auto vertex = std::make_shared<oCoordinates>();
        vertex->x_cor = in.long_integer();
        vertex->y_cor = in.long_integer();
        vertices.add(std::move(vertex));
    }
}

void read_vertices(FieldReader& in, const CollectionRef<oCoordinates>& vertices) {
    const int count = in.int16();
    if (count > 0) read_vertices(in, *vertices, count);
}

std::string relative_symbol(const std::string& stored) {
    const std::size_t start = stored.find("\\data\\forces\\");
    return start == std::string::npos ? stored : stored.substr(start);
}

void read_unit_record(FieldReader& in, std::string_view tag, oUnits& unit) {
    unit.affiliation = in.text();
    unit.color = in.long_integer();
    unit.echelon = in.text();
    unit.gm_email = in.text();
    unit.gm_name = text_with_quotes(in);
    unit.ID = in.text();
    unit.name = text_with_quotes(in);
    unit.nationality = in.text();
    unit.parent_ID = in.text();
    unit.parent_name = text_with_quotes(in);
    unit.player_email = in.text();
    unit.player_name = text_with_quotes(in);
    unit.symbol = in.text();
    if (has_absolute_symbol(tag)) unit.symbol = relative_symbol(unit.symbol);
    unit.unittype = in.text();
    unit.xcoord = in.int16();
    unit.ycoord = in.int16();
    unit.supply_req = in.int16();
    unit.current_supply = in.int16();
    unit.op_status = in.text();
    unit.fitness = in.text();
    unit.order_id = order_id_of(in.text(), unit.echelon);
    if (has_unit_state(tag)) unit.state = in.int16();
}

std::shared_ptr<oChildren> read_child(FieldReader& in) {
    auto child = std::make_shared<oChildren>();
    child->ID = in.text();
    child->name = text_with_quotes(in);
    return child;
}

std::shared_ptr<oUnitForceElements> read_force_element(FieldReader& in, std::string_view tag) {
    auto element = std::make_shared<oUnitForceElements>();
    element->ID = in.text();
    element->ammo = in.int16();
    element->experience = in.text();
    element->Index = in.int16();
    element->quantity = in.int16();
    element->FireFanAngle = in.int16();
    element->MIA = in.int16();
    element->KIA = in.int16();
    if (has_free_text(tag)) element->free_text = in.text();
    return element;
}

std::shared_ptr<const oWaypoint> read_waypoint(FieldReader& in) {
    auto waypoint = std::make_shared<oWaypoint>();
    waypoint->end_day = in.text();
    waypoint->end_hour = in.text();
    waypoint->end_minute = in.text();
    waypoint->end_month = in.text();
    waypoint->end_year = in.text();
    waypoint->ID = in.text();
    waypoint->notes = text_with_quotes(in);
    waypoint->speed = in.double_number();
    waypoint->start_day = in.text();
    waypoint->start_hour = in.text();
    waypoint->start_minute = in.text();
    waypoint->start_month = in.text();
    waypoint->start_year = in.text();
    waypoint->X = in.single();
    waypoint->Y = in.single();
    waypoint->range = in.int16();
    return waypoint;
}

/// Reads a count and that many records with identity; one whose key is present is dropped.
template <class Record, class Read>
void read_keyed(FieldReader& in, const CollectionRef<Record>& records, bool& duplicate_key, Read read) {
    const int count = in.int16();
    if (count > 0) records->reserve(modest(count));
    for (int i = 0; i < count; ++i) {
        auto record = read(in);
        std::string key = record->ID;
        if (!records->add_new(std::move(record), std::move(key))) duplicate_key = true;
    }
}

} // namespace

std::string order_id_of(const std::string& stored, std::string_view echelon) {
    constexpr std::array<std::string_view, 6> headquarters{"Army",    "Corps",    "Division",
                                                           "Brigade", "Regiment", "Battalion"};
    if (stored == "re" || stored == "RE") return "Rear echelon";
    if (!stored.empty()) return stored;
    const bool rear = std::find(headquarters.begin(), headquarters.end(), echelon) != headquarters.end();
    return rear ? "Rear echelon" : "Line unit";
}

std::shared_ptr<oLabels> read_label(FieldReader& in) {
    auto label = std::make_shared<oLabels>();
    label->backcolor = in.long_integer();
    label->backstyle = in.int16();
    label->borderstyle = in.int16();
    label->font_bold = in.boolean();
    label->font_color = in.long_integer();
    label->font_italic = in.boolean();
    label->font_name = in.text();
    label->font_size = in.int16();
    label->font_strikethru = in.boolean();
    label->font_underline = in.boolean();
    label->ID = in.text();
    label->text = text_with_quotes(in);
    label->xcoord = in.int16();
    label->ycoord = in.int16();
    return label;
}

std::shared_ptr<oLines> read_line(FieldReader& in) {
    auto line = std::make_shared<oLines>();
    line->arrow1_x = in.long_integer();
    line->arrow1_y = in.long_integer();
    line->arrow2_x = in.long_integer();
    line->arrow2_y = in.long_integer();
    line->boundry_size = in.text();
    line->is_arrow = in.boolean();
    line->is_boundry = in.boolean();
    line->is_polyline = in.boolean();
    line->linecolor = in.long_integer();
    line->linestyle = in.int16();
    line->linewidth = in.int16();
    read_vertices(in, line->colCoords);
    return line;
}

std::shared_ptr<oUnits> read_unit(FieldReader& in, std::string_view tag, bool& duplicate_key) {
    auto unit = std::make_shared<oUnits>();
    read_unit_record(in, tag, *unit);
    read_keyed(in, unit->children, duplicate_key, read_child);
    read_keyed(in, unit->force_elements, duplicate_key,
               [&](FieldReader& fields) { return read_force_element(fields, tag); });
    read_vertices(in, unit->area_of_opeartion);
    read_keyed(in, unit->waypoints, duplicate_key, read_waypoint);
    return unit;
}

std::shared_ptr<oShapes> read_shape(FieldReader& in) {
    auto shape = std::make_shared<oShapes>();
    shape->bordercolor = in.long_integer();
    shape->borderwidth = in.int16();
    shape->drawmode = in.int16();
    shape->fillcolor = in.long_integer();
    shape->height = in.int16();
    shape->ID = in.text();
    shape->notes = text_with_quotes(in);
    shape->notescolor = in.long_integer();
    shape->notesfont = in.text();
    shape->notesfontbold = in.boolean();
    shape->notesfontitalic = in.boolean();
    shape->notesfontsize = in.int16();
    shape->shape = in.int16();
    shape->shape_index = in.int16();
    shape->width = in.int16();
    shape->xcoord = in.int16();
    shape->ycoord = in.int16();
    return shape;
}

std::shared_ptr<oPolygons> read_polygon(FieldReader& in) {
    auto polygon = std::make_shared<oPolygons>();
    polygon->bordercolor = in.long_integer();
    polygon->borderwidth = in.int16();
    polygon->drawmode = in.int16();
    polygon->fillcolor = in.long_integer();
    polygon->fontcolor = in.long_integer();
    polygon->ID = in.text();
    polygon->notes = text_with_quotes(in);
    read_vertices(in, polygon->coordinates);
    return polygon;
}

std::shared_ptr<oFireMission> read_fire_mission(FieldReader& in, std::string_view tag) {
    auto mission = std::make_shared<oFireMission>();
    mission->assigned_to = in.text();
    mission->end_day = in.text();
    mission->end_hour = in.text();
    mission->end_minute = in.text();
    mission->end_month = in.text();
    mission->end_year = in.text();
    mission->ID = in.text();
    mission->line_angle = in.int16();
    mission->line_length = in.int16();
    mission->missionclass = in.int16();
    mission->missiontype = in.int16();
    mission->notes = text_with_quotes(in);
    mission->numbtarget_id = in.text();
    mission->pattern = in.int16();
    mission->start_day = in.text();
    mission->start_hour = in.text();
    mission->start_minute = in.text();
    mission->start_month = in.text();
    mission->start_year = in.text();
    mission->xcoord = in.int16();
    mission->ycoord = in.int16();
    mission->affiliation = in.text();
    if (has_rate_and_shells(tag)) {
        mission->rate = in.int16();
        mission->shells = in.int16();
    }
    return mission;
}
