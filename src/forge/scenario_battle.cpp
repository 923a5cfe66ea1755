#include "forge/scenario_battle.h"

#include <algorithm>
#include <array>
#include <map>

#include "forge/scenario_values.h"
#include "forge/scenario_words.h"
#include "forge/source_text.h"

namespace varnstride {
namespace {

constexpr int kLeastWidth = 3;
constexpr int kLeastHeight = 2;
constexpr int kMostCommandPoints = 999;
constexpr int kPassOfNewBattle = 1;  // ends of turns are recorded

// The keys of [battle] that take one whole number.
struct NumberKey {
    std::string_view key;
    int low;
    int high;
    int& (*field)(BattleFile&);
};

constexpr std::array<NumberKey, 9> kNumberKeys = {{
    {"turns", 1, 999, [](BattleFile& file) -> int& { return file.header.lastTurn; }},
    {"direction", 1, 6, [](BattleFile& file) -> int& { return file.turnLog.advanceDirection; }},
    {"dusk", 0, 24, [](BattleFile& file) -> int& { return file.time.duskHour; }},
    {"dawn", 0, 24, [](BattleFile& file) -> int& { return file.time.dawnHour; }},
    {"rain", 0, 100, [](BattleFile& file) -> int& { return file.time.rainChance; }},
    {"cloud", 0, 100, [](BattleFile& file) -> int& { return file.time.cloudChance; }},
    {"wind", 0, 200, [](BattleFile& file) -> int& { return file.time.windSpeed; }},
    {"fog", 0, 2, [](BattleFile& file) -> int& { return file.time.fogHold; }},
    {"visibility", 1, 200, [](BattleFile& file) -> int& { return file.header.visibility; }},
}};

constexpr std::array<Word, 2> kRulesWords = {{
    {"strict", static_cast<int>(ScenarioRules::Strict)},
    {"loose", static_cast<int>(ScenarioRules::Loose)},
}};

using BattleValues = std::map<std::string_view, SourceLine>;  // by key; the text is the value

constexpr std::array<std::string_view, 17> kBattleKeys = {
    "map",  "grid", "author", "date",  "turns", "first", "direction",  "limits", "start",
    "dusk", "dawn", "rain",   "cloud", "wind",  "fog",   "visibility", "rules"};

std::string AllKeys() {
    std::string all;
    for (std::string_view key : kBattleKeys)
        all += (all.empty() ? "" : ", ") + std::string(key);
    return all;
}

BattleValues ValuesOf(const Section& section, SourceErrors& errors) {
    BattleValues values;
    for (const SourceLine& line : section.lines) {
        const std::optional<KeyValue> pair = KeyValueOf(line, errors);
        if (!pair) continue;
        if (std::find(kBattleKeys.begin(), kBattleKeys.end(), pair->key) == kBattleKeys.end()) {
            errors.Add(line.number, "unknown key \"" + std::string(pair->key) +
                                        "\": expected one of " + AllKeys());
        } else if (!values.insert({pair->key, {line.number, pair->value}}).second) {
            errors.Add(line.number, "a second \"" + std::string(pair->key) +
                                        "\": the first is on line " +
                                        std::to_string(values[pair->key].number));
        }
    }
    for (std::string_view key : kBattleKeys) {
        if (values.contains(key) || key == "rules") continue;
        errors.Add(section.line, "[battle] has no \"" + std::string(key) + "\"");
    }
    return values;
}

std::string RangeText(int low, int high) {
    return "a whole number from " + std::to_string(low) + " to " + std::to_string(high);
}

std::optional<int> NumberIn(std::string_view word, int low, int high) {
    const std::optional<int> number = WholeNumber(word);
    return number && *number >= low && *number <= high ? number : std::nullopt;
}

// The reader of one key; called only when the key stands in the source.
class BattleReader {
 public:
    BattleReader(const BattleValues& values, ScenarioBuild& build)
        : values_(values), build_(build) {}

    template <typename Read>
    void With(std::string_view key, Read read) {
        const auto found = values_.find(key);
        if (found != values_.end()) read(found->second.text, found->second.number);
    }
    void Number(const NumberKey& key) {
        With(key.key, [&](std::string_view value, int line) {
            const std::optional<int> number = NumberIn(value, key.low, key.high);
            if (number) {
                key.field(build_.file) = *number;
            } else {
                Wrong(line, key.key, RangeText(key.low, key.high), value);
            }
        });
    }
    void Text(std::string_view key, std::span<char> field) {
        With(key, [&](std::string_view value, int line) {
            const std::string wrong = PutText(value, field);
            if (!wrong.empty()) build_.errors.Add(line, std::string(key) + ": " + wrong);
        });
    }
    void Wrong(int line, std::string_view key, const std::string& expected,
               std::string_view value) {
        build_.errors.Add(line, std::string(key) + ": expected " + expected + ", found \"" +
                                    std::string(value) + "\"");
    }

