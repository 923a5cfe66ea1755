#include "platform/headless/text_map.h"

#include <algorithm>
#include <string_view>

#include "model/terrain.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

constexpr int kTerminalWidth = 100;
constexpr int kRowNumberWidth = 4;
constexpr int kMapWidth = kTerminalWidth - kRowNumberWidth;

// The first that fits counts: a tower is a building as well, a swamp a marsh.
struct GroundLetter {
    bool (*is)(const GroundCell&);
    char letter;
    std::string_view word;
};

constexpr GroundLetter kGroundLetters[] = {
    {IsOpen, '.', "clear"},     {IsField, 'c', "corn"},    {IsShallow, '~', "stream"},
    {IsRiver, '=', "river"},    {IsLake, '%', "lake"},     {IsOrchard, 'o', "orchard"},
    {IsRough, 'r', "rough"},    {IsSwamp, 's', "swamp"},   {IsMarsh, 'm', "marsh"},
    {IsWoodland, 'w', "wood"},  {IsForest, 'f', "forest"}, {IsVillage, 'v', "village"},
    {IsVineyard, 'y', "vines"}, {IsTower, 't', "tower"},   {IsBuilding, 'b', "building"},
    {IsRocks, 'k', "rocks"},    {IsTents, 'n', "tents"},   {IsImpassable, '#', "impassable"},
};
constexpr char kBridge = 'H';
constexpr char kPalisade = '|';
constexpr char kNoWord = '?';

constexpr char kArmyLetters[kArmyCount] = {'F', 'B', 'A', 'P', 'R', 'S', '?'};

char ArmLetter(UnitType type) {
    if (IsFoot(type)) return 'I';
    if (type == UnitType::Leader) return 'L';
    if (IsMounted(type)) return 'C';
    return IsFighting(type) ? 'G' : 'W';
}

char GroundLetterOf(const Grid& grid, Cell cell) {
    const GroundCell& ground = grid.Ground(cell);
    if (HasPalisade(ground)) return kPalisade;
    const bool water = IsShallow(ground) || IsRiver(ground);
    if (water && grid.At(cell).roadTile != kNoRoad) return kBridge;
    for (const GroundLetter& entry : kGroundLetters) {
        if (entry.is(ground)) return entry.letter;
    }
    return kNoWord;
}

// The objective's digit behind the ground, as the number of 50 points; an exit has a cross.
char MarkOf(const GroundCell& ground) {
    constexpr int kListedOnly = 5;
    if (ground.objective <= 0) return ' ';
    if (ground.objective < kListedOnly) return static_cast<char>('0' + ground.objective);
    return ground.objective == kListedOnly ? '*' : 'x';
}

class MapText {
 public:
    MapText(const Game& game, bool someUnseen)
        : game_(game),
          someUnseen_(someUnseen),
          columns_(game.grid.Width() - 1),
          wide_(2 * columns_ + 1 <= kMapWidth) {}

    std::string Row(int y) const {
        std::string number = std::to_string(y);
        std::string line(static_cast<std::size_t>(kRowNumberWidth - 1) - number.size(), ' ');
        line += number + ' ';
        if (wide_ && y % 2 == 1) line += ' ';
        const int shown = wide_ ? columns_ : std::min(columns_, kMapWidth);
        for (int x = 0; x < shown; ++x)
            line += Hex({x, y});
        line.erase(line.find_last_not_of(' ') + 1);
        return line;
    }

 private:
    std::string Hex(Cell cell) const {
        const UnitId id = UnitStandingAt(game_, cell);
        if (id && !(someUnseen_ && game_.At(id).visible == 0)) {
            const char army = kArmyLetters[id.army];
            return wide_ ? std::string{army, ArmLetter(game_.At(id).type)} : std::string{army};
        }
        const char ground = GroundLetterOf(game_.grid, cell);
        const char mark = MarkOf(game_.grid.Ground(cell));
        if (wide_) return {ground, mark};
        return std::string(1, mark == ' ' ? ground : mark);
    }

    const Game& game_;
    bool someUnseen_;
    int columns_;
    bool wide_;
};

// Words joined by two blanks, in lines that fit the terminal.
class Lines {
 public:
    void Add(const std::string& word) {
        if (!line_.empty() && line_.size() + 2 + word.size() > kTerminalWidth) Break();
        line_ += (line_.empty() ? "" : "  ") + word;
    }
    void Break() {
        text_ += line_ + '\n';
        line_.clear();
    }
    const std::string& Text() const { return text_; }

 private:
    std::string text_;
    std::string line_;
};

}  // namespace

std::string DrawTextMap(const Game& game, bool someUnseen) {
    const MapText map(game, someUnseen);
    std::string text;
    for (int y = 0; y < game.grid.Height(); ++y)
        text += map.Row(y) + '\n';
    return text;
}

std::string TextMapLegend() {
    Lines lines;
    for (const GroundLetter& entry : kGroundLetters) {
        lines.Add(std::string(1, entry.letter) + ' ' + std::string(entry.word));
    }
    lines.Add(std::string(1, kBridge) + " bridge");
    lines.Add(std::string(1, kPalisade) + " palisade");
    lines.Break();
    for (const char* words : {"1 2 3 4 objective of 50, 100, 150, 200 points", "x exit"}) {
        lines.Add(words);
    }
    lines.Break();
    for (const char* words : {"Units by army and arm:", "F French", "P Prussian", "B British",
                              "I foot", "C horse", "G guns", "L leader", "W wagons"}) {
        lines.Add(words);
    }
    lines.Break();
    return lines.Text();
}

std::string PlaceName(const Game& game, int ordinal) {
    for (Cell cell : game.grid.CellsOf(ordinal)) {
        const int label = game.grid.Ground(cell).labelIndex;
        if (label <= 0 || label >= kLabelCount) continue;
        const std::string text = game.labels[static_cast<std::size_t>(label)].labelText.data();
        const std::size_t first = text.find_first_not_of(' ');
        if (first == std::string::npos) continue;
        return text.substr(first, text.find_last_not_of(' ') - first + 1);
    }
    return "area " + std::to_string(ordinal);
}

}  // namespace varnstride
