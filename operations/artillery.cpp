#include "operations/artillery.h"

#include "core/catalogue.h"

#include <utility>

namespace {

void gather(const Program& program, Artillery& artillery, const oUnits& unit) {
    if (unit.force_elements.empty()) return;
    try {
        for (const auto& element : unit.force_elements)
            if (const oForceElements* const entry = artillery_piece(program, *element))
                artillery.pieces.push_back({&unit, element.get(), entry});
    } catch (const Failure& lacking) {
        artillery.failure = lacking.number;
    }
}

} // namespace

const Artillery& artillery(Program& program) {
    const Campaign& campaign = program.campaign;
    const Artillery::Source now{campaign.colUnits->version(), HoldingChanges::count(),
                                campaign.colForceElements->version()};
    Artillery& kept = program.painting.artillery;
    if (kept.source == now) return kept;
    Artillery gathered{now, {}, 0};
    for (const auto& unit : campaign.colUnits) gather(program, gathered, *unit);
    return kept = std::move(gathered);
}

Artillery artillery_of(const Program& program, const oUnits& unit) {
    Artillery gathered;
    gather(program, gathered, unit);
    return gathered;
}
