#include "battle/barrage.h"

#include <optional>

#include "actions/courier.h"
#include "battle/strike_tables.h"
#include "model/areas.h"
#include "model/dice.h"
#include "model/terrain.h"

namespace varnstride {
namespace {

// The first house of the enemy's slots that does not burn yet.
std::optional<Cell> FindHouse(const Game& game) {
    for (int slot = 0; slot < kSlotsPerSide; ++slot) {
        const Cell cell = EnemySlot(game, slot);
        if (!game.grid.Holds(cell) || IsBurning(game.grid.At(cell))) continue;
        const GroundCell& ground = game.grid.Ground(cell);
        if (IsBuilding(ground) || IsVillage(ground)) return cell;
    }
    return std::nullopt;
}

void SetOnFire(Game& game, Cell house) {
    constexpr int kMilliseconds = 300;
    if (game.settings.noDelays != 1 && game.settings.noReplay != 1) {
        game.person->Pause(kMilliseconds);
    }
    PlayBattleSound(game, Sound::BuildingFire);
    game.grid.At(house).roadTile = kFire;
    ShowCourier(game, 271);
}

}  // namespace

void CheckBuildingFire(Game& game) {
    constexpr int kSides = 10;
    if (!kMortarsToGuns.Holds(game.InHand().type)) return;
    const std::optional<Cell> house = FindHouse(game);
    if (house && LoggedDieShows(game, kSides, kSides - 1)) SetOnFire(game, *house);
}

}  // namespace varnstride
