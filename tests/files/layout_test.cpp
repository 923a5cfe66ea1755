// Where every field stands in a file, told apart from the list that the reader and the writer
// share.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "files/battle_file.h"
#include "support/file_layout.h"

namespace varnstride {
namespace {

// A field of a record, the byte of the record at which it stands, and its width in bytes. The value
// put there tells the field, so that no two can be taken for each other.
template <typename Record>
struct Place {
    void (*put)(Record&, int);
    std::size_t at;
    int width = 2;

    int Value() const { return 1000 + static_cast<int>(at); }
};

template <auto Field, typename Record>
void Put(Record& record, int value) {
    using Number = std::remove_reference_t<decltype(record.*Field)>;
    record.*Field = static_cast<Number>(value);
}

const std::vector<Place<MapCell>> kCellPlaces = {
    {Put<&MapCell::occupant>, 0, 4},        {Put<&MapCell::terrainTile>, 4, 4},
    {Put<&MapCell::groundTile>, 8, 4},      {Put<&MapCell::overlayTile>, 12, 4},
    {Put<&MapCell::shade>, 16, 4},          {Put<&MapCell::moveMark>, 20, 4},
    {Put<&MapCell::selected>, 24, 4},       {Put<&MapCell::highlight>, 28, 4},
    {Put<&MapCell::objective>, 32, 4},      {Put<&MapCell::areaId>, 36, 4},
    {Put<&MapCell::occupantMirror>, 40, 4}, {Put<&MapCell::roadTile>, 44, 4},
    {Put<&MapCell::featureTile>, 48, 4},    {Put<&MapCell::labelIndex>, 52, 4},
    {Put<&MapCell::borderTile>, 56, 4},
};

const std::vector<Place<MapLabel>> kLabelPlaces = {
    {Put<&MapLabel::labelStyleRow>, 30},
    {Put<&MapLabel::labelStyleBlock>, 32},
    {Put<&MapLabel::reserved>, 34},
};

const std::vector<Place<ScenarioHeader>> kHeaderPlaces = {
    {Put<&ScenarioHeader::visibility>, 0},         {Put<&ScenarioHeader::lastTurn>, 2},
    {Put<&ScenarioHeader::firstPlayer>, 4},        {Put<&ScenarioHeader::savedArmy>, 6},
    {Put<&ScenarioHeader::savedTurn>, 8},          {Put<&ScenarioHeader::passMode>, 10},
    {Put<&ScenarioHeader::majorDefeatLimit>, 12},  {Put<&ScenarioHeader::minorDefeatLimit>, 14},
    {Put<&ScenarioHeader::minorVictoryLimit>, 16}, {Put<&ScenarioHeader::majorVictoryLimit>, 18},
    {Put<&ScenarioHeader::playByEmail>, 20},       {Put<&ScenarioHeader::fogNone>, 22},
    {Put<&ScenarioHeader::fogNormal>, 24},         {Put<&ScenarioHeader::fogExtreme>, 26},
    {Put<&ScenarioHeader::mapNumber>, 28},         {Put<&ScenarioHeader::hardDifficulty>, 30},
    {Put<&ScenarioHeader::gameEnded>, 32},
};

const std::vector<Place<TimeBlock>> kTimePlaces = {
    {Put<&TimeBlock::clockField>, 0},  {Put<&TimeBlock::duskHour>, 2},
    {Put<&TimeBlock::dawnHour>, 4},    {Put<&TimeBlock::rainChance>, 6},
    {Put<&TimeBlock::cloudChance>, 8}, {Put<&TimeBlock::windSpeed>, 10},
    {Put<&TimeBlock::fogHold>, 12},
};

const std::vector<Place<LossBlock>> kLossPlaces = {
    {Put<&LossBlock::frenchLossSP>, 0, 4},
    {Put<&LossBlock::alliedLossSP>, 4, 4},
    {Put<&LossBlock::frenchLossPoints>, 8, 4},
    {Put<&LossBlock::alliedLossPoints>, 12, 4},
};

const std::vector<Place<ArmyRecord>> kArmyPlaces = {
    {Put<&ArmyRecord::present>, 0},
    {Put<&ArmyRecord::baseCommandPoints>, 30},
    {Put<&ArmyRecord::commandControl>, 32},
    {Put<&ArmyRecord::commandPoints>, 34},
};

const std::vector<Place<Unit>> kUnitPlaces = {
    {Put<&Unit::x>, 0, 4},
    {Put<&Unit::y>, 4, 4},
    {Put<&Unit::reservedA>, 8, 4},
    {Put<&Unit::reservedB>, 12, 4},
    {Put<&Unit::previousX>, 16, 4},
    {Put<&Unit::previousY>, 20, 4},
    {Put<&Unit::reservedC>, 24, 4},
    {Put<&Unit::reservedD>, 28, 4},
    {Put<&Unit::reservedE>, 32, 4},
    {Put<&Unit::reservedF>, 36, 4},
    {Put<&Unit::type>, 40},
    {Put<&Unit::actionPoints>, 42},
    {Put<&Unit::strength>, 44},
    {Put<&Unit::status>, 46},
    {Put<&Unit::formation>, 48},
    {Put<&Unit::activity>, 50},
    {Put<&Unit::quality>, 52},
    {Put<&Unit::morale>, 54},
    {Put<&Unit::outOfCommand>, 56},
    {Put<&Unit::fixedUntilTurn>, 58},
    {Put<&Unit::arrivalTurn>, 60},
    {Put<&Unit::reservedG>, 62},
    {Put<&Unit::weapon>, 64},
    {Put<&Unit::leadership>, 66},
    {Put<&Unit::canMove>, 68},
    {Put<&Unit::inCommand>, 70},
    {Put<&Unit::disrupted>, 72},
    {Put<&Unit::groupId>, 74},
    {Put<&Unit::initialStrength>, 76},
    {Put<&Unit::maxMorale>, 78},
    {Put<&Unit::arrivalChance>, 80},
    {Put<&Unit::ammunition>, 82},
    {Put<&Unit::attackedFlag>, 84},
    {Put<&Unit::reservedH>, 86},
    {Put<&Unit::reservedI>, 88},
    {Put<&Unit::visible>, 90},
    {Put<&Unit::leaderSound>, 92},
    {Put<&Unit::reservedJ>, 94},
};

const std::vector<Place<OptionBlock>> kOptionPlaces = {
    {Put<&OptionBlock::eventCardsOn>, 16},    {Put<&OptionBlock::localInitiativeOn>, 18},
    {Put<&OptionBlock::tacticalPlayOn>, 20},  {Put<&OptionBlock::smokeOn>, 22},
    {Put<&OptionBlock::cardInPlay>, 24},      {Put<&OptionBlock::cardEffect>, 26},
    {Put<&OptionBlock::weatherCardCode>, 28}, {Put<&OptionBlock::reservedTail>, 30},
};

template <typename Record>
void PutAll(Record& record, const std::vector<Place<Record>>& places) {
    for (const Place<Record>& place : places)
        place.put(record, place.Value());
}

class Layout : public testing::Test {
 protected:
    Layout() {
        file_.mapWidth = layout_.width;
        file_.mapHeight = layout_.height;
        file_.cells.resize(35);
        file_.armies[kFrench].hasGroupAssignments = 1;
    }

