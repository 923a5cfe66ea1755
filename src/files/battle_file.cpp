#include "files/battle_file.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "files/battle_checks.h"
#include "files/record_bytes.h"
#include "files/safe_write.h"

namespace varnstride {
namespace {

constexpr std::array<std::byte, 4> kMagic = {std::byte{'L'}, std::byte{'S'}, std::byte{'D'},
                                             std::byte{0}};
constexpr int kLeastWidth = 3;
constexpr int kLeastHeight = 2;
constexpr int kGreatestSide = 250;

constexpr std::size_t kCellSize = SizeInFile<MapCell>();
constexpr std::size_t kLabelsSize = kLabelCount * SizeInFile<MapLabel>();
constexpr std::size_t kHeaderSize = SizeInFile<ScenarioHeader>();
constexpr std::size_t kTimeSize = SizeInFile<TimeBlock>();
constexpr std::size_t kLossSize = SizeInFile<LossBlock>();
constexpr std::size_t kArmySize = SizeInFile<ArmyRecord>();
constexpr std::size_t kBriefingsSize = kArmyCount * SizeInFile<BriefingRecord>();
constexpr std::size_t kUnitSize = SizeInFile<Unit>();
constexpr std::size_t kTurnLogSize = 3 * 2 + kRollLogSize * 2;
constexpr std::size_t kOptionSize = SizeInFile<OptionBlock>();

static_assert(kCellSize == 60 && kLabelsSize == 1080 && kHeaderSize == 1154 && kTimeSize == 14 &&
              kLossSize == 16 && kArmySize == 38 && kBriefingsSize == 3514 && kUnitSize == 148 &&
              kTurnLogSize == 5006 && kOptionSize == 32);

bool HasBriefings(const BattleFile& file) {
    return file.armies[kFrench].hasGroupAssignments == 1;
}

// Reads block after block until one is cut short or wrong.
class Parser {
 public:
    Parser(std::span<const std::byte> bytes, const std::string& name)
        : reader_(bytes), name_(name) {}

    Result<BattleFile> Parse();

 private:
    bool Fail(const std::string& what) {
        message_ = name_ + ": " + what;
        return false;
    }
    bool Has(std::size_t size, const char* block) {
        if (reader_.Left() >= size) return true;
        return Fail(std::string("the file is cut short in ") + block);
    }
    template <std::size_t Count>
    void GetBytes(std::array<std::uint8_t, Count>& bytes) {
        std::memcpy(bytes.data(), reader_.Bytes(Count).data(), Count);
    }
    bool ReadMagic();
    bool ReadSize();
    bool ReadCells();
    bool ReadLabels();
    bool ReadCounts();
    bool ReadHeaders();
    bool ReadArmies();
    bool ReadUnits();
    bool ReadTurnLog();
    bool ReadOptions();

