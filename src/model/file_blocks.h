// The blocks of a scenario or battle file that hold the state of a battle beside the grid, the
// armies and the units, and the player's own settings. Field names and meanings only; the bytes
// are laid out in files/.
#pragma once

#include <array>
#include <cstdint>

namespace varnstride {

constexpr int kLabelCount = 30;
constexpr int kRollLogSize = 2500;
constexpr int kStrikeCardCode = 1;  // weatherCardCode while an event card changes strikes

struct MapLabel {
    std::array<char, 30> labelText{};
    int labelStyleRow = 0;
    int labelStyleBlock = 0;
    int reserved = 0;
};

struct ScenarioHeader {
    int visibility = 0;  // units of 20 metres
    int lastTurn = 0;
    int firstPlayer = 0;
    int savedArmy = 0;
    int savedTurn = 0;
    int passMode = 0;  // 1 record, 2 replay
    int majorDefeatLimit = 0;
    int minorDefeatLimit = 0;
    int minorVictoryLimit = 0;
    int majorVictoryLimit = 0;
    int playByEmail = 0;
    int fogNone = 0;
    int fogNormal = 0;
    int fogExtreme = 0;
    int mapNumber = 0;
    int hardDifficulty = 0;
    int gameEnded = 0;
    std::array<char, 30> firstPassword{};
    std::array<char, 30> secondPassword{};
    std::array<char, 30> scenarioAuthor{};
    std::array<char, 30> scenarioDate{};
    std::array<char, 1000> scenarioDescription{};
};

struct TimeBlock {
    int clockField = 0;  // the clock x 100
    int duskHour = 0;
    int dawnHour = 0;
    int rainChance = 0;   // percent
    int cloudChance = 0;  // percent
    int windSpeed = 0;    // miles an hour
    int fogHold = 0;      // 1 fog, 2 thick fog
};

struct LossBlock {
    int frenchLossSP = 0;
    int alliedLossSP = 0;
    int frenchLossPoints = 0;
    int alliedLossPoints = 0;
};

struct BriefingRecord {
    int reserved = 0;
    std::array<char, 500> text{};
};

struct TurnLogBlock {
    int turnInProgress = 0;
    int advanceDirection = 0;  // 1 to 6
    std::array<std::int16_t, kRollLogSize> rollLog{};
    int reserved = 0;
};

struct OptionBlock {
    std::array<std::uint8_t, 16> reservedHead{};
    int eventCardsOn = 0;
    int localInitiativeOn = 0;
    int tacticalPlayOn = 0;
    int smokeOn = 0;
    int cardInPlay = 0;
    int cardEffect = 0;
    int weatherCardCode = 0;
    int reservedTail = 0;
};

// The options that outlive a battle. Every field is 0 or 1 unless it says otherwise.
struct Settings {
    int cellOutline = 0;
    int reservedA = 0;
    int hideUnitPanels = 0;
    int backgroundSound = 0;
    int battleSounds = 0;
    int quickResults = 0;
    int computerSide = 0;  // 0 nobody, 1 French, 2 Allied
    int areaContours = 0;
    int showObjectives = 0;
    int mapView = 0;  // 1 normal, 2 zoomed out
    int reservedB = 0;
    int armyColours = 0;
    int autoSave = 0;
    int showUnitBases = 0;
    int edgeScroll = 0;
    int reservedC = 0;
    int showFormation = 0;
    int noDelays = 0;
    int reservedD = 0;
    int resultPauseSetting = 0;  // milliseconds; 0 means the default
    int backgroundMusic = 0;
    int reservedE = 0;
    int healthBars = 0;
    int reservedF = 0;
    int reservedG = 0;
    int showLocations = 0;
    int reservedH = 0;
    int noReplay = 0;
    int noErrorAlert = 0;
};

}  // namespace varnstride
