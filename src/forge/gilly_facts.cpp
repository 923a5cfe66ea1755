#include "forge/gilly_facts.h"

namespace varnstride {
namespace {

constexpr auto kNo = std::nullopt;

// clang-format off
// Ordinal, area number, bounds in x (above, below) and y, French slots, Allied slots.
constexpr KnownRow kRows[] = {
    { 1, {21, kNo,  11, kNo, kNo, {{  {2,2},   {2,6},   {5,2}}}, {{  {6,5},  {10,4},   {8,1}}}}},
    { 2, {22, kNo, kNo, kNo,  12, {{ {13,2},  {13,8},  {12,5}}}, {{ {15,5},  {16,2}, {15,10}}}}},
    { 3, {23, kNo, kNo, kNo,  12, {{ {18,1},  {18,5},  {20,7}}}, {{ {21,1},  {23,4},  {24,8}}}}},
    { 4, {24, kNo, kNo, kNo,  13, {{{26,11},  {28,7},  {27,2}}}, {{ {31,2},  {31,6},  {35,2}}}}},
    { 5, {25, kNo, kNo, kNo,  17, {{{30,12}, {32,14},  {32,9}}}, {{ {34,7},  {37,8}, {36,11}}}}},
    { 6, {26, kNo, kNo, kNo,  19, {{{19,15}, {18,11}, {27,17}}}, {{{28,14}, {25,14}, {21,13}}}}},
    { 7, {27, kNo, kNo, kNo,  18, {{ {4,16},  {7,16}, {11,16}}}, {{{15,14}, {10,12},   {6,9}}}}},
    { 8, {28, kNo, kNo, kNo,  26, {{ {3,24},  {7,24}, {11,24}}}, {{{13,20},  {9,20},  {5,20}}}}},
    { 9, {29, kNo,  14, kNo, kNo, {{ {2,31},  {5,31},  {9,31}}}, {{{11,28},  {7,28},  {3,28}}}}},
    {10, {21,  12,  26, kNo,  30, {{{15,28}, {16,25}, {18,22}}}, {{{18,19}, {21,18}, {24,19}}}}},
    {11, {22, kNo, kNo,  18,  31, {{{19,29}, {23,29}, {21,26}}}, {{{23,22}, {26,24}, {28,20}}}}},
    {12, {23,  26, kNo, kNo, kNo, {{{29,31}, {29,27}, {32,27}}}, {{{32,23}, {36,23}, {36,17}}}}},
    {13, {25, kNo, kNo,  25,  42, {{{30,37}, {33,39}, {37,40}}}, {{{37,34}, {34,31}, {37,28}}}}},
    {14, {26, kNo, kNo,  32,  42, {{ {2,34},  {3,37},  {2,40}}}, {{ {8,39},  {7,36},  {5,34}}}}},
    {15, {27, kNo, kNo,  28,  46, {{{13,44}, {12,40}, {10,34}}}, {{{13,31}, {16,43}, {15,38}}}}},
    {16, {28, kNo, kNo,  29,  42, {{{18,39}, {17,36}, {17,33}}}, {{{26,33}, {27,37}, {23,36}}}}},
    {17, {29, kNo, kNo,  38,  50, {{{22,47}, {20,42}, {24,44}}}, {{{27,47}, {27,43}, {31,42}}}}},
    {18, {21, kNo, kNo,  41, kNo, {{{34,57}, {33,54}, {32,50}}}, {{{35,48}, {34,44}, {36,53}}}}},
    {19, {22, kNo, kNo,  41,  51, {{ {2,49},  {2,45},  {6,44}}}, {{ {9,43}, {10,47},  {7,48}}}}},
    {20, {23, kNo, kNo,  50, kNo, {{ {2,57},  {2,53},  {5,56}}}, {{ {6,53},  {8,56}, {10,58}}}}},
    {21, {24, kNo, kNo,  45, kNo, {{{13,57}, {11,53}, {13,49}}}, {{{16,53}, {19,53}, {17,57}}}}},
    {22, {25, kNo, kNo,  44, kNo, {{{19,48}, {22,51}, {23,57}}}, {{{24,51}, {28,52}, {30,56}}}}},
};
// clang-format on

constexpr AreaLink FirstStepLink(int from, int to, FirstStep step) {
    return {from, to, step, SecondStep::None, 0, false};
}
constexpr AreaLink Open(int from, int to) {
    return FirstStepLink(from, to, FirstStep::Open);
}
constexpr AreaLink Foot(int from, int to) {
    return FirstStepLink(from, to, FirstStep::FootOnly);
}
constexpr AreaLink FootOrRoad(int from, int to) {
    return FirstStepLink(from, to, FirstStep::FootOrRoad);
}
constexpr AreaLink Second(int from, int to, int via = 0) {
    return {from, to, FirstStep::None, SecondStep::Open, via, false};
}
constexpr AreaLink SecondRoad(int from, int to) {
    return {from, to, FirstStep::None, SecondStep::RoadOnly, 0, false};
}
constexpr AreaLink Pass(int from, int to, int via) {
    return {from, to, FirstStep::None, SecondStep::None, via, false};
}

// clang-format off
// From, to and, where the link has one, the area that it passes.
constexpr AreaLink kLinks[] = {
    Foot(1, 2), Foot(1, 7), Pass(1, 6, 2),
    Foot(2, 1), Foot(2, 3), Foot(2, 6), Foot(2, 7), Pass(2, 5, 6), Pass(2, 10, 6),
    Foot(3, 2), Foot(3, 4), Foot(3, 6),
    Foot(4, 3), Foot(4, 5), Foot(4, 6),
    Open(5, 6), Foot(5, 4), Foot(5, 12), Second(5, 10, 6), Pass(5, 2, 6),
    Open(6, 5), Open(6, 10), FootOrRoad(6, 2), FootOrRoad(6, 3), FootOrRoad(6, 4),
    FootOrRoad(6, 7), FootOrRoad(6, 11), FootOrRoad(6, 12), Second(6, 15, 10), Pass(6, 1, 2),
    Foot(7, 1), Foot(7, 2), Foot(7, 6), Foot(7, 8),
    Foot(8, 1), Foot(8, 7), Foot(8, 9),
    Foot(9, 8), Foot(9, 10), Foot(9, 14), Foot(9, 15),
    Open(10, 6), Open(10, 11), Open(10, 15), Foot(10, 8), Foot(10, 9), Second(10, 5, 6),
    Second(10, 14, 15), Second(10, 19, 15), Pass(10, 2, 6), Pass(10, 21, 15), Pass(10, 22, 15),
    Foot(11, 10), Foot(11, 12), FootOrRoad(11, 6), FootOrRoad(11, 16), Second(11, 17),
    SecondRoad(11, 2), SecondRoad(11, 5), SecondRoad(11, 13), SecondRoad(11, 15),
    Foot(12, 5), Foot(12, 11), Foot(12, 13), Foot(12, 16),
    Open(13, 16), Open(13, 17), Open(13, 18), Foot(13, 12), Pass(13, 15, 16), Pass(13, 22, 18),
    Open(14, 15), Open(14, 19), Foot(14, 9), Second(14, 10, 15), Second(14, 20, 19), Second(14,
    21, 19), Pass(14, 22, 15),
    Open(15, 10), Open(15, 14), Open(15, 16), Open(15, 19), Open(15, 21), Open(15, 22),
    Foot(15, 9), Second(15, 6), Second(15, 20, 19), Pass(15, 13, 17), Pass(15, 17, 17),
    Open(16, 13), Open(16, 15), Open(16, 17), FootOrRoad(16, 11), FootOrRoad(16, 12),
    Second(16, 18, 15), Pass(16, 10, 17), Pass(16, 14, 15), Pass(16, 19, 15), Pass(16, 21, 15),
    Pass(16, 22, 17),
    Open(17, 13), Open(17, 16), Open(17, 18), Open(17, 22), Pass(17, 15, 16),
    Open(18, 13), Open(18, 17), Open(18, 22), Second(18, 16, 17),
    Open(19, 14), Open(19, 15), Open(19, 20), Open(19, 21), Second(19, 10, 15), Pass(19, 22,
    21),
    Open(20, 19), Open(20, 21), Second(20, 14, 19), Second(20, 15, 21), Pass(20, 22, 21),
    Open(21, 15), Open(21, 19), Open(21, 20), Open(21, 22), Second(21, 10, 15), Second(21, 14,
    19), Pass(21, 16, 15),
    Open(22, 15), Open(22, 17), Open(22, 18), Open(22, 21), Second(22, 10, 15), Second(22, 14,
    15), Second(22, 19, 21), Second(22, 20, 21), Pass(22, 13, 18), Pass(22, 16, 15),
};
// clang-format on

}  // namespace

std::span<const KnownRow> GillyRows() {
    return kRows;
}

std::span<const AreaLink> GillyLinks() {
    return kLinks;
}

}  // namespace varnstride
