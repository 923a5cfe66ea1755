#include "bench/sdl_tiles.h"

#include <cstring>

namespace varnstride {
namespace {

constexpr int kBits = 32;

SdlSurface MakeSurface(int width, int height) {
    return SdlSurface(
        SDL_CreateRGBSurfaceWithFormat(0, width, height, kBits, SDL_PIXELFORMAT_RGB888));
}

char* RowOf(const SDL_Surface* surface, int y) {
    return static_cast<char*>(surface->pixels) + y * surface->pitch;
}

std::size_t RowBytes(int width) {
    return static_cast<std::size_t>(width) * sizeof(Pixel);
}

SdlSurface MakeTile(const TileSet& set, int tile) {
    const Surface picture = set.PictureOf(tile);
    SdlSurface surface = MakeSurface(picture.Width(), picture.Height());
    for (int y = 0; y < picture.Height(); ++y)
        std::memcpy(RowOf(surface.get(), y), picture.Row(y), RowBytes(picture.Width()));
    SDL_SetColorKey(surface.get(), SDL_TRUE, set.Key());
    SDL_SetSurfaceRLE(surface.get(), 1);
    return surface;
}

}  // namespace

SdlTiles::SdlTiles(const TileList& tiles) {
    for (const PlacedTile& placed : tiles) {
        if (!placed.set->Has(placed.tile)) continue;
        SdlSurface& surface = surfaces_[{placed.set, placed.tile}];
        if (!surface) surface = MakeTile(*placed.set, placed.tile);
    }
}

void SdlTiles::Draw(const TileList& tiles, SDL_Surface* target, const Rect& clip,
                    Point shift) const {
    const SDL_Rect clipped{clip.left, clip.top, clip.Width(), clip.Height()};
    SDL_SetClipRect(target, &clipped);
    for (const PlacedTile& placed : tiles) {
        if (!placed.set->Has(placed.tile)) continue;
        const Rect area = placed.set->At(placed.tile).destination.Moved(placed.at + shift);
        SDL_Rect at{area.left, area.top, 0, 0};
        SDL_BlitSurface(surfaces_.at({placed.set, placed.tile}).get(), nullptr, target, &at);
    }
}

SdlSurface SdlTiles::MakeTarget(int width, int height) {
    return MakeSurface(width, height);
}

Surface SdlTiles::Picture(const SDL_Surface* target) {
    Surface picture(target->w, target->h);
    for (int y = 0; y < target->h; ++y) {
        std::memcpy(picture.Row(y), RowOf(target, y), RowBytes(target->w));
        for (int x = 0; x < target->w; ++x)
            picture.At(x, y) |= 0xFF000000U;
    }
    return picture;
}

}  // namespace varnstride
