#include "toy_scenario.h"

#include <gtest/gtest.h>

#include "atlas_texts.h"
#include "forge/scenario_fields.h"

namespace varnstride {

const AtlasCatalogue& ToyAtlases() {
    static const AtlasCatalogue catalogue = [] {
        AreaRow west;
        west.areaId = 21;
        west.frenchSlots = {Cell{1, 1}, Cell{3, 1}, Cell{1, 3}};
        west.alliedSlots = {Cell{4, 6}, Cell{2, 6}, Cell{1, 6}};
        AreaRow east;
        east.areaId = 22;
        east.frenchSlots = {Cell{7, 1}, Cell{9, 1}, Cell{7, 3}};
        east.alliedSlots = {Cell{10, 6}, Cell{8, 6}, Cell{7, 6}};
        return AtlasCatalogue({Atlas(5, {west, east}, {}), BuildAtlas(GillySource())});
    }();
    return catalogue;
}

const std::string& ToyText() {
    static const std::string text = R"(; A toy.
[battle]
map = 5
grid = 12 x 8
author = A. Tester
date = 1 June 1815
turns = 6
first = French
direction = 2
limits = -30, -10, 10, 30
start = 9.05
dusk = 21
dawn = 4
rain = 10
cloud = 20
wind = 5
fog = 1
visibility = 25

[description]
Two hills and a brook.

Hold both.

[terrain]
. . . f f ~ . . . . . .
 . . . f f ~ . . . . . .
. . . . . ~ . . . v v .
 . c c . . ~ . . . v v .
. c c . . ~ . . . . . .
 . . . . . ~ . . o o . .
. . . . . ~ . . . . . .
 . w w . . L L . . . . .

[areas]
1 1 1 1 1 1 2 2 2 2 2 2
 1 1 1 1 1 1 2 2 2 2 2 2
1 1 1 1 1 1 2 2 2 2 2 2
 1 1 1 1 1 1 2 2 2 2 2 2
1 1 1 1 1 1 2 2 2 2 2 2
 1 1 1 1 1 1 2 2 2 2 2 2
1 1 1 1 1 1 2 2 2 2 2 2
 1 1 1 1 1 1 2 2 2 2 2 2

[heights]
0 0 0 0 0 0 1 1 2 2 2 2
 0 0 0 0 0 0 1 1 2 2 2 2
0 0 0 0 0 0 1 1 2 2 2 2
 0 0 0 0 0 0 1 1 2 2 2 2
0 0 0 0 0 0 1 1 2 2 2 2
 0 0 0 0 0 0 1 1 2 2 2 2
0 0 0 0 0 0 1 1 2 2 2 2
 0 0 0 0 0 0 1 1 2 5 4 3

[overlay]
. . . . . . . . . . . .
 . . . . . . . . . . . .
. . . . . . . . p . . .
 . . . . . . . . p . . .
. . . . . . . . . . . .
 . . . . . . . . . . . .
. . . . . . . . . . . .
 . . . . . . . . . . . .

[roads]
paved High Road: 0,4 11,4
track Mill Lane: 2,4 2,0

[labels]
3,0 "Wood"
9,2 "Upper Village" style 1 2

[objectives]
9,2 100
6,5 exit French

[armies]
French = 5
Prussian = 4

[briefing Prussian]
Hold the village.

[units French]
name      | type          | strength | quality | weapon | leadership | morale | formation | group | at  | arrives | fixed | other
Old Fritz | Leader        | 1        | 2       | Sabre  | 8          | 27     | -         | 0     | 1,1 | -       | -     | -
1st Foot  | LineInfantry  | 5        | 3       | Musket | 6          | 22     | Line      | 1     | 3,1 | -       | 3     | -
2nd Foot  | LightInfantry | 4        | 2       | Rifle  | 6          | 27     | OpenOrder | 1     | 2,4 | 2 80%   | -     | visible=1

[units Prussian]
index | name     | type           | strength | quality | weapon | leadership | morale | at   | ammunition | other
4     | Guns     | FieldArtillery | 2        | 3       | 6pdr   | 6          | 22     | 10,6 | 5          | -
-     | Landwehr | LineInfantry   | 3        | 4       | Musket | 4          | 20     | 8,6  | -          | morale=11
)";
    return text;
}

BattleFile Compiled(const std::string& text, const AtlasCatalogue& atlases) {
    SourceErrors errors("t");
    std::vector<std::string> warnings;
    const auto scenario = CompileScenario(text, atlases, errors, warnings);
    EXPECT_EQ(errors.Text(), "");
    return scenario ? scenario->file : BattleFile{};
}

std::string ErrorsOf(const std::string& text, const AtlasCatalogue& atlases) {
    SourceErrors errors("t");
    std::vector<std::string> warnings;
    const auto scenario = CompileScenario(text, atlases, errors, warnings);
    EXPECT_EQ(scenario.has_value(), errors.IsEmpty());
    return errors.Text();
}

std::string FirstDifference(const BattleFile& have, const BattleFile& want) {
    if (have.mapWidth != want.mapWidth || have.mapHeight != want.mapHeight) return "grid";
    const Overrides overrides = OverridesBetween(have, want);
    const std::string all = overrides.cells + overrides.fields;
    return all.substr(0, all.find('\n'));
}

}  // namespace varnstride
