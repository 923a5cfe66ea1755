// The colours of the map by name, as content/art/palette.art gives them. Painters ask by name; what
// they asked for in vain is told once all is painted, and nothing is written then.
#pragma once

#include <QRgb>
#include <map>
#include <set>
#include <string>
#include <string_view>

#include "forge/source_errors.h"

namespace varnstride::art {

class Palette {
 public:
    // Lines "name = rrggbb".
    static Palette Read(std::string_view text, SourceErrors& errors);

    // The colour of a name; black for one that the file lacks.
    QRgb operator[](std::string_view name) const;

    // The names that were asked for in vain so far.
    const std::set<std::string>& Missing() const { return missing_; }

 private:
    std::map<std::string, QRgb, std::less<>> colors_;
    mutable std::set<std::string> missing_;
};

}  // namespace varnstride::art
