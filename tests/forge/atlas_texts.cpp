#include "atlas_texts.h"

#include <gtest/gtest.h>

#include <sstream>

#include "forge/atlas_rules.h"
#include "forge/text_file.h"

namespace varnstride {

const std::string& GillyText() {
    static const std::string text =
        ReadTextFile(VARNSTRIDE_SOURCE_DIR "/content/atlas/gilly.atlas").Get();
    return text;
}

AtlasSource GillySource() {
    SourceErrors errors("gilly");
    AtlasSource source = ParseAtlasSource(GillyText(), errors);
    EXPECT_EQ(errors.Text(), "");
    return source;
}

std::string WithSlips(std::string text, const std::vector<Slip>& slips) {
    for (const Slip& slip : slips) {
        const std::size_t place = text.find(slip.from);
        if (place == std::string::npos) {
            ADD_FAILURE() << "the text has no \"" << slip.from << "\"";
            continue;
        }
        text.replace(place, slip.from.size(), slip.to);
    }
    return text;
}

Reports ReportsOn(const std::string& text) {
    SourceErrors errors("t");
    SourceErrors warnings("t");
    const AtlasSource source = ParseAtlasSource(text, errors);
    if (errors.IsEmpty()) CheckAtlas(source, errors, warnings);
    return {errors.Text(), warnings.Text()};
}

bool Tells(const std::string& reports, int line, std::string_view fragment) {
    const std::string place = line > 0 ? "t:" + std::to_string(line) + ": " : "t: ";
    std::istringstream rest(reports);
    for (std::string report; std::getline(rest, report);) {
        if (report.starts_with(place) && report.find(fragment) != std::string::npos) return true;
    }
    return false;
}

}  // namespace varnstride
