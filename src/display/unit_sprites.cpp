#include "display/unit_sprites.h"

#include <algorithm>
#include <string_view>

#include "display/stand_in.h"

namespace varnstride {
namespace {

constexpr std::array<std::string_view, kNations> kNationNames = {"French", "British", "Prussian"};

enum class March { Either, Column, Other };

// The names of the sheets of the three forms; an empty name has no picture.
using Forms = std::array<std::string_view, kSpriteForms>;

struct SpriteKind {
    UnitType type;
    March march;
    Weapon weapon;  // None: any
    std::array<Forms, kNations> nations;
};

constexpr Forms kNothing = {"", "", ""};
constexpr Forms kSkirmishers = {"Skirm", "Skirm2", "Skirm_trans"};
constexpr Forms kSkirmishColumn = {"Skirm_Col", "Skirm_Col2", "Skirm_Col_trans"};
constexpr Forms kLine = {"Inf_Line1", "Inf_Line2", "Inf_Line1_trans"};
constexpr Forms kLineColumn = {"Inf_Col1", "Inf_Col2", "Inf_Col1_trans"};
constexpr Forms kGuard = {"Guard_Inf", "Guard_Inf2", "Guard_Inf_trans"};
constexpr Forms kGuardColumn = {"Guard_Col1", "Guard_Col2", "Guard_Col_trans"};
constexpr Forms kPrussianLine = {"Inf_Line3", "Inf_Line4", "Inf_Line3_trans"};
constexpr Forms kPrussianColumn = {"Inf_Col3", "Inf_Col4", "Inf_Col3_trans"};
constexpr Forms kGrenadiers = {"Grenadiers", "Grenadiers2", "Grenadiers_trans"};
constexpr Forms kGrenadierColumn = {"Grenadier_Col3", "Grenadier_Col4", "Grenadier_Col3_trans"};
constexpr Forms kDismounted = {"Dragoon_Dismounted", "Dragoon_Dismounted2", ""};
constexpr Forms kFrenchDismounted = {"Dragoon_Dismounted", "Dragoon_Dismounted2",
                                     "Dragoon_Dismounted_trans"};
constexpr Forms kFrenchLight = {"LC", "LC2", "LC_trans"};
constexpr Forms kLight = {"Cav_Light", "Cav_Light2", "Cav_Light_trans"};
constexpr Forms kLancers = {"Lancers", "Lancers2", "Lancers_trans"};
constexpr Forms kFrenchHeavy = {"HC", "HC2", "HC_trans"};
constexpr Forms kBritishHeavy = {"Cav_Medium", "Cav_Medium2", "Cav_Heavy_trans"};
constexpr Forms kHeavy = {"Cav_Heavy", "Cav_Heavy2", "Cav_Heavy_trans"};
constexpr Forms kFrenchMedium = {"MC", "MC2", "MC_trans"};
constexpr Forms kMedium = {"Cav_Medium", "Cav_Medium2", "Cav_Medium_trans"};
constexpr Forms kGuardHorse = {"", "", "Guard_Cav_trans"};
constexpr Forms kLightGuns = {"Artillery_Light", "Artillery_Light2", "Artillery_Light_trans"};
constexpr Forms kGuns = {"Artillery", "Artillery2", "Artillery_trans"};
constexpr Forms kHeavyGuns = {"Artillery_Heavy", "Artillery_Heavy2", "Artillery_Heavy_trans"};

constexpr Forms WithoutBased(Forms forms) {
    forms[static_cast<std::size_t>(SpriteForm::Based)] = "";
    return forms;
}

using enum UnitType;

// clang-format off
constexpr std::array<SpriteKind, 19> kSpriteKinds = {{
    // type                   march           weapon                French            British           Prussian
    {LightInfantry,           March::Other,   Weapon::None,         {kSkirmishers,      kSkirmishers,    kSkirmishers}},
    {LightInfantry,           March::Column,  Weapon::None,         {kSkirmishColumn,   kSkirmishColumn, kGrenadierColumn}},
    {LineInfantry,            March::Other,   Weapon::None,         {kLine,             kLine,           kPrussianLine}},
    {LineInfantry,            March::Column,  Weapon::None,         {kLineColumn,       kLineColumn,     kPrussianColumn}},
    {GuardInfantry,           March::Other,   Weapon::None,         {kGuard,            kGuard,          kGrenadiers}},
    {GuardInfantry,           March::Column,  Weapon::None,         {kGuardColumn,      kGuardColumn,    kGrenadierColumn}},
    {LightDragoonsDismounted, March::Either,  Weapon::None,         {kDismounted,       kDismounted,     kDismounted}},
    {DragoonsDismounted,      March::Either,  Weapon::None,         {kFrenchDismounted, kDismounted,     kDismounted}},
    {LightCavalry,            March::Either,  Weapon::None,         {kFrenchLight,      kLight,          kLight}},
    {Lancers,                 March::Either,  Weapon::None,         {kLancers,          kLancers,        kLancers}},
    {HeavyCavalry,            March::Either,  Weapon::None,         {kFrenchHeavy,      kBritishHeavy,   kHeavy}},
    {MediumCavalry,           March::Either,  Weapon::None,         {kFrenchMedium,     kMedium,         kMedium}},
    {GuardCavalry,            March::Either,  Weapon::None,         {kGuardHorse,       kNothing,        kNothing}},
    {HorseArtillery,          March::Either,  Weapon::ThreePounder, {kLightGuns,        kLightGuns,      WithoutBased(kLightGuns)}},
    {HorseArtillery,          March::Either,  Weapon::SixPounder,   {kGuns,             kGuns,           WithoutBased(kGuns)}},
    {HorseArtillery,          March::Either,  Weapon::TwelvePounder,{kHeavyGuns,        kHeavyGuns,      WithoutBased(kHeavyGuns)}},
    {FieldArtillery,          March::Either,  Weapon::ThreePounder, {kLightGuns,        kLightGuns,      kLightGuns}},
    {FieldArtillery,          March::Either,  Weapon::SixPounder,   {kGuns,             kGuns,           kGuns}},
    {FieldArtillery,          March::Either,  Weapon::TwelvePounder,{kHeavyGuns,        kHeavyGuns,      kHeavyGuns}},
}};
// clang-format on

constexpr int kMostStrength = 9;
constexpr int kMostSkirmishers = 5;  // the sheets of light infantry without bases end there
constexpr int kGunsOfAKind = 2;      // field pieces, then horse pieces, on one sheet

bool Fits(const SpriteKind& kind, const Unit& unit) {
    const bool column = unit.formation == Formation::MarchColumn;
    return kind.type == unit.type && (kind.weapon == Weapon::None || kind.weapon == unit.weapon) &&
           (kind.march == March::Either || (kind.march == March::Column) == column);
}

// The tile of a strength, or nothing for a strength beyond the sheet.
std::optional<int> TileOf(const Unit& unit, SpriteForm form) {
    int most = kMostStrength;
    if (unit.type == LightInfantry && form != SpriteForm::Based) most = kMostSkirmishers;
    if (IsFieldGun(unit.type)) most = kGunsOfAKind;
    if (unit.strength < 1 || unit.strength > most) return std::nullopt;
    return unit.strength - 1 + (unit.type == HorseArtillery ? kGunsOfAKind : 0);
}

std::string_view NameOf(const Sprite& sprite) {
    return kSpriteKinds[sprite.row].nations[sprite.nation][static_cast<std::size_t>(sprite.form)];
}

std::size_t PlaceOf(const Sprite& sprite) {
    return (sprite.row * kNations + sprite.nation) * kSpriteForms +
           static_cast<std::size_t>(sprite.form);
}

}  // namespace

std::optional<std::size_t> NationOf(int army) {
    switch (army) {
        case kFrench: return 0;
        case kBritish: return 1;
        case kPrussian: return 2;
        default: return std::nullopt;
    }
}

std::optional<Sprite> SpriteOf(int army, const Unit& unit, SpriteForm form) {
    const auto nation = NationOf(army);
    const auto kind = std::find_if(kSpriteKinds.begin(), kSpriteKinds.end(),
                                   [&](const SpriteKind& row) { return Fits(row, unit); });
    const auto tile = TileOf(unit, form);
    if (!nation || kind == kSpriteKinds.end() || !tile) return std::nullopt;
    const Sprite sprite{static_cast<std::size_t>(kind - kSpriteKinds.begin()), *nation, form,
                        *tile};
    return NameOf(sprite).empty() ? std::nullopt : std::optional(sprite);
}

int LeaderTile(std::size_t nation, SpriteForm form) {
    return 2 * static_cast<int>(nation) + (form == SpriteForm::Spent ? 0 : 1);
}

std::string FileOf(const Sprite& sprite) {
    return "Units/" + std::string(kNationNames[sprite.nation]) + "_" + std::string(NameOf(sprite)) +
           ".bmp";
}

SpriteSheets::SpriteSheets() : sheetOf_(kSpriteKinds.size() * kNations * kSpriteForms) {
    for (std::size_t row = 0; row < kSpriteKinds.size(); ++row) {
        for (std::size_t nation = 0; nation < kNations; ++nation) {
            for (std::size_t form = 0; form < kSpriteForms; ++form) {
                const Sprite sprite{row, nation, static_cast<SpriteForm>(form), 0};
                if (NameOf(sprite).empty()) continue;
                const std::string file = FileOf(sprite);
                const auto known = std::find(files_.begin(), files_.end(), file);
                sheetOf_[PlaceOf(sprite)] = static_cast<std::size_t>(known - files_.begin());
                if (known == files_.end()) files_.push_back(file);
            }
        }
    }
    sheets_.resize(files_.size());
}

SheetNeed SpriteSheets::Need(std::size_t sheet) const {
    const std::string_view file = files_[sheet];
    int tiles = kMostStrength;
    if (file.find("_Artillery") != file.npos) tiles = 2 * kGunsOfAKind;
    if (file.find("_Skirm") != file.npos && file.find("_trans") == file.npos)
        tiles = kMostSkirmishers;
    return {file, tiles, 0, StandIn::Sprite};
}

void SpriteSheets::FillGaps() {
    for (std::size_t sheet = 0; sheet < Count(); ++sheet)
        FillWithStandIns(sheets_[sheet], Need(sheet));
}

const TileSet& SpriteSheets::Find(const Sprite& sprite) const {
    return sheets_[sheetOf_[PlaceOf(sprite)]];
}

}  // namespace varnstride
