#include "actions/unit_in_hand.h"

#include "actions/sides.h"
#include "model/areas.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

bool HasArrivedForPanels(const Game& game, UnitId id) {
    if (!IsOnMap(game, id)) return false;
    return game.At(id).arrivalTurn < game.state.gameTurn || game.state.battlePassRunning != 0 ||
           id.army == game.state.currentArmy;
}

bool CanBeShown(const Game& game, UnitId id, int lowestArmy) {
    return id && id.army >= lowestArmy && game.Army(id.army).present == 1 &&
           HasArrivedForPanels(game, id) &&
           (game.header.fogNone != 0 || SideOf(id.army) == game.OwnSide());
}

bool MovesByRoad(const Unit& unit, int panel) {
    const UnitType lastMounted = panel == 1 ? UnitType::GuardCavalry : UnitType::MortarArtillery;
    const bool marching = unit.formation == Formation::MarchColumn &&
                          IsBetween(unit.type, UnitType::LightCavalry, lastMounted);
    return marching || unit.type == UnitType::Leader || IsFieldGun(unit.type);
}

void MarkFirstPanel(Game& game, Cell cell) {
    for (int y = 0; y < game.grid.Height(); ++y) {
        for (int x = 0; x + 1 < game.grid.Width(); ++x) {
            game.grid.At({x, y}).highlight = 0;
        }
    }
    game.grid.At(cell).highlight = 1;
}

void FillPanel(Game& game, int panel, UnitId id) {
    GameState& state = game.state;
    const bool own = id.army == state.currentArmy;
    if (panel == 1 && own && state.ownSlotsFilled == 1) state.selectedSlot = 1;
    if (state.selectedSlot != panel || !own) return;
    state.currentUnit = id.index;
    state.roadMover = MovesByRoad(game.At(id), panel);
    if (panel == 1) MarkFirstPanel(game, game.At(id).Place());
}

}  // namespace

void ShowUnitPanels(Game& game) {
    GameState& state = game.state;
    state.roadMover = false;
    SelectArea(game);
    game.person->Redraw(View::UnitPanels);
    if (!game.grid.Holds(state.selectedCell) || !IsHeld(game, state.selectedCell)) return;
    if (!IsHumanViewer(game)) return;
    int lowestArmy = 0;
    for (int panel = 1; panel <= kSlotsPerSide; ++panel) {
        const UnitId id = UnitStandingAt(game, state.selectedCell);
        if (!CanBeShown(game, id, lowestArmy)) return;
        FillPanel(game, panel, id);
        if (state.ownSlotsFilled <= panel) return;
        lowestArmy = id.army;
        state.selectedCell = OwnSlot(game, panel);
    }
}

void MarkLeavingContact(Game& game) {
    game.state.leavingContact = IsFoot(game.InHand().type) && EnemyPresent(game);
}

}  // namespace varnstride
