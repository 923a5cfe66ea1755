#include "forge_art/figures.h"

#include <array>
#include <cctype>
#include <optional>

#include "forge/source_text.h"
#include "forge_art/art_source.h"
#include "forge_art/color.h"

namespace varnstride::art {
namespace {

constexpr char kSeat = '*';
constexpr char kSkin = 'f';
constexpr std::string_view kShadedLetters = "HCTKQXALSG";

// What wears out on everybody alike.
constexpr std::array<std::pair<char, QRgb>, 6> kCommonColors = {{
    {kSkin, qRgb(232, 184, 146)},
    {'m', qRgb(112, 72, 40)},
    {'M', qRgb(214, 222, 228)},
    {'r', qRgb(74, 48, 32)},
    {'o', qRgb(34, 28, 24)},
    {'a', qRgb(196, 205, 214)},
}};

// "name 3,14" into the name and the anchor.
bool ReadHeading(const std::string& heading, std::string& name, QPoint& anchor) {
    const auto words = Words(heading);
    if (words.size() != 2) return false;
    const std::optional<Cell> place = CellFrom(words[1]);
    if (!place) return false;
    name = std::string(words[0]);
    anchor = QPoint(place->x, place->y);
    return true;
}

QPoint SeatOf(const std::vector<std::string>& rows, QPoint anchor) {
    for (std::size_t y = 0; y < rows.size(); ++y) {
        const std::size_t x = rows[y].find(kSeat);
        if (x != rows[y].npos) return QPoint(static_cast<int>(x), static_cast<int>(y)) - anchor;
    }
    return {0, 0};
}

// A column of the table and the letter that it colours.
struct Garment {
    std::string_view column;
    char letter;
};

constexpr std::array<Garment, 11> kGarments = {{
    {"headgear", 'h'},
    {"trim", 'b'},
    {"plume", 'p'},
    {"coat", 'c'},
    {"facings", 'l'},
    {"epaulettes", 'g'},
    {"belts", 'w'},
    {"legs", 't'},
    {"shoes", 's'},
    {"pack", 'k'},
    {"cloth", 'q'},
}};

std::optional<QRgb> ColorFrom(std::string_view digits) {
    if (digits.size() != 6) return std::nullopt;
    QRgb color = 0;
    for (const char digit : digits) {
        if (std::isxdigit(static_cast<unsigned char>(digit)) == 0) return std::nullopt;
        const int value = std::isdigit(static_cast<unsigned char>(digit)) != 0
                              ? digit - '0'
                              : std::tolower(digit) - 'a' + 10;
        color = color * 16 + static_cast<QRgb>(value);
    }
    return color | 0xFF000000U;
}

// Reads the rows of the table of uniforms.
class UniformReader {
 public:
    UniformReader(const TableRow& head, SourceErrors& errors) : head_(head), errors_(errors) {}

    Uniform Read(const TableRow& row) {
        Uniform uniform(kCommonColors.begin(), kCommonColors.end());
        if (row.cells.size() != head_.cells.size()) {
            errors_.Add(row.number, "has " + std::to_string(row.cells.size()) +
                                        " columns: expected " + std::to_string(head_.cells.size()));
            return uniform;
        }
        for (std::size_t i = 1; i < row.cells.size(); ++i)
            Put(uniform, head_.cells[i], row.cells[i], row.number);
        return uniform;
    }

 private:
    void Put(Uniform& uniform, const std::string& column, const std::string& value, int line) {
        if (value == "-") return;
        if (column == "pennon") {
            const auto colors = SplitAt(value, '/');
            Color(uniform, 'u', colors.front(), line);
            Color(uniform, 'v', colors.back(), line);
            return;
        }
        for (const Garment& garment : kGarments) {
            if (garment.column != column) continue;
            Color(uniform, garment.letter, value, line);
            return;
        }
        errors_.Add(head_.number, "unknown column \"" + column + "\"");
    }

    void Color(Uniform& uniform, char letter, std::string_view digits, int line) {
        const std::optional<QRgb> color = ColorFrom(digits);
        if (color) {
            uniform[letter] = *color;
        } else {
            errors_.Add(line,
                        "\"" + std::string(digits) + "\" is no colour: expected six hex digits");
        }
    }

    const TableRow& head_;
    SourceErrors& errors_;
};

// The colour of a letter; 0 for one that is not drawn.
QRgb ColorOf(char letter, const Uniform& uniform) {
    constexpr double kShade = 0.74;
    const auto found = uniform.find(letter == kSeat ? kSkin : letter);
    if (found != uniform.end()) return found->second;
    if (kShadedLetters.find(letter) == kShadedLetters.npos) return 0;
    const auto lit = uniform.find(static_cast<char>(std::tolower(letter)));
    return lit == uniform.end() ? 0 : Scaled(lit->second, kShade);
}

Tile TileOf(const FigurePiece& piece, const Uniform& uniform) {
    int width = 1;
    for (const std::string& row : piece.rows)
        width = std::max(width, static_cast<int>(row.size()));
    Tile tile(QRect(-piece.anchor, QSize(width, static_cast<int>(piece.rows.size()) + 1)));
    for (std::size_t y = 0; y < piece.rows.size(); ++y) {
        for (std::size_t x = 0; x < piece.rows[y].size(); ++x) {
            const QRgb color = ColorOf(piece.rows[y][x], uniform);
            if (color != 0) {
                tile.Set(static_cast<int>(x) - piece.anchor.x(),
                         static_cast<int>(y) - piece.anchor.y(), color);
            }
        }
    }
    return tile;
}

}  // namespace

FigureBook FigureBook::Read(std::string_view text, SourceErrors& errors) {
    FigureBook book;
    for (const Drawing& drawing : Drawings(text, errors)) {
        std::string name;
        FigurePiece piece{drawing.rows, {}, {}};
        if (!ReadHeading(drawing.name, name, piece.anchor)) {
            errors.Add(drawing.number, "expected a heading as [foot.stand 3,13]");
            continue;
        }
        piece.seat = SeatOf(piece.rows, piece.anchor);
        book.pieces_[name] = std::move(piece);
    }
    return book;
}

const FigurePiece& FigureBook::operator[](std::string_view name) const {
    static const FigurePiece nothing;
    const auto found = pieces_.find(name);
    if (found != pieces_.end()) return found->second;
    missing_.insert(std::string(name));
    return nothing;
}

Wardrobe Wardrobe::Read(std::string_view text, SourceErrors& errors) {
    Wardrobe wardrobe;
    const std::vector<TableRow> rows = TableRows(text);
    if (rows.empty()) {
        errors.Add(0, "holds no table");
        return wardrobe;
    }
    UniformReader reader(rows.front(), errors);
    for (std::size_t i = 1; i < rows.size(); ++i)
        wardrobe.uniforms_[rows[i].cells.front()] = reader.Read(rows[i]);
    return wardrobe;
}

const Uniform& Wardrobe::operator[](std::string_view name) const {
    static const Uniform nothing;
    const auto found = uniforms_.find(name);
    if (found != uniforms_.end()) return found->second;
    missing_.insert(std::string(name));
    return nothing;
}

Tile Dressed(const std::vector<const FigurePiece*>& pieces, const Uniform& uniform) {
    Tile figure(QRect(-16, -40, 40, 48));
    QPoint at(0, 0);
    for (const FigurePiece* piece : pieces) {
        figure.Lay(TileOf(*piece, uniform), at);
        at += piece->seat;
    }
    return figure;
}

}  // namespace varnstride::art
