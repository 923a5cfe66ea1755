// Which picture shows a unit, and who is shown at all.
#include <gtest/gtest.h>

#include "display/painted_art.h"
#include "display/unit_pass.h"
#include "support/field.h"

namespace varnstride {
namespace {

using enum UnitType;
using enum Formation;

std::string Pictured(int army, const Unit& unit, SpriteForm form) {
    const auto sprite = SpriteOf(army, unit, form);
    return sprite ? FileOf(*sprite) + " " + std::to_string(sprite->tile) : "";
}

TEST(UnitSprite, GoesByArmyTypeMarchWeaponAndStrength) {
    const struct {
        int army;
        UnitType type;
        Formation formation;
        Weapon weapon;
        int strength;
        std::string fresh, spent, based;
    } cases[] = {
        {kFrench, LightInfantry, Line, Weapon::Musket, 5, "Units/French_Skirm.bmp 4",
         "Units/French_Skirm2.bmp 4", "Units/French_Skirm_trans.bmp 4"},
        {kFrench, LightInfantry, Line, Weapon::Musket, 6, "", "", "Units/French_Skirm_trans.bmp 5"},
        {kPrussian, LightInfantry, MarchColumn, Weapon::Musket, 2,
         "Units/Prussian_Grenadier_Col3.bmp 1", "Units/Prussian_Grenadier_Col4.bmp 1",
         "Units/Prussian_Grenadier_Col3_trans.bmp 1"},
        {kBritish, LineInfantry, Square, Weapon::Musket, 9, "Units/British_Inf_Line1.bmp 8",
         "Units/British_Inf_Line2.bmp 8", "Units/British_Inf_Line1_trans.bmp 8"},
        {kBritish, LineInfantry, Line, Weapon::Musket, 10, "", "", ""},
        {kPrussian, LineInfantry, MarchColumn, Weapon::Musket, 1, "Units/Prussian_Inf_Col3.bmp 0",
         "Units/Prussian_Inf_Col4.bmp 0", "Units/Prussian_Inf_Col3_trans.bmp 0"},
        {kPrussian, GuardInfantry, Line, Weapon::Musket, 3, "Units/Prussian_Grenadiers.bmp 2",
         "Units/Prussian_Grenadiers2.bmp 2", "Units/Prussian_Grenadiers_trans.bmp 2"},
        {kFrench, LightDragoonsDismounted, MarchColumn, Weapon::Carbine, 3,
         "Units/French_Dragoon_Dismounted.bmp 2", "Units/French_Dragoon_Dismounted2.bmp 2", ""},
        {kFrench, DragoonsDismounted, Line, Weapon::Carbine, 3,
         "Units/French_Dragoon_Dismounted.bmp 2", "Units/French_Dragoon_Dismounted2.bmp 2",
         "Units/French_Dragoon_Dismounted_trans.bmp 2"},
        {kBritish, DragoonsDismounted, Line, Weapon::Carbine, 3,
         "Units/British_Dragoon_Dismounted.bmp 2", "Units/British_Dragoon_Dismounted2.bmp 2", ""},
        {kPrussian, LightCavalry, Line, Weapon::Sabre, 4, "Units/Prussian_Cav_Light.bmp 3",
         "Units/Prussian_Cav_Light2.bmp 3", "Units/Prussian_Cav_Light_trans.bmp 3"},
        {kBritish, HeavyCavalry, Line, Weapon::Sabre, 4, "Units/British_Cav_Medium.bmp 3",
         "Units/British_Cav_Medium2.bmp 3", "Units/British_Cav_Heavy_trans.bmp 3"},
        {kFrench, GuardCavalry, Line, Weapon::Sabre, 4, "", "",
         "Units/French_Guard_Cav_trans.bmp 3"},
        {kBritish, GuardCavalry, Line, Weapon::Sabre, 4, "", "", ""},
        {kFrench, FieldArtillery, Line, Weapon::SixPounder, 2, "Units/French_Artillery.bmp 1",
         "Units/French_Artillery2.bmp 1", "Units/French_Artillery_trans.bmp 1"},
        {kFrench, HorseArtillery, Line, Weapon::TwelvePounder, 2,
         "Units/French_Artillery_Heavy.bmp 3", "Units/French_Artillery_Heavy2.bmp 3",
         "Units/French_Artillery_Heavy_trans.bmp 3"},
        {kFrench, FieldArtillery, Line, Weapon::SixPounder, 3, "", "", ""},
        {kFrench, FieldArtillery, Line, Weapon::Musket, 1, "", "", ""},
        {kPrussian, HorseArtillery, Line, Weapon::ThreePounder, 1,
         "Units/Prussian_Artillery_Light.bmp 2", "Units/Prussian_Artillery_Light2.bmp 2", ""},
        {kFrench, Engineers, Line, Weapon::Musket, 2, "", "", ""},
        {kFrench, CossackCavalry, Line, Weapon::Lance, 2, "", "", ""},
        {kFrench, MortarArtillery, Line, Weapon::SixPounder, 1, "", "", ""},
        {kFrench, SupplyWagon, Line, Weapon::None, 1, "", "", ""},
        {kAustrian, LineInfantry, Line, Weapon::Musket, 4, "", "", ""},
    };
    for (const auto& each : cases) {
        Unit unit{.type = each.type, .strength = each.strength};
        unit.formation = each.formation;
        unit.weapon = each.weapon;
        SCOPED_TRACE("army " + std::to_string(each.army) + ", type " +
                     std::to_string(static_cast<int>(each.type)) + ", strength " +
                     std::to_string(each.strength));
        EXPECT_EQ(Pictured(each.army, unit, SpriteForm::Fresh), each.fresh);
        EXPECT_EQ(Pictured(each.army, unit, SpriteForm::Spent), each.spent);
        EXPECT_EQ(Pictured(each.army, unit, SpriteForm::Based), each.based);
    }
}

// A field without fog in the French turn; every unit stands in slot 1 of its area.
class Parade : public testing::Test {
 protected:
    Parade() : field({}) {
        field.game.header.fogNone = 1;
        field.game.settings = {};
        field.game.state.currentArmy = kFrench;
    }

