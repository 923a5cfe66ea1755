// Sources into files and back: the same source gives the same bytes, and what the decompiler writes
// gives the file back to the last byte, whatever the file holds.
#include <gtest/gtest.h>

#include <random>

#include "atlas_texts.h"
#include "files/battle_checks.h"
#include "forge/scenario_decompiler.h"
#include "forge/text_file.h"
#include "odd_battle.h"
#include "toy_scenario.h"

namespace varnstride {
namespace {

std::string GillyScenario(const std::string& name) {
    return ReadTextFile(VARNSTRIDE_SOURCE_DIR "/content/scenarios/" + name + ".scenario").Get();
}

// The file through its bytes, through a source and back.
void ExpectRoundTrip(const BattleFile& file) {
    const AtlasCatalogue& atlases = ToyAtlases();
    const std::vector<std::byte> bytes = SerializeBattleFile(file);
    const Result<BattleFile> read = ParseBattleFile(bytes, "t", atlases);
    ASSERT_TRUE(read.Ok()) << read.Message();
    const std::string text = DecompileScenario(read.Get(), atlases);
    const BattleFile again = Compiled(text, atlases);
    ASSERT_EQ(FirstDifference(again, read.Get()), "");
    ASSERT_TRUE(SerializeBattleFile(again) == bytes);
    ASSERT_EQ(DecompileScenario(again, atlases), text);
}

TEST(ScenarioRoundTrip, WrittenSources) {
    for (const std::string& text :
         {ToyText(), GillyScenario("gilly_rearguard"), GillyScenario("gilly_first_steps")}) {
        const BattleFile file = Compiled(text, ToyAtlases());
        EXPECT_TRUE(SerializeBattleFile(file) == SerializeBattleFile(Compiled(text, ToyAtlases())));
        ExpectRoundTrip(file);
    }
}

// What a person drew needs no word by word listing, so it stays fit to be edited.
TEST(ScenarioRoundTrip, AWrittenSourceComesBackWithoutOverrides) {
    for (const std::string& text : {ToyText(), GillyScenario("gilly_rearguard")}) {
        const std::string back = DecompileScenario(Compiled(text, ToyAtlases()), ToyAtlases());
        EXPECT_EQ(back.find("[cells]"), std::string::npos);
        EXPECT_EQ(back.find("[fields]"), std::string::npos);
        EXPECT_EQ(back.find("rules"), std::string::npos);
    }
}

TEST(ScenarioRoundTrip, OddFiles) {
    const BattleFile toy = Compiled(ToyText(), ToyAtlases());
    const BattleFile gilly = Compiled(GillyScenario("gilly_first_steps"), ToyAtlases());
    for (unsigned seed = 1; seed <= 30; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 chance(seed);
        BattleFile file = seed % 10 == 0 ? gilly : toy;
        const Atlas& atlas = *ToyAtlases().Find(file.header.mapNumber);
        MakeOdd(file, atlas, chance);
        ASSERT_EQ(FindFault(file, ToyAtlases()).value_or(""), "");
        ExpectRoundTrip(file);
        if (HasFatalFailure()) return;
    }
}

TEST(ScenarioRoundTrip, RoadsThatFormRingsAndForks) {
    const std::string text = WithSlips(ToyText(), {{"paved High Road: 0,4 11,4",
                                                    "paved Ring: 1,4 3,4 3,2 1,2 1,4\n"
                                                    "paved High Road: 0,4 11,4\n"
                                                    "track Ring Lane: 8,5 10,5 10,1 8,1 8,5\n"
                                                    "track Ford: 4,2 8,2 10,6\n"
                                                    "paved Ford Road: 6,3 10,3"}});
    ExpectRoundTrip(Compiled(text, ToyAtlases()));
}

// Roads cannot be drawn over a lake, so what a file has there must come back word by word.
TEST(ScenarioRoundTrip, ALakeWithThePicturesOfARoad) {
    const std::string text = WithSlips(
        ToyText(), {{"[armies]", "[cells]\n5,7 featureTile=18\n6,7 featureTile=18\n[armies]"}});
    ExpectRoundTrip(Compiled(text, ToyAtlases()));
}

TEST(ScenarioRoundTrip, AnOlderLayoutGivesAPresentOne) {
    BattleFile file = Compiled(ToyText(), ToyAtlases());
    file.armyCount = 4;
    file.unitsPerArmy = 200;
    const BattleFile again = Compiled(DecompileScenario(file, ToyAtlases()), ToyAtlases());
    EXPECT_EQ(FirstDifference(again, file), "");
    EXPECT_FALSE(again.IsOlderLayout());
}

}  // namespace
}  // namespace varnstride
