// How long whole turns take on the largest battlefield: a battle pass, and a turn of the computer.
// Linked twice: with the searches of the model, and with bench/scanned_searches.cpp in their place.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>

#include "battle/battle_pass.h"
#include "model/units_on_map.h"
#include "model/who_plays.h"
#include "opponent/opponent_turn.h"
#include "platform/headless/state_hash.h"
#include "support/synthetic_battle.h"

namespace varnstride {
namespace {

constexpr int kUnits = 300;

// In every ten units, much as armies were made up.
constexpr UnitType kArms[] = {
    UnitType::LineInfantry,   UnitType::LightInfantry, UnitType::LineInfantry,
    UnitType::GuardInfantry,  UnitType::LineInfantry,  UnitType::LightCavalry,
    UnitType::FieldArtillery, UnitType::LineInfantry,  UnitType::HeavyCavalry,
    UnitType::Leader,
};
constexpr Formation kFormations[] = {Formation::Line, Formation::AttackColumn, Formation::Line,
                                     Formation::MarchColumn};

Unit MakeSoldiers(std::mt19937& chance) {
    Unit unit = MakeUnit(kArms[chance() % std::size(kArms)]);
    unit.strength = unit.initialStrength = 1 + static_cast<int>(chance() % 6);
    unit.morale = unit.maxMorale = 24;
    unit.ammunition = kFullAmmunition;
    unit.actionPoints = unit.type > UnitType::GuardInfantry ? 2 : 1;
    unit.formation = kFormations[chance() % std::size(kFormations)];
    unit.weapon = IsFieldGun(unit.type) ? Weapon::TwelvePounder : Weapon::Musket;
    unit.canMove = 1;
    return unit;
}

// Fills areas from the front, an area of each two for that side alone while they last.
std::vector<Cell> FreeSlots(const Field& field, Side side) {
    const int own = side == Side::French ? 0 : 1;
    std::vector<int> areas;
    for (int parity : {own, 1 - own}) {
        for (int ordinal = 1; ordinal <= field.game.atlas->AreaCount(); ++ordinal) {
            if (ordinal % 2 == parity) areas.push_back(ordinal);
        }
    }
    std::vector<Cell> slots;
    for (int ordinal : areas) {
        for (int slot = 1; slot <= kSlotsPerSide; ++slot)
            slots.push_back(field.SlotCell(side, ordinal, slot));
    }
    return slots;
}

void Clear(Game& game) {
    for (ArmyUnits& army : game.units)
        army.fill(Unit{});
    game.grid.ClearStanding();
    for (PlayCell& cell : game.grid.PlayCells())
        cell.occupant = 0;
}

// So many units a side on the map. Up to half the areas' slots each side has ground of its own.
std::unique_ptr<Field> MakeArmies(int unitsPerSide) {
    std::unique_ptr<Field> field = MakeLargeBattle();
    Game& game = field->game;
    Clear(game);
    std::mt19937 chance(1815);
    for (int army : {kFrench, kPrussian}) {
        const std::vector<Cell> slots = FreeSlots(*field, SideOf(army));
        for (int index = 1; index <= unitsPerSide; ++index) {
            game.At({army, index}) = MakeSoldiers(chance);
            PlaceUnit(game, {army, index}, slots[static_cast<std::size_t>(index - 1)]);
        }
        game.Army(army).commandPoints = kUnits;
        game.Army(army).present = 1;
    }
    game.state.unitLimit = kUnits + 1;
    game.state.currentArmy = kFrench;
    game.settings.computerSide = game.state.computerPlays = kComputerPlaysFrench;
    game.settings.quickResults = game.settings.noDelays = 1;
    game.header.visibility = 20;
    game.header.fogNormal = 1;
    game.header.minorVictoryLimit = game.header.majorVictoryLimit = 1000;
    game.header.minorDefeatLimit = game.header.majorDefeatLimit = -1000;
    game.turnLog.advanceDirection = 2;
    return field;
}

// Plays from the same position again and again. The two programs must come to the same end; a
// counter holds 53 bits of it.
void Measure(benchmark::State& state, const Game& start, void (*play)(Game&)) {
    Game game = start;
    for (auto _ : state) {
        state.PauseTiming();
        game = start;
        state.ResumeTiming();
        play(game);
    }
    state.counters["fingerprint"] = static_cast<double>(HashOf(game) >> 11);
}

void BattlePass(benchmark::State& state) {
    Measure(state, MakeLargeMelee()->game, RunBattlePass);
}

void ComputersTurn(benchmark::State& state, int unitsPerSide) {
    Measure(state, MakeArmies(unitsPerSide)->game, RunOpponentTurn);
}

// tools/bench sets each TURN/scan beside TURN/model.
BENCHMARK(BattlePass)->Name("Battle pass/" VARNSTRIDE_VARIANT);
BENCHMARK_CAPTURE(ComputersTurn, apart, 150)
    ->Name("Computer's turn, 150 a side apart/" VARNSTRIDE_VARIANT);
BENCHMARK_CAPTURE(ComputersTurn, inContact, 300)
    ->Name("Computer's turn, 300 a side in contact/" VARNSTRIDE_VARIANT);

}  // namespace
}  // namespace varnstride
