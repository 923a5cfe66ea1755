// What an attack would come to: the reckoning of the strikes and every outcome with its exact
// chance, found by playing copies of the game through every way in which the dice can fall. The
// game itself is not touched. For tools and advice to the player.
#pragma once

#include <optional>
#include <tuple>
#include <vector>

#include "model/game.h"
#include "model/result.h"

namespace varnstride {

struct TacticsPlayed {
    int tactic = 0;    // 0 to 9
    int response = 0;  // 0 to 9
};

// An attack as the battle at the end of the turn would fight it, with the arms and the leadership
// of the units that stand ready in the area; or a barrage.
struct AttackPlan {
    UnitId attacker;
    UnitId target;
    bool bombard = false;
    std::optional<TacticsPlayed> tactics{};
};

struct SideOutcome {
    int strengthLost = 0;
    int morale = 0;  // left
    UnitStatus status = UnitStatus::Destroyed;

    friend bool operator==(const SideOutcome&, const SideOutcome&) = default;
    friend bool operator<(const SideOutcome& one, const SideOutcome& other) {
        return std::tie(one.strengthLost, one.morale, one.status) <
               std::tie(other.strengthLost, other.morale, other.status);
    }
};

struct AttackOutcome {
    SideOutcome target;
    SideOutcome attacker;

    friend bool operator==(const AttackOutcome&, const AttackOutcome&) = default;
    friend bool operator<(const AttackOutcome& one, const AttackOutcome& other) {
        return std::tie(one.target, one.attacker) < std::tie(other.target, other.attacker);
    }
};

// A strike as it is reckoned in some of the cases; not made at all in the rest.
struct Reckoning {
    int strike = 0;
    std::vector<StrikeTerm> terms;
};

template <typename Case>
struct Chance {
    Case what;
    double probability = 0.0;
};

// The likeliest first in each list.
struct AttackForecast {
    double goesIn = 0.0;  // how likely it is that a blow is struck
    std::vector<Chance<AttackOutcome>> outcomes;
    std::vector<Chance<Reckoning>> attacks;
    std::vector<Chance<Reckoning>> answers;
    std::vector<Chance<int>> dispatches;  // by the code of their words
};

// What stands in the way of an attack is told as a failure.
Result<AttackForecast> ForecastAttack(const Game& game, const AttackPlan& plan);

// Makes the game ready for the attack of a plan: the area, the enemy's slots, the circumstances.
// ResolveAttackOn then fights it.
void SetUpAttack(Game& game, const AttackPlan& plan);

}  // namespace varnstride
