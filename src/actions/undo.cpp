#include "actions/undo.h"

#include "actions/courier.h"
#include "actions/entry.h"
#include "model/areas.h"
#include "model/reach.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

constexpr int kFormationChange = 0;
constexpr int kMove = 1;

void Note(Game& game, int kind) {
    const Unit& unit = game.InHand();
    game.undo = {.undoAvailable = 1,
                 .undoKind = kind,
                 .undoUnit = game.state.currentUnit,
                 .undoCell = unit.Place(),
                 .undoActionPoints = unit.actionPoints,
                 .undoFormation = unit.formation,
                 .undoWasDisrupted = unit.disrupted};
}

void GiveBackOrder(Game& game) {
    game.InHand().actionPoints = game.undo.undoActionPoints;
    game.InHand().formation = game.undo.undoFormation;
}

void SelectUnitInHand(Game& game) {
    game.state.selectedCell = game.InHand().Place();
    game.state.targetCell = game.state.selectedCell;
}

void UndoFormationChange(Game& game, UndoBy by) {
    GiveBackOrder(game);
    ++game.ArmyInPlay().commandPoints;
    if (by == UndoBy::Key) return;
    SelectUnitInHand(game);
    ShadeReach(game);
}

void UndoMove(Game& game) {
    GameState& state = game.state;
    Unit& unit = game.InHand();
    const Cell left = unit.Place();
    ++game.ArmyInPlay().commandPoints;
    VacateSlot(game, game.InHandId());
    unit.canMove = 0;
    state.targetCell = game.undo.undoCell;
    state.selectedSlot = 1;
    MoveIntoTargetArea(game);
    if (state.moveResult > 0) {
        ++game.ArmyInPlay().commandPoints;
        GiveBackOrder(game);
        CloseUpAreaLeft(game, left);
    } else {
        ReclaimSlot(game, game.InHandId());
    }
    if (game.undo.undoWasDisrupted == 0) unit.disrupted = 0;
    state.selectedCell = unit.Place();
    ShadeReach(game);
}

bool HasForcedSquare(const Game& game) {
    return game.state.undoTargetFormation == static_cast<int>(Formation::Square) &&
           IsMounted(game.InHand().type);
}

}  // namespace

void NoteMove(Game& game) {
    Note(game, kMove);
}
void NoteFormationChange(Game& game) {
    Note(game, kFormationChange);
}

void UndoLastOrder(Game& game, UndoBy by) {
    const bool noted =
        game.undo.undoAvailable != 0 && IsOnMap(game, {game.state.currentArmy, game.undo.undoUnit});
    if (game.header.hardDifficulty == 1 || game.state.turnLocked == 1) {
        ShowCourier(game, 46);
    } else if (!noted) {
        ShowCourier(game, 47);
    } else {
        game.state.currentUnit = game.undo.undoUnit;
        if (game.undo.undoKind == kFormationChange) {
            UndoFormationChange(game, by);
        } else if (by == UndoBy::Command && HasForcedSquare(game)) {
            ShowCourier(game, 282);
        } else {
            UndoMove(game);
        }
    }
    game.undo.undoAvailable = 0;
}

}  // namespace varnstride
