#include "battle/attack.h"

namespace varnstride {

void ComputeTerrainDefence(Game&) {
}

void ResolveAttack(Game&) {
}

}  // namespace varnstride
