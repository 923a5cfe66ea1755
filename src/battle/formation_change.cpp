#include "battle/formation_change.h"

#include <optional>

#include "actions/courier.h"
#include "actions/undo.h"
#include "battle/morale.h"
#include "model/areas.h"
#include "model/census.h"
#include "model/terrain.h"
#include "model/unit_rules.h"

namespace varnstride {
namespace {

constexpr int kCloseGround = 13;
constexpr int kUnfit = 58;
constexpr int kEnemyTooNear = 59;
constexpr int kNoInfantry = 60;
constexpr int kNotForAllies = 61;
constexpr int kTooSmallForMixed = 62;
constexpr int kNoSquareInCloseGround = 64;
constexpr int kNoSquareFromOpenOrder = 263;
constexpr int kNoSquareDisrupted = 267;
constexpr int kNoRemountInCloseGround = 295;

bool IsSteady(const Unit& unit) {
    return unit.status > UnitStatus::Shaken;
}

// Types that have no battle order of their own.
bool HasNoForm(UnitType type) {
    return type == UnitType::LightDragoonsDismounted || type == UnitType::DragoonsDismounted ||
           type == UnitType::CossackCavalry;
}

bool StandsInCloseGround(Game& game) {
    game.state.selectedCell = game.InHand().Place();
    SelectArea(game);
    return CountCloseSlots(game) >= kCloseTerrain;
}

// Whether the unit in hand keeps its nerve for an order under the eyes of the enemy.
bool HoldsForOrder(Game& game) {
    game.battle.moraleHeld = 1;
    game.state.selectedCell = game.InHand().Place();
    CensusEnemy(game);
    game.battle.terrainDefence = 0;
    if (game.census.enemyCount > 0) MoraleTest(game);
    return game.battle.moraleHeld == 1;
}

void FailBeforeEnemy(Game& game) {
    Unit& unit = game.InHand();
    if (unit.morale > 2) unit.morale -= 2;
    RecomputeStatus(unit);
    game.state.courierCode = kEnemyTooNear;
}

void PayForOrder(Game& game) {
    --game.InHand().actionPoints;
    --game.ArmyInPlay().commandPoints;
}

void ChangeFormation(Game& game, Formation formation, std::optional<Sound> sound) {
    if (!HoldsForOrder(game)) {
        FailBeforeEnemy(game);
        return;
    }
    NoteFormationChange(game);
    game.InHand().formation = formation;
    PayForOrder(game);
    if (sound) PlayBattleSound(game, *sound);
}

std::optional<Sound> SoundByArm(UnitType type, Sound infantry, Sound horse) {
    if (IsInfantry(type)) return infantry;
    if (IsMountedOrMortar(type)) return horse;
    return std::nullopt;
}

// The refusal of types without form sounds on its own as well.
bool RefuseNoForm(Game& game) {
    if (!HasNoForm(game.InHand().type)) return false;
    game.state.courierCode = kUnfit;
    game.person->Play(Sound::Ding);
    return true;
}

void FormLine(Game& game) {
    const Unit& unit = game.InHand();
    const bool close = StandsInCloseGround(game);
    const bool inLine = unit.formation == Formation::Line;
    if (close && !inLine && IsSteady(unit)) game.state.courierCode = kCloseGround;
    if (inLine || !IsSteady(unit) || unit.type > UnitType::GuardCavalry) {
        game.state.courierCode = kUnfit;
    }
    if (RefuseNoForm(game)) return;
    if (inLine || !IsSteady(unit) || unit.type > UnitType::GuardCavalry || close) return;
    ChangeFormation(game, Formation::Line,
                    SoundByArm(unit.type, Sound::InfFormLine, Sound::CavFormLine));
}

void FormAttackColumn(Game& game) {
    const Unit& unit = game.InHand();
    const bool close = StandsInCloseGround(game);
    const bool inColumn = unit.formation == Formation::AttackColumn;
    if (close) game.state.courierCode = kCloseGround;
    if (inColumn || !IsSteady(unit)) game.state.courierCode = kUnfit;
    if (RefuseNoForm(game)) return;
    const bool fit = unit.type != UnitType::Leader && unit.type < UnitType::MortarArtillery;
    if (inColumn || !IsSteady(unit) || !fit || close) return;
    ChangeFormation(game, Formation::AttackColumn,
                    SoundByArm(unit.type, Sound::InfFormAttackColumn, Sound::CavFormColumnAttack));
}

// Mixed Order is for French infantry of some size. What else stands against it is said whatever
// was done.
void TellOfMixedOrder(Game& game, const Unit& unit) {
    if (unit.type > UnitType::Engineers) game.state.courierCode = kNoInfantry;
    if (game.state.currentArmy != kFrench) game.state.courierCode = kNotForAllies;
    if (unit.strength < 3 && game.state.currentArmy == kFrench) {
        game.state.courierCode = kTooSmallForMixed;
    }
}

void FormMixedOrder(Game& game) {
    const Unit& unit = game.InHand();
    const bool noInfantry =
        unit.type == UnitType::LightDragoonsDismounted || unit.type == UnitType::Engineers;
    if (noInfantry) return;
    const bool close = StandsInCloseGround(game);
    const bool able =
        IsInfantry(unit.type) && game.state.currentArmy == kFrench && unit.strength > 2;
    const bool mixed = unit.formation == Formation::MixedOrder;
    if (close) game.state.courierCode = kCloseGround;
    if (able && (mixed || !IsSteady(unit))) game.state.courierCode = kUnfit;
    if (able && !mixed && IsSteady(unit) && !close) {
        ChangeFormation(game, Formation::MixedOrder, Sound::InfFormMixedOrder);
    }
    TellOfMixedOrder(game, unit);
}

void FormSquare(Game& game) {
    const Unit& unit = game.InHand();
    if (!IsInfantry(unit.type)) {
        game.state.courierCode = kUnfit;
        return;
    }
    const bool close = StandsInCloseGround(game);
    const bool inSquare = unit.formation == Formation::Square;
    const bool scattered =
        unit.formation == Formation::OpenOrder || unit.formation == Formation::NoFormation;
    if (inSquare || !IsSteady(unit)) game.state.courierCode = kUnfit;
    if (scattered) game.state.courierCode = kNoSquareFromOpenOrder;
    if (unit.disrupted == 1) game.state.courierCode = kNoSquareDisrupted;
    if (close) game.state.courierCode = kNoSquareInCloseGround;
    if (inSquare || scattered || close || !IsSteady(unit) || unit.disrupted != 0) return;
    ChangeFormation(game, Formation::Square, Sound::InfFormSquare);
}

void FormOpenOrder(Game& game) {
    const Unit& unit = game.InHand();
    if (unit.type != UnitType::LightInfantry || unit.formation == Formation::OpenOrder ||
        !IsSteady(unit)) {
        game.state.courierCode = kUnfit;
        return;
    }
    ChangeFormation(game, Formation::OpenOrder, Sound::InfOpenOrder);
}

void FormMarchColumn(Game& game) {
    const Unit& unit = game.InHand();
    const bool marching = unit.formation == Formation::MarchColumn;
    if (marching || !IsSteady(unit)) game.state.courierCode = kUnfit;
    if (RefuseNoForm(game)) return;
    const bool fit = unit.type != UnitType::Leader && unit.type < UnitType::RocketArtillery;
    if (marching || !IsSteady(unit) || !fit) return;
    ChangeFormation(game, Formation::MarchColumn,
                    SoundByArm(unit.type, Sound::InfQuickMarch, Sound::CavFormColumn));
}

void TakeNewArm(Game& game, UnitType type, Formation formation) {
    NoteFormationChange(game);
    game.InHand().formation = formation;
    game.InHand().type = type;
    PayForOrder(game);
    PlayBattleSound(game, Sound::DragoonDismount2);
}

void Remount(Game& game) {
    const UnitType type = game.InHand().type;
    const bool close = StandsInCloseGround(game);
    if (close) game.state.courierCode = kNoRemountInCloseGround;
    if (!HoldsForOrder(game)) {
        FailBeforeEnemy(game);
    } else if (!close) {
        TakeNewArm(game,
                   type == UnitType::LightDragoonsDismounted ? UnitType::LightCavalry
                                                             : UnitType::MediumCavalry,
                   Formation::AttackColumn);
    }
}

void Dismount(Game& game) {
    const UnitType type = game.InHand().type;
    if (!HoldsForOrder(game)) {
        FailBeforeEnemy(game);
        return;
    }
    TakeNewArm(game,
               type == UnitType::LightCavalry ? UnitType::LightDragoonsDismounted
                                              : UnitType::DragoonsDismounted,
               Formation::OpenOrder);
}

void ChangeSaddles(Game& game) {
    const Unit& unit = game.InHand();
    const bool onFoot =
        unit.type == UnitType::LightDragoonsDismounted || unit.type == UnitType::DragoonsDismounted;
    const bool mounted =
        unit.type == UnitType::LightCavalry || unit.type == UnitType::MediumCavalry;
    if ((!onFoot && !mounted) || !IsSteady(unit)) {
        game.state.courierCode = kUnfit;
    } else if (onFoot) {
        Remount(game);
    } else if (unit.weapon == Weapon::Carbine) {
        Dismount(game);
    }
}

}  // namespace

void OrderFormation(Game& game, FormationButton button) {
    switch (button) {
        case FormationButton::Line: return FormLine(game);
        case FormationButton::AttackColumn: return FormAttackColumn(game);
        case FormationButton::MixedOrder: return FormMixedOrder(game);
        case FormationButton::Square: return FormSquare(game);
        case FormationButton::OpenOrder: return FormOpenOrder(game);
        case FormationButton::MarchColumn: return FormMarchColumn(game);
        case FormationButton::Dismount: return ChangeSaddles(game);
    }
}

bool BreakMarchOnDenseGround(Game& game) {
    Unit& unit = game.InHand();
    const bool marching = unit.formation == Formation::MarchColumn &&
                          unit.type < UnitType::RocketArtillery && unit.type != UnitType::Leader;
    if (!marching || CountDenseSlots(game) < kCloseTerrain) return false;
    ShowCourier(game, 83);
    const bool canPay =
        unit.actionPoints > 0 && game.ArmyInPlay().commandPoints > 0 && game.state.turnLocked == 0;
    if (canPay) {
        NoteFormationChange(game);
        unit.formation = Formation::NoFormation;
        PayForOrder(game);
    }
    return true;
}

}  // namespace varnstride
