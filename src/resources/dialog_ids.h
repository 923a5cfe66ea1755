// The numbers by which dialogs are known.
#pragma once

namespace varnstride {

constexpr int kStrength = 143;
constexpr int kCommandReport = 144;
constexpr int kArrived = 145;
constexpr int kObjectives = 148;
constexpr int kVictory = 149;
constexpr int kBombardmentList = 150;
constexpr int kUnitSheet = 223;
constexpr int kBattleResult = 245;
constexpr int kGameEnd = 269;
constexpr int kReleaseSchedule = 274;
constexpr int kReinforcementSchedule = 275;
constexpr int kScenarioOptions = 302;
constexpr int kSetPassword = 304;
constexpr int kPasswordCheck = 305;
constexpr int kScenarioDescription = 316;
constexpr int kOptions = 320;
constexpr int kScenarioInformation = 324;
constexpr int kRoutedUnitReport = 338;
constexpr int kSurrenderedUnitReport = 341;
constexpr int kFormationChange = 342;
constexpr int kDetachFormation = 364;
constexpr int kRemovedUnits = 388;
constexpr int kArmyUnitListing = 395;
constexpr int kSpeedOfAction = 396;
constexpr int kStartScreen = 398;
constexpr int kIntelligenceReport = 421;
constexpr int kEndGameStatus = 427;
constexpr int kScenarioSettings = 452;
constexpr int kCardDraw = 475;
constexpr int kAllArmsTactics = 541;
constexpr int kLightTactics = 566;
constexpr int kCavalryTactics = 567;
constexpr int kLineTactics = 568;
constexpr int kLineCavalryTactics = 569;
constexpr int kLightGunsTactics = 570;
constexpr int kLineGunsTactics = 571;
constexpr int kCavalryGunsTactics = 572;
constexpr int kLightCavalryTactics = 574;
constexpr int kRotateUnits = 614;
constexpr int kCardReminder = 643;
constexpr int kLineCavalryLightTactics = 1810;
constexpr int kLineGunsLightTactics = 1811;
constexpr int kCavalryGunsLightTactics = 1812;

}  // namespace varnstride
