// Reading of the text files under content/art: keys with values, tables, and drawings in
// characters under a heading. Lines that start with ; are comments.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forge/source_errors.h"

namespace varnstride::art {

struct KeyedLine {
    int number;
    std::string key;
    std::string value;
};

// The lines "key = value" of a text; blank lines and comments are passed over.
std::vector<KeyedLine> KeyedLines(std::string_view text, SourceErrors& errors);

struct TableRow {
    int number;
    std::vector<std::string> cells;
};

// The rows of a table with columns parted by |, the line of headings first.
std::vector<TableRow> TableRows(std::string_view text);

// A picture in characters. Rows keep their blanks; rows of dots and blanks count.
struct Drawing {
    int number;  // the line of the heading
    std::string name;
    std::vector<std::string> rows;
};

// What stands under each heading "[name]".
std::vector<Drawing> Drawings(std::string_view text, SourceErrors& errors);

}  // namespace varnstride::art
