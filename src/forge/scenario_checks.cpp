#include "forge/scenario_checks.h"

#include <map>
#include <string>
#include <utility>

#include "files/battle_checks.h"
#include "forge/scenario_values.h"
#include "forge/scenario_words.h"
#include "model/grid.h"

namespace varnstride {
namespace {

std::string NameOf(const Unit& unit) {
    return "unit " + Quoted(ContentOf(unit.name));
}

class UnitChecks {
 public:
    explicit UnitChecks(const ScenarioBuild& build) : build_(build) {
        if (build.atlas == nullptr || !build.HasGrid()) return;
        const BattleFile& file = build.file;
        grid_ = Grid(file.mapWidth, file.mapHeight, file.cells, *build.atlas);
        for (const AreaRow& row : build.atlas->Rows()) {
            for (Cell slot : row.frenchSlots)
                slots_[{slot.x, slot.y}] = Side::French;
            for (Cell slot : row.alliedSlots)
                slots_[{slot.x, slot.y}] = Side::Allied;
        }
    }

    void Check(UnitId id, const Unit& unit) {
        const UnitLine* const written = build_.FindLine(id);
        if (written != nullptr && !written->isSound) return;
        const int line = written != nullptr ? written->line : 0;
        const bool strict = build_.rules == ScenarioRules::Strict && written != nullptr;
        if (strict) CheckAsWritten(unit, line);
        if (const auto fault = FindFaultOf(unit); fault && !(strict && LacksColumns(unit))) {
            build_.errors.Add(line, NameOf(unit) + ": " + *fault);
        }
        if (unit.strength <= 0 || slots_.empty() || (strict && unit.Place() == kNoCell)) return;
        if (StandsAtStart(build_.file, unit)) {
            CheckSlot(id, unit, line);
        } else if (strict && grid_.AreaOf(unit.Place()) == 0) {
            build_.errors.Add(line, NameOf(unit) + " arrives at " + SourceCell(unit.Place()) +
                                        ", which lies in no area: expected a cell of one");
        }
    }

 private:
    static bool LacksColumns(const Unit& unit) {
        return unit.type == UnitType::None || unit.quality == Quality::None || unit.maxMorale == 0;
    }

    void CheckAsWritten(const Unit& unit, int line) const {
        const auto need = [&](bool given, const std::string& column) {
            if (given) return;
            build_.errors.Add(line,
                              NameOf(unit) + ": expected a value in the column \"" + column + "\"");
        };
        need(unit.name[0] != '\0', "name");
        need(unit.type != UnitType::None, "type");
        need(unit.strength > 0, "strength");
        need(unit.quality != Quality::None, "quality");
        need(unit.maxMorale > 0, "morale");
        need(unit.Place() != kNoCell, "at");
    }

    void CheckSlot(UnitId id, const Unit& unit, int line) {
        const std::pair place{unit.x, unit.y};
        const Side side = SideOf(id.army);
        const auto slot = slots_.find(place);
        if (slot == slots_.end() || slot->second != side) {
            build_.errors.Add(line, NameOf(unit) + " stands at " + SourceCell(unit.Place()) +
                                        ", which is no " + SideName(side) + " slot: expected one" +
                                        SlotsNear(unit.Place(), side));
            return;
        }
        const auto [holder, isFree] = holders_.insert({place, id});
        if (isFree) return;
        build_.errors.Add(line, NameOf(unit) + " stands at " + SourceCell(unit.Place()) +
                                    " where the unit of line " +
                                    std::to_string(LineOf(holder->second)) +
                                    " stands: expected an empty slot");
    }

    int LineOf(UnitId id) const {
        const UnitLine* const written = build_.FindLine(id);
        return written != nullptr ? written->line : 0;
    }

    static std::string SideName(Side side) { return side == Side::French ? "French" : "Allied"; }

    // " of its area, x,y x,y or x,y"; nothing for a cell of no area.
    std::string SlotsNear(Cell cell, Side side) const {
        const int ordinal = grid_.AreaOf(cell);
        if (ordinal == 0) return {};
        const AreaRow& row = build_.atlas->Row(ordinal);
        const auto& slots = side == Side::French ? row.frenchSlots : row.alliedSlots;
        return ", in its area " + SourceCell(slots[0]) + ", " + SourceCell(slots[1]) + " or " +
               SourceCell(slots[2]);
    }

    const ScenarioBuild& build_;
    Grid grid_;
    std::map<std::pair<int, int>, Side> slots_;
    std::map<std::pair<int, int>, UnitId> holders_;
};

void CheckFirstArmy(const ScenarioBuild& build) {
    const BattleFile& file = build.file;
    const int first = file.header.firstPlayer;
    if (build.firstLine == 0 || first < 0 || first >= kArmyCount) return;
    if (file.armies[static_cast<std::size_t>(first)].present != 0) return;
    build.errors.Add(build.firstLine, "first: the army " + std::string(WordOf(kArmyWords, first)) +
                                          " is not in [armies]: expected one that is");
}

}  // namespace

bool StandsAtStart(const BattleFile& file, const Unit& unit) {
    return unit.strength > 0 && unit.arrivalTurn < file.header.savedTurn;
}

void CheckScenario(const ScenarioBuild& build) {
    CheckFirstArmy(build);
    UnitChecks checks(build);
    for (int army = 0; army < kArmyCount; ++army) {
        for (int index = 1; index < kUnitsPerArmy; ++index) {
            const UnitId id{army, index};
            checks.Check(
                id,
                build.file.units[static_cast<std::size_t>(army)][static_cast<std::size_t>(index)]);
        }
    }
}

}  // namespace varnstride
