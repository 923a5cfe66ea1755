#include "model/reach.h"

namespace varnstride {
namespace {

AreaSet FirstSteps(const Game& game, const AreaReach& reach, const Unit& unit) {
    const bool onFoot = unit.type < UnitType::LightCavalry;
    const bool anywhere = onFoot || game.state.bombardmentMode != 0;
    AreaSet areas = reach.firstOpen;
    if (anywhere) areas |= reach.firstFootOnly;
    if (anywhere || game.state.roadMover) areas |= reach.firstFootOrRoad;
    return areas;
}

bool CanTakeSecondStep(const Unit& unit) {
    return unit.actionPoints > 1 &&
           (unit.formation == Formation::MarchColumn ||
            IsBetween(unit.type, UnitType::Leader, UnitType::FieldArtillery));
}

AreaSet Without(const AreaSet& areas, const AreaSet& left) {
    AreaSet rest;
    areas.ForEach([&](int ordinal) {
        if (!left.Has(ordinal)) rest.Add(ordinal);
    });
    return rest;
}

AreaSet SecondSteps(const Game& game, const AreaReach& reach, const Unit& unit) {
    AreaSet areas = reach.secondOpen;
    if (game.state.roadMover || unit.formation == Formation::MarchColumn) {
        areas |= reach.secondRoadOnly;
    }
    if (game.state.bombardmentMode == 0 || reach.closedToBombardment.IsEmpty()) return areas;
    return Without(areas, reach.closedToBombardment);
}

}  // namespace

void ShadeReach(Game& game) {
    const int own = game.grid.AreaOf(game.state.selectedCell);
    if (own == 0) return;
    const Unit& unit = game.InHand();
    const AreaReach& reach = game.atlas->Reach(own);
    AreaSet lit;
    if (game.state.bombardmentMode == 0 && !game.state.ownAreaLeftOut) lit.Add(own);
    if (unit.actionPoints > 0) {
        game.state.moveCost = 1;
        lit |= FirstSteps(game, reach, unit);
    }
    if (CanTakeSecondStep(unit)) lit |= SecondSteps(game, reach, unit);
    if (!game.state.rangeKeepLit) game.grid.ShadePlayable();
    game.grid.Light(lit);
}

void ShadeReachWith(Game& game, int actionPoints) {
    Unit& unit = game.InHand();
    const int held = unit.actionPoints;
    unit.actionPoints = actionPoints;
    ShadeReach(game);
    unit.actionPoints = held;
}

}  // namespace varnstride
