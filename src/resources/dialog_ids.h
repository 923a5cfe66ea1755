// The numbers by which dialogs are known.
#pragma once

namespace varnstride {

constexpr int kCommandReport = 144;
constexpr int kGameEnd = 269;
constexpr int kScenarioOptions = 302;
constexpr int kSetPassword = 304;
constexpr int kPasswordCheck = 305;
constexpr int kOptions = 320;
constexpr int kRoutedUnitReport = 338;
constexpr int kStartScreen = 398;

}  // namespace varnstride
