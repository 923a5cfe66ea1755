// Atlas texts for the tests of the forge: Gilly's own file, slips of an editor in it, and what a
// whole run over a text reports.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forge/atlas_source.h"

namespace varnstride {

// The text of content/atlas/gilly.atlas.
const std::string& GillyText();
AtlasSource GillySource();

// One slip: the first occurrence of a text replaced by another.
struct Slip {
    std::string_view from;
    std::string_view to;
};

// The text with the slips made; a slip whose text is not there fails the test.
std::string WithSlips(std::string text, const std::vector<Slip>& slips);

// What a run reports, each as "t:LINE: message", with "t" as the name of the file.
struct Reports {
    std::string errors;
    std::string warnings;
};
Reports ReportsOn(const std::string& text);

// Whether a report has the message fragment in the given line; line 0 is the file as a whole.
bool Tells(const std::string& reports, int line, std::string_view fragment);

}  // namespace varnstride
