// A scenario source cut into its sections: comments gone, every line with its number. What a
// section holds is read by the files named after it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forge/source_errors.h"

namespace varnstride {

struct SourceLine {
    int number = 0;         // from 1
    std::string_view text;  // without the blanks at its end
};

enum class SectionKind {
    Battle,
    Description,
    Terrain,
    Areas,
    Heights,
    Overlay,
    Roads,
    Labels,
    Objectives,
    Armies,
    Briefing,
    Units,
    Cells,
    Fields,
};

struct Section {
    SectionKind kind;
    int army = 0;                   // of a briefing or a table of units
    int line = 0;                   // of the heading
    std::vector<SourceLine> lines;  // empty lines only where they count, in free text
};

class ScenarioText {
 public:
    // Keeps views into the text, which must outlive this.
    ScenarioText(std::string_view text, SourceErrors& errors);

    // The section; nothing when the source has none.
    const Section* Find(SectionKind kind, int army = 0) const;
    // The section; a missing one is an error at the end of the source.
    const Section* Need(SectionKind kind, SourceErrors& errors) const;

    const std::vector<Section>& Sections() const { return sections_; }

 private:
    void Open(SourceLine heading, SourceErrors& errors);
    Section* OpenSection() { return open_ ? &sections_[*open_] : nullptr; }

    std::vector<Section> sections_;
    std::optional<std::size_t> open_;  // the section being read; nothing below a wrong heading
    int lastLine_ = 0;
};

// A line written "key = value".
struct KeyValue {
    std::string_view key;
    std::string_view value;
};

// Cuts the line at its first "="; a line without one is an error and gives nothing.
std::optional<KeyValue> KeyValueOf(const SourceLine& line, SourceErrors& errors);

}  // namespace varnstride
