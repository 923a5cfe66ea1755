#include "battle/enemy_slots.h"

#include "battle/strike_tables.h"
#include "model/areas.h"

namespace varnstride {
namespace {

using Wanted = bool (*)(const Unit&);

bool IsHorse(const Unit& unit) {
    return IsMountedOrMortar(unit.type);
}
bool IsOnFoot(const Unit& unit) {
    return IsFoot(unit.type);
}
bool IsFootOutOfSquare(const Unit& unit) {
    return IsFoot(unit.type) && unit.formation != Formation::Square;
}
bool IsGun(const Unit& unit) {
    return IsFieldGun(unit.type);
}
bool IsNoFoot(const Unit& unit) {
    return !IsFoot(unit.type);
}
bool IsFootOrLeader(const Unit& unit) {
    return kFootOrLeader.Holds(unit.type);
}

// The unit of the first slot from that one on that is wanted; 0 none.
int FirstInSlots(const Game& game, Wanted wanted, std::size_t from = 0) {
    const BattleState& battle = game.battle;
    for (std::size_t slot = from; slot < battle.enemySlotUnit.size(); ++slot) {
        const int index = battle.enemySlotUnit[slot];
        if (index > 0 && wanted(game.At({battle.targetArmy, index}))) return index;
    }
    return 0;
}

// The classes that an arm looks for, one searched in full before the next.
struct Preference {
    TypeRange attackers;
    std::array<Wanted, 3> classes;
};

constexpr Preference kPreferences[] = {
    {kFieldGuns, {IsHorse, IsOnFoot, IsGun}},
    {kLineHorse, {IsNoFoot, IsFootOutOfSquare, nullptr}},
    {kFootOrLeader, {IsFootOrLeader, IsGun, nullptr}},
};

int FindPreferred(const Game& game, UnitType attacker) {
    for (const Preference& preference : kPreferences) {
        if (!preference.attackers.Holds(attacker)) continue;
        for (Wanted wanted : preference.classes) {
            const int found = wanted != nullptr ? FirstInSlots(game, wanted) : 0;
            if (found > 0) return found;
        }
    }
    return 0;
}

// Whoever has no preference, or found nobody of his choice.
int FindAny(const Game& game) {
    const int front = game.battle.enemySlotUnit[0];
    const Unit& first = game.At({game.battle.targetArmy, front});
    if (IsFootOutOfSquare(first)) return front;
    if (IsNoFoot(first)) {
        if (const int behind = FirstInSlots(game, IsOnFoot, 1)) return behind;
    }
    const int gun = FirstInSlots(game, IsGun);
    return gun > 0 ? gun : front;
}

}  // namespace

void FillEnemySlots(Game& game) {
    BattleState& battle = game.battle;
    battle.enemySlotUnit = {};
    battle.enemySlotsFilled = 0;
    const int army = EnemyArmyOf(game, game.state.currentAreaSlots);
    if (army < 0) return;
    battle.targetArmy = army;
    for (int slot = 0; slot < kSlotsPerSide; ++slot) {
        const Cell cell = EnemySlot(game, slot);
        const int index = IsHeld(game, cell) ? FindEnemyInSlot(game, cell) : 0;
        if (index == 0) return;
        battle.enemySlotUnit[static_cast<std::size_t>(slot)] = index;
        battle.enemySlotsFilled = slot + 1;
    }
}

void PickTarget(Game& game) {
    BattleState& battle = game.battle;
    const int front = battle.enemySlotUnit[0];
    if (battle.enemySlotUnit[1] == 0) {
        battle.targetUnit = front;
        return;
    }
    const int preferred = FindPreferred(game, game.InHand().type);
    battle.targetUnit = preferred > 0 ? preferred : FindAny(game);
}

}  // namespace varnstride
