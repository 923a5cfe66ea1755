// Who stays where he is: infantry that has to, and the front of an area that both sides hold.
#include "model/areas.h"
#include "model/terrain.h"
#include "opponent/own_unit.h"
#include "opponent/passes.h"
#include "opponent/posture.h"

namespace varnstride {
namespace {

bool ArmyHolds(const Game& game) {
    return PostureOf(game) == OpponentPosture::Cautious ||
           PostureOf(game) == OpponentPosture::StandFast;
}

bool StandsInCloseGround(Game& game) {
    SelectOwnArea(game);
    return CountCloseSlots(game) >= kCloseTerrain;
}

bool MustStandDown(Game& game, const Unit& unit) {
    return ArmyHolds(game) || unit.strength == 1 || unit.status == UnitStatus::Shaken ||
           (unit.strength == 2 && StandsInCloseGround(game));
}

// Against an enemy in its area the front needs a support, and a support that has met the enemy's
// stays with it. Whoever stands in the third slot may go then.
bool IsBound(const Game& game, Cell place) {
    const bool supported = IsHeld(game, OwnSlot(game, 1));
    if (EnemyPresent(game) && !supported) return true;
    const bool inFront = place == OwnSlot(game, 0) || place == OwnSlot(game, 1);
    return supported && IsHeld(game, EnemySlot(game, 1)) && inFront;
}

}  // namespace

void StandDown(Game& game) {
    ForEachOwnUnit(game, [&](Unit& unit) {
        const bool asked = IsFoot(unit.type) && unit.status > UnitStatus::Routed;
        if (!asked || !MustStandDown(game, unit)) return;
        unit.actionPoints = 0;
        unit.canMove = 0;
        unit.activity = UnitActivity::Hold;
    });
}

void StayInContact(Game& game) {
    ForEachOwnUnit(game, [&](Unit& unit) {
        if (unit.type == UnitType::Leader || !IsSteady(unit) || unit.actionPoints <= 0) return;
        SelectOwnArea(game);
        if (IsBound(game, unit.Place())) unit.actionPoints = 0;
    });
}

}  // namespace varnstride
