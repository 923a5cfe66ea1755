// From the text of an atlas to the program's table: the table that the build made holds what the
// text says, and a text with a mistake stops the forge without leaving anything behind.
#include "forge/atlas_compiler.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "atlas_texts.h"
#include "atlases/built_in.h"
#include "forge/text_file.h"
#include "forge_run.h"

namespace varnstride {
namespace {

TEST(AtlasCompiler, TheBuiltInAtlasIsTheText) {
    const Atlas* const built = BuiltInAtlases().Find(4);
    ASSERT_NE(built, nullptr);
    const Atlas read = BuildAtlas(GillySource());
    EXPECT_EQ(built->Rows(), read.Rows());
    EXPECT_EQ(built->Links(), read.Links());
    EXPECT_EQ(BuiltInAtlases().Find(5), nullptr);
}

TEST(AtlasCompiler, TheOrderOfFilesDoesNotMatter) {
    AtlasSource other = GillySource();
    other.mapNumber = 7;
    const AtlasSource forwards[] = {GillySource(), other};
    const AtlasSource backwards[] = {other, GillySource()};
    EXPECT_EQ(AtlasesAsCode(forwards), AtlasesAsCode(backwards));
}

TEST_F(ForgeRun, CheckTellsMistakesOfAllFiles) {
    Write("good.atlas", GillyText());
    Write("typo.atlas", WithSlips(GillyText(), {{"-, 14", "-; 14"}}));
    Write("rule.atlas", WithSlips(GillyText(), {{"  1 | 21", "  1 | 30"}}));
    EXPECT_EQ(Run("atlas check good.atlas"), 0);
    EXPECT_TRUE(Told().starts_with("warning: good.atlas:47: ")) << Told();
    EXPECT_EQ(Run("atlas check good.atlas typo.atlas rule.atlas none.atlas"), 2);
    for (const char* part :
         {"\ntypo.atlas:16: ", "\nrule.atlas:8: number 30", "none.atlas: cannot"}) {
        EXPECT_NE(("\n" + Told()).find(part), std::string::npos) << part << "\n" << Told();
    }
    EXPECT_EQ(Run("atlas check good.atlas ./good.atlas"), 2);
    EXPECT_NE(Told().find("another file of this run is map 4 already"), std::string::npos);
}

TEST_F(ForgeRun, CompileWritesAllOrNothing) {
    Write("good.atlas", GillyText());
    Write("bad.atlas", WithSlips(GillyText(), {{"1: foot 2, 7", "1: foot 2, 70"}}));
    EXPECT_EQ(Run("atlas compile bad.atlas -o table.cpp"), 2);
    EXPECT_NE(Told().find("bad.atlas:32: there is no area 70"), std::string::npos) << Told();
    EXPECT_FALSE(std::filesystem::exists(Path("table.cpp")));
    EXPECT_EQ(Run("atlas compile good.atlas -o table.cpp"), 0);
    const AtlasSource gilly = GillySource();
    EXPECT_EQ(ReadTextFile(Path("table.cpp")).Get(), AtlasesAsCode({&gilly, 1}));
    EXPECT_EQ(Run("atlas compile good.atlas -o none/table.cpp"), 2);
    EXPECT_NE(Told().find("none/table.cpp: cannot be written"), std::string::npos) << Told();
}

}  // namespace
}  // namespace varnstride
