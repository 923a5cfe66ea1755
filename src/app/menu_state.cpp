#include "app/menu_state.h"

#include <algorithm>
#include <array>
#include <variant>

namespace varnstride {
namespace {

struct Mark {
    int id;
    std::variant<int Settings::*, int GameState::*> state;
    int checkedAt = 1;
};

constexpr int kNormalView = 1;
constexpr int kZoomOutView = 2;
constexpr int kArmyColours = 32943;
constexpr int kComputer = 32896;

constexpr auto kMarks = std::to_array<Mark>({
    {32868, &Settings::mapView, kNormalView},
    {32941, &Settings::mapView, kZoomOutView},
    {32805, &GameState::highlightFixed},
    {32877, &GameState::highlightDisrupted},
    {32879, &GameState::highlightRouted},
    {32991, &GameState::highlightElite},
    {32834, &GameState::highlightLeaders},
    {32878, &GameState::highlightLowAmmo},
    {32904, &GameState::highlightOutOfCommand},
    {32796, &GameState::unitsOff},
    {32935, &Settings::healthBars},
    {32955, &Settings::showUnitBases},
    {32986, &Settings::quickResults},
    {32969, &Settings::showFormation},
    {32797, &Settings::showObjectives},
    {32798, &Settings::showLocations},
    {32800, &Settings::areaContours},
    {kArmyColours, &Settings::armyColours},
    {32809, &Settings::hideUnitPanels, 0},
    {32861, &Settings::backgroundMusic},
    {32808, &Settings::backgroundSound},
    {32903, &Settings::battleSounds},
    {32956, &Settings::autoSave},
    {32977, &Settings::noReplay},
    {32990, &Settings::noErrorAlert},
    {32996, &GameState::combatBoxTimer},
});

int ValueOf(const Game& game, const Mark& mark) {
    if (const auto* setting = std::get_if<int Settings::*>(&mark.state)) {
        return game.settings.*(*setting);
    }
    return game.state.*std::get<int GameState::*>(mark.state);
}

}  // namespace

bool IsMenuItemChecked(const Game& game, int id) {
    if (id == kComputer) return game.state.computerPlays > 0;
    const auto mark = std::find_if(kMarks.begin(), kMarks.end(),
                                   [id](const Mark& entry) { return entry.id == id; });
    return mark != kMarks.end() && ValueOf(game, *mark) == mark->checkedAt;
}

bool IsMenuItemEnabled(const Game& game, int id) {
    return id != kArmyColours || game.settings.mapView == kZoomOutView;
}

}  // namespace varnstride
