// What the sky does at each new game turn, die by die, and how the clock reads.
#include "battle/weather.h"

#include <gtest/gtest.h>

#include "support/field.h"
#include "support/prepared_dice.h"

namespace varnstride {
namespace {

// What a turn of the weather starts from and leaves.
struct Sky {
    int visibility;
    int eventCard;
    int weatherCardCode;
    int bombardmentState;
    int fogHold;
    bool operator==(const Sky&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Sky& sky) {
    return out << "visibility " << sky.visibility << ", card " << sky.eventCard << ", code "
               << sky.weatherCardCode << ", bombardment " << sky.bombardmentState << ", fog "
               << sky.fogHold;
}

struct Climate {
    double clock = 12.0;
    int rainChance = 0;
    int cloudChance = 0;
    int windSpeed = 8;
    int gameTurn = 5;
};

struct WeatherCase {
    const char* name;
    Climate climate;
    std::vector<DieThrow> dice;
    Sky before;
    Sky after;
};

// Dawn at 5, dusk at 21.
void ExpectWeather(const std::vector<WeatherCase>& cases) {
    Field field({});
    Game& game = field.game;
    game.time.dawnHour = 5;
    game.time.duskHour = 21;
    for (const WeatherCase& weather : cases) {
        game.state.clockHours = weather.climate.clock;
        game.time.rainChance = weather.climate.rainChance;
        game.time.cloudChance = weather.climate.cloudChance;
        game.time.windSpeed = weather.climate.windSpeed;
        game.state.gameTurn = weather.climate.gameTurn;
        game.header.visibility = weather.before.visibility;
        game.state.eventCard = weather.before.eventCard;
        game.options.weatherCardCode = weather.before.weatherCardCode;
        game.state.bombardmentState = weather.before.bombardmentState;
        game.time.fogHold = weather.before.fogHold;
        const std::uint32_t thrown = PrepareDice(game, weather.dice);
        AdvanceWeather(game);
        const Sky after{game.header.visibility, game.state.eventCard, game.options.weatherCardCode,
                        game.state.bombardmentState, game.time.fogHold};
        EXPECT_EQ(after, weather.after) << weather.name;
        EXPECT_EQ(game.generator.State(), thrown) << weather.name;
    }
}

constexpr Sky kClear{30, 0, 0, 0, 0};

TEST(Weather, RollsRainAndCloud) {
    ExpectWeather({
        {"9 and 29 percent: no dice", {.rainChance = 9, .cloudChance = 29}, {}, kClear, kClear},
        {"clear as far as 50", {}, {}, {60, 0, 0, 0, 0}, {50, 0, 0, 0, 0}},
        {"10 percent rain: nine ways", {.rainChance = 10}, {{9, 8}}, kClear, {14, 0, 0, 0, 0}},
        {"heavy in two of them", {.rainChance = 10}, {{9, 1}}, kClear, {7, 205, 2, 3, 0}},
        {"light in the third", {.rainChance = 50}, {{9, 2}}, kClear, {8, 0, 0, 0, 0}},
        {"51 percent: four ways", {.rainChance = 51}, {{4, 3}}, kClear, {9, 0, 0, 0, 0}},
        {"70 percent as well", {.rainChance = 70}, {{4, 0}}, kClear, {6, 205, 2, 3, 0}},
        {"71 percent: three ways", {.rainChance = 71}, {{3, 2}}, kClear, {8, 0, 0, 0, 0}},
        {"cloud is not asked in rain",
         {.rainChance = 10, .cloudChance = 90},
         {{9, 4}},
         kClear,
         {10, 0, 0, 0, 0}},
        {"heavy rain ends, a card's code with it",
         {.rainChance = 20},
         {{9, 5}},
         {6, 205, 1, 3, 0},
         {11, 0, 0, 1, 0}},
        {"a notice given is not given again",
         {.rainChance = 20},
         {{9, 5}},
         {12, 0, 0, 2, 0},
         {11, 0, 0, 2, 0}},
        {"30 percent cloud: nine ways", {.cloudChance = 30}, {{9, 8}}, kClear, {23, 0, 0, 0, 0}},
        {"51 percent: four ways", {.cloudChance = 51}, {{4, 3}}, kClear, {18, 0, 0, 0, 0}},
        {"71 percent: three ways", {.cloudChance = 71}, {{3, 0}}, kClear, {15, 0, 0, 0, 0}},
        {"cloud leaves a draw card",
         {.cloudChance = 30},
         {{9, 0}},
         {9, 7, 1, 0, 0},
         {15, 7, 1, 0, 0}},
    });
}

TEST(Weather, HoldsFogUntilTheWindComes) {
    const Sky fog{5, 206, 3, 0, 1};
    const Sky thick{4, 206, 3, 0, 2};
    ExpectWeather({
        {"no wind", {.windSpeed = 5}, {}, {30, 0, 0, 0, 1}, fog},
        {"too early", {.windSpeed = 6, .gameTurn = 2}, {}, fog, fog},
        {"holds by the die", {.windSpeed = 6, .gameTurn = 3}, {{3, 0}}, fog, fog},
        {"lifts", {.windSpeed = 6, .gameTurn = 3}, {{3, 1}}, fog, {10, 0, 0, 1, 0}},
        {"lifts on a 2 too", {}, {{3, 2}}, fog, {10, 0, 0, 1, 0}},
        {"thick fog: no wind", {.windSpeed = 5}, {}, {30, 0, 0, 0, 2}, thick},
        {"thick fog: too early", {.gameTurn = 1}, {}, thick, thick},
        {"thick fog: holds by the die", {.gameTurn = 2}, {{3, 0}}, thick, thick},
        {"thins to fog, which is not tested at once",
         {.gameTurn = 2},
         {{3, 1}},
         thick,
         {5, 206, 0, 0, 1}},
        {"rain is rolled first, the fog covers it",
         {.rainChance = 80, .windSpeed = 0},
         {{3, 0}},
         fog,
         {5, 206, 3, 3, 1}},
    });
}

TEST(Weather, DarkensByTheHour) {
    const Sky night{2, 208, 0, 0, 0};
    const Sky twilight{3, 208, 0, 0, 0};
    ExpectWeather({
        {"before dusk", {.clock = 20.3}, {}, kClear, kClear},
        {"dusk", {.clock = 21.0}, {}, kClear, twilight},
        {"night half an hour on", {.clock = 21.3}, {}, kClear, night},
        {"the day's dice fall in the evening too",
         {.clock = 21.3, .cloudChance = 80},
         {{3, 1}},
         kClear,
         night},
        {"midnight", {.clock = 23.6}, {}, night, night},
        {"before dawn no day's dice", {.clock = 4.3, .rainChance = 90}, {}, night, night},
        {"dawn", {.clock = 4.6, .rainChance = 90}, {}, night, twilight},
        {"a clear morning", {.clock = 5.3}, {}, twilight, {20, 0, 0, 0, 0}},
        {"a cloudy one", {.clock = 5.3, .cloudChance = 80}, {{3, 2}}, twilight, {17, 0, 0, 0, 0}},
        {"a clear one in fog",
         {.clock = 5.3, .windSpeed = 0},
         {},
         {3, 208, 0, 0, 1},
         {5, 206, 3, 0, 1}},
    });
}

TEST(Clock, ReadsInHalfHours) {
    constexpr std::pair<double, double> kReadings[] = {
        {9.3, 9.3}, {9.4, 9.4}, {9.6, 10.0}, {23.6, 0.0}, {24.0, 0.0}, {24.3, 0.0},
    };
    for (const auto& [clock, reading] : kReadings)
        EXPECT_DOUBLE_EQ(NormalisedClock(clock), reading) << clock;
}

}  // namespace
}  // namespace varnstride
