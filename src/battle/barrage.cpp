#include "battle/barrage.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "actions/courier.h"
#include "battle/strike_tables.h"
#include "model/areas.h"
#include "model/census.h"
#include "model/dice.h"
#include "model/reach.h"
#include "model/terrain.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

constexpr int kLongReach = 2;
constexpr int kShortReach = 1;

// The grand battery before La Belle Alliance: named companies of the French throw far from there,
// whatever their pieces.
struct BatteryPlace {
    int areaId;
    Cell first;  // corners, both included
    Cell last;
};

constexpr int kBatteryMap = 7;

constexpr std::array<BatteryPlace, 2> kBatteryPlaces = {{
    {26, {39, 36}, {50, 47}},
    {28, {47, 34}, {59, 45}},
}};

constexpr std::array<std::string_view, 4> kBatteryCompanies = {
    "10e & 20e Compagnie 6e Regt de FA",
    "9e & 19e Compagnie 6e Regt de FA",
    "1/1 Marine FA Compagnie Middle Guard",
    "6e Compagnie du Regt FA Old Guard",
};

bool StandsInBattery(const Game& game, Cell cell) {
    return std::any_of(kBatteryPlaces.begin(), kBatteryPlaces.end(), [&](const BatteryPlace& at) {
        return game.grid.Holds(cell) && game.grid.Ground(cell).areaId == at.areaId &&
               cell.x >= at.first.x && cell.x <= at.last.x && cell.y >= at.first.y &&
               cell.y <= at.last.y;
    });
}

bool FiresFromGrandBattery(const Game& game, UnitId gun) {
    if (gun.army != kFrench || game.header.mapNumber != kBatteryMap) return false;
    const std::string_view name = game.At(gun).name.data();
    return std::count(kBatteryCompanies.begin(), kBatteryCompanies.end(), name) > 0 &&
           StandsInBattery(game, game.At(gun).Place());
}

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

bool IsGunOnMap(const Game& game, UnitId id) {
    return kMortarsToGuns.Holds(game.At(id).type) && IsOnMap(game, id);
}

bool IsReadyToBombard(const Game& game, UnitId id) {
    constexpr int kLoads = 2;
    const Unit& unit = game.At(id);
    return IsGunOnMap(game, id) && unit.ammunition >= kLoads && unit.actionPoints > 0 &&
           unit.status > UnitStatus::Routed;
}

bool HasEnemyInArea(Game& game, UnitId id) {
    const Cell selected = game.state.selectedCell;
    game.state.selectedCell = game.At(id).Place();
    CensusEnemy(game);
    game.state.selectedCell = selected;
    return game.census.enemyCount > 0;
}

std::vector<UnitId> FindAbleGuns(Game& game) {
    std::vector<UnitId> guns;
    for (int index : UnitIndices(game)) {
        const UnitId id{game.state.currentArmy, index};
        if (IsReadyToBombard(game, id) && !HasEnemyInArea(game, id)) guns.push_back(id);
    }
    return guns;
}

int ReachOfGun(const Game& game, UnitId gun) {
    const bool heavy = game.At(gun).weapon == Weapon::TwelvePounder;
    return heavy || FiresFromGrandBattery(game, gun) ? kLongReach : kShortReach;
}

void AimGun(Game& game, UnitId gun) {
    GameState& state = game.state;
    Unit& unit = game.At(gun);
    state.currentUnit = gun.index;
    state.selectedCell = unit.Place();
    game.person->Redraw(View::CentreOnSelected);
    state.bombardmentMode = 1;
    state.roadMover = true;
    game.waiting.gun = gun;
    game.waiting.gunActionPoints = unit.actionPoints;
    unit.actionPoints = ReachOfGun(game, gun);
    ShadeReach(game);
    game.grid.At(unit.Place()).highlight = 1;
}

void LayAimDown(Game& game) {
    game.state.bombardmentMode = 0;
    if (!game.waiting.gun) return;
    game.At(game.waiting.gun).actionPoints = game.waiting.gunActionPoints;
    game.waiting.gun = {};
}

void CheckBuildingFire(Game& game) {
    constexpr int kSides = 10;
    if (!kMortarsToGuns.Holds(game.InHand().type)) return;
    const std::optional<Cell> house = FindHouse(game);
    if (house && LoggedDieShows(game, kSides, kSides - 1)) SetOnFire(game, *house);
}

}  // namespace varnstride
