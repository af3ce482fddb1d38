#include "mapview/grid_reference.h"

#include "core/numbers.h"

namespace {

std::string left(const std::string& text, std::size_t count) { return text.substr(0, count); }

std::string right(const std::string& text, std::size_t count) {
    return text.size() <= count ? text : text.substr(text.size() - count);
}

} // namespace

std::string last_two_digits(double number) { return right(format_fixed(number, 2, 0), 2); }

void pixel_to_grid(const Program& program, std::int16_t& x, std::int16_t& y, std::string& east,
                   std::string& north) {
    const double east0 = program.campaign.gMapEast0;
    const double north0 = program.campaign.gMapNorth0;
    y = to_int16(y + grid_offset);
    const double row = north0 - whole_part(static_cast<double>(y) / pixels_per_km);
    std::string nn = row < 0 ? "00" : last_two_digits(row);
    const std::string ee = last_two_digits(whole_part(static_cast<double>(x) / pixels_per_km) + east0);
    const double units_per_pixel = 100.0 / pixels_per_km;
    const std::string ef = last_two_digits((x - val(ee) * pixels_per_km) * units_per_pixel);
    const double below = y - (north0 - val(nn)) * pixels_per_km;
    const std::string nf = last_two_digits((pixels_per_km - below) * units_per_pixel);
    // A pixel on the top line of a square belongs to the kilometre above, except in the bottom row.
    if (nf == "00" && y < program.main.picMap.height) nn = format_fixed(val(nn) + 1, 2, 0);
    east = ee + "." + ef;
    north = nn + "." + nf;
}

void grid_to_pixel(const Program& program, std::int16_t& x, std::int16_t& y, const std::string& east,
                   const std::string& north) {
    const double east_km = to_int16(to_double(left(east, 2)));
    const double north_km = to_int16(to_double(left(north, 2)));
    const double east_rest = to_int16(to_double(right(east, 2)) * 1.5);
    const double north_rest = to_int16(to_double(right(north, 2)) * 1.5);
    const double east0 = program.campaign.gMapEast0;
    const double north0 = program.campaign.gMapNorth0;
    x = to_int16(round_half_even((east_km - east0 + 1) * pixels_per_km) + east_rest - pixels_per_km);
    y = to_int16(round_half_even((north0 + 1 - north_km) * pixels_per_km) - north_rest - grid_offset);
}
