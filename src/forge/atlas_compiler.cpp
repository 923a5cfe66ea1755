#include "forge/atlas_compiler.h"

#include <algorithm>
#include <vector>

namespace varnstride {
namespace {

constexpr std::string_view kHead = R"(// Made from the atlas files by varnstride-forge; edit those.
#include "atlases/built_in.h"

#include <iterator>

namespace varnstride {
namespace {

constexpr auto kNo = std::nullopt;
constexpr AreaLink Link(int from, int to, int firstStep, int secondStep, int via, bool closed) {
    return {from, to, static_cast<FirstStep>(firstStep), static_cast<SecondStep>(secondStep), via,
            closed};
}

template <typename Value, std::size_t count>
std::vector<Value> List(const Value (&values)[count]) {
    return {std::begin(values), std::end(values)};
}

)";

std::string Code(const std::optional<int>& bound) {
    return bound ? std::to_string(*bound) : "kNo";
}

std::string Code(const std::array<Cell, kSlotsPerSide>& slots) {
    std::string text;
    for (Cell slot : slots) {
        text += (text.empty() ? "{" : ", {") + std::to_string(slot.x) + ", " +
                std::to_string(slot.y) + "}";
    }
    return "{{" + text + "}}";
}

std::string Code(const AreaRow& row) {
    return "{" + std::to_string(row.areaId) + ", " + Code(row.xAbove) + ", " + Code(row.xBelow) +
           ", " + Code(row.yAbove) + ", " + Code(row.yBelow) + ", " + Code(row.frenchSlots) + ", " +
           Code(row.alliedSlots) + "}";
}

std::string Code(const AreaLink& link) {
    std::string text = "Link(";
    for (int number : {link.from, link.to, static_cast<int>(link.firstStep),
                       static_cast<int>(link.secondStep), link.viaArea}) {
        text += std::to_string(number) + ", ";
    }
    return text + (link.noBombardment ? "true)" : "false)");
}

std::string Tables(const AtlasSource& atlas) {
    const std::string number = std::to_string(atlas.mapNumber);
    std::string text = "constexpr AreaRow kAreas" + number + "[] = {\n";
    for (const SourceRow& area : atlas.rows)
        text += "    " + Code(area.row) + ",\n";
    text += "};\n\nconstexpr AreaLink kLinks" + number + "[] = {\n";
    for (const SourceLink& source : atlas.links)
        text += "    " + Code(source.link) + ",\n";
    return text + "};\n\n";
}

}  // namespace

std::string AtlasesAsCode(std::span<const AtlasSource> atlases) {
    std::vector<const AtlasSource*> byNumber;
    for (const AtlasSource& atlas : atlases)
        byNumber.push_back(&atlas);
    std::sort(byNumber.begin(), byNumber.end(), [](const AtlasSource* a, const AtlasSource* b) {
        return a->mapNumber < b->mapNumber;
    });
    std::string text(kHead);
    for (const AtlasSource* atlas : byNumber)
        text += Tables(*atlas);
    text +=
        "}  // namespace\n\nconst AtlasCatalogue& BuiltInAtlases() {\n"
        "    static const AtlasCatalogue kCatalogue({\n";
    for (const AtlasSource* atlas : byNumber) {
        const std::string number = std::to_string(atlas->mapNumber);
        text.append("        Atlas(").append(number);
        text.append(", List(kAreas").append(number);
        text.append("), List(kLinks").append(number).append(")),\n");
    }
    return text + "    });\n    return kCatalogue;\n}\n\n}  // namespace varnstride\n";
}

}  // namespace varnstride
