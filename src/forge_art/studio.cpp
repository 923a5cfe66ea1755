#include "forge_art/studio.h"

#include "forge/text_file.h"

namespace varnstride::art {
namespace {

// Reads one file into its part of the studio; what is wrong with it is added to the mistakes.
template <typename Part>
Part ReadPart(const std::string& path, std::string& mistakes) {
    const Result<std::string> text = ReadTextFile(path);
    if (!text.Ok()) {
        mistakes += text.Message() + "\n";
        return {};
    }
    SourceErrors errors(path);
    Part part = Part::Read(text.Get(), errors);
    mistakes += errors.Text();
    return part;
}

std::string MissingFrom(const std::string& file, const std::set<std::string>& names) {
    std::string list;
    for (const std::string& name : names)
        list += (list.empty() ? "" : ", ") + name;
    return list.empty() ? list : file + ": lacks " + list + "\n";
}

}  // namespace

std::string Studio::Missing() const {
    return MissingFrom("palette.art", palette.Missing()) +
           MissingFrom("figures.art", figures.Missing()) +
           MissingFrom("uniforms.art", uniforms.Missing());
}

Result<Studio> OpenStudio(const std::string& folder) {
    std::string mistakes;
    Studio studio{ReadPart<Palette>(folder + "/palette.art", mistakes),
                  ReadPart<FigureBook>(folder + "/figures.art", mistakes),
                  ReadPart<Wardrobe>(folder + "/uniforms.art", mistakes),
                  ReadPart<Lettering>(folder + "/lettering.art", mistakes)};
    if (!mistakes.empty()) return Failure{mistakes};
    return studio;
}

}  // namespace varnstride::art
