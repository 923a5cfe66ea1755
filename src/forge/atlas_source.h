// The text of an atlas (docs/atlas_format.md), read into rows and links that remember their lines,
// and written back line by line for messages. The checker judges what was read; the compiler turns
// it into the program's table.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forge/source_errors.h"
#include "model/atlas.h"

namespace varnstride {

struct SourceRow {
    int ordinal = 0;  // as written
    AreaRow row;
    int line = 0;
};

struct SourceLink {
    AreaLink link;
    int line = 0;
};

struct AtlasSource {
    int mapNumber = 0;
    int mapLine = 0;
    std::vector<SourceRow> rows;    // as listed
    std::vector<SourceLink> links;  // by source area as listed, one for a pair of areas
};

// Reads the text of one file. Every mistake goes to the errors with its line; what is wrong with
// the battlefield that the text describes is not looked at. With errors the result has gaps.
AtlasSource ParseAtlasSource(std::string_view text, SourceErrors& errors);

// The atlas of a source that was read and checked without an error.
Atlas BuildAtlas(const AtlasSource& source);

// An area and a link as a source writes them: "5 | 25 | -, - | -, 17 | 30,12 ...", "second 5 via
// 6".
std::string RowText(int ordinal, const AreaRow& row);
std::string LinkText(const AreaLink& link);
// The two bounds of an axis as a source writes them: "-, 17".
std::string BoundsText(const std::optional<int>& above, const std::optional<int>& below);

}  // namespace varnstride
