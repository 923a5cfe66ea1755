// Mistakes in content/art are told with their line, and what a painter asks for in vain is named.
#include "forge_art/studio.h"

#include <gtest/gtest.h>

namespace varnstride::art {
namespace {

template <typename Part>
std::string MistakesOf(const char* text) {
    SourceErrors errors("x.art");
    Part::Read(text, errors);
    return errors.Text();
}

TEST(Studio, TellsTheLineOfAMistake) {
    EXPECT_EQ(MistakesOf<Palette>("; fine\na = 102030\n"), "");
    EXPECT_EQ(MistakesOf<Palette>("a = 12345g\nb\n"),
              "x.art:1: \"12345g\" is no colour: expected six hex digits\n"
              "x.art:2: expected \"key = value\"\n");
    EXPECT_EQ(MistakesOf<Palette>("a = 102030\na = 102030\n"),
              "x.art:2: the colour a is given twice\n");
    EXPECT_EQ(MistakesOf<FigureBook>("xx\n[head.shako]\nhh\n"),
              "x.art:1: expected a heading in square brackets\n"
              "x.art:2: expected a heading as [foot.stand 3,13]\n");
    EXPECT_EQ(MistakesOf<Wardrobe>("name | coat\na | 102030 | 1\nb | red\n"),
              "x.art:2: has 3 columns: expected 2\n"
              "x.art:3: \"red\" is no colour: expected six hex digits\n");
    EXPECT_EQ(MistakesOf<Wardrobe>("name | sword\na | 102030\n"),
              "x.art:1: unknown column \"sword\"\n");
    EXPECT_EQ(MistakesOf<Lettering>("[letters]\n= A B\n##\n"),
              "x.art:1: the row \"##\" has another number of letters than its heading\n");
}

TEST(Studio, NamesWhatItLacks) {
    SourceErrors errors("x.art");
    const Studio studio{Palette::Read("a = 102030\n", errors), {}, {}, {}};
    EXPECT_EQ(studio.palette["a"], qRgb(16, 32, 48));
    EXPECT_EQ(studio.Missing(), "");
    (void)studio.palette["c"];
    (void)studio.palette["b"];
    (void)studio.figures["head.cap"];
    EXPECT_EQ(studio.Missing(), "palette.art: lacks b, c\nfigures.art: lacks head.cap\n");
}

}  // namespace
}  // namespace varnstride::art
