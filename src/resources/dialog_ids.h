// The numbers by which dialogs are known.
#pragma once

namespace varnstride {

constexpr int kCommandReport = 144;
constexpr int kVictory = 149;
constexpr int kBattleResult = 245;
constexpr int kGameEnd = 269;
constexpr int kScenarioOptions = 302;
constexpr int kSetPassword = 304;
constexpr int kPasswordCheck = 305;
constexpr int kScenarioDescription = 316;
constexpr int kOptions = 320;
constexpr int kScenarioInformation = 324;
constexpr int kRoutedUnitReport = 338;
constexpr int kSurrenderedUnitReport = 341;
constexpr int kSpeedOfAction = 396;
constexpr int kStartScreen = 398;
constexpr int kEndGameStatus = 427;
constexpr int kScenarioSettings = 452;
constexpr int kCardReminder = 643;

}  // namespace varnstride
