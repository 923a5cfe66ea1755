// The still layers of the whole map as one picture, kept from frame to frame: a frame copies from
// it what the view shows. It is made in blocks when they are first seen, and looks for itself which
// cells have changed since; nobody has to tell it anything.
#pragma once

#include <array>
#include <map>
#include <utility>
#include <vector>

#include "display/art.h"
#include "display/labels.h"
#include "display/map_layers.h"
#include "display/plotter.h"

namespace varnstride {

class WorldPicture {
 public:
    // The art must outlive the picture.
    WorldPicture(const Art& art, ViewKind view, const Plotter& plotter);

    // Copies a part of the world to the frame, its top left to that point. What no layer covers is
    // black.
    void Show(const Game& game, const Rect& world, Surface& frame, Point target);

    // The blocks that the last Show had to draw on, wholly or in part; for tests and measuring.
    int BlocksDrawn() const { return blocksDrawn_; }

 private:
    struct Block {
        Surface pixels;
        Rect stale;  // in world pixels
    };
    using Place = std::pair<int, int>;  // row and column of a block

    void ForgetIfAllChanged(const Game& game);
    void NoteChanges(const Game& game, const Rect& world);
    void MakeStale(const Rect& area);
    Block& UpToDate(const Game& game, Place place);
    void Draw(const Game& game, const Rect& area, Block& block, Point shift) const;
    void DrawLabels(const Game& game, const Rect& area, Surface& surface, Point shift) const;
    void DropUnseen(const Rect& world);

    const Art& art_;
    ViewKind view_;
    Plotter plotter_;
    Rect reach_;
    std::map<Place, Block> blocks_;
    std::vector<CellLook> looks_;  // by rows: what the blocks show
    LayerOptions options_;
    std::array<MapLabel, kLabelCount> labels_{};
    std::vector<PlacedLabel> labelsPlaced_;
    int width_ = 0;
    int height_ = 0;
    int blocksDrawn_ = 0;
};

}  // namespace varnstride
