#include "forge_art/art_source.h"

#include "forge/source_text.h"

namespace varnstride::art {
namespace {

constexpr char kComment = ';';

// Calls take(number, line) for every line but comments, without blanks at its end.
template <typename Take>
void ForEachLine(std::string_view text, Take take) {
    int number = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        ++number;
        const std::size_t last = line.find_last_not_of(" \t\r");
        line = line.substr(0, last == line.npos ? 0 : last + 1);
        if (line.empty() || line.front() != kComment) take(number, line);
    }
}

}  // namespace

std::vector<KeyedLine> KeyedLines(std::string_view text, SourceErrors& errors) {
    std::vector<KeyedLine> lines;
    ForEachLine(text, [&](int number, std::string_view line) {
        if (line.empty()) return;
        const std::size_t equals = line.find('=');
        if (equals == line.npos) {
            errors.Add(number, "expected \"key = value\"");
            return;
        }
        lines.push_back({number, std::string(Trimmed(line.substr(0, equals))),
                         std::string(Trimmed(line.substr(equals + 1)))});
    });
    return lines;
}

std::vector<TableRow> TableRows(std::string_view text) {
    std::vector<TableRow> rows;
    ForEachLine(text, [&](int number, std::string_view line) {
        if (line.empty()) return;
        TableRow row{number, {}};
        for (std::string_view cell : SplitAt(line, '|'))
            row.cells.emplace_back(cell);
        rows.push_back(std::move(row));
    });
    return rows;
}

std::vector<Drawing> Drawings(std::string_view text, SourceErrors& errors) {
    std::vector<Drawing> drawings;
    ForEachLine(text, [&](int number, std::string_view line) {
        if (line.size() > 2 && line.front() == '[' && line.back() == ']') {
            drawings.push_back({number, std::string(line.substr(1, line.size() - 2)), {}});
        } else if (!line.empty() && drawings.empty()) {
            errors.Add(number, "expected a heading in square brackets");
        } else if (!line.empty()) {
            drawings.back().rows.emplace_back(line);
        }
    });
    return drawings;
}

}  // namespace varnstride::art
