#include "forge/scenario_compiler.h"

#include <algorithm>

#include "files/battle_checks.h"
#include "forge/ground_rules.h"
#include "forge/scenario_battle.h"
#include "forge/scenario_checks.h"
#include "forge/scenario_dressing.h"
#include "forge/scenario_fields.h"
#include "forge/scenario_maps.h"
#include "forge/scenario_places.h"
#include "forge/scenario_prose.h"
#include "forge/scenario_roads.h"
#include "forge/scenario_units.h"

namespace varnstride {
namespace {

void TakeSlots(ScenarioBuild& build) {
    if (!build.HasGrid()) return;
    for (int army = 0; army < kArmyCount; ++army) {
        for (const Unit& unit : build.file.units[static_cast<std::size_t>(army)]) {
            if (!StandsAtStart(build.file, unit) || !build.Holds(unit.Place())) continue;
            MapCell& cell = build.At(unit.Place());
            cell.occupant = army + 1;
            cell.occupantMirror = army + 1;
        }
    }
}

// The border pictures that the map gets when it is opened, but for those that [cells] gives.
void DrawBorders(ScenarioBuild& build) {
    if (!build.HasGrid() || build.atlas == nullptr) return;
    Grid grid(build.file.mapWidth, build.file.mapHeight, build.file.cells, *build.atlas);
    grid.FinishPictures();
    ForEachCell(build.file, [&](Cell place) {
        int& border = build.At(place).borderTile;
        if (border == kBorderToBeDrawn) border = std::max(0, grid.Ground(place).borderTile);
    });
}

ScenarioBuild Assemble(std::string_view source, const AtlasCatalogue& atlases,
                       SourceErrors& errors) {
    const ScenarioText text(source, errors);
    ScenarioBuild build(errors);
    ReadBattle(text, atlases, build);
    ReadDescription(text, build);
    ReadMaps(text, build);
    ReadRoads(text, build);
    DressGround(build);
    ReadLabels(text, build);
    ReadObjectives(text, build);
    ReadArmies(text, build);
    ReadBriefings(text, build);
    ReadUnits(text, build);
    ApplyFields(text, build);
    TakeSlots(build);
    ApplyCells(text, build);
    DrawBorders(build);
    return build;
}

// What no line alone is to blame for: a fault of the file as a whole.
void CheckFile(const ScenarioBuild& build, const AtlasCatalogue& atlases) {
    if (const auto fault = FindFault(build.file, atlases)) build.errors.Add(0, *fault);
}

void CheckBattlefield(const ScenarioBuild& build, std::vector<std::string>& warnings) {
    if (build.rules == ScenarioRules::Strict) {
        CheckGround(*build.atlas, build.file, build.errors, warnings);
        return;
    }
    SourceErrors breaches("loose rules");
    CheckGround(*build.atlas, build.file, breaches, warnings);
    if (!breaches.IsEmpty()) warnings.push_back(breaches.Text());
}

}  // namespace

BattleFile AssembleScenario(std::string_view text, const AtlasCatalogue& atlases) {
    SourceErrors ignored("");
    return Assemble(text, atlases, ignored).file;
}

std::optional<CompiledScenario> CompileScenario(std::string_view text,
                                                const AtlasCatalogue& atlases, SourceErrors& errors,
                                                std::vector<std::string>& warnings) {
    ScenarioBuild build = Assemble(text, atlases, errors);
    CheckScenario(build);
    if (errors.IsEmpty()) CheckFile(build, atlases);
    if (errors.IsEmpty()) CheckBattlefield(build, warnings);
    if (!errors.IsEmpty()) return std::nullopt;
    return CompiledScenario{std::move(build.file), build.rules};
}

}  // namespace varnstride
