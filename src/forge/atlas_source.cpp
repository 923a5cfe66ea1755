#include "forge/atlas_source.h"

#include <algorithm>
#include <utility>

#include "forge/source_text.h"

namespace varnstride {
namespace {

// The words that open a part of a line of links. A link that two parts give a step each has both.
struct LinkKind {
    std::string_view word;
    FirstStep firstStep;
    SecondStep secondStep;

    bool IsViaAlone() const {
        return firstStep == FirstStep::None && secondStep == SecondStep::None;
    }
};

constexpr LinkKind kLinkKinds[] = {
    {"open", FirstStep::Open, SecondStep::None},
    {"foot", FirstStep::FootOnly, SecondStep::None},
    {"foot-or-road", FirstStep::FootOrRoad, SecondStep::None},
    {"second", FirstStep::None, SecondStep::Open},
    {"second-road", FirstStep::None, SecondStep::RoadOnly},
    {"pass", FirstStep::None, SecondStep::None},
};

constexpr std::string_view kSelfWord = "self";
constexpr std::string_view kViaWord = "via";
constexpr std::string_view kNoBombardmentWord = "no-bombardment";

std::string Quoted(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

class AtlasParser {
 public:
    explicit AtlasParser(SourceErrors& errors) : errors_(errors) {}

    AtlasSource Parse(std::string_view text);

 private:
    enum class Section { Head, Areas, Links, Unknown };

    void ReadLine(std::string_view text);
    void OpenSection(std::string_view heading);
    void ReadHead(std::string_view text);
    void ReadArea(std::string_view text);
    std::optional<int> ReadNumber(std::string_view text, std::string_view what);
    void ReadBounds(std::string_view text, std::string_view axis, std::optional<int>& above,
                    std::optional<int>& below);
    void ReadSlots(std::string_view text, std::string_view side,
                   std::array<Cell, kSlotsPerSide>& slots);
    void ReadLinks(std::string_view text);
    bool OpensLinksOf(int from);
    void ReadPart(int from, std::string_view part);
    std::optional<AreaLink> ReadTarget(int from, const LinkKind& kind, std::string_view target);
    bool ReadTargetWords(const std::vector<std::string_view>& words, AreaLink& link);
    void Join(const AreaLink& link);
    void FindMissingParts();
    void Complain(std::string message) {
        sound_ = false;
        errors_.Add(line_, std::move(message));
    }

    SourceErrors& errors_;
    AtlasSource source_;
    Section section_ = Section::Head;
    std::vector<std::string> headings_;
    std::vector<std::pair<int, int>> linkLines_;  // source area, its line
    int line_ = 0;
    bool sound_ = true;  // nothing wrong since it was last set
};

AtlasSource AtlasParser::Parse(std::string_view text) {
    for (std::string_view line : SplitAt(text, '\n')) {
        ++line_;
        if (!line.empty() && line.front() != ';') ReadLine(line);
    }
    FindMissingParts();
    return std::move(source_);
}

void AtlasParser::ReadLine(std::string_view text) {
    if (text.front() == '[') return OpenSection(text);
    switch (section_) {
        case Section::Head: return ReadHead(text);
        case Section::Areas: return ReadArea(text);
        case Section::Links: return ReadLinks(text);
        case Section::Unknown: return;
    }
}

void AtlasParser::OpenSection(std::string_view heading) {
    if (std::find(headings_.begin(), headings_.end(), heading) != headings_.end()) {
        Complain(std::string(heading) + " stands twice: each section stands once");
    }
    headings_.emplace_back(heading);
    section_ = heading == "[areas]"   ? Section::Areas
               : heading == "[links]" ? Section::Links
                                      : Section::Unknown;
    if (section_ == Section::Unknown) {
        Complain(std::string(heading) + " is no section: expected [areas] or [links]");
    }
}

void AtlasParser::ReadHead(std::string_view text) {
    const std::vector<std::string_view> sides = SplitAt(text, '=');
    if (sides.size() != 2 || sides[0] != "map") {
        return Complain(Quoted(text) + ": expected \"map = NUMBER\", then [areas] and [links]");
    }
    if (source_.mapLine > 0) {
        return Complain("the map is given a second time, first in line " +
                        std::to_string(source_.mapLine));
    }
    source_.mapLine = line_;
    source_.mapNumber = ReadNumber(sides[1], "the number of the map").value_or(0);
}

void AtlasParser::ReadArea(std::string_view text) {
    constexpr std::size_t kColumns = 6;
    const std::vector<std::string_view> parts = SplitAt(text, '|');
    if (parts.size() != kColumns) {
        return Complain("an area has 6 columns parted by |, here are " +
                        std::to_string(parts.size()) +
                        ": expected ordinal | number | x box | y box | French slots | Allied "
                        "slots");
    }
    sound_ = true;
    SourceRow area;
    area.line = line_;
    area.ordinal = ReadNumber(parts[0], "the ordinal").value_or(0);
    area.row.areaId = ReadNumber(parts[1], "the area's number").value_or(0);
    ReadBounds(parts[2], "x", area.row.xAbove, area.row.xBelow);
    ReadBounds(parts[3], "y", area.row.yAbove, area.row.yBelow);
    ReadSlots(parts[4], "French", area.row.frenchSlots);
    ReadSlots(parts[5], "Allied", area.row.alliedSlots);
    if (sound_) source_.rows.push_back(area);
}

std::optional<int> AtlasParser::ReadNumber(std::string_view text, std::string_view what) {
    const std::optional<int> number = WholeNumber(text);
    if (!number) {
        Complain(Quoted(text) + ": expected a whole number, " + std::string(what));
    }
    return number;
}

void AtlasParser::ReadBounds(std::string_view text, std::string_view axis,
                             std::optional<int>& above, std::optional<int>& below) {
    const std::vector<std::string_view> bounds = SplitAt(text, ',');
    const auto isBound = [](std::string_view bound) {
        return bound == "-" || WholeNumber(bound).has_value();
    };
    if (bounds.size() != 2 || !isBound(bounds[0]) || !isBound(bounds[1])) {
        return Complain(Quoted(text) + ": expected the " + std::string(axis) +
                        " box as two bounds, such as \"0, 11\"; - is no bound");
    }
    above = WholeNumber(bounds[0]);
    below = WholeNumber(bounds[1]);
}

void AtlasParser::ReadSlots(std::string_view text, std::string_view side,
                            std::array<Cell, kSlotsPerSide>& slots) {
    const std::vector<std::string_view> words = Words(text);
    if (words.size() != slots.size()) {
        return Complain(Quoted(text) + ": expected the three " + std::string(side) +
                        " slots, such as \"2,2 2,6 5,2\"");
    }
    for (std::size_t slot = 0; slot < slots.size(); ++slot) {
        const std::optional<Cell> cell = CellFrom(words[slot]);
        if (!cell) {
            Complain(Quoted(words[slot]) + ": expected a slot of the " + std::string(side) +
                     " side as x,y");
        }
        slots[slot] = cell.value_or(kNoCell);
    }
}

void AtlasParser::ReadLinks(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) {
        return Complain(Quoted(text) +
                        ": expected the links of an area, such as \"5: open 6 | foot 4, 12\"");
    }
    const std::optional<int> from =
        ReadNumber(Trimmed(text.substr(0, colon)), "the ordinal of the area that the links leave");
    if (!from || !OpensLinksOf(*from)) return;
    for (std::string_view part : SplitAt(text.substr(colon + 1), '|'))
        ReadPart(*from, part);
}

bool AtlasParser::OpensLinksOf(int from) {
    const auto given = std::find_if(linkLines_.begin(), linkLines_.end(),
                                    [&](const auto& entry) { return entry.first == from; });
    if (given != linkLines_.end()) {
        Complain("area " + std::to_string(from) + " has its links in line " +
                 std::to_string(given->second) + " already: expected one line for an area");
        return false;
    }
    linkLines_.emplace_back(from, line_);
    return true;
}

void AtlasParser::ReadPart(int from, std::string_view part) {
    const std::string_view word = part.substr(0, part.find_first_of(" \t"));
    const auto* const kind =
        std::find_if(std::begin(kLinkKinds), std::end(kLinkKinds),
                     [&](const LinkKind& candidate) { return candidate.word == word; });
    if (kind == std::end(kLinkKinds)) {
        return Complain(Quoted(word) +
                        ": expected a kind of link: open, foot, foot-or-road, second, "
                        "second-road or pass");
    }
    for (std::string_view target : SplitAt(part.substr(word.size()), ',')) {
        const std::optional<AreaLink> link = ReadTarget(from, *kind, target);
        if (link) Join(*link);
    }
}

std::optional<AreaLink> AtlasParser::ReadTarget(int from, const LinkKind& kind,
                                                std::string_view target) {
    const std::vector<std::string_view> words = Words(target);
    AreaLink link;
    link.from = from;
    link.firstStep = kind.firstStep;
    link.secondStep = kind.secondStep;
    if (!ReadTargetWords(words, link)) {
        Complain(Quoted(target) + ": expected a target area of " + Quoted(kind.word) +
                 ", such as \"5\", \"5 via 6\", \"self\" or \"5 via 6 no-bombardment\"");
        return std::nullopt;
    }
    const bool saysSelf = words.front() == kSelfWord;
    if (link.to == from && !saysSelf) {
        Complain("area " + std::to_string(from) + " links to itself: expected \"self\" if meant");
        return std::nullopt;
    }
    if (kind.IsViaAlone() && link.viaArea == 0) {
        Complain(Quoted(target) + ": expected \"via\" and an area, all that \"pass\" tells");
        return std::nullopt;
    }
    return link;
}

// TARGET [via AREA] [no-bombardment]
bool AtlasParser::ReadTargetWords(const std::vector<std::string_view>& words, AreaLink& link) {
    if (words.empty()) return false;
    const std::optional<int> target = words[0] == kSelfWord ? link.from : WholeNumber(words[0]);
    if (!target) return false;
    link.to = *target;
    std::size_t next = 1;
    if (next + 1 < words.size() && words[next] == kViaWord) {
        const std::optional<int> via = WholeNumber(words[next + 1]);
        if (!via || *via == 0) return false;
        link.viaArea = *via;
        next += 2;
    }
    if (next < words.size() && words[next] == kNoBombardmentWord) {
        link.noBombardment = true;
        ++next;
    }
    return next == words.size();
}

// Two parts of a line may give one link its first and its second step.
void AtlasParser::Join(const AreaLink& link) {
    const auto known =
        std::find_if(source_.links.begin(), source_.links.end(), [&](const SourceLink& other) {
            return other.link.from == link.from && other.link.to == link.to;
        });
    if (known == source_.links.end()) {
        source_.links.push_back({link, line_});
        return;
    }
    AreaLink& joined = known->link;
    const bool firstThenSecond =
        (joined.firstStep == FirstStep::None) != (link.firstStep == FirstStep::None) &&
        (joined.secondStep == SecondStep::None) != (link.secondStep == SecondStep::None);
    const bool agree = joined.viaArea == 0 || link.viaArea == 0 || joined.viaArea == link.viaArea;
    if (!firstThenSecond || !agree) {
        return Complain("area " + std::to_string(link.to) +
                        " stands twice among these links: expected at most one first and one "
                        "second step to it, with one via");
    }
    joined.firstStep = std::max(joined.firstStep, link.firstStep);
    joined.secondStep = std::max(joined.secondStep, link.secondStep);
    joined.viaArea = std::max(joined.viaArea, link.viaArea);
    joined.noBombardment = joined.noBombardment || link.noBombardment;
}

void AtlasParser::FindMissingParts() {
    line_ = 0;
    if (source_.mapLine == 0) Complain("expected \"map = NUMBER\" before the sections");
    for (const char* heading : {"[areas]", "[links]"}) {
        if (std::find(headings_.begin(), headings_.end(), heading) == headings_.end()) {
            Complain("expected a section " + std::string(heading));
        }
    }
}

std::string SlotsText(const std::array<Cell, kSlotsPerSide>& slots) {
    std::string text;
    for (Cell slot : slots) {
        text += (text.empty() ? "" : " ") + std::to_string(slot.x) + "," + std::to_string(slot.y);
    }
    return text;
}

}  // namespace

AtlasSource ParseAtlasSource(std::string_view text, SourceErrors& errors) {
    return AtlasParser(errors).Parse(text);
}

Atlas BuildAtlas(const AtlasSource& source) {
    std::vector<AreaRow> rows;
    rows.reserve(source.rows.size());
    for (const SourceRow& area : source.rows)
        rows.push_back(area.row);
    std::vector<AreaLink> links;
    links.reserve(source.links.size());
    for (const SourceLink& link : source.links)
        links.push_back(link.link);
    return Atlas(source.mapNumber, std::move(rows), std::move(links));
}

std::string BoundsText(const std::optional<int>& above, const std::optional<int>& below) {
    const auto text = [](const std::optional<int>& bound) {
        return bound ? std::to_string(*bound) : std::string("-");
    };
    return text(above) + ", " + text(below);
}

std::string RowText(int ordinal, const AreaRow& row) {
    return std::to_string(ordinal) + " | " + std::to_string(row.areaId) + " | " +
           BoundsText(row.xAbove, row.xBelow) + " | " + BoundsText(row.yAbove, row.yBelow) + " | " +
           SlotsText(row.frenchSlots) + " | " + SlotsText(row.alliedSlots);
}

std::string LinkText(const AreaLink& link) {
    std::string target =
        " " + (link.to == link.from ? std::string(kSelfWord) : std::to_string(link.to));
    if (link.viaArea > 0) target += " via " + std::to_string(link.viaArea);
    if (link.noBombardment) target += " " + std::string(kNoBombardmentWord);
    std::string text;
    for (const LinkKind& kind : kLinkKinds) {
        const bool first = kind.firstStep != FirstStep::None && kind.firstStep == link.firstStep;
        const bool second =
            kind.secondStep != SecondStep::None && kind.secondStep == link.secondStep;
        if (first || second) text += (text.empty() ? "" : " | ") + std::string(kind.word) + target;
    }
    return text.empty() ? "pass" + target : text;
}

}  // namespace varnstride
