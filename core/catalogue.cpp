#include "core/catalogue.h"

#include "core/numbers.h"

const oForceElements& catalogue_entry(const Program& program, const oUnitForceElements& element) {
    return *program.campaign.colForceElements->item(str(element.Index));
}

const oForceElements* artillery_piece(const Program& program, const oUnitForceElements& element) {
    constexpr std::int16_t artillery = 4;
    if (element.Index == free_text_index) return nullptr;
    const oForceElements& entry = catalogue_entry(program, element);
    return entry.force_type == artillery ? &entry : nullptr;
}

bool has_firefan(const Program& program, const oUnitForceElements& element) {
    const oForceElements* const piece = artillery_piece(program, element);
    return piece != nullptr && piece->firefan;
}
