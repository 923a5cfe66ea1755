#include "flow/turn_effects.h"

#include <algorithm>

namespace varnstride {
namespace {

enum EffectBit {
    kStrikeDrawCard = 1,
    kSteadyNerves = 2,
    kHaltBeforeContact = 4,
    kNoCloseEntry = 8,
    kAlliesApart = 16,
};

int OneTurnEffects(const GameState& state) {
    return (state.strikeDrawCard == 1 ? kStrikeDrawCard : 0) |
           (state.steadyNerves == 1 ? kSteadyNerves : 0) |
           (state.haltBeforeContact ? kHaltBeforeContact : 0) |
           (state.noCloseEntry ? kNoCloseEntry : 0) | (state.alliesApart ? kAlliesApart : 0);
}

void SetOneTurnEffects(GameState& state, int bits) {
    state.strikeDrawCard = (bits & kStrikeDrawCard) != 0 ? 1 : 0;
    state.steadyNerves = (bits & kSteadyNerves) != 0 ? 1 : 0;
    state.haltBeforeContact = (bits & kHaltBeforeContact) != 0;
    state.noCloseEntry = (bits & kNoCloseEntry) != 0;
    state.alliesApart = (bits & kAlliesApart) != 0;
}

// The tag's place in the log, behind everything that a battle pass records, and its entries.
constexpr std::size_t kTag = 2480;
constexpr std::int16_t kTagWord = 0x5653;

enum TagEntry : std::size_t {
    kGeneratorLow = kTag + 1,
    kGeneratorHigh,
    kEventCard,
    kEffects,
    kSteadyNervesArmy,
    kBombardmentState,
};

// Only a turn finished by e-mail needs the whole log for its dice.
bool CanHoldTag(const Game& game) {
    return game.header.playByEmail == 0 || game.turnLog.turnInProgress == 1;
}

std::uint32_t Word(std::int16_t entry) {
    return static_cast<std::uint16_t>(entry);
}

}  // namespace

void RestoreWeatherCard(Game& game) {
    constexpr int kFirstCardCode = 2;
    constexpr int kLastCardCode = 5;
    const int code = game.options.weatherCardCode;
    if (code == kStrikeCardCode) game.state.strikeDrawCard = 1;
    if (code >= kFirstCardCode && code <= kLastCardCode) {
        game.state.eventCard = kFirstWeatherCard + code - kFirstCardCode;
    }
}

void RecordEffects(Game& game) {
    game.turnLog.rollLog[0] = static_cast<std::int16_t>(OneTurnEffects(game.state));
}

void ReplayEffects(Game& game) {
    SetOneTurnEffects(game.state, game.turnLog.rollLog[0]);
    game.state.steadyNervesArmy = game.state.currentArmy;
}

void WriteTurnTag(const Game& game, RollLog& log) {
    const std::uint32_t generator = game.generator.State();
    std::fill(log.begin() + kTag, log.end(), std::int16_t{0});
    log[kTag] = kTagWord;
    log[kGeneratorLow] = static_cast<std::int16_t>(generator & 0xFFFFU);
    log[kGeneratorHigh] = static_cast<std::int16_t>(generator >> 16);
    log[kEventCard] = static_cast<std::int16_t>(game.state.eventCard);
    log[kEffects] = static_cast<std::int16_t>(OneTurnEffects(game.state));
    log[kSteadyNervesArmy] = static_cast<std::int16_t>(game.state.steadyNervesArmy);
    log[kBombardmentState] = static_cast<std::int16_t>(game.state.bombardmentState);
}

void TakeTurnTag(Game& game) {
    RollLog& log = game.turnLog.rollLog;
    if (!CanHoldTag(game) || log[kTag] != kTagWord) return;
    game.generator.Seed(Word(log[kGeneratorLow]) | Word(log[kGeneratorHigh]) << 16);
    game.state.eventCard = log[kEventCard];
    SetOneTurnEffects(game.state, log[kEffects]);
    game.state.steadyNervesArmy = log[kSteadyNervesArmy];
    game.state.bombardmentState = log[kBombardmentState];
    std::fill(log.begin() + kTag, log.end(), std::int16_t{0});
}

}  // namespace varnstride
