#include "forge/battlefield_facts.h"

#include <algorithm>

#include "forge/atlas_source.h"
#include "forge/gilly_facts.h"
#include "forge/named_units.h"

namespace varnstride {
namespace {

constexpr auto kNo = std::nullopt;

constexpr int kFrenchAndBritish[] = {kFrench, kBritish};
constexpr int kFrenchAndPrussian[] = {kFrench, kPrussian};
constexpr int kAllThree[] = {kFrench, kBritish, kPrussian};

constexpr AreaLink Open(int from, int to) {
    return {from, to, FirstStep::Open, SecondStep::None, 0, false};
}
constexpr AreaLink Foot(int from, int to) {
    return {from, to, FirstStep::FootOnly, SecondStep::None, 0, false};
}
constexpr AreaLink Second(int from, int to, int via) {
    return {from, to, FirstStep::None, SecondStep::Open, via, false};
}

constexpr auto kMilitiaPlace = SlotMeaning::MilitiaPlace;
constexpr auto kStream = SlotMeaning::Stream;
constexpr auto kRiver = SlotMeaning::River;

// In all tables a box is: area number, x above, x below, y above, y below.
// clang-format off

// Quatre Bras.
constexpr KnownRow kQuatreBrasRows[] = {
    {1, {21, 0, 11, -1, 10, {{{2, 7}, {5, 7}, {7, 4}}}, {{{3, 4}, {5, 2}, {8, 2}}}}},
    {2, {22, 8, 18, -1, 9, {{{16, 6}, {11, 5}, {14, 4}}}, {{{15, 2}, {12, 2}, {16, 4}}}}},
};
constexpr AreaLink kQuatreBrasLinks[] = {
    Open(1, 2), Open(1, 6), Open(1, 9),
    Second(1, 3, 2), Second(1, 7, 9), Second(1, 11, 9), Second(1, 19, 6),
    Foot(4, 8),
};
constexpr KnownSlots kQuatreBrasSlots[] = {
    {kStream, {{{27, 26}, {33, 26}, {30, 26}}}, {{{30, 23}, {33, 23}, {34, 20}}}},
    {kStream, {{{31, 35}, {34, 33}, {29, 34}}}, {{{27, 32}, {29, 30}, {32, 30}}}},
    {kMilitiaPlace, {{{11, 68}, {14, 68}, {18, 68}}}, {{{18, 65}, {15, 65}, {12, 65}}}},
};
constexpr ExitPlace kQuatreBrasExits[] = {
    {kFrench, {23, 17, 28, -1, 9}, "To Brussels"},
    {kFrench, {24, 23, 37, -1, 9}, "East of Brussels Road"},
    {kFrench, {25, 33, 41, -1, 15}, "East of Brussels Road"},
    {kBritish, {27, 20, 36, 57, 70}, "To Cherleroi"},
};
constexpr ObjectivePlace kQuatreBrasObjectives[] = {
    {{21, 21}, "Quatre Bras"},
    {{37, 26}, "Thyle"},
};

// Hougoumont.
constexpr KnownRow kHougoumontRows[] = {
    {1, {26, kNo, kNo, kNo, 5, {{{2, 3}, {6, 3}, {10, 3}}}, {{{9, 1}, {6, 1}, {3, 1}}}}},
};
constexpr KnownSlots kHougoumontSlots[] = {
    {kMilitiaPlace, {{{10, 38}, {6, 38}, {2, 39}}}, {{{11, 35}, {15, 34}, {14, 37}}}},
};
constexpr ExitPlace kHougoumontExits[] = {
    {kFrench, {22, kNo, kNo, kNo, 10}, "Road North of Hougoumont"},
    {kBritish, {24, kNo, kNo, 32, kNo}, "Road South of Mont Plaisir"},
    {kBritish, {21, 26, kNo, 32, kNo}, "south-east corner"},
};
constexpr ObjectivePlace kHougoumontObjectives[] = {
    {{24, 18}, "Hougoumont"},
};
constexpr NumberedBox kHougoumontBlocked[] = {
    {28, 20, kNo, kNo, kNo},
};

// Ligny.
constexpr KnownRow kLignyRows[] = {
    {1, {27, 0, 10, -1, 11, {{{3, 2}, {3, 5}, {3, 8}}}, {{{6, 2}, {6, 6}, {8, 9}}}}},
};
constexpr KnownSlots kLignySlots[] = {
    {kStream, {{{14, 30}, {17, 34}, {17, 30}}}, {{{18, 28}, {19, 25}, {20, 28}}}},
    {kStream, {{{21, 22}, {22, 18}, {23, 21}}}, {{{25, 18}, {29, 18}, {27, 19}}}},
    {kStream, {{{67, 17}, {70, 18}, {74, 18}}}, {{{71, 13}, {68, 13}, {73, 15}}}},
    {kStream, {{{67, 24}, {69, 26}, {71, 24}}}, {{{65, 21}, {69, 21}, {72, 21}}}},
    {kStream, {{{53, 45}, {55, 41}, {57, 37}}}, {{{52, 41}, {52, 37}, {55, 36}}}},
    {kStream, {{{36, 57}, {40, 56}, {40, 53}}}, {{{39, 50}, {36, 54}, {36, 49}}}},
    {kStream, {{{95, 16}, {93, 20}, {98, 14}}}, {{{95, 12}, {99, 10}, {103, 9}}}},
    {kMilitiaPlace, {{{27, 88}, {32, 88}, {36, 88}}}, {{{29, 83}, {32, 85}, {36, 86}}}},
    {kMilitiaPlace, {{{117, 21}, {112, 21}, {110, 19}}}, {{{114, 18}, {117, 16}, {117, 12}}}},
};
constexpr ExitPlace kLignyExits[] = {
    {kFrench, {24, 108, 119, 9, 23}, "Road North-East to Gembloux"},
    {kFrench, {21, 56, 74, 0, 11}, "Road North of Sombreffe"},
};
constexpr ObjectivePlace kLignyObjectives[] = {
    {{20, 7}, "Marbais"},      {{22, 34}, "Wagnelle"},    {{31, 38}, "St Amand la Haye"},
    {{32, 48}, "St Amand"},    {{38, 55}, "St Amand"},    {{71, 16}, "Sombreffe"},
    {{68, 23}, "Sombreffe"},   {{55, 38}, "Ligny"},       {{78, 39}, "Tongrenelle"},
    {{94, 35}, "Tongrinne"},   {{83, 49}, "Boignee"},     {{93, 53}, "Balatre"},
};
constexpr MilitiaAtExit kLignyMilitiaAtExits[] = {{{117, 21}, 0}};

// Gilly; its areas and links have tables of their own.
constexpr ExitPlace kGillyExits[] = {
    {kFrench, {25, kNo, kNo, kNo, 17}, "To Fleurus"},
    {kFrench, {25, kNo, kNo, 25, 42}, "East of Bois de TriCheheve"},
};
constexpr ObjectivePlace kGillyObjectives[] = {
    {{34, 49}, "Chatelineau"},
    {{36, 29}, "Pironchamps"},
};

// Mont St Jean.
constexpr KnownRow kMontStJeanRows[] = {
    {41, {27, 89, 99, 31, 46, {{{91, 43}, {94, 41}, {97, 40}}}, {{{94, 33}, {97, 34}, {92, 40}}}}},
};
constexpr KnownSlots kMontStJeanSlots[] = {
    {kStream, {{{82, 32}, {80, 29}, {83, 29}}}, {{{85, 25}, {82, 25}, {79, 25}}}},
    {kStream, {{{66, 75}, {65, 78}, {68, 78}}}, {{{71, 76}, {74, 74}, {73, 78}}}},
    {kMilitiaPlace, {{{37, 77}, {39, 75}, {42, 78}}}, {{{36, 69}, {39, 72}, {41, 70}}}},
};
constexpr ExitPlace kMontStJeanExits[] = {
    {kFrench, {22, 7, 22, 0, 12}, "From Mont St Jean, in the north-west"},
    {kFrench, {24, 25, 36, 0, 12}, "From Mont St Jean, in the north"},
    {kFrench, {23, 45, 57, 0, 8}, "From Mont St Jean, in the north-east"},
    {kFrench, {22, 33, 44, 67, 81}, "From Rossomme"},
};
constexpr ObjectivePlace kMontStJeanObjectives[] = {
    {{7, 15}, "Merbe & Braine"},      {{31, 2}, "Monte St Jean"},
    {{33, 13}, "Monte St Jean Farm"}, {{38, 30}, "La Haie Sainte"},
    {{14, 48}, "Hougoumont Farm"},    {{19, 48}, "Hougoumont Woods"},
    {{39, 52}, "La Belle Alliance"},  {{75, 26}, "Papelotte & La Haie"},
    {{82, 28}, "Smohain"},            {{88, 34}, "Frichermont"},
    {{53, 71}, "Plancenoit village"}, {{59, 68}, "Plancenoit Church"},
    {{49, 79}, "Rossomme"},
};
constexpr NumberedBox kMontStJeanBlocked[] = {
    {21, 9, 18, 43, 52},
    {23, 39, 41, 28, 37},
    {25, 83, 92, 31, 43},
    {29, 71, 80, 24, 35},
};
constexpr NumberedBox kMontStJeanBatteries[] = {
    {26, 39, 50, 36, 47},
    {28, 47, 59, 34, 45},
};
constexpr Cell kPrussianEntrances[] = {{91, 43}, {93, 51}, {90, 59}};
constexpr MilitiaAtExit kMontStJeanMilitiaAtExits[] = {{{37, 77}, 3}};

// Wavre.
constexpr KnownRow kWavreRows[] = {
    {1, {24, 0, 13, -1, 11, {{{6, 8}, {7, 5}, {10, 4}}}, {{{3, 2}, {6, 1}, {2, 7}}}}},
};
constexpr KnownSlots kWavreSlots[] = {
    {kMilitiaPlace, {{{48, 68}, {45, 68}, {42, 68}}}, {{{43, 65}, {40, 66}, {38, 68}}}},
    {kMilitiaPlace, {{{19, 8}, {16, 8}, {16, 5}}}, {{{13, 2}, {16, 2}, {13, 5}}}},
    {kRiver, {{{32, 57}, {34, 55}, {37, 54}}}, {{{35, 50}, {33, 52}, {31, 54}}}},
    {kRiver, {{{32, 46}, {29, 49}, {27, 51}}}, {{{26, 48}, {27, 45}, {30, 44}}}},
    {kRiver, {{{12, 68}, {15, 68}, {9, 68}}}, {{{14, 66}, {11, 66}, {8, 66}}}},
    {kRiver, {{{5, 64}, {4, 68}, {2, 66}}}, {{{7, 63}, {5, 61}, {3, 63}}}},
};
constexpr RiverBanks kWavreRiverBanks[] = {
    {{32, 57}, {32, 46}},
    {{12, 68}, {5, 64}},
};
constexpr ExitPlace kWavreExits[] = {
    {kFrench, {25, 10, 21, 0, 10}, "To Brussels"},
    {kFrench, {22, 0, 9, 10, 24}, "To Waterloo"},
};
constexpr ObjectivePlace kWavreObjectives[] = {
    {{22, 44}, "Bierges"}, {{5, 62}, "Limale"}, {{37, 36}, "Wavre"}, {{40, 30}, "Wavre"},
};
constexpr MilitiaAtExit kWavreMilitiaAtExits[] = {{{19, 8}, 0}};

// clang-format on

// The facts that are tables above and those of Gilly and of the units, joined.
std::array<BattlefieldFacts, 6> Battlefields() {
    return {{
        {.mapNumber = 1,
         .name = "Quatre Bras",
         .areaCount = 34,
         .farthestSlot = {40, 68},
         .armies = kFrenchAndBritish,
         .rows = kQuatreBrasRows,
         .links = kQuatreBrasLinks,
         .slots = kQuatreBrasSlots,
         .exits = kQuatreBrasExits,
         .objectives = kQuatreBrasObjectives,
         .namedUnits = QuatreBrasUnits()},
        {.mapNumber = 2,
         .name = "Hougoumont",
         .areaCount = 23,
         .farthestSlot = {37, 39},
         .closedToBombardment = 1,
         .armies = kFrenchAndBritish,
         .rows = kHougoumontRows,
         .slots = kHougoumontSlots,
         .exits = kHougoumontExits,
         .objectives = kHougoumontObjectives,
         .blocked = kHougoumontBlocked,
         .namedUnits = HougoumontUnits()},
        {.mapNumber = 3,
         .name = "Ligny",
         .areaCount = 105,
         .farthestSlot = {117, 88},
         .selfLinks = 2,
         .armies = kFrenchAndPrussian,
         .rows = kLignyRows,
         .slots = kLignySlots,
         .exits = kLignyExits,
         .objectives = kLignyObjectives,
         .militiaAtExits = kLignyMilitiaAtExits,
         .namedUnits = LignyUnits()},
        {.mapNumber = 4,
         .name = "Gilly",
         .areaCount = 22,
         .farthestSlot = {37, 58},
         .allLinksKnown = true,
         .armies = kFrenchAndPrussian,
         .rows = GillyRows(),
         .links = GillyLinks(),
         .exits = kGillyExits,
         .objectives = kGillyObjectives},
        {.mapNumber = 7,
         .name = "Mont St Jean",
         .areaCount = 97,
         .farthestSlot = {97, 79},
         .selfLinks = 1,
         .armies = kAllThree,
         .rows = kMontStJeanRows,
         .slots = kMontStJeanSlots,
         .exits = kMontStJeanExits,
         .objectives = kMontStJeanObjectives,
         .blocked = kMontStJeanBlocked,
         .batteries = kMontStJeanBatteries,
         .prussianEntrances = kPrussianEntrances,
         .militiaAtExits = kMontStJeanMilitiaAtExits,
         .namedUnits = MontStJeanUnits()},
        {.mapNumber = 8,
         .name = "Wavre",
         .areaCount = 57,
         .farthestSlot = {57, 68},
         .closedToBombardment = 2,
         .armies = kFrenchAndPrussian,
         .rows = kWavreRows,
         .slots = kWavreSlots,
         .exits = kWavreExits,
         .objectives = kWavreObjectives,
         .riverBanks = kWavreRiverBanks,
         .militiaAtExits = kWavreMilitiaAtExits,
         .namedUnits = WavreUnits()},
    }};
}

}  // namespace

bool NumberedBox::Holds(Cell cell) const {
    return AreaRow{areaId, xAbove, xBelow, yAbove, yBelow, {}, {}}.Holds(cell);
}

bool NumberedBox::Touches(Cell cell) const {
    const auto wider = [](std::optional<int> bound, int by) {
        return bound ? std::optional(*bound + by) : bound;
    };
    const NumberedBox closed{areaId, wider(xAbove, -1), wider(xBelow, 1), wider(yAbove, -1),
                             wider(yBelow, 1)};
    return closed.Holds(cell) && !Holds(cell);
}

std::span<const BattlefieldFacts> AllBattlefields() {
    static const std::array<BattlefieldFacts, 6> kBattlefields = Battlefields();
    return kBattlefields;
}

const BattlefieldFacts* FactsOf(int mapNumber) {
    for (const BattlefieldFacts& facts : AllBattlefields()) {
        if (facts.mapNumber == mapNumber) return &facts;
    }
    return nullptr;
}

int ExitValueOf(int army) {
    // French, British, Austrian, Prussian, Russian, Spanish
    constexpr int kExitValues[] = {8, 6, 10, 7, 9, 11};
    return kExitValues[army];
}

bool IsExitArea(const AreaRow& row, const ExitPlace& exit) {
    const SideSlots& slots = SlotsOfArmy(row, exit.army);
    return row.areaId == exit.box.areaId &&
           std::all_of(slots.begin(), slots.end(), [&](Cell slot) { return exit.box.Holds(slot); });
}

std::string BoxText(const NumberedBox& box) {
    return "x " + BoundsText(box.xAbove, box.xBelow) + "; y " + BoundsText(box.yAbove, box.yBelow);
}

const SideSlots& SlotsOfArmy(const AreaRow& row, int army) {
    return SideOf(army) == Side::French ? row.frenchSlots : row.alliedSlots;
}

}  // namespace varnstride
