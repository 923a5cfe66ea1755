#include "platform/headless/fresh_game.h"

namespace varnstride {
namespace {

constexpr int kUsualResultPause = 1600;  // milliseconds

}  // namespace

Settings HeadlessSettings() {
    Settings settings;
    settings.resultPauseSetting = kUsualResultPause;
    settings.noDelays = 1;
    settings.mapView = 1;
    settings.quickResults = 1;
    return settings;
}

Game FreshGame(const AtlasCatalogue& atlases, Person& person, const Settings& settings) {
    Game game(atlases, person);
    game.settings = settings;
    const int pause = settings.resultPauseSetting;
    game.state.resultPause = pause == 0 ? kUsualResultPause : pause;
    return game;
}

}  // namespace varnstride
