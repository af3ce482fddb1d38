#include "persistence/record_writer.h"

#include "persistence/quotes.h"

namespace {

void write_vertices(FieldWriter& out, const CollectionRef<oCoordinates>& vertices) {
    write_count(out, vertices.count());
    if (vertices.empty()) return;
    for (const auto& vertex : vertices) out.integer(vertex->x_cor).integer(vertex->y_cor).end_record();
}

void write_children(FieldWriter& out, const oUnits& unit) {
    write_count(out, unit.children.count());
    if (unit.children.empty()) return;
    for (const auto& child : unit.children)
        out.text(child->ID).text_with(stored_quote, child->name).end_record();
}

void write_force_elements(FieldWriter& out, const oUnits& unit) {
    write_count(out, unit.force_elements.count());
    if (unit.force_elements.empty()) return;
    for (const auto& element : unit.force_elements)
        out.text(element->ID)
            .integer(element->ammo)
            .text(element->experience)
            .integer(element->Index)
            .integer(element->quantity)
            .integer(element->FireFanAngle)
            .integer(element->MIA)
            .integer(element->KIA)
            .text(element->free_text)
            .end_record();
}

void write_waypoints(FieldWriter& out, const oUnits& unit) {
    write_count(out, unit.waypoints.count());
    if (unit.waypoints.empty()) return;
    for (const auto& waypoint : unit.waypoints)
        out.text(waypoint->end_day)
            .text(waypoint->end_hour)
            .text(waypoint->end_minute)
            .text(waypoint->end_month)
            .text(waypoint->end_year)
            .text(waypoint->ID)
            .text_with(stored_quote, waypoint->notes)
            .double_number(waypoint->speed)
            .text(waypoint->start_day)
            .text(waypoint->start_hour)
            .text(waypoint->start_minute)
            .text(waypoint->start_month)
            .text(waypoint->start_year)
            .single(waypoint->X)
            .single(waypoint->Y)
            .integer(waypoint->range)
            .end_record();
}

} // namespace

void write_count(FieldWriter& out, std::size_t count) {
    out.integer(static_cast<std::int64_t>(count)).end_record();
}

void write_label(FieldWriter& out, const oLabels& label) {
    out.integer(label.backcolor)
        .integer(label.backstyle)
        .integer(label.borderstyle)
        .boolean(label.font_bold)
        .integer(label.font_color)
        .boolean(label.font_italic)
        .text(label.font_name)
        .integer(label.font_size)
        .boolean(label.font_strikethru)
        .boolean(label.font_underline)
        .text(label.ID)
        .text_with(stored_quote, label.text)
        .integer(label.xcoord)
        .integer(label.ycoord)
        .end_record();
}

void write_line(FieldWriter& out, const oLines& line) {
    out.integer(line.arrow1_x)
        .integer(line.arrow1_y)
        .integer(line.arrow2_x)
        .integer(line.arrow2_y)
        .text(line.boundry_size)
        .boolean(line.is_arrow)
        .boolean(line.is_boundry)
        .boolean(line.is_polyline)
        .integer(line.linecolor)
        .integer(line.linestyle)
        .integer(line.linewidth)
        .end_record();
    write_vertices(out, line.colCoords);
}

void write_unit(FieldWriter& out, const oUnits& unit) {
    out.text(unit.affiliation)
        .integer(unit.color)
        .text(unit.echelon)
        .text(unit.gm_email)
        .text_with(stored_quote, unit.gm_name)
        .text(unit.ID)
        .text_with(stored_quote, unit.name)
        .text(unit.nationality)
        .text(unit.parent_ID)
        .text_with(stored_quote, unit.parent_name)
        .text(unit.player_email)
        .text_with(stored_quote, unit.player_name)
        .text(unit.symbol)
        .text(unit.unittype)
        .integer(unit.xcoord)
        .integer(unit.ycoord)
        .integer(unit.supply_req)
        .integer(unit.current_supply)
        .text(unit.op_status)
        .text(unit.fitness)
        .text(unit.order_id)
        .integer(unit.state)
        .end_record();
    write_children(out, unit);
    write_force_elements(out, unit);
    write_vertices(out, unit.area_of_opeartion);
    write_waypoints(out, unit);
}

void write_shape(FieldWriter& out, const oShapes& shape) {
    out.integer(shape.bordercolor)
        .integer(shape.borderwidth)
        .integer(shape.drawmode)
        .integer(shape.fillcolor)
        .integer(shape.height)
        .text(shape.ID)
        .text_with(stored_quote, shape.notes)
        .integer(shape.notescolor)
        .text(shape.notesfont)
        .boolean(shape.notesfontbold)
        .boolean(shape.notesfontitalic)
        .integer(shape.notesfontsize)
        .integer(shape.shape)
        .integer(shape.shape_index)
        .integer(shape.width)
        .integer(shape.xcoord)
        .integer(shape.ycoord)
        .end_record();
}

void write_polygon(FieldWriter& out, const oPolygons& polygon) {
    out.integer(polygon.bordercolor)
        .integer(polygon.borderwidth)
        .integer(polygon.drawmode)
        .integer(polygon.fillcolor)
        .integer(polygon.fontcolor)
        .text(polygon.ID)
        .text_with(stored_quote, polygon.notes)
        .end_record();
    write_vertices(out, polygon.coordinates);
}

void write_fire_mission(FieldWriter& out, const oFireMission& mission) {
    out.text(mission.assigned_to)
        .text(mission.end_day)
        .text(mission.end_hour)
        .text(mission.end_minute)
        .text(mission.end_month)
        .text(mission.end_year)
        .text(mission.ID)
        .integer(mission.line_angle)
        .integer(mission.line_length)
        .integer(mission.missionclass)
        .integer(mission.missiontype)
        // These notes alone go out as they stand, so that a quote in them damages the file: files written
        // that way are in use, and the reader turns code 247 back in them all the same.
        .text(mission.notes)
        .text(mission.numbtarget_id)
        .integer(mission.pattern)
        .text(mission.start_day)
        .text(mission.start_hour)
        .text(mission.start_minute)
        .text(mission.start_month)
        .text(mission.start_year)
        .integer(mission.xcoord)
        .integer(mission.ycoord)
        .text(mission.affiliation)
        .integer(mission.rate)
        .integer(mission.shells)
        .end_record();
}
