// Walks the includes of the source tree and tells what breaks the order of its floors: who includes
// a folder that his floor may not use, includes in a circle, names of the window and sound
// libraries where they do not belong.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace varnstride {

struct SourceFile {
    std::string path;                   // below src, with slashes
    std::vector<std::string> includes;  // of our own files, below src
    std::string text;
};

SourceFile MakeSourceFile(std::string path, std::string text);

// Every .h and .cpp below the folder, by path.
std::vector<SourceFile> ReadSources(const std::filesystem::path& src);

// Each gives one line a fault, naming the file.
std::vector<std::string> FindWrongFloors(const std::vector<SourceFile>& files);
std::vector<std::string> FindCircles(const std::vector<SourceFile>& files);
std::vector<std::string> FindForeignNames(const std::vector<SourceFile>& files);

}  // namespace varnstride