    void Map(const AtlasCatalogue& atlases);
    void Size();
    void First();
    void Limits();
    void Start();
    void Rules();

 private:
    const BattleValues& values_;
    ScenarioBuild& build_;
};

void BattleReader::Map(const AtlasCatalogue& atlases) {
    With("map", [&](std::string_view value, int line) {
        const std::optional<int> number = WholeNumber(value);
        build_.atlas = number ? atlases.Find(*number) : nullptr;
        if (build_.atlas == nullptr) {
            Wrong(line, "map", "the number of a battlefield that has an atlas", value);
        } else {
            build_.file.header.mapNumber = *number;
        }
    });
}

void BattleReader::Size() {
    With("grid", [&](std::string_view value, int line) {
        const auto parts = SplitAt(value, 'x');
        const auto width = NumberIn(parts[0], kLeastWidth, kMostOfGrid);
        const auto height =
            parts.size() == 2 ? NumberIn(parts[1], kLeastHeight, kMostOfGrid) : std::nullopt;
        if (!width || !height) {
            return Wrong(line, "grid", "COLUMNS x ROWS, 3 x 2 to 250 x 250", value);
        }
        const Cell farthest = build_.atlas != nullptr ? build_.atlas->FarthestSlot() : Cell{};
        if (*width < farthest.x + 2 || *height < farthest.y + 1) {
            return Wrong(line, "grid",
                         "at least " + std::to_string(farthest.x + 2) + " x " +
                             std::to_string(farthest.y + 1) + ", which holds every slot",
                         value);
        }
        build_.SetSize(*width, *height);
    });
}

void BattleReader::First() {
    With("first", [&](std::string_view value, int line) {
        const std::optional<int> army = ValueOf(kArmyWords, value);
        if (!army) {
            build_.errors.Add(line, "first: " + UnknownWord("army", value, kArmyWords));
            return;
        }
        build_.firstLine = line;
        build_.file.header.firstPlayer = *army;
        build_.file.header.savedArmy = *army;
    });
}

std::array<int ScenarioHeader::*, 4> LimitFields() {
    return {&ScenarioHeader::majorDefeatLimit, &ScenarioHeader::minorDefeatLimit,
            &ScenarioHeader::minorVictoryLimit, &ScenarioHeader::majorVictoryLimit};
}

bool AreRising(const ScenarioHeader& header) {
    return header.majorDefeatLimit <= header.minorDefeatLimit &&
           header.minorDefeatLimit < header.minorVictoryLimit &&
           header.minorVictoryLimit <= header.majorVictoryLimit;
}

void BattleReader::Limits() {
    With("limits", [&](std::string_view value, int line) {
        const auto parts = SplitAt(value, ',');
        const auto fields = LimitFields();
        ScenarioHeader header;
        bool wrong = parts.size() != fields.size();
        for (std::size_t limit = 0; !wrong && limit < fields.size(); ++limit) {
            wrong = !ReadValue(parts[limit], header.*fields[limit], Width::Int16).empty();
        }
        if (wrong || !AreRising(header)) {
            return Wrong(line, "limits",
                         "four rising numbers: major defeat, minor defeat, minor victory, major "
                         "victory",
                         value);
        }
        for (auto field : fields)
            build_.file.header.*field = header.*field;
    });
}

// The clock x 100 of "16.30"; nothing when that is no time of day.
std::optional<int> ClockOf(std::string_view value) {
    const auto parts = SplitAt(value, '.');
    const std::optional<int> hours = NumberIn(parts[0], 0, 23);
    if (!hours || parts.size() > 2) return std::nullopt;
    if (parts.size() == 1) return *hours * 100;
    const std::optional<int> minutes = NumberIn(parts[1], 0, 59);
    if (!minutes || parts[1].size() != 2) return std::nullopt;
    return *hours * 100 + *minutes;
}

void BattleReader::Start() {
    With("start", [&](std::string_view value, int line) {
        const std::optional<int> clock = ClockOf(value);
        if (!clock) return Wrong(line, "start", "HOURS.MINUTES, 0.00 to 23.59", value);
        build_.file.time.clockField = *clock;
    });
}

void BattleReader::Rules() {
    With("rules", [&](std::string_view value, int line) {
        const std::optional<int> rules = ValueOf(kRulesWords, value);
        if (!rules) {
            build_.errors.Add(line, UnknownWord("rules", value, kRulesWords));
            return;
        }
        build_.rules = static_cast<ScenarioRules>(*rules);
    });
}

std::string Line(std::string_view key, const std::string& value) {
    return std::string(key) + " = " + value + "\n";
}

std::string NumberLine(const NumberKey& key, BattleFile& file) {
    return Line(key.key, std::to_string(std::clamp(key.field(file), key.low, key.high)));
}

std::string TextLine(std::string_view key, std::span<const char> field) {
    const std::string_view content = ContentOf(field);
    return Line(key, IsPlain(content) ? std::string(content) : Quoted(content));
}

std::string LimitsText(const ScenarioHeader& header) {
    if (!AreRising(header)) return "-300, -100, 100, 300";
    std::string text;
    for (auto field : LimitFields())
        text += (text.empty() ? "" : ", ") + std::to_string(header.*field);
    return text;
}

std::string ClockText(int clock) {
    if (clock < 0 || clock >= 2400 || clock % 100 > 59) return "12.00";
    const int minutes = clock % 100;
    return std::to_string(clock / 100) + (minutes < 10 ? ".0" : ".") + std::to_string(minutes);
}

}  // namespace

void ReadBattle(const ScenarioText& text, const AtlasCatalogue& atlases, ScenarioBuild& build) {
    const Section* const section = text.Need(SectionKind::Battle, build.errors);
    if (section == nullptr) return;
    const BattleValues values = ValuesOf(*section, build.errors);
    BattleReader reader(values, build);
    reader.Map(atlases);
    reader.Size();
    reader.Text("author", build.file.header.scenarioAuthor);
    reader.Text("date", build.file.header.scenarioDate);
    for (const NumberKey& key : kNumberKeys)
        reader.Number(key);
    reader.First();
    reader.Limits();
    reader.Start();
    reader.Rules();
    build.file.header.savedTurn = 1;
    build.file.header.passMode = kPassOfNewBattle;
    build.file.header.fogNone = 1;
}

std::string WriteBattle(const BattleFile& file, ScenarioRules rules) {
    BattleFile shown = file;  // the table of keys gives writable fields
    const auto number = [&](std::size_t key) { return NumberLine(kNumberKeys[key], shown); };
    std::string text = "[battle]\n";
    text += Line("map", std::to_string(file.header.mapNumber));
    text += Line("grid", std::to_string(file.mapWidth) + " x " + std::to_string(file.mapHeight));
    text += TextLine("author", file.header.scenarioAuthor);
    text += TextLine("date", file.header.scenarioDate);
    text += number(0);
    const std::string_view first = WordOf(kArmyWords, file.header.firstPlayer);
    text += Line("first", std::string(first.empty() ? kArmyWords[0].text : first));
    text += number(1);
    text += Line("limits", LimitsText(file.header));
    text += Line("start", ClockText(file.time.clockField));
    for (std::size_t key = 2; key < kNumberKeys.size(); ++key)
        text += number(key);
    if (rules == ScenarioRules::Loose) text += Line("rules", "loose");
    return text + "\n";
}

void ReadArmies(const ScenarioText& text, ScenarioBuild& build) {
    const Section* const section = text.Need(SectionKind::Armies, build.errors);
    if (section == nullptr) return;
    for (const SourceLine& line : section->lines) {
        const std::optional<KeyValue> pair = KeyValueOf(line, build.errors);
        if (!pair) continue;
        const std::optional<int> army = ValueOf(kArmyWords, pair->key);
        const std::optional<int> points = NumberIn(pair->value, 0, kMostCommandPoints);
        if (!army) {
            build.errors.Add(line.number, UnknownWord("army", pair->key, kArmyWords));
        } else if (!points) {
            build.errors.Add(line.number, "Command Points: expected " +
                                              RangeText(0, kMostCommandPoints) + ", found \"" +
                                              std::string(pair->value) + "\"");
        } else if (ArmyRecord& record = build.file.armies[static_cast<std::size_t>(*army)];
                   record.present != 0) {
            build.errors.Add(line.number,
                             "the army " + std::string(pair->key) + " stands here a second time");
        } else {
            record.present = 1;
            record.baseCommandPoints = *points;
        }
    }
}

std::string WriteArmies(const BattleFile& file) {
    std::string text = "[armies]\n";
    for (const Word& army : kArmyWords) {
        const ArmyRecord& record = file.armies[static_cast<std::size_t>(army.value)];
        if (record.present == 0) continue;
        text += Line(army.text,
                     std::to_string(std::clamp(record.baseCommandPoints, 0, kMostCommandPoints)));
    }
    return text + "\n";
}

}  // namespace varnstride
