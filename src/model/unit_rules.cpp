#include "model/unit_rules.h"

#include <algorithm>
#include <array>

#include "model/units_on_map.h"

namespace varnstride {
namespace {

struct StrengthValue {
    int good;       // quality 1 to 4
    int conscript;  // quality 5
    bool carbineCounts;
};

constexpr std::array<StrengthValue, 19> kStrengthValues = {{
    {0, 0, false},    // none
    {5, 4, false},    // light infantry
    {4, 3, false},    // line infantry
    {6, 5, false},    // guard infantry
    {10, 8, true},    // light dragoons dismounted
    {20, 15, false},  // engineers
    {12, 10, true},   // dragoons dismounted
    {40, 40, false},  // leader
    {10, 8, false},   // light cavalry
    {12, 10, false},  // lancers
    {14, 12, false},  // heavy cavalry
    {12, 10, true},   // medium cavalry
    {0, 0, false},    // cossack cavalry
    {0, 0, false},    // guard cavalry
    {0, 0, false},    // mortar artillery
    {30, 30, false},  // rocket artillery
    {30, 30, false},  // horse artillery
    {20, 20, false},  // field artillery
    {25, 25, false},  // supply wagon
}};

int WeaponValue(const Unit& unit) {
    if (IsFieldGun(unit.type)) {
        if (unit.weapon == Weapon::SixPounder) return 5;
        return unit.weapon == Weapon::TwelvePounder ? 10 : 0;
    }
    if (unit.type >= UnitType::RocketArtillery) return 0;
    return unit.weapon == Weapon::Musket || unit.weapon == Weapon::Rifle ? 2 : 0;
}

int PointsByArm(const Unit& unit) {
    const UnitType type = unit.type;
    int points = 0;
    if (IsFoot(type)) points = 1;
    if (unit.formation == Formation::MarchColumn && IsFoot(type)) points = 2;
    if (IsBetween(type, UnitType::Leader, UnitType::GuardCavalry)) points = 2;
    if (type == UnitType::RocketArtillery || type == UnitType::HorseArtillery) points = 2;
    if (type == UnitType::MortarArtillery || type == UnitType::FieldArtillery) points = 1;
    if (type == UnitType::SupplyWagon) points = 1;
    return points;
}

bool NeedsDaylight(UnitType type) {
    return type == UnitType::LineInfantry || type == UnitType::GuardInfantry ||
           type > UnitType::LightCavalry;
}

}  // namespace

void RecomputeStatus(Unit& unit) {
    if (unit.maxMorale == 0) return;
    const int percent = unit.morale * 100 / unit.maxMorale;
    if (percent >= 80) {
        unit.status = UnitStatus::Ordered;
    } else if (percent >= 60) {
        unit.status = UnitStatus::Unsteady;
    } else if (percent >= 40) {
        unit.status = UnitStatus::Shaken;
    } else {
        unit.status = UnitStatus::Routed;
        unit.formation = Formation::NoFormation;
    }
}

void LowerStatus(Unit& unit) {
    const UnitStatus before = unit.status;
    RecomputeStatus(unit);
    unit.status = std::min(unit.status, before);
}

void LoseMorale(Unit& unit, int points) {
    unit.morale = std::max(0, unit.morale - points);
    LowerStatus(unit);
}

int ComputeActionPoints(const Unit& unit, int visibility) {
    constexpr int kPoorVisibility = 8;
    constexpr int kDarkness = 4;
    int points = PointsByArm(unit);
    if (visibility < kPoorVisibility) points = 1;
    if (visibility < kDarkness && NeedsDaylight(unit.type)) points = 0;
    if (unit.activity >= UnitActivity::Palisade && unit.activity <= UnitActivity::BurningBuilding) {
        points = 0;
    }
    return points;
}

int ValueOfStrengthPoint(const Unit& unit) {
    const auto type = static_cast<std::size_t>(unit.type);
    if (type >= kStrengthValues.size()) return 0;
    const StrengthValue& value = kStrengthValues[type];
    const int base = unit.quality < Quality::Conscript ? value.good : value.conscript;
    const int carbine = value.carbineCounts && unit.weapon == Weapon::Carbine ? 1 : 0;
    return base + carbine + WeaponValue(unit);
}

int ValueOfUnit(const Unit& unit) {
    return ValueOfStrengthPoint(unit) * unit.maxMorale;
}

int UnitAt(const Game& game, int army, Cell cell) {
    for (int index : UnitIndices(game)) {
        if (game.At({army, index}).Place() == cell) return index;
    }
    return 0;
}

}  // namespace varnstride
