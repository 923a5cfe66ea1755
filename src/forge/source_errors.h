// The mistakes of one content source: all of them are gathered in a run, each with its line.
#pragma once

#include <string>
#include <vector>

namespace varnstride {

class SourceErrors {
 public:
    explicit SourceErrors(std::string file) : file_(std::move(file)) {}

    // Lines count from 1; 0 is for what belongs to no line.
    void Add(int line, std::string message) { errors_.push_back({line, std::move(message)}); }
    bool IsEmpty() const { return errors_.empty(); }

    // "file:line: message", one a line, by rising line.
    std::string Text() const;

 private:
    struct Error {
        int line;
        std::string message;
    };

    std::string file_;
    std::vector<Error> errors_;
};

}  // namespace varnstride
