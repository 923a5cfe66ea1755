#include "battle/card_press.h"

#include <algorithm>

#include "actions/detachments.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

void AddCommandPoints(Game& game, int points) {
    int& left = game.ArmyInPlay().commandPoints;
    left = std::max(left + points, 0);
}

template <typename Change>
void ForEachUnitOnMap(Game& game, Change change) {
    for (int index : UnitIndices(game)) {
        const UnitId id{game.state.currentArmy, index};
        if (IsOnMap(game, id)) change(game.At(id));
    }
}

}  // namespace

void GainCommandPoint(Game& game) {
    AddCommandPoints(game, 1);
}

void LoseCommandPoint(Game& game) {
    AddCommandPoints(game, -1);
}

void LoseTwoCommandPoints(Game& game) {
    AddCommandPoints(game, -2);
}

void HastenReinforcement(Game& game) {
    for (int index : UnitIndices(game)) {
        Unit& unit = game.At({game.state.currentArmy, index});
        const bool isComing =
            unit.arrivalTurn > game.state.gameTurn + 1 && unit.arrivalTurn != kLeftByExit;
        if (unit.strength <= 0 || !isComing) continue;
        --unit.arrivalTurn;
        return;
    }
}

void CallUpMilitia(Game& game) {
    RaiseMilitia(game);
    game.person->Redraw(View::Map);
}

void HoldBestUnits(Game& game) {
    ForEachUnitOnMap(game, [](Unit& unit) {
        if (unit.quality < Quality::Experienced) unit.actionPoints = 0;
    });
}

void WatchAndWait(Game& game) {
    ForEachUnitOnMap(game, [](Unit& unit) {
        if (!IsFieldGun(unit.type) && unit.status != UnitStatus::Routed) unit.actionPoints = 0;
    });
}

void HoldFoot(Game& game) {
    ForEachUnitOnMap(game, [](Unit& unit) {
        if (IsFoot(unit.type)) unit.canMove = unit.actionPoints = 0;
    });
}

// The code carries the effect through a file.
void ChangeStrikes(Game& game) {
    game.state.strikeDrawCard = 1;
    game.options.weatherCardCode = kStrikeCardCode;
}

void SteadyNerves(Game& game) {
    game.state.steadyNerves = 1;
    game.state.steadyNervesArmy = game.state.currentArmy;
}

void HaltBeforeContact(Game& game) {
    game.state.haltBeforeContact = true;
}

void KeepAlliesApart(Game& game) {
    game.state.alliesApart = true;
}

void AvoidCloseGround(Game& game) {
    game.state.noCloseEntry = true;
}

void FightInTheStreets(Game& game) {
    constexpr int kStreetFighting = 3;
    game.options.cardInPlay = game.options.cardEffect = kStreetFighting;
}

}  // namespace varnstride
