// A player's turn on a field of four areas in a row, for the tests of clicks and commands: areas 1
// and 2 open to each other, 3 by road or on foot from 1, 4 out of reach.
#pragma once

#include "support/field.h"
#include "support/recording_person.h"

namespace varnstride {

using Words = std::vector<std::string>;

inline FieldPlan OrdersPlan() {
    FieldPlan plan;
    plan.columns = 4;
    plan.links = {{.from = 1, .to = 2, .firstStep = FirstStep::Open},
                  {.from = 2, .to = 1, .firstStep = FirstStep::Open},
                  {.from = 1, .to = 3, .firstStep = FirstStep::FootOrRoad}};
    return plan;
}

// The French turn, 5 Command Points, no fog.
struct OrdersField : Field {
    explicit OrdersField(const FieldPlan& plan = OrdersPlan()) : Field(plan) {
        game.person = &person;
        game.state.mapReady = 1;
        game.state.turnPhase = TurnPhase::Orders;
        game.header.fogNone = 1;
        game.header.lastTurn = 9;
        game.Army(kFrench).present = 1;
        game.Army(kFrench).commandPoints = 5;
    }

    RecordingPerson person;

    // An empty cell of the area.
    Cell Ground(int ordinal) const { return {(ordinal - 1) * kFieldAreaWidth + 2, 3}; }
    bool IsLit(int ordinal) const { return game.grid.IsLit(Ground(ordinal)); }
    int& CommandPoints() { return game.ArmyInPlay().commandPoints; }
};

}  // namespace varnstride
