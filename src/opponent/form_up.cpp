#include "opponent/form_up.h"

#include "actions/courier.h"
#include "actions/top_bar.h"
#include "model/census.h"
#include "model/terrain.h"
#include "opponent/announcements.h"
#include "opponent/own_unit.h"
#include "opponent/passes.h"
#include "opponent/posture.h"

namespace varnstride {
namespace {

// What the rules for a formation look at.
struct Outlook {
    const Unit& unit;
    const Census& enemy;
    int army;
    int closeSlots;
};

bool Always(const Outlook&) {
    return true;
}
bool HasRanks(const Outlook& at) {
    return at.unit.strength > 1;
}
bool NoCavalry(const Outlook& at) {
    return at.enemy.enemyCavalryHere == 0;
}
bool CavalryInTheOpen(const Outlook& at) {
    return at.enemy.enemyCavalryHere != 0 && at.closeSlots < 2;
}
bool OnlyFoot(const Outlook& at) {
    return at.enemy.enemyLineHere != 0 && NoCavalry(at);
}
bool LargeFrenchBeforeFoot(const Outlook& at) {
    return OnlyFoot(at) && at.army == kFrench && at.unit.strength > 2;
}
bool OthersBeforeFoot(const Outlook& at) {
    return OnlyFoot(at) && !LargeFrenchBeforeFoot(at);
}
bool GunsWithoutCavalry(const Outlook& at) {
    return at.enemy.enemyGunsHere != 0 && NoCavalry(at);
}

struct FormRule {
    UnitType first;
    UnitType last;
    OpponentPosture posture;
    bool (*applies)(const Outlook&);
    Formation formation;  // nothing to do for a unit that has it already
};

using enum UnitType;
using enum OpponentPosture;

constexpr FormRule kFormRules[] = {
    {LightInfantry, LightInfantry, Assault, HasRanks, Formation::Line},
    {LightInfantry, LightInfantry, Cautious, Always, Formation::OpenOrder},
    {LightInfantry, LightInfantry, Contest, Always, Formation::OpenOrder},
    {LineInfantry, GuardInfantry, Assault, NoCavalry, Formation::AttackColumn},
    {LineInfantry, GuardInfantry, Cautious, CavalryInTheOpen, Formation::Square},
    {LineInfantry, GuardInfantry, Cautious, OnlyFoot, Formation::Line},
    {LineInfantry, GuardInfantry, Contest, LargeFrenchBeforeFoot, Formation::MixedOrder},
    {LineInfantry, GuardInfantry, Contest, OthersBeforeFoot, Formation::Line},
    {LineInfantry, GuardInfantry, Contest, CavalryInTheOpen, Formation::Square},
    {LineInfantry, GuardInfantry, Contest, GunsWithoutCavalry, Formation::Line},
    {LightCavalry, LightCavalry, Assault, Always, Formation::AttackColumn},
    {LightCavalry, LightCavalry, Cautious, Always, Formation::OpenOrder},
    {LightCavalry, LightCavalry, Contest, Always, Formation::Line},
    {Lancers, GuardCavalry, Assault, Always, Formation::AttackColumn},
    {Lancers, GuardCavalry, Cautious, Always, Formation::Line},
    {Lancers, GuardCavalry, Contest, Always, Formation::AttackColumn},
};

void TakeFormation(Game& game, Formation formation) {
    constexpr int kChangesFormation = 266;
    game.InHand().formation = formation;
    SpendActionPoints(game.InHand(), 1);
    --game.ArmyInPlay().commandPoints;
    DrawTopBar(game);
    if (MovesAreShown(game)) ShowCourier(game, kChangesFormation);
}

// A later rule sees what an earlier one has made of the unit.
void FormByRules(Game& game, int closeSlots) {
    const Unit& unit = game.InHand();
    const Outlook outlook{unit, game.census, game.state.currentArmy, closeSlots};
    for (const FormRule& rule : kFormRules) {
        const bool meant =
            IsBetween(unit.type, rule.first, rule.last) && PostureOf(game) == rule.posture;
        if (meant && unit.formation != rule.formation && rule.applies(outlook)) {
            TakeFormation(game, rule.formation);
        }
    }
}

void FormBeforeEnemy(Game& game, int closeSlots) {
    const Cell cell = game.InHand().Place();
    ShowUnitInHand(game);
    if (MovesAreShown(game)) game.grid.At(cell).highlight = 1;
    FormByRules(game, closeSlots);
    game.grid.At(cell).highlight = 0;
}

// Of the units of other armies on lit ground the one of the lowest army, in it of the highest
// record.
UnitId FirstOtherOnLitGround(const Game& game) {
    UnitId first;
    game.grid.ForEachLitSlot([&](Cell slot) {
        const UnitId id = UnitStandingAt(game, slot);
        if (!id || id.army == game.state.currentArmy || game.Army(id.army).present == 0) return;
        const bool before =
            id.army < first.army || (id.army == first.army && id.index > first.index);
        if (!first || before) first = id;
    });
    return first;
}

// The census becomes that of the next area where another army stands, if there is one.
void LookIntoNextAreas(Game& game) {
    ShadeOtherAreas(game, 1);
    const UnitId other = FirstOtherOnLitGround(game);
    if (!other) return;
    game.state.selectedCell = game.At(other).Place();
    CensusEnemy(game);
}

// Ranks that are in disorder or on the march are ordered first, at no cost to the army.
void FallIn(Unit& unit) {
    unit.formation = Formation::Line;
    SpendActionPoints(unit, 1);
}

bool FormsUp(const Unit& unit, UnitType lastType) {
    return unit.actionPoints > 0 && IsSteady(unit) && unit.type <= lastType && unit.type != Leader;
}

}  // namespace

void FormUp(Game& game) {
    Unit& unit = game.InHand();
    const int closeSlots = CountCloseSlots(game);
    const bool open = closeSlots < kCloseTerrain;
    if (unit.formation == Formation::NoFormation && open) FallIn(unit);
    const bool enemyHere = CountEnemyHere(game) > 0;
    const bool marches = unit.formation == Formation::MarchColumn;
    if (marches && unit.actionPoints > 0 && enemyHere && open) FallIn(unit);
    if (!enemyHere && unit.actionPoints > 0) LookIntoNextAreas(game);
    if (game.census.enemyCount > 0 && unit.actionPoints > 0 && open) {
        FormBeforeEnemy(game, closeSlots);
    }
}

void FormUpFirst(Game& game) {
    ForEachOwnUnit(game, [&](Unit& unit) {
        if (!FormsUp(unit, MortarArtillery) || !HasPoints(game)) return;
        SelectOwnArea(game);
        FormUp(game);
    });
}

// The points of the army are not asked for and may fall below 0.
void FormUpLast(Game& game) {
    ForEachOwnUnit(game, [&](Unit& unit) {
        if (!FormsUp(unit, GuardCavalry)) return;
        SelectOwnArea(game);
        FormUp(game);
    });
}

}  // namespace varnstride
