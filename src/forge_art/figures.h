// The pieces of figures.art and the clothes of uniforms.art: how a man is put together from a body
// and a head, a rider from a horse, a body and a head, each in the colours of his uniform.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "forge/source_errors.h"
#include "forge_art/tile.h"

namespace varnstride::art {

// The colour of each letter of a drawing; a letter without one is not drawn.
using Uniform = std::map<char, QRgb>;

struct FigurePiece {
    std::vector<std::string> rows;
    QPoint anchor;
    QPoint seat;  // of the next piece, from the anchor
};

class FigureBook {
 public:
    static FigureBook Read(std::string_view text, SourceErrors& errors);

    // A piece by name; an empty one for a name that the book lacks.
    const FigurePiece& operator[](std::string_view name) const;
    const std::set<std::string>& Missing() const { return missing_; }

 private:
    std::map<std::string, FigurePiece, std::less<>> pieces_;
    mutable std::set<std::string> missing_;
};

class Wardrobe {
 public:
    static Wardrobe Read(std::string_view text, SourceErrors& errors);

    // A uniform by name; without any colour for a name that the wardrobe lacks.
    const Uniform& operator[](std::string_view name) const;
    const std::set<std::string>& Missing() const { return missing_; }

 private:
    std::map<std::string, Uniform, std::less<>> uniforms_;
    mutable std::set<std::string> missing_;
};

// The pieces set on each other, the first at (0,0), in one uniform.
Tile Dressed(const std::vector<const FigurePiece*>& pieces, const Uniform& uniform);

}  // namespace varnstride::art
