// The numbers of combat: what arms do to each other, what formations, order and size make of a
// strike, and how a strike is cut down to a hit. Read by the strikes and by the resolution of an
// attack; nothing here changes in play.
#pragma once

#include <array>
#include <span>

#include "model/army.h"
#include "model/cell.h"
#include "model/unit.h"

namespace varnstride {

constexpr int kStrikeTypes = 20;
constexpr UnitType kLastType{32767};  // an upper end of types that lets all pass

struct TypeRange {
    UnitType first;
    UnitType last;

    constexpr bool Holds(UnitType type) const { return IsBetween(type, first, last); }
};

constexpr TypeRange kAnyType{UnitType::None, kLastType};
constexpr TypeRange kFootTypes{UnitType::None, UnitType::DragoonsDismounted};
constexpr TypeRange kFootOrLeader{UnitType::None, UnitType::Leader};
constexpr TypeRange kHorseTypes{UnitType::LightCavalry, UnitType::GuardCavalry};
constexpr TypeRange kHorseOrMortar{UnitType::LightCavalry, UnitType::MortarArtillery};
constexpr TypeRange kLineHorse{UnitType::LightCavalry, UnitType::CossackCavalry};
constexpr TypeRange kFieldGuns{UnitType::HorseArtillery, UnitType::FieldArtillery};
constexpr TypeRange kRocketsAndGuns{UnitType::RocketArtillery, UnitType::FieldArtillery};
constexpr TypeRange kMortarsToGuns{UnitType::MortarArtillery, UnitType::FieldArtillery};

// clang-format off
// Points of the weapon by type; field guns go by their calibre instead.
//                                                        leader                        guns
constexpr std::array<int, kStrikeTypes> kWeaponStrike = {
    0, 6, 5, 8, 4, 3, 4, 1, 7, 8, 9, 8, 5, 0, 0, 3, 4, 4, 0, 0};

// What the arm of the row has over the arm of the column.
constexpr std::array<std::array<int, kStrikeTypes>, kStrikeTypes> kEffectiveness = {{
    //    light guard engin leader lancer medium guard rocket field
    //  0  1  2  3  4  5  6  7  8  9 10 11 12 13 14 15 16 17 18 19
    {{  0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {{  0, 0, 1, 0, 0, 2, 0, 0, 2, 1, 1, 1, 2, 1, 0, 0, 0, 4, 0, 0}},  // light infantry
    {{  0,-1, 0,-2, 1, 3, 1, 0, 1, 0, 0, 0, 0, 0, 0, 0,-1, 3, 0, 0}},  // line infantry
    {{  0, 1, 2, 0, 2, 4, 2, 0, 2, 1, 2, 1, 3, 2, 0, 0,-1, 4, 0, 0}},  // guard infantry
    {{  0, 1, 0,-1, 0, 4, 0, 0, 2, 2, 1, 1, 3, 1, 0, 0,-2, 4, 0, 0}},  // light dragoons on foot
    {{  0,-4,-3,-3,-2, 0,-2, 0,-1,-1,-2,-1, 0,-2, 0, 0,-1, 1, 0, 0}},  // engineers
    {{  0, 1, 0,-1, 0, 4, 0, 0, 2, 2, 1, 1, 3, 1, 0, 0,-2, 4, 0, 0}},  // dragoons on foot
    {{  0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},  // leader
    {{  0, 2, 2, 2, 2, 5, 2, 0, 0, 1,-2,-1, 3,-2, 0, 0, 1, 4, 0, 0}},  // light cavalry
    {{  0, 4, 4, 4, 4, 7, 4, 0, 2, 0, 0, 1, 4, 0, 0, 0, 2, 6, 0, 0}},  // lancers
    {{  0, 4, 4, 4, 4, 7, 4, 0, 3, 3, 0, 1, 5, 0, 0, 0, 0, 6, 0, 0}},  // heavy cavalry
    {{  0, 3, 3, 3, 3, 6, 3, 0, 2, 2,-1, 0, 4,-1, 0, 0, 1, 5, 0, 0}},  // medium cavalry
    {{  0, 2, 2, 2, 2, 4, 2, 0,-2,-1,-4,-3, 0,-4, 0, 0, 1, 3, 0, 0}},  // cossacks
    {{  0, 5, 5, 5, 5, 7, 5, 0, 3, 3, 1, 2, 5, 0, 0, 0, 0, 6, 0, 0}},  // guard cavalry
    {{  0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},  // mortars
    {{  0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},  // rockets
    {{  0,-1, 0, 0,-1, 1,-1, 0, 1, 2, 2, 2, 2, 2, 0, 0, 0,-1, 0, 0}},  // horse artillery
    {{  0,-1, 0, 0,-1, 1,-1, 0, 1, 2, 2, 2, 2, 2, 0, 0,-1, 0, 0, 0}},  // field artillery
    {{  0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {{  0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
}};
// clang-format on

constexpr int WeaponStrikeOf(const Unit& unit) {
    if (kFieldGuns.Holds(unit.type)) {
        if (unit.weapon == Weapon::SixPounder) return 6;
        return unit.weapon == Weapon::TwelvePounder ? 8 : 4;
    }
    const auto type = static_cast<std::size_t>(unit.type);
    return type < kWeaponStrike.size() ? kWeaponStrike[type] : 0;
}

constexpr int EffectivenessOf(UnitType attacker, UnitType target) {
    const auto row = static_cast<std::size_t>(attacker);
    const auto column = static_cast<std::size_t>(target);
    return row < kStrikeTypes && column < kStrikeTypes ? kEffectiveness[row][column] : 0;
}

struct FormationFactor {
    TypeRange types;
    Formation formation;
    double factor;
};

constexpr FormationFactor kAttackFormations[] = {
    {kFootTypes, Formation::AttackColumn, 2.0},
    {kFootTypes, Formation::MixedOrder, 1.5},
    {kFootTypes, Formation::Square, 0.25},
    {kFootTypes, Formation::OpenOrder, 1.25},
    {kHorseTypes, Formation::AttackColumn, 1.5},
    {kHorseTypes, Formation::OpenOrder, 0.75},
    {{UnitType::None, UnitType::MortarArtillery}, Formation::MarchColumn, 0.1},
    {{UnitType::None, UnitType::MortarArtillery}, Formation::NoFormation, 0.5},
};

constexpr FormationFactor kDefenceFormations[] = {
    {kFootTypes, Formation::AttackColumn, 0.2},
    {kFootTypes, Formation::MixedOrder, 0.5},
    {kFootTypes, Formation::Square, 0.25},
    {kFootTypes, Formation::OpenOrder, 1.25},
    {kHorseOrMortar, Formation::AttackColumn, 0.75},
    {kHorseOrMortar, Formation::OpenOrder, 0.75},
    {kRocketsAndGuns, Formation::MarchColumn, 0.0},
    {{UnitType::None, UnitType::MortarArtillery}, Formation::MarchColumn, 0.1},
    {{UnitType::None, UnitType::MortarArtillery}, Formation::NoFormation, 0.5},
};

// How many of a light unit's points skirmish: by strength, rising.
struct SkirmishLine {
    int fromStrength;
    double size;
};
constexpr SkirmishLine kSkirmishLines[] = {{0, 1.0}, {4, 2.0}, {6, 3.0}};

// A strike becomes a hit by the two arms. A later row replaces an earlier one; without a row there
// is no hit.
struct HitDivisor {
    TypeRange striker;
    TypeRange struck;
    int divisor;
};

constexpr HitDivisor kBlowDivisors[] = {
    {kFootOrLeader, kFootOrLeader, 3},   {kFootOrLeader, kRocketsAndGuns, 3},
    {kFootOrLeader, kHorseOrMortar, 6},  {kHorseOrMortar, kFootOrLeader, 5},
    {kHorseOrMortar, kHorseOrMortar, 3}, {kHorseOrMortar, kFieldGuns, 4},
    {kFieldGuns, kHorseOrMortar, 5},     {kFieldGuns, kFootOrLeader, 4},
    {kFieldGuns, kFieldGuns, 6},
};

constexpr HitDivisor kAnswerDivisors[] = {
    {kFootOrLeader, kFootOrLeader, 2},  {{UnitType::LightCavalry, kLastType}, kFootOrLeader, 5},
    {kFootOrLeader, kHorseOrMortar, 4}, {kHorseOrMortar, kHorseOrMortar, 3},
    {kFieldGuns, kHorseOrMortar, 2},
};

// A big unit feels a hit less: from this strength on.
struct SizeDivisor {
    int fromStrength;
    double divisor;
};
constexpr SizeDivisor kTargetSizes[] = {{0, 1.0}, {2, 1.5}, {3, 2.0}, {5, 3.0}};
constexpr SizeDivisor kAttackerSizes[] = {{0, 1.0}, {3, 1.5}, {4, 2.0}, {6, 2.5}};

constexpr int kStrikeLimit = 50;

// Ground from which no attack gets anywhere; bounds belong to it.
struct BlockedArea {
    int mapNumber;
    int areaId;
    int left;
    int right;
    int top;
    int bottom;
};
constexpr int kNoBound = 32767;
constexpr BlockedArea kBlockedAreas[] = {
    // map area  x from to       y from to
    {7, 21, 9, 18, 43, 52},
    {7, 23, 39, 41, 28, 37},
    {7, 25, 83, 92, 31, 43},
    {7, 29, 71, 80, 24, 35},
    {2, 28, 21, kNoBound, 0, kNoBound},
};

// Slots behind a stream that an attacker has to cross.
constexpr Cell kStreams1French[] = {{2, 7},   {5, 7},   {7, 4},   {16, 6},  {11, 5},  {14, 4},
                                    {27, 26}, {33, 26}, {30, 26}, {31, 35}, {34, 33}, {29, 34}};
constexpr Cell kStreams1Allied[] = {{3, 4},   {5, 2},   {8, 2},   {15, 2},  {12, 2},  {16, 4},
                                    {30, 23}, {33, 23}, {34, 20}, {27, 32}, {29, 30}, {32, 30}};
constexpr Cell kStreams3French[] = {{14, 30}, {17, 34}, {17, 30}, {21, 22}, {22, 18}, {23, 21},
                                    {67, 17}, {70, 18}, {74, 18}, {67, 24}, {69, 26}, {71, 24},
                                    {53, 45}, {55, 41}, {57, 37}, {36, 57}, {40, 56}, {40, 53},
                                    {95, 16}, {93, 20}, {98, 14}};
constexpr Cell kStreams3Allied[] = {{18, 28}, {19, 25}, {20, 28}, {25, 18}, {29, 18}, {27, 19},
                                    {71, 13}, {68, 13}, {73, 15}, {65, 21}, {69, 21}, {72, 21},
                                    {52, 41}, {52, 37}, {55, 36}, {39, 50}, {36, 54}, {36, 49},
                                    {95, 12}, {99, 10}, {103, 9}};
constexpr Cell kStreams4French[] = {{19, 48}, {22, 51}, {23, 57}};
constexpr Cell kStreams4Allied[] = {{24, 51}, {28, 52}, {30, 56}};
constexpr Cell kStreams7French[] = {{82, 32}, {80, 29}, {83, 29}, {66, 75}, {65, 78}, {68, 78}};
constexpr Cell kStreams7Allied[] = {{85, 25}, {82, 25}, {79, 25}, {71, 76}, {74, 74}, {73, 78}};

struct StreamList {
    int mapNumber;
    Side attacker;
    std::span<const Cell> slots;
};
constexpr StreamList kStreams[] = {
    {1, Side::French, kStreams1French}, {1, Side::Allied, kStreams1Allied},
    {3, Side::French, kStreams3French}, {3, Side::Allied, kStreams3Allied},
    {4, Side::French, kStreams4French}, {4, Side::Allied, kStreams4Allied},
    {7, Side::French, kStreams7French}, {7, Side::Allied, kStreams7Allied},
};

// What a tactical card adds to the strikes of the army that has played it.
enum class CardFire { Any, Barrage, CloseRange };
struct CardBonus {
    int army;
    int card;
    TypeRange attackers;
    CardFire fire;
    int points;
};
constexpr CardBonus kCardBonuses[] = {
    {kFrench, 1, kAnyType, CardFire::Any, 1},
    {kFrench, 2, kFieldGuns, CardFire::Barrage, 2},
    {kFrench, 3, kFootTypes, CardFire::Any, 2},
    {kBritish, 1, kLineHorse, CardFire::Any, 1},
    {kBritish, 2, kFieldGuns, CardFire::CloseRange, 1},
    {kBritish, 3, kFootTypes, CardFire::Any, 2},
    {kAustrian, 1, kLineHorse, CardFire::Any, 1},
    {kAustrian, 3, kFootTypes, CardFire::Any, 1},
    {kPrussian, 1, kLineHorse, CardFire::Any, 1},
    {kPrussian, 2, kFieldGuns, CardFire::Any, 1},
    {kPrussian, 3, kFootTypes, CardFire::Any, 1},
};

}  // namespace varnstride
