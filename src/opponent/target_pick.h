// Whom the computer goes for: the enemy units on lit ground, and among them the first of the class
// that the unit in hand prefers. Fog hides nobody from it.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "model/game.h"

namespace varnstride {

enum class TargetTest { None, NoStronger, AloneInArea };

// One class is looked through in full before the next. NoStronger passes over units of more
// strength than the picker; AloneInArea gives the class up when the first of it has company.
struct TargetClass {
    bool (*holds)(UnitType);
    TargetTest test;
};

inline constexpr std::array<TargetClass, 2> kBarrageTargets = {{
    {IsMountedOrMortar, TargetTest::None},
    {IsFoot, TargetTest::None},
}};
inline constexpr std::array<TargetClass, 3> kChargeTargets = {{
    {IsFieldGun, TargetTest::None},
    {IsMountedOrMortar, TargetTest::NoStronger},
    {IsFoot, TargetTest::NoStronger},
}};
inline constexpr std::array<TargetClass, 3> kCavalryTargets = {{
    {IsFieldGun, TargetTest::AloneInArea},
    {IsMountedOrMortar, TargetTest::NoStronger},
    {IsFoot, TargetTest::NoStronger},
}};
inline constexpr std::array<TargetClass, 2> kInfantryTargets = {{
    {IsFieldGun, TargetTest::AloneInArea},
    {IsFoot, TargetTest::NoStronger},
}};

enum class Marked { All, StrengthOneOnly };

// The marks that one turn of the computer sets, in the field inCommand of the units of all other
// armies; each army's own turn writes that field afresh.
class TargetMarks {
 public:
    // Marks those who stand on lit ground and nobody else.
    void MarkEnemiesInReach(Game& game, Marked who);

    // The first marked unit of the enemy side for the unit in hand: of the lowest army, in it the
    // highest record. None when no class has one. A class that must stand alone takes the census.
    UnitId Pick(Game& game, std::span<const TargetClass> classes) const;

 private:
    void ClearMarks(Game& game);

    bool onlyOwnMarks_ = false;   // whatever the fields held before is gone
    std::vector<UnitId> marked_;  // in the order of the pick
};

}  // namespace varnstride
