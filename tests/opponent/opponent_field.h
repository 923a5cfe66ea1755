// A row of three areas with open links between neighbours, on the map where the first Allied slot
// tells whose army it is; 20 Command Points for each army, in Contest. Fog hides the moves.
#pragma once

#include "opponent/own_unit.h"
#include "opponent/posture.h"
#include "support/field.h"

namespace varnstride {

inline FieldPlan OpponentPlan() {
    FieldPlan plan;
    plan.mapNumber = 7;
    for (int area = 1; area < 3; ++area) {
        plan.links.push_back({.from = area, .to = area + 1, .firstStep = FirstStep::Open});
        plan.links.push_back({.from = area + 1, .to = area, .firstStep = FirstStep::Open});
    }
    return plan;
}

struct OpponentField : Field {
    static constexpr int kPoints = 20;

    explicit OpponentField(const FieldPlan& plan = OpponentPlan()) : Field(plan) {
        game.header.visibility = 20;
        game.header.fogNormal = 1;
        for (ArmyRecord& army : game.armies)
            army.commandPoints = kPoints;
        Take(OpponentPosture::Contest);
    }

    void Take(OpponentPosture posture) { game.state.opponentPosture = static_cast<int>(posture); }
};

}  // namespace varnstride
