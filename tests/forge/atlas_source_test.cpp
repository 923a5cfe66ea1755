// Reading atlas texts: each slip is reported with its line and what was expected, and all slips
// of a text in one run.
#include "forge/atlas_source.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "atlas_texts.h"

namespace varnstride {
namespace {

constexpr std::string_view kSmallText =
    "map = 4\n"                                             // 1
    "[areas]\n"                                             // 2
    "1 | 21 | -, 11 | -, - | 2,2 2,6 5,2 | 6,5 10,4 8,1\n"  // 3
    "2 | 22 | 3, - | -1, 12 | 13,2 13,8 12,5 | 15,5 16,2 15,10\n"
    "[links]\n"                                             // 5
    "1: open 2 | second 3 via 2 no-bombardment, 4 via 2\n"  // 6
    "2: foot 1, 3 | second-road 1 via 3 | pass 4 via 1\n";  // 7

struct BrokenText {
    std::vector<Slip> slips;
    int line;
    std::string_view fragment;
};

TEST(AtlasSource, EachSlipIsNamedWithItsLine) {
    const BrokenText cases[] = {
        {{{"map = 4\n", "\n"}}, 0, "expected \"map = NUMBER\" before the sections"},
        {{{"map = 4", "map = four"}}, 1, "\"four\": expected a whole number"},
        {{{"map = 4", "map 4"}}, 1, "\"map 4\": expected \"map = NUMBER\""},
        {{{"map = 4", "map = 4\nmap = 4"}}, 2, "a second time, first in line 1"},
        {{{"[areas]", "[area]"}}, 2, "[area] is no section: expected [areas] or [links]"},
        {{{"[areas]", "[area]"}}, 0, "expected a section [areas]"},
        {{{"[links]", "[areas]"}}, 5, "[areas] stands twice"},
        {{{"[links]", "[areas]"}}, 0, "expected a section [links]"},
        {{{"| 6,5", "6,5"}}, 3, "6 columns parted by |, here are 5"},
        {{{"1 | 21", "one | 21"}}, 3, "\"one\": expected a whole number, the ordinal"},
        {{{"21 |", "2l |"}}, 3, "\"2l\": expected a whole number, the area's number"},
        {{{"-, 11", "11"}}, 3, "\"11\": expected the x box as two bounds"},
        {{{"-1, 12", "-1, 12.5"}}, 4, "\"-1, 12.5\": expected the y box as two bounds"},
        {{{"2,2 2,6 5,2", "2,2 2,6"}}, 3, "expected the three French slots"},
        {{{"8,1", "8;1"}}, 3, "\"8;1\": expected a slot of the Allied side as x,y"},
        {{{"2,6", "2,99999999999"}}, 3, "expected a slot of the French side"},
        {{{"1: open 2", "1 open 2"}}, 6, "expected the links of an area, such as"},
        {{{"1: open 2", "x: open 2"}}, 6, "\"x\": expected a whole number"},
        {{{"2: foot", "1: foot"}}, 7, "area 1 has its links in line 6 already"},
        {{{"open 2", "opne 2"}}, 6, "\"opne\": expected a kind of link"},
        {{{"open 2", ""}}, 6, "\"\": expected a kind of link"},
        {{{"open 2", "open"}}, 6, "\"\": expected a target area of \"open\""},
        {{{"open 2", "open two"}}, 6, "\"two\": expected a target area of \"open\""},
        {{{"3 via 2", "3 over 2"}}, 6, "\"3 over 2 no-bombardment\": expected a target area"},
        {{{"4 via 2", "4 via"}}, 6, "\"4 via\": expected a target area of \"second\""},
        {{{"4 via 2", "4 via 0"}}, 6, "\"4 via 0\": expected a target area"},
        {{{"open 2", "open 1"}}, 6, "area 1 links to itself: expected \"self\" if meant"},
        {{{"4 via 1", "4"}}, 7, "\"4\": expected \"via\" and an area"},
        {{{"foot 1, 3", "foot 1, 3, 3"}}, 7, "area 3 stands twice"},
        {{{"foot 1, 3", "foot 1 via 2, 3"}}, 7, "area 1 stands twice"},
        {{{"pass 4", "pass 3"}}, 7, "area 3 stands twice"},
    };
    for (const BrokenText& broken : cases) {
        const std::string text = WithSlips(std::string(kSmallText), broken.slips);
        SourceErrors errors("t");
        ParseAtlasSource(text, errors);
        EXPECT_TRUE(Tells(errors.Text(), broken.line, broken.fragment))
            << "expected line " << broken.line << ": " << broken.fragment << "\n"
            << errors.Text();
    }
}

TEST(AtlasSource, AllSlipsComeInOneRun) {
    const std::string text = WithSlips(
        std::string(kSmallText),
        {{"21 |", "x |"}, {"-, 11", "?"}, {"13,8", "13"}, {"open 2", "open b"}, {"4 via 1", "4"}});
    SourceErrors errors("t");
    ParseAtlasSource(text, errors);
    const std::string reports = errors.Text();
    EXPECT_EQ(std::count(reports.begin(), reports.end(), '\n'), 5) << reports;
}

TEST(AtlasSource, BlanksCommentsAndLineEndsDoNotMatter) {
    std::string text = "; a comment\r\n\r\n";
    for (char letter : kSmallText) {
        if (letter == '\n') text += " \t\r";
        text += letter;
    }
    SourceErrors errors("t");
    const AtlasSource source = ParseAtlasSource(text, errors);
    EXPECT_EQ(errors.Text(), "");
    ASSERT_EQ(source.rows.size(), 2U);
    EXPECT_EQ(source.rows[1].line, 6);
    EXPECT_EQ(source.rows[1].row.xAbove, 3);
    EXPECT_EQ(source.rows[1].row.xBelow, std::nullopt);
    EXPECT_EQ(source.rows[1].row.yAbove, -1);
}

TEST(AtlasSource, ALinkTakesItsStepsFromTwoParts) {
    SourceErrors errors("t");
    const AtlasSource source = ParseAtlasSource(kSmallText, errors);
    EXPECT_EQ(errors.Text(), "");
    const std::vector<AreaLink> expected = {
        {1, 2, FirstStep::Open, SecondStep::None, 0, false},
        {1, 3, FirstStep::None, SecondStep::Open, 2, true},
        {1, 4, FirstStep::None, SecondStep::Open, 2, false},
        {2, 1, FirstStep::FootOnly, SecondStep::RoadOnly, 3, false},
        {2, 3, FirstStep::FootOnly, SecondStep::None, 0, false},
        {2, 4, FirstStep::None, SecondStep::None, 1, false},
    };
    ASSERT_EQ(source.links.size(), expected.size());
    for (std::size_t link = 0; link < expected.size(); ++link) {
        EXPECT_EQ(source.links[link].link, expected[link]) << link;
    }
}

// A text as large as the largest battlefield, made of the words that messages use, comes back as
// it went in.
TEST(AtlasSource, TheLargestBattlefieldIsReadBackAsWritten) {
    constexpr int kAreas = 105;
    constexpr int kLinks = 1200;
    std::vector<AreaRow> rows;
    std::string text = "map = 3\n[areas]\n";
    for (int area = 1; area <= kAreas; ++area) {
        const int x = area % 15 * 7 + 1;
        const int y = area / 15 * 10;
        rows.push_back({21 + area % 9,
                        x - 2,
                        x + 6,
                        y - 1,
                        std::nullopt,
                        {{{x, y}, {x + 1, y}, {x + 2, y}}},
                        {{{x, y + 2}, {x + 1, y + 2}, {x + 2, y + 2}}}});
        text += RowText(area, rows.back()) + "\n";
    }
    text += "[links]\n";
    std::vector<AreaLink> links;
    for (int from = 1; static_cast<int>(links.size()) < kLinks; ++from) {
        std::string line = std::to_string(from) + ":";
        for (int step = 1; step <= 12 && static_cast<int>(links.size()) < kLinks; ++step) {
            AreaLink link{from, (from + step * 3) % kAreas + 1};
            if (link.to == from) continue;
            link.firstStep = static_cast<FirstStep>(step % 4);
            link.secondStep = step % 4 == 2   ? SecondStep::RoadOnly
                              : step % 8 == 4 ? SecondStep::Open
                                              : SecondStep::None;
            const bool hasStep =
                link.firstStep != FirstStep::None || link.secondStep != SecondStep::None;
            if (step % 3 == 0 || !hasStep) link.viaArea = from % kAreas + 1;
            link.noBombardment = step == 4;
            line += (line.back() == ':' ? " " : " | ") + LinkText(link);
            links.push_back(link);
        }
        text += line + "\n";
    }
    SourceErrors errors("t");
    const AtlasSource source = ParseAtlasSource(text, errors);
    EXPECT_EQ(errors.Text(), "");
    ASSERT_EQ(source.rows.size(), rows.size());
    for (std::size_t row = 0; row < rows.size(); ++row) {
        EXPECT_EQ(source.rows[row].row, rows[row]) << row;
    }
    ASSERT_EQ(source.links.size(), links.size());
    for (std::size_t link = 0; link < links.size(); ++link) {
        EXPECT_EQ(source.links[link].link, links[link]) << LinkText(links[link]);
    }
}

}  // namespace
}  // namespace varnstride
