#include "forge_art/foot.h"

#include <array>
#include <cmath>
#include <string>

#include "forge_art/chance.h"

namespace varnstride::art {
namespace {

constexpr int kFooting = 5;
constexpr int kPitch = 6;  // from man to man in a rank

Posted Man(const Studio& studio, const Troop& troop, std::string_view body, QPoint place) {
    return {FootFigure(studio, troop, body), place, kFooting};
}

// Room between ranks: less where there are many.
int RankStep(int ranks) {
    if (ranks <= 4) return 10;
    return ranks <= 6 ? 9 : 8;
}

// The first rank's ground, so that the whole lies round the cell's middle.
int BackOf(int ranks, int step) {
    return 7 - (ranks - 1) * step / 2;
}

void AddColor(std::vector<Posted>& men, const Studio& studio, const Troop& troop, QPoint place) {
    if (!troop.hasColor) return;
    men.push_back(Man(studio, troop, "ensign", place));
    men.push_back({CarriedColor(studio, troop.nation), place + QPoint(4, 0), 0});
}

}  // namespace

Tile FootFigure(const Studio& studio, const Troop& troop, std::string_view body) {
    return Dressed({&studio.figures["foot." + std::string(body)],
                    &studio.figures["head." + std::string(troop.head)]},
                   studio.uniforms[troop.uniform]);
}

std::vector<Posted> PostLine(const Studio& studio, const Troop& troop, int strength) {
    constexpr int kFiles = 7;
    const int ranks = strength + 1;
    const int step = RankStep(ranks);
    const int back = BackOf(ranks, step);
    std::vector<Posted> men;
    for (int rank = 0; rank < ranks; ++rank) {
        for (int file = 0; file < kFiles; ++file) {
            const QPoint place((file - kFiles / 2) * kPitch + rank % 2 * 2 - 1, back + rank * step);
            const bool carries = troop.hasColor && rank == 0 && file == kFiles / 2;
            if (carries) {
                AddColor(men, studio, troop, place);
            } else {
                men.push_back(Man(studio, troop, "stand", place));
            }
        }
    }
    men.push_back(
        Man(studio, troop, "officer", {kFiles / 2 * kPitch + 8, back + (ranks - 1) * step}));
    return men;
}

std::vector<Posted> PostColumn(const Studio& studio, const Troop& troop, int strength) {
    constexpr int kFiles = 4;
    const int ranks = 2 * strength;
    const int step = ranks <= 4 ? 9 : (ranks <= 8 ? 8 : 6);
    std::vector<Posted> men;
    for (int rank = 0; rank < ranks; ++rank) {
        const int y = BackOf(ranks, step) + rank * step;
        for (int file = 0; file < kFiles; ++file) {
            const QPoint place(file * kPitch - 9 + rank % 2, y);
            men.push_back(Man(studio, troop, rank % 2 == 0 ? "march" : "stand", place));
        }
    }
    const int middle = BackOf(ranks, step) + step / 2;
    AddColor(men, studio, troop, {-15, middle});
    men.push_back(Man(studio, troop, "officer", {17, BackOf(ranks, step) + (ranks - 1) * step}));
    return men;
}

std::vector<Posted> PostSkirmishers(const Studio& studio, const Troop& troop, int strength) {
    constexpr std::array<std::string_view, 4> bodies = {"aim", "kneel", "load", "aim"};
    const int count = 2 + 2 * strength;
    Chance chance(1001);
    std::vector<Posted> men;
    for (int i = 0; i < count; ++i) {
        // Turns of the golden angle spread points evenly, however many there are.
        const double angle = i * 2.39996;
        const double reach = std::sqrt((i + 0.5) / count);
        const double width = 18 + 2.4 * count;
        const QPoint place(
            static_cast<int>(std::lround(std::cos(angle) * reach * width * 0.75)),
            static_cast<int>(std::lround(std::sin(angle) * reach * width * 0.48)) + 6);
        const auto pose = static_cast<std::size_t>((i + chance.Below(2)) % 4);
        men.push_back(Man(studio, troop, bodies[pose], place));
    }
    return men;
}

}  // namespace varnstride::art
