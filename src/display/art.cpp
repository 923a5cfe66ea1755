#include "display/art.h"

#include "display/bmp_reader.h"
#include "display/labels.h"
#include "display/stand_in.h"
#include "display/top_bar_picture.h"

namespace varnstride {
namespace {

namespace fs = std::filesystem;

struct FootprintRow {
    ViewKind view;
    std::string_view file;
    int width;  // of the stand-in, which is twice as high
};

constexpr std::array<FootprintRow, 2> kFootprints = {{
    {ViewKind::Normal, "Graphics/MouseMap.bmp", 32},
    {ViewKind::ZoomOut, "Graphics/MouseMap2.bmp", 16},
}};

constexpr std::array<std::string_view, 2> kCanvases = {kTopBarCanvas, kLabelCanvas};

int CountMissing(const TileSet& set, int tiles) {
    int missing = 0;
    for (int number = 0; number < tiles; ++number)
        missing += set.Has(number) ? 0 : 1;
    return missing;
}

}  // namespace

Art::Art(const fs::path& data) {
    for (const SheetRow& row : kSheetRows)
        Put(row.sheet, Load(data, row.need));
    for (std::size_t sheet = 0; sheet < sprites_.Count(); ++sheet)
        PutSprites(sheet, Load(data, sprites_.Need(sheet)));
    for (const FootprintRow& row : kFootprints)
        LoadFootprint(data, row.view, row.file);
    for (const std::string_view file : kCanvases)
        LoadCanvas(data, file);
    FillGaps();
}

TileSet Art::Load(const fs::path& data, const SheetNeed& need) {
    const std::string path = (data / need.file).string();
    Result<TileSet> loaded = LoadTileSet(path);
    if (!loaded.Ok()) {
        Complain(loaded.Message());
        return {};
    }
    if (const int missing = CountMissing(loaded.Get(), need.tiles); missing > 0) {
        Complain(path + ": lacks " + std::to_string(missing) + " of " + std::to_string(need.tiles) +
                 " tiles, or their anchor marks");
    }
    return std::move(loaded.Get());
}

void Art::LoadFootprint(const fs::path& data, ViewKind view, std::string_view file) {
    const std::string path = (data / file).string();
    const Result<Surface> picture = ReadBmp(path);
    if (!picture.Ok()) return Complain(picture.Message());
    Result<MouseMap> map = MakeMouseMap(picture.Get(), path);
    if (!map.Ok()) return Complain(map.Message());
    PutFootprint(view, std::move(map.Get()));
}

void Art::LoadCanvas(const fs::path& data, std::string_view file) {
    Result<Surface> picture = ReadBmp((data / file).string());
    if (!picture.Ok()) return Complain(picture.Message());
    PutCanvas(file, std::move(picture.Get()));
}

void Art::FillGaps() {
    for (const SheetRow& row : kSheetRows)
        FillWithStandIns(sheets_[static_cast<std::size_t>(row.sheet)], row.need);
    sprites_.FillGaps();
    if (Canvas(kLabelCanvas) == nullptr) PutCanvas(kLabelCanvas, PaintLabelCanvas());
    for (const FootprintRow& row : kFootprints) {
        if (Footprint(row.view).Width() > 0) continue;
        PutFootprint(row.view,
                     HexMouseMap(row.width, 2 * row.width, Point{} - CellRect(row.view).TopLeft()));
    }
}

Rect Art::CellRect(ViewKind view) const {
    return At(view == ViewKind::Normal ? Sheet::Ground : Sheet::SmallGround).At(0).destination;
}

const Surface* Art::Canvas(std::string_view file) const {
    const auto found = canvases_.find(file);
    return found == canvases_.end() ? nullptr : &found->second;
}

}  // namespace varnstride
