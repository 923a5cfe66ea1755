#include "app/strength_dialog.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/units_on_map.h"
#include "resources/army_names.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

constexpr std::size_t kTypes = 24;
constexpr std::size_t kDismountedDragoons = 6;
constexpr std::size_t kWagons = 18;

constexpr std::array<std::string_view, kTypes> kLabels = {
    "",
    "  Light Infantry",
    "  Line Infantry",
    "  Guard Infantry",
    "  Dismounted Light Cavalry",
    "  Sapper Unit",
    "  Dismounted Dragoons",
    "  Commander/Bodyguard",
    "  Light Cavalry",
    "  Lancers",
    "  Heavy Cavalry",
    "  Dragoons",
    "  Guard Cavalry",
    "  Elephants",
    "  Chariots",
    "",
    "  Horse Artillery",
    "  Foot Artillery",
    "  Baggage Train",
    "  Battering Ram",
    "  Assault Tower",
    "",
    "  Civilians",
    "  Mantlets",
};

// The types that have a line, in the order of the lines.
constexpr std::size_t kFrenchStrength[] = {1,  2, 3,  4,  5,  6,  8,  9,  10, 11,
                                           12, 7, 13, 16, 17, 18, 19, 20, 22, 23};
constexpr std::size_t kBritishStrength[] = {1,  2,  3, 4,  5,  6,  8,  9,  10,
                                            11, 12, 7, 13, 16, 17, 18, 22, 23};
constexpr std::size_t kPrussianStrength[] = {1,  2, 3,  4,  5,  6,  8,  9,  10,
                                             11, 7, 13, 14, 16, 17, 18, 22, 23};
constexpr std::size_t kRussianStrength[] = {1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 7, 13, 16, 17, 22, 23};

constexpr std::size_t kFrenchLosses[] = {1,  2,  3,  4,  5,  6,  7,  8,  9, 10,
                                         11, 12, 16, 17, 18, 19, 20, 22, 23};
constexpr std::size_t kBritishLosses[] = {1,  2,  3,  4,  5,  6,  7,  8,  9,
                                          10, 11, 12, 13, 16, 17, 18, 22, 23};
constexpr std::size_t kAustrianLosses[] = {1,  2,  3,  4,  5,  6,  7,  8,  9, 10,
                                           11, 13, 16, 17, 18, 19, 20, 22, 23};
constexpr std::size_t kPrussianLosses[] = {1,  2,  3,  4,  5,  6,  7,  8,  9,
                                           10, 11, 13, 14, 16, 17, 18, 22, 23};
constexpr std::size_t kRussianLosses[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 13, 16, 17, 22, 23};

using TypeOrder = std::span<const std::size_t>;

constexpr std::array<TypeOrder, 5> kStrengthOrders = {
    kFrenchStrength, kBritishStrength, kFrenchStrength, kPrussianStrength, kRussianStrength};
constexpr std::array<TypeOrder, 5> kLossOrders = {kFrenchLosses, kBritishLosses, kAustrianLosses,
                                                  kPrussianLosses, kRussianLosses};

using Tally = std::array<int, kTypes>;

Tally Count(const Game& game, int army, int (*amount)(const Unit&)) {
    Tally tally{};
    if (game.Army(army).present != 1) return tally;
    for (int index : UnitIndices(game)) {
        const Unit& unit = game.At({army, index});
        const auto type = static_cast<std::size_t>(unit.type);
        if (type < kTypes) tally[type] += amount(unit);
    }
    return tally;
}

int StrengthOf(const Unit& unit) {
    return unit.strength;
}
int LossOf(const Unit& unit) {
    return unit.initialStrength - unit.strength;
}

std::string_view LossLabel(int army, std::size_t type) {
    if (army != kFrench && type == kWagons) return "  Bagage Train";
    if (army == kBritish && type == kDismountedDragoons) return "  Light Heavy Infantry";
    return kLabels[type];
}

std::string_view StrengthLabel(int, std::size_t type) {
    return kLabels[type];
}

// What one of the four lists counts and how it names it.
struct Account {
    std::span<const TypeOrder> orders;
    int (*amount)(const Unit&);
    std::string_view (*label)(int army, std::size_t type);
};

constexpr Account kStrengthAccount = {kStrengthOrders, StrengthOf, StrengthLabel};
constexpr Account kLossAccount = {kLossOrders, LossOf, LossLabel};

void AddArmy(std::vector<std::string>& lines, const Game& game, int army, const Account& account) {
    const Tally tally = Count(game, army, account.amount);
    for (std::size_t type : account.orders[static_cast<std::size_t>(army)]) {
        if (tally[type] <= 0) continue;
        lines.push_back(" " + std::to_string(tally[type]) + std::string(account.label(army, type)));
    }
}

std::vector<std::string> FrenchLines(const Game& game, const Account& account) {
    std::vector<std::string> lines;
    AddArmy(lines, game, kFrench, account);
    return lines;
}

std::vector<std::string> AlliedLines(const Game& game, const Account& account) {
    std::vector<std::string> lines;
    for (int army = kBritish; army <= kRussian; ++army) {
        if (game.Army(army).present == 0) continue;
        lines.push_back(std::string(ArmyName(army)) + " Troops :-");
        AddArmy(lines, game, army, account);
    }
    return lines;
}

bool MayCount(const Game& game, Side side) {
    const bool turnOver = game.state.gameMode == GameMode::Local && game.state.turnLocked == 1;
    return game.OwnSide() == side || turnOver || game.header.gameEnded == 1;
}

}  // namespace

void ShowStrength(Game& game) {
    constexpr int kFrenchList = 1286;
    constexpr int kAlliedList = 1287;
    constexpr int kAlliedLossList = 1334;
    constexpr int kFrenchLossList = 1335;
    using Lines = std::vector<std::string>;
    const bool french = MayCount(game, Side::French);
    const bool allied = MayCount(game, Side::Allied);
    Dialog dialog{.templateId = kStrength, .caption = "Strength Dialog"};
    dialog.AddList(kFrenchList, french ? FrenchLines(game, kStrengthAccount) : Lines{});
    dialog.AddList(kAlliedList, allied ? AlliedLines(game, kStrengthAccount) : Lines{});
    dialog.AddList(kAlliedLossList, AlliedLines(game, kLossAccount));
    dialog.AddList(kFrenchLossList, FrenchLines(game, kLossAccount));
    dialog.AddButton(kOk, "OK");
    game.person->Ask(dialog);
}

}  // namespace varnstride
