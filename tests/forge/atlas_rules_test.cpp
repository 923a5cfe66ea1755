// The checker of atlases: Gilly passes, every slip in it that breaks a rule is found, and so are
// the places that other battlefields alone have.
#include "forge/atlas_rules.h"

#include <gtest/gtest.h>

#include "atlas_texts.h"
#include "forge/link_counts.h"

namespace varnstride {
namespace {

struct Finding {
    std::vector<Slip> slips;
    int line;
    std::string_view fragment;
};

void ExpectFindings(const std::string& text, const std::vector<Finding>& findings,
                    std::string Reports::*kind) {
    const std::string before = ReportsOn(text).*kind;
    for (const Finding& finding : findings) {
        const std::string after = ReportsOn(WithSlips(text, finding.slips)).*kind;
        EXPECT_FALSE(Tells(before, finding.line, finding.fragment)) << finding.fragment;
        EXPECT_TRUE(Tells(after, finding.line, finding.fragment))
            << "expected line " << finding.line << ": " << finding.fragment << "\n"
            << after;
    }
}

TEST(AtlasRules, GillyPasses) {
    const Reports reports = ReportsOn(GillyText());
    EXPECT_EQ(reports.errors, "");
    EXPECT_EQ(reports.warnings,
              "t:47: the link from 16 to 18 goes via 15, which is not a first step from the one "
              "and to the other\n");
}

TEST(AtlasRules, GillyHasItsLinks) {
    const AtlasSource source = GillySource();
    const LinkCounts counts = CountLinks({&source, 1});
    EXPECT_EQ(source.rows.size(), 22U);
    EXPECT_EQ(counts.all, 137);
    EXPECT_EQ(counts.firstOpen, 41);
    EXPECT_EQ(counts.footOnly, 36);
    EXPECT_EQ(counts.footOrRoad, 10);
    EXPECT_EQ(counts.secondOpen, 22);
    EXPECT_EQ(counts.secondRoad, 4);
    EXPECT_EQ(counts.viaAlone, 24);
    EXPECT_EQ(counts.secondWithoutVia, 2 + 4);
    EXPECT_EQ(counts.withStep, 113);
    EXPECT_EQ(counts.differing, 25);
}

TEST(AtlasRules, SlipsInAreasAreErrors) {
    ExpectFindings(
        GillyText(),
        {
            {{{"map = 4", "map = 5"}}, 4, "no battlefield 5: expected one of 1, 2, 3, 4, 7, 8"},
            {{{" 22 | 25 |", ";22 | 25 |"}}, 4, "Gilly has 22 areas, here are 21"},
            {{{" 22 | 25 |", " 23 | 25 |"}}, 29, "area 23 stands where area 22 is expected"},
            {{{"  1 | 21", "  1 | 20"}}, 8, "number 20: expected an area number from 21 to 29"},
            {{{"  1 | 21", "  1 | 30"}}, 8, "number 30: expected an area number from 21 to 29"},
            {{{"12, 26", "12, 13"}}, 17, "the x box 12, 13 is empty"},
            {{{"32, 42", "42, 42"}}, 21, "the y box 42, 42 is empty"},
            {{{" 2,6", " 2,2"}}, 8, "(2,2) stands twice in this area"},
            {{{" 13,8", " 2,2"}}, 9, "(2,2) is a slot of area 1 already"},
            {{{"36,11", "38,11"}}, 12, "(38,11) lies off the ground of the slots"},
            {{{" 2,6", " 0,6"}}, 8, "(0,6) lies off the ground of the slots"},
            {{{"10,58", "10,59"}}, 27, "(10,59) lies off the ground of the slots"},
            {{{"10,58", "10,57"}}, 4, "the greatest y of all slots is 57"},
            {{{" 37,8", " 35,8"}, {"37,40", "36,40"}, {"37,34", "36,34"}, {"37,28", "36,28"}},
             4,
             "the greatest x of all slots is 36"},
            {{{"10,4", "11,4"}}, 8, "(11,4) lies outside the area's own box"},
            {{{" 2,6", "2,42"}}, 8, "(2,42) also lies in the box of area 18"},
        },
        &Reports::errors);
}

TEST(AtlasRules, SlipsInLinksAreErrors) {
    ExpectFindings(
        GillyText(),
        {
            {{{"1: foot 2, 7", "1: foot 2, 70"}}, 32, "there is no area 70"},
            {{{"6 via 2", "6 via 23"}}, 32, "there is no area 23"},
            {{{" 22: open", " 24: open"}}, 53, "there is no area 24"},
            {{{"10 via 6 | pass 2 via 6", "10 via 5 | pass 2 via 6"}},
             36,
             "goes via the area that it leaves"},
            {{{"3: foot 2", "3: foot self, 2"}}, 34, "expected that as \"open self\""},
            {{{"3: foot 2", "3: open self via 4 | foot 2"}}, 34, "expected that as \"open self\""},
            {{{"3: foot 2", "3: open self | foot 2"}}, 4, "areas linked to themselves: here are 1"},
            {{{"3: foot 2", "3: foot 2 no-bombardment"}}, 34, "on a second step only"},
            {{{"second 10 via 6", "second 10 via 6 no-bombardment"}},
             4,
             "links closed to bombardment: here are 1"},
            {{{"1: foot 2, 7", "1: foot 2, 7, 10"}}, 32, "between two areas of number 21"},
            {{{"8: foot 1, 7, 9", "8: second 1, 7, 9"}}, 15, "area 8 has no first step out"},
            {{{"2: foot 1, ", "2: foot "},
              {"7: foot 1, ", "7: foot "},
              {"8: foot 1, ", "8: foot "}},
             8,
             "area 1 has no first step in"},
            {{{"4: foot 3, 5, 6", "4: foot 3, 5"}}, 35, "expected \"foot 6\", here is none"},
            {{{" 17: open 13, 16, 18, 22 | pass 15 via 16\n", ""}},
             4,
             "the link from 17 to 13 is fixed on Gilly"},
            {{{"5: open 6", "5: foot-or-road 6"}},
             36,
             "expected \"open 6\", here is \"foot-or-road 6\""},
            {{{"20 via 19 | pass", "20 via 21 | pass"}}, 46, "expected \"second 20 via 19\""},
            {{{"3: foot 2", "3: foot 1, 2"}}, 34, "Gilly has no link from 3 to 1"},
        },
        &Reports::errors);
}

TEST(AtlasRules, SlipsInKnownPlacesAreErrors) {
    ExpectFindings(GillyText(),
                   {
                       {{{"-, 14", "-, 15"}},
                        16,
                        "area 9 is fixed on Gilly: expected \"9 | 29 | -, 14 | -, - | 2,31 5,31 "
                        "9,31 | 11,28 7,28 3,28\""},
                       {{{"  5 | 25", "  5 | 24"}}, 4, "the exit \"To Fleurus\""},
                       {{{"32,14", "32,20"}}, 12, "the exit \"To Fleurus\""},
                       {{{"37,40", "37,43"}}, 20, "the exit \"East of Bois de TriCheheve\""},
                   },
                   &Reports::errors);
}

TEST(AtlasRules, OddLinksAndBoxesAreWarnings) {
    ExpectFindings(GillyText(),
                   {
                       {{{"34,57", " 3,57"}}, 25, "(3,57) also lies in the box of area 1"},
                       {{{"20, 21 | second 10", "20, 21 | second 14, 10"}},
                        50,
                        "the link from 19 to 14 has a first and a second step"},
                       {{{"20 via 19 | pass 13", "20 via 9 | pass 13"}},
                        46,
                        "the link from 15 to 20 goes via 9, which is not a first step"},
                       {{{"8: foot 1, 7, 9", "8: foot 9"}, {"9: foot 8, 10, 14, 15", "9: foot 8"}},
                        15,
                        "on foot no way leads from area 8 to area 1"},
                       {{{"7: foot 1, 2, 6, 8", "7: foot 1, 2, 6"},
                         {"10: open 6, 11, 15 | foot 8, 9", "10: open 6, 11, 15"},
                         {"14: open 15, 19 | foot 9", "14: open 15, 19"},
                         {"21, 22 | foot 9", "21, 22"}},
                        16,
                        "on foot no way leads from area 1 to area 9"},
                   },
                   &Reports::warnings);
}

// A few areas of Wavre: both places of militia and both river crossings, in order and linked.
constexpr std::string_view kWavreText =
    "map = 8\n"
    "[areas]\n"
    "1 | 24 | 0, 13 | -1, 11 | 6,8 7,5 10,4 | 3,2 6,1 2,7\n"
    "2 | 21 | -, - | -, - | 48,68 45,68 42,68 | 43,65 40,66 38,68\n"
    "3 | 25 | -, - | -, 10 | 19,8 16,8 16,5 | 13,2 16,2 13,5\n"
    "4 | 22 | -, - | -, - | 32,57 34,55 37,54 | 35,50 33,52 31,54\n"
    "5 | 23 | 20, - | -, - | 32,46 29,49 27,51 | 26,48 27,45 30,44\n"
    "6 | 26 | -, 30 | 60, - | 12,68 15,68 9,68 | 14,66 11,66 8,66\n"
    "7 | 27 | -, 30 | -, - | 5,64 4,68 2,66 | 7,63 5,61 3,63\n"
    "[links]\n"
    "4: foot 5\n"
    "5: foot 4\n"
    "6: foot 7\n"
    "7: foot 6\n";

TEST(AtlasRules, PlacesOfWavreAreLookedFor) {
    ExpectFindings(
        std::string(kWavreText),
        {
            {{{"6,8 7,5", "7,5 6,8"}}, 3, "area 1 is fixed on Wavre"},
            {{{"48,68 45,68", "45,68 48,68"}}, 4, "raised militia needs an area"},
            {{{"38,68", "38,67"}}, 4, "raised militia needs an area"},
            {{{"19,8 16,8 16,5 | 13,2 16,2 13,5", "19,8 16,8 16,6 | 13,2 16,2 13,6"}},
             1,
             "raised militia needs an area"},
            {{{"3 | 25", "3 | 26"}}, 1, "the exit \"To Brussels\""},
            {{{"32,57", "32,58"}}, 1, "no area has the French slots (32,57) (34,55) (37,54)"},
            {{{"3,63", "3,64"}}, 1, "no area has the Allied slots (7,63) (5,61) (3,63)"},
            {{{"5 | 23 | 20, -", "5 | 23 | -, 20"},
              {"4 | 22 | -, -", "4 | 22 | -, 22"},
              {"2 | 21 | -, -", "2 | 21 | -, 22"},
              {"3 | 25 | -, -", "3 | 25 | -, 22"},
              {"7 | 27 | -, 30", "7 | 27 | -, 22"}},
             1,
             "the objective Wavre at (37,36) lies in no area's box"},
        },
        &Reports::errors);
    ExpectFindings(
        std::string(kWavreText),
        {
            {{{"32,57 34,55", "34,55 32,57"}},
             6,
             "the French slots beside the river stand in another order"},
            {{{"35,50 33,52 31,54", "26,48 27,45 30,44"},
              {"27,51 | 26,48 27,45 30,44", "27,51 | 35,50 33,52 31,54"}},
             6,
             "the Allied slots (35,50) (33,52) (31,54) in area 5: expected one area"},
            {{{"4: foot 5", "4: second 5"}},
             6,
             "expected a first step over the river from area 4 to area 5"},
            {{{"6: foot 7", "6: foot 4"}},
             8,
             "expected a first step over the river from area 6 to area 7"},
            {{{"3 | 25", "3 | 24"}}, 5, "expected to be the exit \"To Brussels\" as well"},
        },
        &Reports::warnings);
}

// A few areas of Mont St Jean: an entrance, a stronghold, a battery and a spare area of each.
constexpr std::string_view kMontStJeanText =
    "map = 7\n"
    "[areas]\n"
    "1 | 27 | -, - | -, - | 91,43 94,41 97,40 | 94,33 97,34 92,40\n"
    "2 | 21 | -, - | -, - | 20,45 20,46 20,47 | 12,45 12,46 12,47\n"
    "3 | 26 | -, - | -, - | 44,38 45,38 46,38 | 44,34 45,34 46,34\n"
    "4 | 21 | 50, - | -, - | 60,5 61,5 62,5 | 60,8 61,8 62,8\n"
    "5 | 26 | 50, - | -, - | 70,5 71,5 72,5 | 70,8 71,8 72,8\n"
    "[links]\n";

TEST(AtlasRules, PlacesOfMontStJeanAreLookedFor) {
    ExpectFindings(std::string(kMontStJeanText),
                   {
                       {{{"91,43 94,41", "94,41 91,43"}},
                        1,
                        "exactly one area with (91,43) as its first French slot"},
                       {{{"2 | 21", "2 | 22"}},
                        1,
                        "exactly one area of number 21 with a slot within x 9, 18; y 43, 52, here "
                        "are: none"},
                       {{{"60,5", "10,50"}},
                        1,
                        "exactly one area of number 21 with a slot within x 9, 18; y 43, 52, here "
                        "are: 2, 4"},
                       {{{"20,45", "18,45"}}, 4, "(18,45) lies on the edge of x 9, 18; y 43, 52"},
                       {{{"12,46", "12,52"}}, 4, "(12,52) lies on the edge of x 9, 18; y 43, 52"},
                       {{{"44,38 45,38 46,38", "44,35 45,35 46,35"}},
                        1,
                        "number 26 with a French slot within x 39, 50; y 36, 47, here are: none"},
                       {{{"44,34", "44,36"}}, 5, "(44,36) lies on the edge of x 39, 50; y 36, 47"},
                       {{{"map = 7", "map = 1"}}, 1, "the link from 1 to 2 is fixed on Quatre"},
                   },
                   &Reports::errors);
    ExpectFindings(std::string(kMontStJeanText),
                   {{{{"46,38", "46,35"}}, 5, "not all French slots of this battery's area"}},
                   &Reports::warnings);
}

TEST(AtlasRules, LinksAreCountedOverAllBattlefieldsOnly) {
    std::vector<AtlasSource> atlases = {GillySource()};
    EXPECT_FALSE(HoldsAllBattlefields(atlases));
    for (int map : {1, 2, 3, 7, 8})
        atlases.push_back({map, 1, {}, {}});
    EXPECT_TRUE(HoldsAllBattlefields(atlases));
    const std::vector<std::string> odd = OddLinkCounts(CountLinks(atlases));
    ASSERT_FALSE(odd.empty());
    EXPECT_EQ(odd.front(), "all battlefields together have 137 links: expected 3051 to 3729");
    EXPECT_EQ(odd.back(),
              "of all battlefields' links 22 in a hundred differ from their reverse: expected 5 "
              "to 20");
    const LinkCounts balanced{3390, 1063, 221, 60, 180, 1211, 508, 140, 170, 120, 80, 3250, 325};
    EXPECT_TRUE(OddLinkCounts(balanced).empty());
}

}  // namespace
}  // namespace varnstride
