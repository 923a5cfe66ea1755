#include "opponent/target_pick.h"

#include <algorithm>

#include "model/census.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

bool IsOther(const Game& game, int army) {
    return army != game.state.currentArmy && game.Army(army).present != 0;
}

bool StandsAlone(Game& game, UnitId id) {
    game.state.selectedCell = game.At(id).Place();
    CensusEnemy(game);
    return game.census.enemyCount <= 1;
}

bool Belongs(const Game& game, const TargetClass& wanted, UnitId id) {
    const Unit& unit = game.At(id);
    const bool tooStrong =
        wanted.test == TargetTest::NoStronger && unit.strength > game.InHand().strength;
    return SideOf(id.army) == game.EnemySide() && wanted.holds(unit.type) && !tooStrong;
}

}  // namespace

void TargetMarks::ClearMarks(Game& game) {
    if (onlyOwnMarks_) {
        for (UnitId id : marked_)
            game.At(id).inCommand = 0;
    } else {
        for (int army = 0; army < kArmyCount; ++army) {
            if (!IsOther(game, army)) continue;
            for (int index : UnitIndices(game))
                game.At({army, index}).inCommand = 0;
        }
    }
    marked_.clear();
    onlyOwnMarks_ = true;
}

void TargetMarks::MarkEnemiesInReach(Game& game, Marked who) {
    ClearMarks(game);
    game.grid.ForEachLitSlot([&](Cell slot) {
        const UnitId id = UnitStandingAt(game, slot);
        if (!id || !IsOther(game, id.army)) return;
        if (who == Marked::StrengthOneOnly && game.At(id).strength != 1) return;
        game.At(id).inCommand = 1;
        marked_.push_back(id);
    });
    std::sort(marked_.begin(), marked_.end(), [](UnitId one, UnitId other) {
        return one.army != other.army ? one.army < other.army : one.index > other.index;
    });
}

UnitId TargetMarks::Pick(Game& game, std::span<const TargetClass> classes) const {
    for (const TargetClass& wanted : classes) {
        const auto found = std::find_if(marked_.begin(), marked_.end(),
                                        [&](UnitId id) { return Belongs(game, wanted, id); });
        if (found == marked_.end()) continue;
        if (wanted.test != TargetTest::AloneInArea || StandsAlone(game, *found)) return *found;
    }
    return {};
}

}  // namespace varnstride
