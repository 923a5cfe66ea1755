#include "opponent/opponent_turn.h"

#include "opponent/announcements.h"
#include "opponent/passes.h"
#include "opponent/posture.h"

namespace varnstride {
namespace {

constexpr int kPassesOver = 9;

void RunPasses(Game& game) {
    TargetMarks marks;
    ReleaseUnits(game);
    DeployFromMarch(game);
    ResupplyUnits(game);
    DetachSupports(game);
    FormUpFirst(game);
    RallyUnits(game);
    MoveLeaders(game);
    BombardFromAfar(game, marks);
    HoldObjectives(game);
    StandDown(game);
    StayInContact(game);
    if (SeeksBattle(game)) {
        ChargeWithCavalry(game, marks);
        AttackTheWeaker(game, marks);
        MakeForVictoryAreas(game);
    }
    if (PostureOf(game) != OpponentPosture::StandFast) AdvanceGenerally(game);
    FormUpLast(game);
}

}  // namespace

void RunOpponentTurn(Game& game) {
    game.state.roadMover = false;
    AnnounceTurn(game);
    TakePosture(game);
    RunPasses(game);
    game.state.currentUnit = game.state.selectedSlot = 0;
    game.state.opponentMark = kPassesOver;
}

}  // namespace varnstride