    UnitId Add(int army, UnitType type) {
        const UnitId id = field.Add(army, 1 + army % 3, 1, MakeUnit(type));
        field.game.At(id).weapon = Weapon::SixPounder;
        field.game.At(id).visible = 1;
        return id;
    }
    void SetFog(int ScenarioHeader::*fog) {
        field.game.header.fogNone = 0;
        field.game.header.*fog = 1;
    }

    // The tiles of all units: the file of their sheet without its folder, and the number.
    std::vector<std::string> Drawn(ViewKind view = ViewKind::Normal) {
        std::vector<std::string> drawn;
        for (const PlacedTile& placed : UnitTiles(field.game, art, view, {32, 64}))
            drawn.push_back(NameOf(placed.set) + " " + std::to_string(placed.tile));
        return drawn;
    }

    Field field;
    Art art;

 private:
    std::string NameOf(const TileSet* set) {
        std::string_view file;
        for (std::size_t sheet = 0; sheet < kSheetCount; ++sheet) {
            if (set == &art.At(static_cast<Sheet>(sheet))) file = kSheetRows[sheet].need.file;
        }
        return file.empty() ? "sprite" : std::string(file.substr(file.find('/') + 1));
    }
};

using Tiles = std::vector<std::string>;

TEST_F(Parade, DrawsLaterArmiesOverEarlierOnesAndLowRecordsLast) {
    Add(kFrench, Leader);
    field.Add(kFrench, 2, 2, MakeUnit(LineInfantry));
    Add(kPrussian, Leader);
    EXPECT_EQ(Drawn(), (Tiles{"sprite 5", "Commander5.bmp 1", "Commander5.bmp 5"}));
    field.game.At({kFrench, 1}).actionPoints = 0;
    field.game.At({kPrussian, 1}).actionPoints = 0;
    EXPECT_EQ(Drawn(), (Tiles{"sprite 5", "Commander5.bmp 0", "Commander5.bmp 5"}))
        << "only the army in turn looks spent";
}

TEST_F(Parade, ShowsMoraleAndAmmunitionInBars) {
    const UnitId id = Add(kFrench, LineInfantry);
    Unit& unit = field.game.At(id);
    field.game.settings.healthBars = 1;
    const struct {
        int morale, maxMorale, ammunition;
        Tiles drawn;
    } cases[] = {
        {30, 30, 8, {"Thermometer_Elite.bmp 0", "sprite 5", "AmmoThermometer.bmp 3"}},
        {29, 30, 6, {"Thermometer_Elite.bmp 1", "sprite 5", "AmmoThermometer.bmp 2"}},
        {20, 25, 5, {"Thermometer_Veteran.bmp 1", "sprite 5", "AmmoThermometer.bmp 2"}},
        {19, 25, 4, {"Thermometer_Veteran.bmp 2", "sprite 5", "AmmoThermometer.bmp 1"}},
        {12, 20, 3, {"Thermometer_Experienced.bmp 2", "sprite 5", "AmmoThermometer.bmp 1"}},
        {11, 20, 2, {"Thermometer_Experienced.bmp 3", "sprite 5", "AmmoThermometer.bmp 0"}},
        {7, 19, 1, {"Thermometer_Militia.bmp 4", "sprite 5", "AmmoThermometer.bmp 0"}},
        {0, 19, 0, {"Thermometer_Militia.bmp 4", "sprite 5"}},
        {0, 0, 0, {"sprite 5"}},
    };
    for (const auto& each : cases) {
        unit.morale = each.morale;
        unit.maxMorale = each.maxMorale;
        unit.ammunition = each.ammunition;
        EXPECT_EQ(Drawn(), each.drawn) << each.morale << " of " << each.maxMorale;
    }
}

TEST_F(Parade, TellsLessOfEnemiesInFog) {
    const UnitId id = Add(kBritish, LineInfantry);
    field.game.settings.healthBars = 1;
    Unit& unit = field.game.At(id);
    unit.ammunition = 8;
    EXPECT_EQ(Drawn().size(), 3U);
    SetFog(&ScenarioHeader::fogNormal);
    EXPECT_EQ(Drawn(), (Tiles{"Thermometer_Militia.bmp 0", "sprite 5"}));
    field.game.header.fogNormal = 0;
    field.game.header.fogExtreme = 1;
    EXPECT_EQ(Drawn(), (Tiles{"sprite 5"}));
    unit.morale = unit.maxMorale / 2;
    EXPECT_EQ(Drawn(), (Tiles{"Thermometer_Militia.bmp 3", "sprite 5"})) << "he is seen to waver";
    unit.morale = unit.maxMorale;
    field.game.state.currentArmy = kBritish;
    EXPECT_EQ(Drawn(), (Tiles{"Thermometer_Militia.bmp 0", "sprite 5", "AmmoThermometer.bmp 3"}));
    field.game.settings.computerSide = 2;
    EXPECT_EQ(Drawn(), (Tiles{"sprite 5"})) << "the computer's turn shows him to nobody";
}

TEST_F(Parade, StandsOnBases) {
    field.game.settings.showUnitBases = field.game.settings.healthBars = 1;
    const struct {
        int army, actionPoints;
        Tiles drawn;
    } cases[] = {
        {kFrench, 1, {"3D_Unit_Bases.bmp 2", "3D_Unit_Bases.bmp 2", "sprite 5"}},
        {kFrench, 0, {"3D_Unit_Bases.bmp 5", "3D_Unit_Bases.bmp 5", "sprite 5"}},
        {kBritish, 0, {"3D_Unit_Bases.bmp 5", "3D_Unit_Bases.bmp 0", "sprite 5"}},
        {kPrussian, 1, {"3D_Unit_Bases.bmp 3", "3D_Unit_Bases.bmp 1", "sprite 5"}},
        {kAustrian, 1, {"3D_Unit_Bases.bmp 4"}},
        {kRussian, 1, {"3D_Unit_Bases.bmp 1"}},
        {kSpanish, 1, {}},
        {kSpanish, 0, {"3D_Unit_Bases.bmp 5"}},
    };
    for (const auto& each : cases) {
        const UnitId id = Add(each.army, LineInfantry);
        field.game.At(id).actionPoints = each.actionPoints;
        EXPECT_EQ(Drawn(), each.drawn) << each.army;
        field.game.At(id).strength = 0;
    }
}

TEST_F(Parade, HidesWhoIsNotToBeSeen) {
    const UnitId id = Add(kBritish, LineInfantry);
    const Unit good = field.game.At(id);
    const auto isSeen = [&](auto change) {
        const GameState state = field.game.state;
        field.game.At(id) = good;
        change(field.game.At(id), field.game.state);
        const bool seen = IsUnitSeen(field.game, id);
        field.game.state = state;
        return seen;
    };
    const int turn = field.game.state.gameTurn;
    EXPECT_TRUE(isSeen([](Unit&, GameState&) {}));
    EXPECT_FALSE(isSeen([](Unit& unit, GameState&) { unit.strength = 0; }));
    EXPECT_FALSE(isSeen([](Unit& unit, GameState&) { unit.SetPlace(kNoCell); }));
    EXPECT_FALSE(isSeen([](Unit& unit, GameState&) { unit.SetPlace({400, 3}); }));
    EXPECT_FALSE(isSeen([&](Unit& unit, GameState&) { unit.arrivalTurn = turn + 1; }));
    EXPECT_TRUE(isSeen([](Unit& unit, GameState&) { unit.visible = 0; })) << "without fog";

    // Just arrived: hidden from the other side until the battle pass, unless it moves first.
    field.game.header.firstPlayer = kFrench;
    EXPECT_FALSE(isSeen([&](Unit& unit, GameState&) { unit.arrivalTurn = turn; }));
    EXPECT_TRUE(isSeen([&](Unit& unit, GameState& state) {
        unit.arrivalTurn = turn;
        state.battlePassRunning = 1;
    }));
    EXPECT_TRUE(isSeen([&](Unit& unit, GameState& state) {
        unit.arrivalTurn = turn;
        state.currentArmy = kPrussian;
    }));
    field.game.header.firstPlayer = kBritish;
    EXPECT_TRUE(isSeen([&](Unit& unit, GameState&) { unit.arrivalTurn = turn; }));

    SetFog(&ScenarioHeader::fogExtreme);
    EXPECT_TRUE(isSeen([&](Unit& unit, GameState&) { unit.arrivalTurn = turn; }));
    EXPECT_FALSE(isSeen([](Unit& unit, GameState&) { unit.visible = 0; }));
    EXPECT_FALSE(isSeen([&](Unit& unit, GameState&) { unit.arrivalTurn = turn + 1; }));
}

TEST_F(Parade, IsSmallInTheZoomOutView) {
    const struct {
        UnitType type;
        Tiles drawn;
    } cases[] = {
        {LightInfantry, {"2d_mini_units.bmp 0"}},
        {GuardCavalry, {"2d_mini_units.bmp 12"}},
        {RocketArtillery, {"2d_mini_units.bmp 19"}},
        {HorseArtillery, {"2d_mini_units.bmp 22"}},
        {FieldArtillery, {"2d_mini_units.bmp 23"}},
        {SupplyWagon, {}},
        {MortarArtillery, {}},
    };
    for (const auto& each : cases) {
        const UnitId id = Add(kFrench, each.type);
        EXPECT_EQ(Drawn(ViewKind::ZoomOut), each.drawn) << static_cast<int>(each.type);
        field.game.At(id).strength = 0;
    }
    const UnitId mortar = Add(kPrussian, MortarArtillery);
    Add(kFrench, Lancers);
    EXPECT_EQ(Drawn(ViewKind::ZoomOut), (Tiles{"2d_mini_units.bmp 8", "2d_mini_units.bmp 8"}));
    field.game.settings.armyColours = 1;
    EXPECT_EQ(Drawn(ViewKind::ZoomOut),
              (Tiles{"mini_counter_colours.bmp 0", "mini_counter_colours.bmp 3"}));
    field.game.grid.At(field.game.At(mortar).Place()).occupant = 0;
    EXPECT_EQ(Drawn(ViewKind::ZoomOut), (Tiles{"mini_counter_colours.bmp 0"}));
}

}  // namespace
}  // namespace varnstride
