// The two units of an attack and the ground they fight on, as the modifiers of a strike ask for
// them.
#pragma once

#include "battle/strike_tables.h"
#include "model/game.h"

namespace varnstride {

inline UnitId TargetId(const Game& game) {
    return {game.battle.targetArmy, game.battle.targetUnit};
}
inline Unit& Target(Game& game) {
    return game.At(TargetId(game));
}
inline const Unit& Target(const Game& game) {
    return game.At(TargetId(game));
}

struct Pairing {
    explicit Pairing(const Game& theGame)
        : game(theGame),
          attackerArmy(theGame.state.currentArmy),
          targetArmy(theGame.battle.targetArmy),
          attacker(theGame.InHand()),
          target(Target(theGame)) {}

    const Game& game;
    int attackerArmy;
    int targetArmy;
    const Unit& attacker;
    const Unit& target;
};

// A thing that adds points to a strike or takes them, by name.
struct StrikeModifier {
    std::string_view name;
    int points;
    bool (*applies)(const Pairing&);
};

inline bool IsCharging(const Unit& unit) {
    return unit.activity == UnitActivity::Charging;
}
inline bool HasBayonetsFixed(const Unit& unit) {
    return unit.activity == UnitActivity::BayonetCharge;
}
inline bool StandsInSmoke(const Game& game, const Unit& unit) {
    return game.grid.At(unit.Place()).roadTile == kSmoke;
}
inline bool StandsOnFrozenGround(const Game& game, const Unit& unit) {
    constexpr int kFirstFrozen = 72;
    constexpr int kLastFrozen = 108;
    const int tile = game.grid.Ground(unit.Place()).groundTile;
    return tile >= kFirstFrozen && tile <= kLastFrozen;
}
// Snow hampers foot and guns, not horse.
inline bool IsHamperedBySnow(const Game& game, const Unit& unit) {
    return StandsOnFrozenGround(game, unit) &&
           (IsFoot(unit.type) || unit.type > UnitType::MortarArtillery);
}
inline bool IsHamperedByDark(const Game& game, const Unit& unit) {
    constexpr int kPoorVisibility = 6;
    return game.header.visibility < kPoorVisibility &&
           (IsFoot(unit.type) || unit.type > UnitType::GuardCavalry);
}
inline bool IsMilitia(const Unit& unit) {
    return unit.quality == Quality::Militia || unit.quality == Quality::Conscript;
}
inline bool IsPicked(const Unit& unit) {
    return unit.quality == Quality::Elite || unit.quality == Quality::Veteran;
}
inline bool IsOutOfAmmunition(const Unit& unit) {
    return unit.ammunition == 0 && unit.type < UnitType::LightCavalry;
}

}  // namespace varnstride
