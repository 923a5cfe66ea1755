// All pictures of the map, loaded once at the start of the program: sheets, sprites, the footprints
// of the cells of both views, and canvases from which pieces are copied. What is missing or damaged
// has a plain stand-in and a line in `complaints`.
#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "display/mouse_map.h"
#include "display/sheets.h"
#include "display/tile_set.h"
#include "display/unit_sprites.h"

namespace varnstride {

// The two ways of looking at the map, by the numbers of the setting.
enum class ViewKind { Normal = 1, ZoomOut = 2 };

class Art {
 public:
    // Nothing but stand-ins.
    Art() { FillGaps(); }
    // Reads the folders Graphics and Units of the data folder.
    explicit Art(const std::filesystem::path& data);

    const TileSet& At(Sheet sheet) const { return sheets_[static_cast<std::size_t>(sheet)]; }
    const SpriteSheets& Sprites() const { return sprites_; }
    const MouseMap& Footprint(ViewKind view) const {
        return footprints_[view == ViewKind::Normal ? 0 : 1];
    }
    // The rectangle of a cell of that view around its anchor: that of the first ground tile.
    Rect CellRect(ViewKind view) const;
    // Nothing when the canvas could not be read; the sheet of labels has a stand-in.
    const Surface* Canvas(std::string_view file) const;

    // One line for each file that is missing or damaged.
    const std::vector<std::string>& Complaints() const { return complaints_; }

    // Pictures from elsewhere, in place of those of the files; they hold all tiles they need.
    void Put(Sheet sheet, TileSet tiles) {
        sheets_[static_cast<std::size_t>(sheet)] = std::move(tiles);
    }
    void PutSprites(std::size_t sheet, TileSet tiles) { sprites_.Put(sheet, std::move(tiles)); }
    void PutFootprint(ViewKind view, MouseMap map) {
        footprints_[view == ViewKind::Normal ? 0 : 1] = std::move(map);
    }
    void PutCanvas(std::string_view file, Surface canvas) {
        canvases_[std::string(file)] = std::move(canvas);
    }

 private:
    TileSet Load(const std::filesystem::path& data, const SheetNeed& need);
    void LoadFootprint(const std::filesystem::path& data, ViewKind view, std::string_view file);
    void LoadCanvas(const std::filesystem::path& data, std::string_view file);
    void FillGaps();
    void Complain(std::string message) { complaints_.push_back(std::move(message)); }

    std::array<TileSet, kSheetCount> sheets_;
    SpriteSheets sprites_;
    std::array<MouseMap, 2> footprints_;
    std::map<std::string, Surface, std::less<>> canvases_;
    std::vector<std::string> complaints_;
};

}  // namespace varnstride
