#include "flow/map_filters.h"

#include <array>

#include "model/units_on_map.h"

namespace varnstride {
namespace {

struct Filter {
    int GameState::*isOn;
    bool (*passes)(const Unit&);
    bool takesAllies;  // in an Allied turn: the other Allied armies too
};

// Quality counts down from the best.
constexpr std::array<Filter, 7> kFilters = {{
    {&GameState::highlightFixed, [](const Unit& unit) { return unit.outOfCommand == 1; }, true},
    {&GameState::highlightDisrupted, [](const Unit& unit) { return unit.disrupted == 1; }, true},
    {&GameState::highlightRouted,
     [](const Unit& unit) { return unit.status == UnitStatus::Routed; }, false},
    {&GameState::highlightElite,
     [](const Unit& unit) { return unit.quality < Quality::Experienced; }, false},
    {&GameState::highlightLeaders,
     [](const Unit& unit) {
         return unit.type == UnitType::Leader && unit.quality == Quality::Elite;
     },
     false},
    {&GameState::highlightLowAmmo, [](const Unit& unit) { return unit.ammunition == 0; }, false},
    {&GameState::highlightOutOfCommand, [](const Unit& unit) { return unit.inCommand == 0; },
     false},
}};

void MarkUnits(Game& game, int army, bool (*passes)(const Unit&)) {
    for (int index : UnitIndices(game)) {
        const UnitId id{army, index};
        if (!IsOnMap(game, id) || !passes(game.At(id))) continue;
        if (game.grid.Holds(game.At(id).Place())) game.grid.At(game.At(id).Place()).highlight = 1;
    }
}

bool IsLookedAt(const Game& game, const Filter& filter, int army) {
    if (army == game.state.currentArmy) return true;
    return filter.takesAllies && game.OwnSide() == Side::Allied && SideOf(army) == Side::Allied &&
           game.Army(army).present != 0;
}

}  // namespace

void ClearHighlight(Game& game) {
    for (PlayCell& cell : game.grid.PlayCells())
        cell.highlight = 0;
}

void SwitchFiltersOff(Game& game) {
    for (const Filter& filter : kFilters)
        game.state.*filter.isOn = 0;
}

void ApplyMapFilter(Game& game) {
    ClearHighlight(game);
    for (const Filter& filter : kFilters) {
        if (game.state.*filter.isOn == 0) continue;
        for (int army = 0; army < kArmyCount; ++army) {
            if (IsLookedAt(game, filter, army)) MarkUnits(game, army, filter.passes);
        }
    }
}

}  // namespace varnstride
