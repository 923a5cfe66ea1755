// The numbers by which dialogs are known.
#pragma once

namespace varnstride {

constexpr int kCommandReport = 144;
constexpr int kBattleResult = 245;
constexpr int kGameEnd = 269;
constexpr int kRoutedUnitReport = 338;
constexpr int kSurrenderedUnitReport = 341;
constexpr int kStartScreen = 398;

}  // namespace varnstride