    int NumberAt(std::size_t at, int width) const {
        unsigned number = 0;
        for (int byte = 0; byte < width; ++byte) {
            number |= static_cast<unsigned>(bytes_.at(at + static_cast<std::size_t>(byte)))
                      << 8 * byte;
        }
        return static_cast<int>(number);
    }
    template <typename Record>
    void ExpectAll(std::size_t block, const std::vector<Place<Record>>& places) const {
        for (const Place<Record>& place : places) {
            EXPECT_EQ(NumberAt(block + place.at, place.width), place.Value())
                << "byte " << place.at << " of the record at " << block;
        }
    }
    void Write() { bytes_ = SerializeBattleFile(file_); }

    const FileLayout layout_{.width = 7, .height = 5, .briefings = true};
    BattleFile file_;
    std::vector<std::byte> bytes_;
};

TEST_F(Layout, BeginsWithMarkThenHeightThenWidth) {
    Write();
    const std::byte begin[] = {std::byte{'L'}, std::byte{'S'}, std::byte{'D'}, std::byte{0},
                               std::byte{5},   std::byte{0},   std::byte{7},   std::byte{0}};
    EXPECT_TRUE(std::equal(std::begin(begin), std::end(begin), bytes_.begin()));
}

TEST_F(Layout, EveryNumberStandsAtItsPlace) {
    PutAll(file_.cells[7 * 3 + 6], kCellPlaces);  // column 6, row 3
    PutAll(file_.labels[29], kLabelPlaces);
    PutAll(file_.header, kHeaderPlaces);
    PutAll(file_.time, kTimePlaces);
    PutAll(file_.loss, kLossPlaces);
    PutAll(file_.armies[6], kArmyPlaces);
    file_.armies[6].hasGroupAssignments = 1036;
    PutAll(file_.units[5][599], kUnitPlaces);
    file_.turnLog.turnInProgress = 21;
    file_.turnLog.advanceDirection = 22;
    file_.turnLog.rollLog[2499] = 23;
    file_.turnLog.reserved = 24;
    PutAll(file_.options, kOptionPlaces);
    Write();

    ExpectAll(layout_.Cell(6, 3), kCellPlaces);
    ExpectAll(layout_.Labels() + 29 * 36, kLabelPlaces);
    EXPECT_EQ(NumberAt(layout_.Counts(), 2), 7);
    EXPECT_EQ(NumberAt(layout_.Counts() + 2, 2), 600);
    ExpectAll(layout_.Header(), kHeaderPlaces);
    ExpectAll(layout_.Time(), kTimePlaces);
    ExpectAll(layout_.Loss(), kLossPlaces);
    ExpectAll(layout_.Army(6), kArmyPlaces);
    EXPECT_EQ(NumberAt(layout_.Army(0) + 36, 2), 1);
    EXPECT_EQ(NumberAt(layout_.Army(6) + 36, 2), 1036);
    ExpectAll(layout_.Unit(5, 599), kUnitPlaces);
    EXPECT_EQ(NumberAt(layout_.TurnLog(), 2), 21);
    EXPECT_EQ(NumberAt(layout_.TurnLog() + 2, 2), 22);
    EXPECT_EQ(NumberAt(layout_.TurnLog() + 4 + 2 * 2499, 2), 23);
    EXPECT_EQ(NumberAt(layout_.TurnLog() + 5004, 2), 24);
    ExpectAll(layout_.Options(), kOptionPlaces);
}

TEST_F(Layout, EveryTextAndReservedByteStandsAtItsPlace) {
    struct Bytes {
        std::size_t at;
        std::size_t count;
        std::function<void(int)> fill;
    };
    ScenarioHeader& header = file_.header;
    Unit& unit = file_.units[6][0];
    BriefingRecord& briefing = file_.briefings[4];
    const Bytes all[] = {
        {8, 4, [&](int mark) { file_.sizeReserved.fill(static_cast<std::uint8_t>(mark)); }},
        {layout_.Labels() + 36, 30, [&](int mark) { file_.labels[1].labelText.fill(char(mark)); }},
        {layout_.Counts() + 4, 4,
         [&](int mark) { file_.countReserved.fill(static_cast<std::uint8_t>(mark)); }},
        {layout_.Header() + 34, 30, [&](int mark) { header.firstPassword.fill(char(mark)); }},
        {layout_.Header() + 64, 30, [&](int mark) { header.secondPassword.fill(char(mark)); }},
        {layout_.Header() + 94, 30, [&](int mark) { header.scenarioAuthor.fill(char(mark)); }},
        {layout_.Header() + 124, 30, [&](int mark) { header.scenarioDate.fill(char(mark)); }},
        {layout_.Header() + 154, 1000,
         [&](int mark) { header.scenarioDescription.fill(char(mark)); }},
        {layout_.Army(3) + 2, 28,
         [&](int mark) {
             file_.armies[3].reservedArmyBytes.fill(static_cast<std::uint8_t>(mark));
         }},
        {layout_.Briefings() + 4 * 502 + 2, 500, [&](int mark) { briefing.text.fill(char(mark)); }},
        {layout_.Unit(6, 0) + 96, 50, [&](int mark) { unit.name.fill(char(mark)); }},
        {layout_.Unit(6, 0) + 146, 2,
         [&](int mark) { unit.reservedTail.fill(static_cast<unsigned char>(mark)); }},
        {layout_.Options(), 16,
         [&](int mark) { file_.options.reservedHead.fill(static_cast<std::uint8_t>(mark)); }},
    };
    int mark = 100;
    for (const Bytes& bytes : all)
        bytes.fill(++mark);
    briefing.reserved = 77;
    Write();
    mark = 100;
    for (const Bytes& bytes : all) {
        ++mark;
        const auto begin = bytes_.begin() + static_cast<std::ptrdiff_t>(bytes.at);
        EXPECT_EQ(std::count(begin, begin + static_cast<std::ptrdiff_t>(bytes.count),
                             static_cast<std::byte>(mark)),
                  static_cast<std::ptrdiff_t>(bytes.count))
            << bytes.count << " bytes at " << bytes.at;
        EXPECT_EQ(std::count(bytes_.begin(), bytes_.end(), static_cast<std::byte>(mark)),
                  static_cast<std::ptrdiff_t>(bytes.count));
    }
    EXPECT_EQ(NumberAt(layout_.Briefings() + 4 * 502, 2), 77);
}

TEST_F(Layout, LengthFollowsFromTheMapAndTheReports) {
    Write();
    EXPECT_EQ(bytes_.size(), 629188U + 60 * 7 * 5 + 3514);
    file_.armies[kFrench].hasGroupAssignments = 0;
    Write();
    EXPECT_EQ(bytes_.size(), 629188U + 60 * 7 * 5);
}

TEST_F(Layout, NumbersBeyondTheirFieldStopAtItsEnd) {
    file_.header.majorVictoryLimit = 40000;
    file_.header.majorDefeatLimit = -40000;
    Write();
    EXPECT_EQ(NumberAt(layout_.Header() + 18, 2), 0x7FFF);
    EXPECT_EQ(NumberAt(layout_.Header() + 12, 2), 0x8000);
}

}  // namespace
}  // namespace varnstride
