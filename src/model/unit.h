// A fighting piece: its record, the words for its fields, and the classes of arms that the rules
// ask for. What a unit can do with its fields is in unit_rules.h.
#pragma once

#include <array>

#include "model/cell.h"

namespace varnstride {

constexpr int kUnitsPerArmy = 600;  // record 0 of every army stays empty

enum class UnitType {
    None = 0,
    LightInfantry = 1,
    LineInfantry = 2,
    GuardInfantry = 3,
    LightDragoonsDismounted = 4,
    Engineers = 5,
    DragoonsDismounted = 6,
    Leader = 7,
    LightCavalry = 8,
    Lancers = 9,
    HeavyCavalry = 10,
    MediumCavalry = 11,
    CossackCavalry = 12,
    GuardCavalry = 13,
    MortarArtillery = 14,
    RocketArtillery = 15,
    HorseArtillery = 16,
    FieldArtillery = 17,
    SupplyWagon = 18,
};
constexpr UnitType kNeverClosesUp{21};  // a type of old scenarios that stays in its slot

enum class UnitStatus { Destroyed = 0, Routed = 1, Shaken = 2, Unsteady = 3, Ordered = 4 };

enum class Formation {
    Line = 0,
    AttackColumn = 1,
    MixedOrder = 2,
    Square = 3,
    OpenOrder = 4,
    MarchColumn = 5,
    NoFormation = 6,
};

enum class UnitActivity {
    None = 0,
    Palisade = 1,
    BuildingBridge = 2,
    DestroyingBridge = 3,
    BurningBuilding = 4,
    Charging = 5,
    Skirmishing = 6,
    ForcedMarch = 7,
    Retreating = 8,
    Evading = 9,
    Recoiling = 10,
    FollowingUp = 11,
    CavalryAssault = 12,
    BayonetCharge = 13,
    Reforming = 14,
    Hold = 15,
};

enum class Quality {
    None = 0,
    Elite = 1,
    Veteran = 2,
    Experienced = 3,
    Militia = 4,
    Conscript = 5
};

enum class Weapon {
    None = 0,
    Musket = 1,
    Rifle = 2,
    Carbine = 3,
    Sabre = 4,
    ThreePounder = 5,
    SixPounder = 6,
    TwelvePounder = 7,
    Lance = 8,
    Rocket = 9,
};

constexpr int kLeftByExit = 2000;  // arrivalTurn of a unit that was led off the field
constexpr int kFullAmmunition = 8;

struct Unit {
    int x = 0;
    int y = 0;
    int reservedA = 0;
    int reservedB = 0;
    int previousX = 0;
    int previousY = 0;
    int reservedC = 0;
    int reservedD = 0;
    int reservedE = 0;
    int reservedF = 0;
    UnitType type = UnitType::None;
    int actionPoints = 0;
    int strength = 0;
    UnitStatus status = UnitStatus::Destroyed;
    Formation formation = Formation::Line;
    UnitActivity activity = UnitActivity::None;
    Quality quality = Quality::None;
    int morale = 0;
    int outOfCommand = 0;
    int fixedUntilTurn = 0;
    int arrivalTurn = 0;
    int reservedG = 0;
    Weapon weapon = Weapon::None;
    int leadership = 0;
    int canMove = 0;
    int inCommand = 0;
    int disrupted = 0;
    int groupId = 0;
    int initialStrength = 0;
    int maxMorale = 0;
    int arrivalChance = 0;
    int ammunition = 0;
    int attackedFlag = 0;
    int reservedH = 0;  // 1: has fought by leadership this turn
    int reservedI = 0;
    int visible = 0;
    int leaderSound = 0;
    int reservedJ = 0;
    std::array<char, 50> name{};
    std::array<unsigned char, 2> reservedTail{};

    Cell Place() const { return {x, y}; }
    void SetPlace(Cell cell) { x = cell.x, y = cell.y; }

    friend bool operator==(const Unit&, const Unit&) = default;
};

// A unit's identity: its army and its record in it.
struct UnitId {
    int army = 0;
    int index = 0;  // 0: no unit

    explicit operator bool() const { return index > 0; }
    friend constexpr bool operator==(const UnitId&, const UnitId&) = default;
};

constexpr bool IsBetween(UnitType type, UnitType first, UnitType last) {
    return type >= first && type <= last;
}
constexpr bool IsInfantry(UnitType type) {
    return type < UnitType::LightDragoonsDismounted;
}
constexpr bool IsFoot(UnitType type) {
    return type < UnitType::Leader;
}
constexpr bool IsMounted(UnitType type) {
    return IsBetween(type, UnitType::LightCavalry, UnitType::GuardCavalry);
}
// Some rules count mortars with the horse; they say so where they do.
constexpr bool IsMountedOrMortar(UnitType type) {
    return IsBetween(type, UnitType::LightCavalry, UnitType::MortarArtillery);
}
constexpr bool IsFieldGun(UnitType type) {
    return type == UnitType::HorseArtillery || type == UnitType::FieldArtillery;
}
constexpr bool IsFighting(UnitType type) {
    return type < UnitType::SupplyWagon;
}

}  // namespace varnstride
