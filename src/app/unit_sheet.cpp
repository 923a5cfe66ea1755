#include "app/unit_sheet.h"

#include <array>
#include <string>
#include <string_view>

#include "model/unit_rules.h"
#include "resources/dialog_ids.h"
#include "resources/historic_notes.h"

namespace varnstride {
namespace {

struct WeaponWord {
    std::string_view word;
    int range;  // areas
};

constexpr std::array<WeaponWord, 10> kWeapons = {{
    {"", 0},
    {"Musket", 0},
    {"Rifle", 0},
    {"Carbine", 0},
    {"Sabre", 0},
    {"3 Pdr artillery", 1},
    {"6 Pdr artillery", 1},
    {"9 or 12 Pdr foot artillery ", 2},
    {"Lance", 0},
    {"Rocket artillery", 1},
}};

std::string_view WordOf(UnitStatus status) {
    switch (status) {
        case UnitStatus::Ordered: return " Ordered";
        case UnitStatus::Unsteady: return " Unsteady";
        case UnitStatus::Shaken: return " Shaken";
        case UnitStatus::Routed: return " Routed";
        case UnitStatus::Destroyed: return "";
    }
    return "";
}

struct ActivityWord {
    UnitActivity activity;
    std::string_view word;
};

// Told of a steady unit alone.
constexpr auto kWorks = std::to_array<ActivityWord>({
    {UnitActivity::Palisade, " Constructing Palisade"},
    {UnitActivity::BuildingBridge, " Building Bridge"},
    {UnitActivity::DestroyingBridge, " Destroying Bridge"},
    {UnitActivity::BurningBuilding, " Burning Building"},
    {UnitActivity::Charging, " Charging"},
    {UnitActivity::Skirmishing, " Skirmishing"},
    {UnitActivity::ForcedMarch, " Forced March"},
});

// Told of any unit that fights.
constexpr auto kMotions = std::to_array<ActivityWord>({
    {UnitActivity::Retreating, " Retreating"},
    {UnitActivity::Evading, " Evading"},
    {UnitActivity::Recoiling, " Recoiling"},
    {UnitActivity::FollowingUp, " Following-Up"},
    {UnitActivity::BayonetCharge, " Bayonet Charge"},
    {UnitActivity::Reforming, " Reforming"},
});

template <std::size_t size>
std::string_view WordOf(const std::array<ActivityWord, size>& words, UnitActivity activity) {
    for (const ActivityWord& entry : words) {
        if (entry.activity == activity) return entry.word;
    }
    return {};
}

std::string_view StatusWord(const Unit& unit) {
    const bool steady = unit.status > UnitStatus::Shaken;
    const bool fights = IsFighting(unit.type);
    std::string_view word;
    if (fights) word = WordOf(kMotions, unit.activity);
    if (steady && word.empty()) word = WordOf(kWorks, unit.activity);
    if (!word.empty()) return word;
    const bool idle = unit.activity == UnitActivity::None;
    return fights && steady && idle && unit.disrupted == 1 ? " Disrupted" : WordOf(unit.status);
}

int PercentOfInitialStrength(const Unit& unit) {
    return unit.initialStrength > 0 ? unit.strength * 100 / unit.initialStrength : 0;
}

}  // namespace

void ShowUnitSheet(Game& game) {
    const Unit& unit = game.InHand();
    const WeaponWord& weapon = kWeapons[static_cast<std::size_t>(unit.weapon)];
    Dialog sheet{.templateId = kUnitSheet};
    sheet.AddLabel(1151, unit.name.data());
    sheet.AddLabel(1090, std::to_string(unit.strength * ValueOfUnit(unit) / 10));
    sheet.AddLabel(1091, std::string(weapon.word));
    sheet.AddLabel(1440, std::to_string(weapon.range));
    sheet.AddLabel(1403, std::to_string(PercentOfInitialStrength(unit)));
    sheet.AddLabel(1402, std::string(StatusWord(unit)));
    sheet.AddLabel(1626, std::to_string(unit.ammunition));
    sheet.AddLabel(1404, std::to_string(unit.leadership));
    sheet.AddLabel(
        1089, std::string(HistoricNoteOf(game.state.currentArmy, static_cast<int>(unit.type))));
    sheet.AddButton(kOk, "OK");
    game.person->Ask(sheet);
}

}  // namespace varnstride
