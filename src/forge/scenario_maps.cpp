#include "forge/scenario_maps.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "forge/source_text.h"
#include "model/tile_sheets.h"

namespace varnstride {
namespace {

constexpr int kHeightBands = 6;
constexpr int kLeastAreaId = 20;  // the digit 1 is area number 21
constexpr int kFirstPalisade = 53;
constexpr int kLastPalisade = 69;

// The pictures that a letter of [terrain] stands for.
struct TerrainLetter {
    char letter;
    int firstTile;
    int lastTile;
};

constexpr std::array<TerrainLetter, 18> kTerrainLetters = {{
    {'.', kNoTerrainPicture, kNoTerrainPicture},  // clear
    {'c', 1, 1},                                  // field
    {'~', 3, 3},                                  // stream
    {'=', 18, 23},                                // river
    {'L', 4, 4},                                  // lake
    {'w', 15, 17},                                // woodland
    {'f', 42, 47},                                // forest
    {'o', 6, 8},                                  // orchard
    {'y', 27, 29},                                // vineyard
    {'r', 9, 11},                                 // rough
    {'m', 12, 14},                                // marsh
    {'s', 63, 65},                                // swamp
    {'v', 24, 26},                                // village
    {'B', 39, 40},                                // building
    {'T', 86, 86},                                // tower
    {'k', 66, 71},                                // rocks
    {'t', 99, 101},                               // tents
    {'#', 38, 38},                                // impassable
}};

// A number from 0 to count - 1 for a place, scattered so that no pattern shows on the map. Each
// layer has its own salt.
int Variant(Cell cell, std::uint32_t salt, int count) {
    std::uint32_t mixed = static_cast<std::uint32_t>(cell.x) * 0x9E3779B1U +
                          static_cast<std::uint32_t>(cell.y) * 0x85EBCA77U + salt * 0xC2B2AE3DU;
    mixed = (mixed ^ mixed >> 15) * 0x2C1B3C6DU;
    mixed = (mixed ^ mixed >> 13) * 0x297A2D39U;
    return static_cast<int>((mixed ^ mixed >> 16) % static_cast<std::uint32_t>(count));
}

enum Salt : std::uint32_t { kTerrainSalt = 1, kOverlaySalt = 3 };

int OneOf(Cell place, Salt salt, int first, int last) {
    return first + Variant(place, salt, last - first + 1);
}

// A map as it is drawn: how a letter is put into a cell, false for a letter that is none of its
// own, and which letter shows a cell best.
struct Drawing {
    SectionKind kind;
    std::string_view heading;
    bool mayBeMissing;
    std::string_view letters;  // for messages
    bool (*put)(MapCell& cell, Cell place, char letter);
    char (*letterOf)(const MapCell& cell);
};

bool PutTerrain(MapCell& cell, Cell place, char letter) {
    for (const TerrainLetter& known : kTerrainLetters) {
        if (known.letter != letter) continue;
        cell.terrainTile = OneOf(place, kTerrainSalt, known.firstTile, known.lastTile);
        return true;
    }
    return false;
}

char TerrainLetterOf(const MapCell& cell) {
    for (const WoodRide& ride : kWoodlandRides) {
        if (ride.tile == cell.terrainTile) return 'w';
    }
    for (const TerrainLetter& known : kTerrainLetters) {
        if (cell.terrainTile >= known.firstTile && cell.terrainTile <= known.lastTile) {
            return known.letter;
        }
    }
    return '.';
}

bool PutArea(MapCell& cell, Cell, char letter) {
    if (letter != '.' && (letter < '1' || letter > '9')) return false;
    cell.areaId = letter == '.' ? 0 : kLeastAreaId + (letter - '0');
    return true;
}

char AreaLetterOf(const MapCell& cell) {
    const int digit = cell.areaId - kLeastAreaId;
    return digit >= 1 && digit <= 9 ? static_cast<char>('0' + digit) : '.';
}

bool PutHeight(MapCell& cell, Cell, char letter) {
    const int band = letter - '0';
    if (band < 0 || band >= kHeightBands) return false;
    cell.groundTile = band * kGroundTilesPerBand;
    return true;
}

char HeightLetterOf(const MapCell& cell) {
    const int band = cell.groundTile / kGroundTilesPerBand;
    return cell.groundTile >= 0 && band < kHeightBands ? static_cast<char>('0' + band) : '0';
}

bool PutOverlay(MapCell& cell, Cell place, char letter) {
    if (letter != '.' && letter != 'p') return false;
    cell.overlayTile =
        letter == '.' ? kNoOverlay : OneOf(place, kOverlaySalt, kFirstPalisade, kLastPalisade);
    return true;
}

char OverlayLetterOf(const MapCell& cell) {
    return cell.overlayTile >= kFirstPalisade && cell.overlayTile <= kLastPalisade ? 'p' : '.';
}

constexpr std::array<Drawing, 4> kDrawings = {{
    {SectionKind::Terrain, "[terrain]", false, ". c ~ = L w f o y r m s v B T k t #", PutTerrain,
     TerrainLetterOf},
    {SectionKind::Areas, "[areas]", false, "1 to 9 or .", PutArea, AreaLetterOf},
    {SectionKind::Heights, "[heights]", false, "0 to 5", PutHeight, HeightLetterOf},
    {SectionKind::Overlay, "[overlay]", true, "p or .", PutOverlay, OverlayLetterOf},
}};

// Reads one drawing. The faults of its layout are told once for the first row that has them, as a
// row left out shifts all below it.
class DrawingReader {
 public:
    DrawingReader(const Drawing& drawing, ScenarioBuild& build)
        : drawing_(drawing), build_(build) {}

