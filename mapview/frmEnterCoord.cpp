#include "mapview/frmEnterCoord.h"

#include "core/numbers.h"
#include "core/program.h"
#include "core/trap.h"
#include "mapview/grid_reference.h"

namespace {

/// Four digits: "12" is 12.00, "125" is 12.50. A leading zero of three digits gets lost, so that "012" is
/// 12.20.
std::string four_digits(const std::string& text) {
    const double value = val(text);
    if (text.size() == 2) return value < 10 ? text + "00" : number_text(value * 100);
    if (text.size() == 3) return number_text(value * 10);
    return text;
}

} // namespace

void frmEnterCoord::cmdOK_Click() {
    trap(program, " when finding a coordinate.", [&] {
        Campaign& campaign = program.campaign;
        if (txtLongdata.text.size() < 2 || txtLatdata.text.size() < 2) {
            program.platform.message({"Please enter at least two digits in each field."});
            return;
        }
        if (!is_numeric(txtLongdata.text) || !is_numeric(txtLatdata.text)) {
            program.platform.message({"Please enter only digits in each field."});
            return;
        }
        txtLongdata.text = four_digits(txtLongdata.text);
        txtLatdata.text = four_digits(txtLatdata.text);
        grid_to_pixel(program, campaign.gFindX, campaign.gFindY, txtLongdata.text, txtLatdata.text);
        const PictureBox& map = program.main.picMap;
        if (campaign.gFindX > map.width || campaign.gFindY > map.height || campaign.gFindX < 0 ||
            campaign.gFindY < 0) {
            program.platform.message({"Please enter a coordinate within the map boundries."});
            txtLongdata.text = "0000";
            txtLatdata.text = "0000";
            return;
        }
        unload();
    });
}

void frmEnterCoord::cmdCancel_Click() {
    program.campaign.gCoordCancelled = true;
    unload();
}
