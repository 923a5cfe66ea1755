#include "forge_art/troops.h"

#include "forge_art/foot.h"
#include "forge_art/guns.h"
#include "forge_art/horse.h"

namespace varnstride::art {
namespace {

std::vector<Posted> Post(const Studio& studio, const Troop& troop, int strength) {
    switch (troop.arrangement) {
        case Arrangement::Line: return PostLine(studio, troop, strength);
        case Arrangement::Column: return PostColumn(studio, troop, strength);
        case Arrangement::Skirmish: return PostSkirmishers(studio, troop, strength);
        case Arrangement::Horse: return PostHorse(studio, troop, strength);
        case Arrangement::Leader: return PostLeader(studio, troop, troop.uniform);
        // The sheet goes on from foot guns to horse guns.
        case Arrangement::Guns:
            return PostGuns(studio, troop, (strength - 1) % 2 + 1, strength > 2);
    }
    return {};
}

}  // namespace

std::vector<Tile> PaintTroop(const Studio& studio, const Troop& troop, const MusterLook& look,
                             int count) {
    std::vector<Tile> tiles;
    for (int strength = 1; strength <= count; ++strength)
        tiles.push_back(Mustered(Post(studio, troop, strength), studio, look));
    return tiles;
}

}  // namespace varnstride::art
