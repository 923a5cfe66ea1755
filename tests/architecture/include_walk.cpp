#include "architecture/include_walk.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <regex>
#include <string_view>
#include <utility>

namespace varnstride {
namespace {

struct Floor {
    std::string_view folder;
    std::vector<std::string_view> mayUse;  // beside itself
};

// The table of docs/architecture.md.
const std::vector<Floor>& Floors() {
    static const std::vector<Floor> floors = {
        {"resources", {}},
        {"model", {"resources"}},
        {"files", {"model"}},
        {"atlases", {"model"}},
        {"actions", {"model", "resources"}},
        {"battle", {"model", "resources", "actions"}},
        {"opponent", {"model", "resources", "actions", "battle"}},
        {"flow", {"model", "resources", "actions", "battle", "opponent", "files"}},
        {"app", {"model", "resources", "actions", "battle", "opponent", "files", "flow"}},
        {"forge", {"model", "files"}},
        {"forge_art", {"model", "forge"}},
        {"display", {"model", "resources", "actions", "app"}},
        {"sound", {"model", "resources"}},
        {"platform",
         {"model", "resources", "atlases", "actions", "battle", "opponent", "files", "flow", "app",
          "forge", "display", "sound"}},
    };
    return floors;
}

std::string_view FolderOf(std::string_view path) {
    return path.substr(0, path.find('/'));
}

const Floor* FloorOf(std::string_view folder) {
    const auto found = std::find_if(Floors().begin(), Floors().end(),
                                    [&](const Floor& floor) { return floor.folder == folder; });
    return found == Floors().end() ? nullptr : &*found;
}

bool MayUse(const Floor& floor, std::string_view folder) {
    return folder == floor.folder ||
           std::find(floor.mayUse.begin(), floor.mayUse.end(), folder) != floor.mayUse.end();
}

// Follows the includes depth first; a file met again on its own way closes a circle.
class CircleSearch {
 public:
    explicit CircleSearch(const std::vector<SourceFile>& files) {
        for (const SourceFile& file : files)
            includes_[file.path] = &file.includes;
    }

    std::vector<std::string> Run() {
        for (const auto& [path, unused] : includes_)
            Visit(path);
        return circles_;
    }

 private:
    enum class Mark { New, OnTheWay, Done };

    void Visit(const std::string& path) {
        const auto file = includes_.find(path);
        if (file == includes_.end() || marks_[path] == Mark::Done) return;
        if (marks_[path] == Mark::OnTheWay) {
            Note(path);
            return;
        }
        marks_[path] = Mark::OnTheWay;
        way_.push_back(path);
        for (const std::string& next : *file->second)
            Visit(next);
        way_.pop_back();
        marks_[path] = Mark::Done;
    }

    void Note(const std::string& path) {
        std::string circle;
        for (auto step = std::find(way_.begin(), way_.end(), path); step != way_.end(); ++step) {
            circle += *step + " -> ";
        }
        circles_.push_back(circle + path);
    }

    std::map<std::string, const std::vector<std::string>*> includes_;
    std::map<std::string, Mark> marks_;
    std::vector<std::string> way_;
    std::vector<std::string> circles_;
};

// A text in a raw string may be a source of its own, which is none of ours.
std::string WithoutRawStrings(std::string text) {
    for (std::size_t first = 0; (first = text.find("R\"(", first)) != std::string::npos;) {
        text.erase(first, text.find(")\"", first) - first);
    }
    return text;
}

}  // namespace

SourceFile MakeSourceFile(std::string path, std::string text) {
    static const std::regex include(R"re((?:^|\n)[ \t]*#[ \t]*include[ \t]*"([^"]+)")re");
    SourceFile file{std::move(path), {}, WithoutRawStrings(std::move(text))};
    for (std::sregex_iterator found(file.text.begin(), file.text.end(), include), none;
         found != none; ++found) {
        file.includes.push_back((*found)[1].str());
    }
    return file;
}

std::vector<SourceFile> ReadSources(const std::filesystem::path& src) {
    std::vector<SourceFile> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(src)) {
        const std::filesystem::path& path = entry.path();
        if (path.extension() != ".h" && path.extension() != ".cpp") continue;
        std::ifstream stream(path);
        std::string text(std::istreambuf_iterator<char>(stream), {});
        files.push_back(MakeSourceFile(path.lexically_relative(src).generic_string(), text));
    }
    std::sort(files.begin(), files.end(),
              [](const SourceFile& a, const SourceFile& b) { return a.path < b.path; });
    return files;
}

std::vector<std::string> FindWrongFloors(const std::vector<SourceFile>& files) {
    std::vector<std::string> faults;
    for (const SourceFile& file : files) {
        const Floor* floor = FloorOf(FolderOf(file.path));
        if (floor == nullptr) {
            faults.push_back(file.path + ": its folder has no row in the table of floors");
            continue;
        }
        for (const std::string& include : file.includes) {
            if (MayUse(*floor, FolderOf(include))) continue;
            faults.push_back(file.path + ": may not include " + include);
        }
    }
    return faults;
}

std::vector<std::string> FindCircles(const std::vector<SourceFile>& files) {
    return CircleSearch(files).Run();
}

std::vector<std::string> FindForeignNames(const std::vector<SourceFile>& files) {
    static const std::regex foreign(R"(\bQt\b|\bQ[A-Z][a-z]\w*|\bOpenAL\b|<AL/|\balc?[A-Z]\w*\()");
    std::vector<std::string> faults;
    for (const SourceFile& file : files) {
        std::smatch name;
        const std::string_view folder = FolderOf(file.path);
        if (folder == "platform" || folder == "forge_art") continue;  // the painters' QPainter
        if (!std::regex_search(file.text, name, foreign)) continue;
        faults.push_back(file.path + ": names " + name.str());
    }
    return faults;
}

}  // namespace varnstride
