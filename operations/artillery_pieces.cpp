#include "operations/artillery_pieces.h"

#include "core/catalogue.h"

namespace {

void gather(const Program& program, ArtilleryPieces& found, const oUnits& unit) {
    if (unit.force_elements.empty()) return;
    try {
        for (const auto& element : unit.force_elements)
            if (const oForceElements* const entry = artillery_piece(program, *element))
                found.pieces.push_back({&unit, element.get(), entry});
    } catch (const Failure& lacking) { // too little memory is none of the unit's: nothing is kept then
        found.failure = lacking.number;
    }
}

} // namespace

const ArtilleryPieces& all_artillery_pieces(Program& program) {
    const Collection<oUnits>& units = *program.campaign.colUnits;
    const std::uint64_t catalogue = program.campaign.colForceElements->version();
    return program.painting.artillery_pieces.get({units.version(), HoldingChanges::count(), catalogue}, [&] {
        ArtilleryPieces found;
        for (const auto& unit : units) gather(program, found, *unit);
        return found;
    });
}

ArtilleryPieces artillery_pieces_of(const Program& program, const oUnits& unit) {
    ArtilleryPieces found;
    gather(program, found, unit);
    return found;
}
