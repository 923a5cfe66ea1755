#include "forge/source_errors.h"

#include <algorithm>

namespace varnstride {

std::string SourceErrors::Text() const {
    std::vector<Error> sorted = errors_;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Error& a, const Error& b) { return a.line < b.line; });
    std::string text;
    for (const Error& error : sorted) {
        text += file_ + (error.line > 0 ? ":" + std::to_string(error.line) : "") + ": " +
                error.message + "\n";
    }
    return text;
}

}  // namespace varnstride
