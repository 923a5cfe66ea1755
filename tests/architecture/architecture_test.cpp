// The source tree keeps the order of its floors, and the walk that says so finds what breaks it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "architecture/include_walk.h"

namespace varnstride {
namespace {

using Faults = std::vector<std::string>;

TEST(Architecture, TheSourceTreeKeepsTheOrderOfItsFloors) {
    const std::vector<SourceFile> files = ReadSources(VARNSTRIDE_SOURCE_DIR "/src");
    ASSERT_GT(files.size(), 30U);
    EXPECT_EQ(FindWrongFloors(files), Faults{});
    EXPECT_EQ(FindCircles(files), Faults{});
    EXPECT_EQ(FindForeignNames(files), Faults{});
}

TEST(IncludeWalk, TellsWhoUsesAFloorAboveHisOwn) {
    const std::vector<SourceFile> files = {
        MakeSourceFile("model/unit.h", "#include <array>\n#include \"model/cell.h\"\n"),
        MakeSourceFile("model/score.cpp", "// a comment\n  #  include \"battle/strike.h\"\n"),
        MakeSourceFile("files/battle_file.cpp", "#include \"resources/texts.h\"\n"),
        MakeSourceFile("opponent/turn.cpp", "#include \"battle/strike.h\"\n"),
        MakeSourceFile("forge/made.cpp", "text = R\"(\n#include \"app/a.h\"\n)\";\n"),
        MakeSourceFile("attic/old.cpp", ""),
    };
    EXPECT_EQ(FindWrongFloors(files),
              (Faults{"model/score.cpp: may not include battle/strike.h",
                      "files/battle_file.cpp: may not include resources/texts.h",
                      "attic/old.cpp: its folder has no row in the table of floors"}));
}

TEST(IncludeWalk, TellsACircleOnce) {
    const std::vector<SourceFile> files = {
        MakeSourceFile("model/a.h", "#include \"model/b.h\"\n#include \"model/c.h\"\n"),
        MakeSourceFile("model/b.h", "#include \"model/c.h\"\n"),
        MakeSourceFile("model/c.h", "#include \"model/b.h\"\n"),
        MakeSourceFile("model/d.h", "#include \"model/b.h\"\n"),
    };
    EXPECT_EQ(FindCircles(files), (Faults{"model/b.h -> model/c.h -> model/b.h"}));
}

TEST(IncludeWalk, TellsNamesOfTheWindowAndSoundLibraries) {
    const std::vector<SourceFile> files = {
        MakeSourceFile("app/a.cpp", "QString text;"),
        MakeSourceFile("sound/b.cpp", "#include <AL/al.h>\n"),
        MakeSourceFile("sound/c.cpp", "alSourcePlay(source);"),
        MakeSourceFile("model/d.cpp", "Quality quality; int alliedSum(int); // Quatre Bras"),
        MakeSourceFile("platform/qt/e.cpp", "QWidget widget;"),
    };
    EXPECT_EQ(FindForeignNames(files),
              (Faults{"app/a.cpp: names QString", "sound/b.cpp: names <AL/",
                      "sound/c.cpp: names alSourcePlay("}));
}

}  // namespace
}  // namespace varnstride
