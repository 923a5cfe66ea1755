// Files come out as they went in, be it through the game or not, and the older layout brings what
// it has.

#include <gtest/gtest.h>

#include "support/file_layout.h"
#include "support/synthetic_battle.h"

namespace varnstride {
namespace {

constexpr unsigned kSeeds = 25;

BattleFile Parsed(const std::vector<std::byte>& bytes, const AtlasCatalogue& atlases) {
    Result<BattleFile> parsed = ParseBattleFile(bytes, "test", atlases);
    if (parsed.Ok()) return parsed.Get();
    ADD_FAILURE() << parsed.Message();
    return {};
}

TEST(RoundTrip, ReadingAndWritingKeepEveryByte) {
    for (unsigned seed = 1; seed <= kSeeds; ++seed) {
        std::mt19937 engine(seed);
        const RandomBattle battle = MakeRandomBattle(engine);
        const auto bytes = SerializeBattleFile(battle.file);
        EXPECT_EQ(SerializeBattleFile(Parsed(bytes, battle.field->catalogue)), bytes) << seed;
    }
}

TEST(RoundTrip, TheGameKeepsEveryByteOfABattle) {
    for (unsigned seed = 1; seed <= kSeeds; ++seed) {
        std::mt19937 engine(seed);
        const RandomBattle battle = MakeRandomBattle(engine);
        SilentPerson person;
        Game game(battle.field->catalogue, person);
        PutIntoGame(battle.file, FileKind::Battle, game);
        EXPECT_EQ(SerializeBattleFile(TakeFromGame(game)), SerializeBattleFile(battle.file))
            << seed;
    }
}

TEST(RoundTrip, AScenarioLeavesTheOptionsOfTheGameAlone) {
    std::mt19937 engine(1);
    RandomBattle battle = MakeRandomBattle(engine);
    battle.file.options.tacticalPlayOn = 1;
    SilentPerson person;
    Game game(battle.field->catalogue, person);
    game.options.smokeOn = 7;
    PutIntoGame(battle.file, FileKind::Scenario, game);
    EXPECT_EQ(game.options.tacticalPlayOn, 0);
    EXPECT_EQ(game.options.smokeOn, 7);
    PutIntoGame(battle.file, FileKind::MailedTurn, game);
    EXPECT_EQ(game.options.tacticalPlayOn, 1);
}

// A French and a Prussian unit, saved with 4 armies of 10 records each.
class OlderLayout : public testing::Test {
 protected:
    OlderLayout() : field_({}), game_(field_.catalogue, person_) {
        MakeSavable(field_.game);
        field_.Add(kFrench, 1, 1, MakeUnit(UnitType::LineInfantry));
        field_.Add(kPrussian, 2, 1, MakeUnit(UnitType::Lancers));
        bytes_ = InOlderLayout(SerializeBattleFile(TakeFromGame(field_.game)), layout_, 4, 10);
    }
    void Open() { PutIntoGame(Parsed(bytes_, field_.catalogue), FileKind::Battle, game_); }

    const FileLayout layout_{.width = 25, .height = 6};
    Field field_;
    SilentPerson person_;
    Game game_;
    std::vector<std::byte> bytes_;
};

TEST_F(OlderLayout, BringsItsUnitsAndArmies) {
    Open();
    EXPECT_EQ(game_.At({kFrench, 1}), field_.game.At({kFrench, 1}));
    EXPECT_EQ(game_.At({kPrussian, 1}), field_.game.At({kPrussian, 1}));
    EXPECT_EQ(game_.Army(kPrussian).present, 1);
    EXPECT_EQ(game_.grid.At(field_.SlotCell(Side::Allied, 2, 1)).occupant, kPrussian + 1);
}

TEST_F(OlderLayout, LeavesStandingWhatItDoesNotHold) {
    game_.Army(kRussian).present = 3;
    game_.Army(kBritish).present = 3;
    const UnitId kept[] = {{kFrench, 2}, {kFrench, 599}, {kRussian, 1}};
    for (UnitId id : kept) {
        game_.At(id) = MakeUnit(UnitType::Leader);
        game_.At(id).SetPlace({24, 5});
    }
    game_.At({kPrussian, 1}) = MakeUnit(UnitType::Leader);
    Open();
    EXPECT_EQ(game_.Army(kRussian).present, 3) << "an army that the file does not hold";
    EXPECT_EQ(game_.Army(kBritish).present, 0);
    for (UnitId id : kept)
        EXPECT_EQ(game_.At(id).type, UnitType::Leader) << id.army << '/' << id.index;
    EXPECT_EQ(game_.At({kPrussian, 1}).type, UnitType::Lancers);
}

TEST_F(OlderLayout, RemovesUnitsThatStoodOnALargerMap) {
    game_.At({kFrench, 5}) = MakeUnit(UnitType::Leader);
    game_.At({kFrench, 5}).SetPlace({25, 5});
    Open();
    EXPECT_EQ(game_.At({kFrench, 5}), Unit{});
}

TEST_F(OlderLayout, IsWrittenInThePresentOne) {
    const auto written = SerializeBattleFile(Parsed(bytes_, field_.catalogue));
    EXPECT_EQ(written.size(), layout_.End());
    EXPECT_EQ(written, SerializeBattleFile(TakeFromGame(field_.game)));
}

}  // namespace
}  // namespace varnstride
