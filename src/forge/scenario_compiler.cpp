#include "forge/scenario_compiler.h"

#include <algorithm>

#include "forge/scenario_battle.h"
#include "forge/scenario_checks.h"
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

}  // namespace

CompiledScenario AssembleScenario(std::string_view text, const AtlasCatalogue& atlases,
                                  SourceErrors& errors) {
    ScenarioBuild build = Assemble(text, atlases, errors);
    return {std::move(build.file), build.rules};
}

std::optional<CompiledScenario> CompileScenario(std::string_view text,
                                                const AtlasCatalogue& atlases,
                                                SourceErrors& errors) {
    ScenarioBuild build = Assemble(text, atlases, errors);
    CheckScenario(build);
    if (!errors.IsEmpty()) return std::nullopt;
    return CompiledScenario{std::move(build.file), build.rules};
}

}  // namespace varnstride
