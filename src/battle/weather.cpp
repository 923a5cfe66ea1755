#include "battle/weather.h"

#include <algorithm>
#include <cmath>

#include "model/dice.h"

namespace varnstride {
namespace {

constexpr double kHalfHour = 0.3;

constexpr int kHeavyRainCard = 205;
constexpr int kFogCard = 206;
constexpr int kNightCard = 208;
constexpr int kHeavyRainCode = 2;
constexpr int kFogCode = 3;

constexpr int kNight = 2;
constexpr int kTwilight = 3;
constexpr int kThickFog = 4;
constexpr int kFog = 5;
constexpr int kHeaviestRain = 6;
constexpr int kFogLifted = 10;
constexpr int kThickestCloud = 15;
constexpr int kClearDawn = 20;
constexpr int kFarthest = 50;

// How bad a chance in percent is: 0 to 3.
int ClassOf(int chance, int least) {
    if (chance > 70) return 3;
    if (chance > 50) return 2;
    return chance > least ? 1 : 0;
}

void SetCard(Game& game, int card, int code) {
    game.state.eventCard = card;
    game.options.weatherCardCode = code;
}

void RollRain(Game& game, int rain) {
    constexpr int kSpread = 9;
    const int roll = Die(game, kSpread / rain);
    game.header.visibility = kHeaviestRain + roll;
    if (roll < 2) {
        game.state.bombardmentState = 3;
        SetCard(game, kHeavyRainCard, kHeavyRainCode);
    } else {
        if (game.state.bombardmentState == 3) game.state.bombardmentState = 1;
        SetCard(game, 0, 0);
    }
}

void RollCloud(Game& game, int cloud) {
    constexpr int kSpread = 9;
    game.header.visibility = kThickestCloud + Die(game, kSpread / cloud);
}

// Whether the wind takes a fog away that may move from that game turn on.
bool WindClearsFog(Game& game, int firstTurn) {
    constexpr int kBreeze = 5;
    return game.time.windSpeed > kBreeze && game.state.gameTurn >= firstTurn && Die(game, 3) > 0;
}

void HoldFog(Game& game) {
    SetCard(game, kFogCard, kFogCode);
    game.header.visibility = kFog;
    if (!WindClearsFog(game, 3)) return;
    game.state.bombardmentState = 1;
    game.time.fogHold = 0;
    SetCard(game, 0, 0);
    game.header.visibility = kFogLifted;
}

void HoldThickFog(Game& game) {
    SetCard(game, kFogCard, kFogCode);
    game.header.visibility = kThickFog;
    if (!WindClearsFog(game, 2)) return;
    game.header.visibility = kFog;
    game.time.fogHold = 1;
    game.options.weatherCardCode = 0;
}

// A clear sky has no roll that would end the night.
void KeepClearSky(Game& game) {
    int& visibility = game.header.visibility;
    visibility = std::min(visibility, kFarthest);
    if (visibility <= kTwilight && game.state.clockHours < game.time.duskHour) {
        visibility = kClearDawn;
    }
}

void DayWeather(Game& game) {
    constexpr int kFairRain = 10;
    const int rain = ClassOf(game.time.rainChance, kFairRain - 1);
    const int cloud = game.time.rainChance < kFairRain ? ClassOf(game.time.cloudChance, 29) : 0;
    const int fogHold = game.time.fogHold;
    if (rain > 0) RollRain(game, rain);
    if (cloud > 0) RollCloud(game, cloud);
    if (rain == 0 && cloud == 0) KeepClearSky(game);
    if (game.state.eventCard == kNightCard) game.state.eventCard = 0;
    if (fogHold == 1) HoldFog(game);
    if (fogHold == 2) HoldThickFog(game);
}

void Darken(Game& game, int visibility) {
    game.state.eventCard = kNightCard;
    game.header.visibility = visibility;
}

void TwilightAndNight(Game& game) {
    const double clock = game.state.clockHours;
    const int dusk = game.time.duskHour;
    const int dawn = game.time.dawnHour;
    if (clock >= dusk && clock < dusk + kHalfHour) Darken(game, kTwilight);
    if (clock >= dusk + kHalfHour || clock < dawn) Darken(game, kNight);
    if (clock == dawn) Darken(game, kTwilight);
}

}  // namespace

double NormalisedClock(double hours) {
    constexpr double kPastTheHalf = 0.46;
    const double whole = std::trunc(hours);
    if (hours - whole > kPastTheHalf) hours = whole + 1.0;
    return hours >= 24.0 ? 0.0 : hours;
}

void AdvanceWeather(Game& game) {
    game.state.clockHours = NormalisedClock(game.state.clockHours);
    if (game.state.clockHours >= game.time.dawnHour + kHalfHour) DayWeather(game);
    TwilightAndNight(game);
}

}  // namespace varnstride
