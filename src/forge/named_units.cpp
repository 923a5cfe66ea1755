#include "forge/named_units.h"

namespace varnstride {
namespace {

constexpr unsigned kLight = TypeBit(UnitType::LightInfantry);
constexpr unsigned kLine = TypeBit(UnitType::LineInfantry);
constexpr unsigned kLeader = TypeBit(UnitType::Leader);
constexpr unsigned kHussar =
    TypeBit(UnitType::LightDragoonsDismounted) | TypeBit(UnitType::LightCavalry);
constexpr unsigned kHeavy = TypeBit(UnitType::HeavyCavalry);
constexpr unsigned kMedium = TypeBit(UnitType::MediumCavalry);
constexpr unsigned kFieldGun =
    TypeBit(UnitType::HorseArtillery) | TypeBit(UnitType::FieldArtillery);
constexpr unsigned kAnyGun =
    kFieldGun | TypeBit(UnitType::MortarArtillery) | TypeBit(UnitType::RocketArtillery);

// clang-format off

constexpr NamedUnit kQuatreBras[] = {
    {kFrench, kLeader, "G de C Baprebre"},
    {kBritish, kLight, "27th Dutch Jager Batt 2nd Inf Div"},
    {kBritish, kLight, "Netherlands Jager 2nd Inf Div"},
    {kBritish, kLight, "Light Infantry Brigade Brunswick Corps"},
    {kBritish, kLight, "3 Batts of 1st (Hanovarian) Brigade 3rd Div"},
    {kBritish, kLight, "Bremen & Verden Batts 1st Brig 3rd Div"},
    {kBritish, kLine, "8th Dutch Militia Batt 2nd Inf Div"},
    {kBritish, kLine, "5th & 7th Dutch Militia Batts 2nd Inf Div"},
    {kBritish, kLine, "Line Infantry Brigade Brunswick Corps"},
    {kBritish, kLine, "2nd Batt 2nd Nassau-Usingen Regt"},
    {kBritish, kLine, "1st & 3rd Batt 2nd Nassau-Usingen Regt"},
    {kBritish, kLine, "28th Orange-Nassau Regt 2nd Inf Div"},
    {kBritish, kLine, "7th Belgium Line Batt 2nd Inf Div"},
    {kBritish, kLine, "4th (Hanovarian Landwehr) Inf Brig"},
    {kBritish, kLine, "9th (British) Infantry Brigade 5th Div"},
    {kBritish, kHussar, "2nd Brunswick Hussars"},
    {kBritish, kHussar, "2nd Light Cavalry Netherlands"},
    {kBritish, kFieldGun, "Belgian Foot Artillery"},
    {kBritish, kFieldGun, "Brunswick Corps Foot Battery"},
    {kBritish, kFieldGun, "Brunswick Corps Horse Artillery Battery"},
};
constexpr NamedUnit kHougoumont[] = {
    {kBritish, kLight, "95th Rifles 8th British Brigade 5th Inf Div"},
    {kBritish, kLight, "Det. Grubenhagen & Luneburg Lt Inf Bns"},
    {kBritish, kLight, "Hanovarians"},
    {kBritish, kLight, "1/51 Lt Inf 4th British Brigade"},
    {kBritish, kLine, "2nd Nassau Regt 2nd Brig 2nd Inf Div"},
};
constexpr NamedUnit kLigny[] = {
    {kFrench, kLeader, "Emperor Napoleon Bonaparte"},
    {kFrench, kLeader, "Lt-Gen Comte Vandamme III Corps"},
    {kPrussian, kLeader, "Gen-Lt von Zieten I Korps"},
    {kPrussian, kLeader, "Gen-Major von Pirch II Korps"},
    {kPrussian, kLeader, "Gen-Lt von Thielmann III Korps"},
    {kPrussian, kLeader, "Gen-Major von Hobe Reserve Cavalry"},
};
constexpr NamedUnit kMontStJean[] = {
    {kPrussian, kLeader, "Maj-Gen von Pirch II Army Korps"},
    {kPrussian, kLeader, "Field Marshal von Blucher"},
    {kPrussian, kLeader, "Lt-Gen von Zieten I Army Korps"},
    {kPrussian, kLeader, "General von Dennewitz IV Army Korps"},
    {kBritish, kLight, "35th Belgium Jager 1st Bde 3rd Neths Div"},
    {kBritish, kLight, "27th Dutch Jager 1st Bde 2nd Neths Div"},
    {kBritish, kLight, "Hanovarians"},
    {kBritish, kLight, "95th Rifles 8th Br Bde 5th Br Inf Div"},
    {kBritish, kLine, "2nd Dutch Line 1st Bde 3rd Neths Div"},
    {kBritish, kLine, "1st Bde Dutch Militia 3rd Neths Div"},
    {kBritish, kLine, "2nd Bde Dutch Militia 3rd Neths Div"},
    {kBritish, kLine, "Nassau Reserve Contingent"},
    {kBritish, kLine, "9th British Bde 5th Br Inf Div"},
    {kBritish, kHussar, "7th British Cavalry Brigade"},
    {kBritish, kHussar, "Cumberland's Hussars Han Cav Bde"},
    {kBritish, kHeavy, "Heavy Bde Neths Cav Div"},
    {kBritish, kMedium, "2nd British (Union) Cavalry Brigade"},
    {kFrench, kAnyGun, "10e & 20e Compagnie 6e Regt de FA"},
    {kFrench, kAnyGun, "9e & 19e Compagnie 6e Regt de FA"},
    {kFrench, kAnyGun, "1/1 Marine FA Compagnie Middle Guard"},
    {kFrench, kAnyGun, "6e Compagnie du Regt FA Old Guard"},
};
constexpr NamedUnit kWavre[] = {
    {kFrench, kLeader, "Gen de Corps Gerard IV Corps"},
    {kFrench, kLeader, "Gen de Corps Vandamme III Corps"},
    {kFrench, kLeader, "Marechal Grouchy"},
    {kPrussian, kLeader, "Gen-Major von Hobe III Korps Reserve Cav"},
    {kPrussian, kLeader, "von Thielmann and Corps HQ"},
};

// clang-format on

}  // namespace

std::span<const NamedUnit> QuatreBrasUnits() {
    return kQuatreBras;
}

std::span<const NamedUnit> HougoumontUnits() {
    return kHougoumont;
}

std::span<const NamedUnit> LignyUnits() {
    return kLigny;
}

std::span<const NamedUnit> MontStJeanUnits() {
    return kMontStJean;
}

std::span<const NamedUnit> WavreUnits() {
    return kWavre;
}

}  // namespace varnstride
