#include "actions/map8_crossing.h"

#include <algorithm>
#include <array>

namespace varnstride {
namespace {

constexpr int kWavre = 8;

using Bank = std::array<Cell, kSlotsPerSide>;

struct Crossing {
    Side side;
    Bank one;
    Bank other;
};

constexpr std::array<Crossing, 4> kCrossings = {{
    {Side::French, {{{32, 57}, {34, 55}, {37, 54}}}, {{{32, 46}, {29, 49}, {27, 51}}}},
    {Side::French, {{{12, 68}, {15, 68}, {9, 68}}}, {{{5, 64}, {4, 68}, {2, 66}}}},
    {Side::Allied, {{{35, 50}, {33, 52}, {31, 54}}}, {{{26, 48}, {27, 45}, {30, 44}}}},
    {Side::Allied, {{{14, 66}, {11, 66}, {8, 66}}}, {{{7, 63}, {5, 61}, {3, 63}}}},
}};

bool IsOn(const Bank& bank, Cell cell) {
    return std::find(bank.begin(), bank.end(), cell) != bank.end();
}

bool Crosses(const Crossing& crossing, Cell from, Cell to) {
    return (IsOn(crossing.one, from) && IsOn(crossing.other, to)) ||
           (IsOn(crossing.other, from) && IsOn(crossing.one, to));
}

}  // namespace

void CheckMap8Crossing(Game& game) {
    if (game.header.mapNumber != kWavre) return;
    Unit& unit = game.InHand();
    const Cell from{unit.previousX, unit.previousY};
    const bool crosses =
        std::any_of(kCrossings.begin(), kCrossings.end(), [&](const Crossing& crossing) {
            return crossing.side == game.OwnSide() && Crosses(crossing, from, unit.Place());
        });
    if (!crosses) return;
    unit.disrupted = 1;
    unit.formation = Formation::NoFormation;
}

}  // namespace varnstride
