#include "actions/courier.h"

#include "model/dice.h"
#include "resources/courier_texts.h"

namespace varnstride {
namespace {

// How many pictures of riders each army has.
int RidersOf(int army) {
    switch (army) {
        case kFrench: return 5;
        case kBritish: return 7;
        case kPrussian: return 3;
        default: return 0;
    }
}

int DrawRider(Game& game) {
    const int riders = RidersOf(game.state.currentArmy);
    return riders > 0 && game.person->PaintsRiders() ? Die(game, riders) : 0;
}

}  // namespace

void ShowCourier(Game& game, int code) {
    game.state.courierCode = code;
    CourierMessage message;
    message.code = code;
    if (code >= kFirstUnitCode) message.title = game.InHand().name.data();
    message.text = CourierTextOf(code);
    message.rider = DrawRider(game);
    game.person->Read(message);
}

void Alert(Game& game) {
    if (game.settings.noErrorAlert != 1) game.person->Play(Sound::Ding);
}

void PlayBattleSound(Game& game, Sound sound) {
    if (game.settings.battleSounds == 1) game.person->Play(sound);
}

}  // namespace varnstride
