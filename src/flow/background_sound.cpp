#include "flow/background_sound.h"

#include <array>

#include "model/dice.h"

namespace varnstride {
namespace {

constexpr std::array<Sound, 10> kTracks = {
    Sound::Music01, Sound::Music05, Sound::Music07, Sound::Music08, Sound::Music09,
    Sound::Music10, Sound::Music12, Sound::Music13, Sound::Music19, Sound::Music20};

struct Ambience {
    int leastVisibility;
    Sound sound;
};

constexpr std::array<Ambience, 5> kAmbience = {{
    {20, Sound::AmbientSummer},
    {15, Sound::AmbientLightWind},
    {6, Sound::AmbientStorm},
    {4, Sound::AmbientWinter},
    {-32768, Sound::AmbientNight},
}};

Sound AmbientOf(int visibility) {
    for (const Ambience& ambience : kAmbience) {
        if (visibility >= ambience.leastVisibility) return ambience.sound;
    }
    return Sound::AmbientNight;
}

void StopMusic(Game& game) {
    for (Sound track : kTracks)
        game.person->Stop(track);
}

}  // namespace

void StopAmbient(Game& game) {
    for (const Ambience& ambience : kAmbience)
        game.person->Stop(ambience.sound);
}

void StartAmbient(Game& game) {
    StopMusic(game);
    const Sound chosen = AmbientOf(game.header.visibility);
    for (const Ambience& ambience : kAmbience) {
        if (ambience.sound != chosen) game.person->Stop(ambience.sound);
    }
    game.person->Loop(chosen);
}

void StartMusic(Game& game) {
    game.state.musicSeconds = 0;
    StopMusic(game);
    if (game.settings.backgroundMusic != 1) return;
    StopAmbient(game);
    game.state.musicTrack = Die(game, static_cast<int>(kTracks.size())) + 1;
    game.person->Loop(kTracks[static_cast<std::size_t>(game.state.musicTrack - 1)]);
}

void RestartBackgroundSound(Game& game) {
    if (game.settings.backgroundMusic == 1) {
        StartMusic(game);
    } else if (game.settings.backgroundSound == 1) {
        StartAmbient(game);
    }
}

}  // namespace varnstride
