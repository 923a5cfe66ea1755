#include "demo/tellings.h"

#include <array>
#include <string_view>

#include "model/units_on_map.h"
#include "platform/headless/text_map.h"
#include "resources/army_names.h"

namespace varnstride::demo {
namespace {

constexpr std::array<std::string_view, 7> kFormations = {
    "Line", "Attack Column", "Mixed Order", "Square", "Open Order", "March Column", "no formation"};

std::string NameOf(const Game& game, UnitId id) {
    const std::string name = game.At(id).name.data();
    const std::size_t first = name.find_first_not_of(' ');
    if (first == std::string::npos) return "A unit of the " + std::string(ArmyTitle(id.army));
    return name.substr(first, name.find_last_not_of(' ') - first + 1);
}

std::string Place(const Game& game, Cell cell) {
    const int ordinal = game.grid.AreaOf(cell);
    return ordinal == 0 ? "the edge of the map" : PlaceName(game, ordinal);
}

std::string Points(int count, std::string_view what) {
    return std::to_string(count) + " point" + (count == 1 ? "" : "s") + " of " + std::string(what);
}

bool WasOnMap(const Unit& was, const Game& game) {
    return was.strength > 0 && was.arrivalTurn <= game.state.gameTurn;
}

std::string March(const Game& game, UnitId id, const Unit& was) {
    const Unit& unit = game.At(id);
    if (game.grid.AreaOf(unit.Place()) == game.grid.AreaOf(was.Place())) return {};
    return NameOf(game, id) + " goes from " + Place(game, was.Place()) + " to " +
           Place(game, unit.Place()) + ".";
}

std::string StatusChange(const Game& game, UnitId id, const Unit& was) {
    constexpr std::array<std::string_view, 5> kBecomes = {
        "is destroyed", "breaks and runs", "is shaken", "is unsteady", "is in good order again"};
    const Unit& unit = game.At(id);
    if (unit.status == was.status) return {};
    return NameOf(game, id) + " " + std::string(kBecomes[static_cast<std::size_t>(unit.status)]) +
           ".";
}

std::string FormationChange(const Game& game, UnitId id, const Unit& was) {
    const Unit& unit = game.At(id);
    if (unit.formation == was.formation || unit.status == UnitStatus::Routed) return {};
    if (unit.formation == Formation::NoFormation) return NameOf(game, id) + " loses its formation.";
    return NameOf(game, id) + " forms " +
           std::string(kFormations[static_cast<std::size_t>(unit.formation)]) + ".";
}

int CountOnMap(const Game& game, Side side) {
    int count = 0;
    for (int army = 0; army < kArmyCount; ++army) {
        if (SideOf(army) != side) continue;
        for (int index : UnitIndices(game))
            count += IsOnMap(game, {army, index}) ? 1 : 0;
    }
    return count;
}

}  // namespace

std::vector<std::string> TellBattle(const Game& game) {
    const std::string turns = std::to_string(game.header.lastTurn);
    return {"A battle opens: " + turns + " turns of half an hour.",
            std::to_string(CountOnMap(game, Side::French)) + " French units against " +
                std::to_string(CountOnMap(game, Side::Allied)) + " of the Allies."};
}

std::vector<std::string> TellUnit(const Game& game, UnitId id, const Unit& was) {
    if (was.strength == 0 && game.At(id).strength == 0) return {};
    if (!WasOnMap(was, game) && IsOnMap(game, id)) {
        return {NameOf(game, id) + " comes onto the map at " + Place(game, game.At(id).Place()) +
                "."};
    }
    if (game.At(id).strength == 0) return {NameOf(game, id) + " is destroyed."};
    if (!IsOnMap(game, id)) {
        if (!WasOnMap(was, game)) return {};
        return {NameOf(game, id) + " leaves the field."};
    }
    std::vector<std::string> lines;
    for (const auto& tell : {March, StatusChange, FormationChange}) {
        const std::string line = tell(game, id, was);
        if (!line.empty()) lines.push_back(line);
    }
    return lines;
}

std::vector<std::string> TellAttack(const AttackReport& report) {
    const std::string target = "  " + report.targetName + " loses " +
                               Points(report.defenderLoss, "strength") + " and " +
                               Points(report.defenderHit, "morale") + ".";
    const std::string attacker = "  " + report.attackerName + " loses " +
                                 Points(report.attackerLoss, "strength") + " and " +
                                 Points(report.attackerHit, "morale") + ".";
    return {report.attackerName + " attacks " + report.targetName + ": strike " +
                std::to_string(report.attackStrike) + " against " +
                std::to_string(report.defenceStrike) + ".",
            target, attacker};
}

std::string TellStanding(const Game& game) {
    const GameState& state = game.state;
    return "Lost so far: French " + std::to_string(game.loss.frenchLossSP) + ", Allies " +
           std::to_string(game.loss.alliedLossSP) + " points of strength. Army morale: French " +
           std::to_string(state.frenchMorale) + ", Allies " + std::to_string(state.alliedMorale) +
           " percent. Score " + std::to_string(state.victoryScore) + ".";
}

}  // namespace varnstride::demo
