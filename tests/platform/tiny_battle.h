// A scenario of three areas in a row on the disk, for tests that play it through the driver: two
// French units in the first area, one Prussian in the third.
#pragma once

#include <filesystem>
#include <string>

#include "model/atlas.h"
#include "platform/headless/script.h"

namespace varnstride {

class TinyBattle {
 public:
    TinyBattle();
    ~TinyBattle();
    TinyBattle(const TinyBattle&) = delete;
    TinyBattle& operator=(const TinyBattle&) = delete;

    // What a script of that text prints; a failure's message instead, after what it had printed.
    std::string Play(const std::string& text) const;

    // A file beside the scenario.
    std::string Path(const std::string& name) const { return (folder_ / name).string(); }

    AtlasCatalogue catalogue;
    std::string scenario;  // its path

 private:
    std::filesystem::path folder_;
};

// The last line of a text.
std::string LastLine(const std::string& text);

}  // namespace varnstride
