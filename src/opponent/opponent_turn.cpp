#include "opponent/opponent_turn.h"

namespace varnstride {

void RunOpponentTurn(Game&) {
}

}  // namespace varnstride