    void Read(const Section& section) {
        for (const SourceLine& line : section.lines) {
            if (row_ < build_.file.mapHeight) ReadRow(line);
            ++row_;
        }
        if (row_ != build_.file.mapHeight) {
            build_.errors.Add(section.lines.empty() ? section.line : section.lines.back().number,
                              std::string(drawing_.heading) + " has " + std::to_string(row_) +
                                  " rows: expected " + std::to_string(build_.file.mapHeight));
        }
    }

 private:
    void ReadRow(const SourceLine& line) {
        const auto words = Words(line.text);
        CheckLayout(line);
        if (static_cast<int>(words.size()) != build_.file.mapWidth) {
            Error(line, "has " + std::to_string(words.size()) + " cells: expected " +
                            std::to_string(build_.file.mapWidth) + ", parted by one blank");
        }
        std::string unknown;  // letters that this row has told already
        for (std::size_t x = 0; x < words.size(); ++x) {
            if (static_cast<int>(x) >= build_.file.mapWidth) break;
            const Cell place{static_cast<int>(x), row_};
            const bool isLetter = words[x].size() == 1;
            if (isLetter && drawing_.put(build_.At(place), place, words[x].front())) continue;
            if (isLetter && unknown.find(words[x]) != unknown.npos) continue;
            unknown += words[x];
            Error(line, "has \"" + std::string(words[x]) + "\" at cell " + SourceCell(place) +
                            ": expected " + std::string(drawing_.letters));
        }
    }

    // Odd rows begin with one blank more, even rows with none.
    void CheckLayout(const SourceLine& line) {
        const std::size_t indent = line.text.find_first_not_of(' ');
        const std::size_t wanted = row_ % 2 == 0 ? 0 : 1;
        if (indent == wanted || told_) return;
        told_ = true;
        Error(line, "begins with " + std::to_string(indent) + " blanks: expected " +
                        std::to_string(wanted) + " in an " + (wanted == 0 ? "even" : "odd") +
                        " row (is a row missing?)");
    }

    void Error(const SourceLine& line, const std::string& what) {
        build_.errors.Add(line.number, std::string(drawing_.heading) + " row " +
                                           std::to_string(row_) + " " + what);
    }

    const Drawing& drawing_;
    ScenarioBuild& build_;
    int row_ = 0;
    bool told_ = false;
};

// Without a readable size the ground as drawn gives it, so that the rest is checked in this run
// too.
void TakeSizeFromTerrain(const ScenarioText& text, ScenarioBuild& build) {
    const Section* const terrain = text.Find(SectionKind::Terrain);
    if (terrain == nullptr || terrain->lines.empty()) return;
    const std::size_t width = Words(terrain->lines.front().text).size();
    build.SetSize(static_cast<int>(width), static_cast<int>(terrain->lines.size()));
}

std::string Drawn(const Drawing& drawing, const BattleFile& file) {
    std::string text = std::string(drawing.heading) + "\n";
    ForEachCell(file, [&](Cell cell) {
        if (cell.x > 0 || cell.y % 2 != 0) text += ' ';
        text += drawing.letterOf(CellOf(file, cell));
        if (cell.x + 1 == file.mapWidth) text += '\n';
    });
    return text + "\n";
}

bool ShowsNothing(const Drawing& drawing, const BattleFile& file) {
    return std::all_of(file.cells.begin(), file.cells.end(),
                       [&](const MapCell& cell) { return drawing.letterOf(cell) == '.'; });
}

}  // namespace

void ReadMaps(const ScenarioText& text, ScenarioBuild& build) {
    if (!build.HasGrid()) TakeSizeFromTerrain(text, build);
    for (const Drawing& drawing : kDrawings) {
        const Section* const section =
            drawing.mayBeMissing ? text.Find(drawing.kind) : text.Need(drawing.kind, build.errors);
        if (section != nullptr && build.HasGrid()) DrawingReader(drawing, build).Read(*section);
    }
}

std::string WriteMaps(const BattleFile& file) {
    std::string text;
    for (const Drawing& drawing : kDrawings) {
        if (!drawing.mayBeMissing || !ShowsNothing(drawing, file)) text += Drawn(drawing, file);
    }
    return text;
}

}  // namespace varnstride
