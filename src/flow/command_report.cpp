#include "flow/command_report.h"

#include <string>

#include "model/score.h"
#include "model/units_on_map.h"
#include "resources/army_names.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

int CountOfStatus(const Game& game, UnitStatus status) {
    int count = 0;
    for (int index : UnitIndices(game)) {
        const UnitId id{game.state.currentArmy, index};
        if (IsOnMap(game, id) && game.At(id).status == status) ++count;
    }
    return count;
}

int CountArrived(const Game& game) {
    int count = 0;
    for (int index : UnitIndices(game)) {
        const Unit& unit = game.At({game.state.currentArmy, index});
        if (unit.strength > 0 && unit.arrivalTurn == game.state.gameTurn) ++count;
    }
    return count;
}

int ReleaseDueUnits(Game& game) {
    int count = 0;
    for (int index : UnitIndices(game)) {
        Unit& unit = game.At({game.state.currentArmy, index});
        if (unit.strength <= 0 || unit.fixedUntilTurn != game.state.gameTurn) continue;
        unit.outOfCommand = 0;
        ++count;
    }
    return count;
}

}  // namespace

void ShowCommandReport(Game& game) {
    game.person->Redraw(View::NoUnitPanels);
    RecomputeMorale(game, ArmiesCounted::Present);
    const bool french = game.OwnSide() == Side::French;
    Dialog report{.templateId = kCommandReport};
    report.AddLabel(1225, std::string(ArmyName(game.state.currentArmy)));
    report.AddLabel(1146, std::to_string(CountOfStatus(game, UnitStatus::Routed)));
    report.AddLabel(1111, std::to_string(CountOfStatus(game, UnitStatus::Shaken)));
    report.AddLabel(1147, std::to_string(CountOfStatus(game, UnitStatus::Unsteady)));
    report.AddLabel(1110, std::to_string(CountArrived(game)));
    report.AddLabel(1174, std::to_string(ReleaseDueUnits(game)));
    report.AddLabel(1425,
                    std::to_string(french ? game.state.frenchMorale : game.state.alliedMorale));
    report.AddButton(kOk, "OK");
    game.person->Ask(report);
}

}  // namespace varnstride
