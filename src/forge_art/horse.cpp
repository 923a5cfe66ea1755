#include "forge_art/horse.h"

#include <string>

#include "forge/source_text.h"
#include "forge_art/chance.h"
#include "forge_art/color.h"

namespace varnstride::art {
namespace {

constexpr int kRidersPerRank = 3;
constexpr int kPitch = 15;

Uniform WithHorse(const Studio& studio, std::string_view uniform, std::string_view horse) {
    Uniform colors = studio.uniforms[uniform];
    const QRgb coat = studio.palette["horse." + std::string(horse)];
    const bool isPale = Lightness(coat) > 150;
    colors['x'] = coat;
    colors['n'] = isPale ? Scaled(coat, 0.82) : Scaled(coat, 0.5);
    if (!colors.contains('q')) colors['q'] = colors['c'];
    return colors;
}

int RankStep(int ranks) {
    if (ranks <= 4) return 10;
    return ranks <= 6 ? 9 : 7;
}

}  // namespace

Tile RiderFigure(const Studio& studio, const Troop& troop, std::string_view gait,
                 std::string_view horse) {
    return Dressed({&studio.figures["horse." + std::string(gait)],
                    &studio.figures["rider." + std::string(troop.body)],
                    &studio.figures["head." + std::string(troop.head)]},
                   WithHorse(studio, troop.uniform, horse));
}

std::vector<Posted> PostHorse(const Studio& studio, const Troop& troop, int strength) {
    const auto colors = SplitAt(troop.horses, ',');
    const int step = RankStep(strength);
    Chance chance(1101);
    std::vector<Posted> riders;
    for (int rank = 0; rank < strength; ++rank) {
        const int y = 9 - (strength - 1) * step / 2 + rank * step;
        for (int file = 0; file < kRidersPerRank; ++file) {
            const QPoint place((file - 1) * kPitch + rank % 2 * 5 - 3, y);
            const auto color =
                static_cast<std::size_t>(chance.Below(static_cast<int>(colors.size())));
            riders.push_back(
                {RiderFigure(studio, troop, chance.OneIn(2) ? "walk" : "trot", colors[color]),
                 place, kHorseFooting});
        }
    }
    return riders;
}

std::vector<Posted> PostLeader(const Studio& studio, const Troop& general,
                               std::string_view aideUniform) {
    Troop aide = general;
    aide.uniform = aideUniform;
    aide.head = "shako";
    std::vector<Posted> group;
    group.push_back({RiderFigure(studio, aide, "walk", "bay"), {-13, 3}, kHorseFooting});
    group.push_back({CarriedColor(studio, general.nation), {-9, 2}, 0});
    group.push_back({RiderFigure(studio, aide, "walk", "brown"), {12, 2}, kHorseFooting});
    group.push_back({RiderFigure(studio, general, "trot", general.horses), {0, 10}, kHorseFooting});
    return group;
}

}  // namespace varnstride::art
