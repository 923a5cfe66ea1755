// The tiles of a list as surfaces of a widely used library for games, which draws keyed pictures by
// runs of opaque pixels. The benchmark of the scene sets its drawing beside ours.
#pragma once

#include <SDL2/SDL.h>

#include <map>
#include <memory>
#include <utility>

#include "display/tile_list.h"

namespace varnstride {

struct FreeSdlSurface {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};
using SdlSurface = std::unique_ptr<SDL_Surface, FreeSdlSurface>;

class SdlTiles {
 public:
    // Makes a surface of each tile of the list, with its holes keyed out and runs kept.
    explicit SdlTiles(const TileList& tiles);

    void Draw(const TileList& tiles, SDL_Surface* target, const Rect& clip, Point shift) const;

    static SdlSurface MakeTarget(int width, int height);
    static Surface Picture(const SDL_Surface* target);

 private:
    std::map<std::pair<const TileSet*, int>, SdlSurface> surfaces_;
};

}  // namespace varnstride
