#include "actions/losses.h"

namespace varnstride {

void BookLoss(Game& game, int army, int strengthPoints, int valueOfUnit) {
    const bool french = SideOf(army) == Side::French;
    (french ? game.loss.frenchLossSP : game.loss.alliedLossSP) += strengthPoints;
    (french ? game.loss.frenchLossPoints : game.loss.alliedLossPoints) +=
        strengthPoints * valueOfUnit;
}

}  // namespace varnstride