    ByteReader reader_;
    std::string name_;
    std::string message_;
    BattleFile file_;
};

bool Parser::ReadMagic() {
    if (reader_.Left() >= kMagic.size() && std::ranges::equal(reader_.Bytes(4), kMagic)) {
        return true;
    }
    return Fail("this is no scenario or battle: it does not begin with the mark LSD");
}

bool Parser::ReadSize() {
    if (!Has(8, "the map size")) return false;
    file_.mapHeight = reader_.Number(Width::Int16);
    file_.mapWidth = reader_.Number(Width::Int16);
    GetBytes(file_.sizeReserved);
    if (file_.mapWidth < kLeastWidth || file_.mapWidth > kGreatestSide) {
        return Fail("map size: mapWidth is " + std::to_string(file_.mapWidth) +
                    ", expected 3 to 250");
    }
    if (file_.mapHeight < kLeastHeight || file_.mapHeight > kGreatestSide) {
        return Fail("map size: mapHeight is " + std::to_string(file_.mapHeight) +
                    ", expected 2 to 250");
    }
    return true;
}

// Files go column by column, memory by rows.
bool Parser::ReadCells() {
    const auto width = static_cast<std::size_t>(file_.mapWidth);
    const auto height = static_cast<std::size_t>(file_.mapHeight);
    if (!Has(width * height * kCellSize, "the map")) return false;
    file_.cells.resize(width * height);
    for (std::size_t x = 0; x < width; ++x) {
        for (std::size_t y = 0; y < height; ++y)
            reader_.Get(file_.cells[y * width + x]);
    }
    return true;
}

bool Parser::ReadLabels() {
    if (!Has(kLabelsSize, "the map labels")) return false;
    for (MapLabel& label : file_.labels)
        reader_.Get(label);
    return true;
}

bool Parser::ReadCounts() {
    if (!Has(8, "the counts")) return false;
    file_.armyCount = reader_.Number(Width::Int16);
    file_.unitsPerArmy = reader_.Number(Width::Int16);
    GetBytes(file_.countReserved);
    if (file_.armyCount < 1 || file_.armyCount > kArmyCount) {
        return Fail("counts: armyCount is " + std::to_string(file_.armyCount) +
                    ", expected 1 to 7");
    }
    if (file_.unitsPerArmy < 1 || file_.unitsPerArmy > kUnitsPerArmy) {
        return Fail("counts: unitsPerArmy is " + std::to_string(file_.unitsPerArmy) +
                    ", expected 1 to 600");
    }
    return true;
}

bool Parser::ReadHeaders() {
    if (!Has(kHeaderSize + kTimeSize + kLossSize, "the header")) return false;
    reader_.Get(file_.header);
    reader_.Get(file_.time);
    reader_.Get(file_.loss);
    return true;
}

bool Parser::ReadArmies() {
    const auto count = static_cast<std::size_t>(file_.armyCount);
    if (!Has(count * kArmySize, "the armies")) return false;
    for (std::size_t army = 0; army < count; ++army)
        reader_.Get(file_.armies[army]);
    if (!HasBriefings(file_)) return true;
    if (!Has(kBriefingsSize, "the intelligence reports")) return false;
    for (BriefingRecord& briefing : file_.briefings)
        reader_.Get(briefing);
    return true;
}

bool Parser::ReadUnits() {
    const auto armies = static_cast<std::size_t>(file_.armyCount);
    const auto units = static_cast<std::size_t>(file_.unitsPerArmy);
    if (!Has(armies * units * kUnitSize, "the units")) return false;
    for (std::size_t army = 0; army < armies; ++army) {
        for (std::size_t index = 0; index < units; ++index)
            reader_.Get(file_.units[army][index]);
    }
    return true;
}

bool Parser::ReadTurnLog() {
    if (!Has(kTurnLogSize, "the turn log")) return false;
    TurnLogBlock& log = file_.turnLog;
    log.turnInProgress = reader_.Number(Width::Int16);
    log.advanceDirection = reader_.Number(Width::Int16);
    for (std::int16_t& roll : log.rollLog) {
        roll = static_cast<std::int16_t>(reader_.Number(Width::Int16));
    }
    log.reserved = reader_.Number(Width::Int16);
    return true;
}

bool Parser::ReadOptions() {
    if (!Has(kOptionSize, "the options")) return false;
    reader_.Get(file_.options);
    if (reader_.Left() == 0) return true;
    return Fail(std::to_string(reader_.Left()) + " bytes stand behind the end of the battle");
}

Result<BattleFile> Parser::Parse() {
    const bool whole = ReadMagic() && ReadSize() && ReadCells() && ReadLabels() && ReadCounts() &&
                       ReadHeaders() && ReadArmies() && ReadUnits() && ReadTurnLog() &&
                       ReadOptions();
    if (!whole) return Failure{message_};
    return std::move(file_);
}

std::size_t SizeOfFile(const BattleFile& file) {
    constexpr std::size_t kSmallBlocks = 4 + 8 + 8;
    return kSmallBlocks + file.cells.size() * kCellSize + kLabelsSize + kHeaderSize + kTimeSize +
           kLossSize + kArmyCount * kArmySize + (HasBriefings(file) ? kBriefingsSize : 0) +
           kArmyCount * kUnitsPerArmy * kUnitSize + kTurnLogSize + kOptionSize;
}

void PutTurnLog(ByteWriter& writer, const TurnLogBlock& log) {
    writer.Number(log.turnInProgress, Width::Int16);
    writer.Number(log.advanceDirection, Width::Int16);
    for (std::int16_t roll : log.rollLog)
        writer.Number(roll, Width::Int16);
    writer.Number(log.reserved, Width::Int16);
}

void PutCells(ByteWriter& writer, const BattleFile& file) {
    const auto width = static_cast<std::size_t>(file.mapWidth);
    const auto height = static_cast<std::size_t>(file.mapHeight);
    for (std::size_t x = 0; x < width; ++x) {
        for (std::size_t y = 0; y < height; ++y)
            writer.Put(file.cells[y * width + x]);
    }
}

}  // namespace

Result<BattleFile> ParseBattleFile(std::span<const std::byte> bytes, const std::string& name,
                                   const AtlasCatalogue& atlases) {
    Result<BattleFile> parsed = Parser(bytes, name).Parse();
    if (!parsed.Ok()) return parsed;
    if (const auto fault = FindFault(parsed.Get(), atlases)) {
        return Failure{name + ": " + *fault};
    }
    return parsed;
}

Result<BattleFile> ReadBattleFile(const std::string& path, const AtlasCatalogue& atlases) {
    const Result<std::vector<std::byte>> bytes = ReadWholeFile(path);
    if (!bytes.Ok()) return Failure{bytes.Message()};
    return ParseBattleFile(bytes.Get(), path, atlases);
}

std::vector<std::byte> SerializeBattleFile(const BattleFile& file) {
    ByteWriter writer(SizeOfFile(file));
    writer.Bytes(kMagic);
    writer.Number(file.mapHeight, Width::Int16);
    writer.Number(file.mapWidth, Width::Int16);
    writer.Bytes(std::as_bytes(std::span(file.sizeReserved)));
    PutCells(writer, file);
    for (const MapLabel& label : file.labels)
        writer.Put(label);
    writer.Number(kArmyCount, Width::Int16);
    writer.Number(kUnitsPerArmy, Width::Int16);
    writer.Bytes(std::as_bytes(std::span(file.countReserved)));
    writer.Put(file.header);
    writer.Put(file.time);
    writer.Put(file.loss);
    for (const ArmyRecord& army : file.armies)
        writer.Put(army);
    if (HasBriefings(file)) {
        for (const BriefingRecord& briefing : file.briefings)
            writer.Put(briefing);
    }
    for (const ArmyUnits& army : file.units) {
        for (const Unit& unit : army)
            writer.Put(unit);
    }
    PutTurnLog(writer, file.turnLog);
    writer.Put(file.options);
    return writer.Take();
}

Result<Done> WriteBattleFile(const std::string& path, const BattleFile& file) {
    return WriteSafely(path, SerializeBattleFile(file));
}

}  // namespace varnstride
