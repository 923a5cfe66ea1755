// Which picture shows a unit on the map: nation, arm, march or not, strength, and whether it can
// still act. A strength point has a tile of its own, so that a battalion visibly shrinks. Leaders
// share one sheet and stand in sheets.h.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "display/sheets.h"
#include "display/tile_set.h"
#include "model/army.h"
#include "model/unit.h"

namespace varnstride {

enum class SpriteForm { Fresh, Spent, Based };
constexpr std::size_t kSpriteForms = 3;
constexpr std::size_t kNations = 3;  // French, British, Prussian; no other army has sprites

// The place of an army in tables by nation; nothing for an army without sprites.
std::optional<std::size_t> NationOf(int army);

struct Sprite {
    std::size_t row = 0;  // of the table of kinds
    std::size_t nation = 0;
    SpriteForm form = SpriteForm::Fresh;
    int tile = 0;
};

// The sprite of a unit that is no leader; nothing when its army, type, form or strength has none.
std::optional<Sprite> SpriteOf(int army, const Unit& unit, SpriteForm form);

// The tile of a leader on its sheet.
int LeaderTile(std::size_t nation, SpriteForm form);

// The sheet of a sprite in the data folder.
std::string FileOf(const Sprite& sprite);

// Every sheet of sprites, each once although several kinds share it.
class SpriteSheets {
 public:
    SpriteSheets();

    std::size_t Count() const { return sheets_.size(); }
    const std::string& File(std::size_t sheet) const { return files_[sheet]; }
    SheetNeed Need(std::size_t sheet) const;
    void Put(std::size_t sheet, TileSet tiles) { sheets_[sheet] = std::move(tiles); }
    // Stand-ins for every tile that a sheet lacks.
    void FillGaps();

    const TileSet& Find(const Sprite& sprite) const;

 private:
    std::vector<std::string> files_;
    std::vector<TileSet> sheets_;
    std::vector<std::size_t> sheetOf_;  // by row, nation and form
};

}  // namespace varnstride
