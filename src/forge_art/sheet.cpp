#include "forge_art/sheet.h"

#include <algorithm>

#include "forge/text_file.h"

namespace varnstride::art {
namespace {

constexpr QPoint kAnchor(0, 0);

// What a cell must hold: the drawn part of every tile, and the anchor.
QRect CommonArea(const std::vector<Tile>& tiles) {
    QRect common(kAnchor, QSize(1, 1));
    for (const Tile& tile : tiles)
        common = common.united(tile.Extent());
    return common;
}

// Where marks of one line stand, counted from the line that opens the cell.
struct Marks {
    int anchor;
    int first;
    int last;
};

QRgb MarkAt(const Marks& marks, int place) {
    const bool extent = place == marks.first || place == marks.last;
    if (place == marks.anchor) return extent ? kBothColor : kAnchorColor;
    return extent ? kExtentColor : 0;
}

void Put(QImage& sheet, QPoint corner, const Tile& tile, QRect common) {
    const QRect extent = tile.Extent().isEmpty() ? QRect(kAnchor, QSize(1, 1)) : tile.Extent();
    const QPoint inset = corner + QPoint(1, 1) - common.topLeft();
    const auto across = Marks{1 - common.left(), extent.left() + 1 - common.left(),
                              extent.right() + 1 - common.left()};
    const auto down = Marks{1 - common.top(), extent.top() + 1 - common.top(),
                            extent.bottom() + 1 - common.top()};
    for (int i = 1; i <= common.width(); ++i) {
        if (const QRgb mark = MarkAt(across, i)) sheet.setPixel(corner + QPoint(i, 0), mark);
    }
    for (int i = 1; i <= common.height(); ++i) {
        if (const QRgb mark = MarkAt(down, i)) sheet.setPixel(corner + QPoint(0, i), mark);
    }
    for (int y = extent.top(); y <= extent.bottom(); ++y) {
        for (int x = extent.left(); x <= extent.right(); ++x) {
            if (!tile.IsEmptyAt(x, y)) sheet.setPixel(inset + QPoint(x, y), tile.At(x, y));
        }
    }
}

void PutLegend(QImage& sheet) {
    const QRgb legend[] = {kGridColor, kIdleColor, kAnchorColor, kExtentColor, kBothColor};
    int row = 0;
    for (const QRgb color : legend)
        sheet.setPixel(sheet.width() - 1, row++, color);
}

// Row 0 and column 0 outside the crossings must not read as grid lines.
void PutFrame(QImage& sheet, int cellWidth, int cellHeight) {
    for (int x = 0; x < sheet.width(); ++x)
        if (x % cellWidth != 0) sheet.setPixel(x, 0, kIdleColor);
    for (int y = 0; y < sheet.height(); ++y)
        if (y % cellHeight != 0) sheet.setPixel(0, y, kIdleColor);
}

// So many bytes, the lowest first; the value is 0 or more.
void AppendNumber(std::string& bytes, int value, int width) {
    for (int i = 0; i < width; ++i, value >>= 8)
        bytes += static_cast<char>(value & 0xFF);
}

std::string Header(int width, int height, int pixelBytes) {
    constexpr int kHeaderBytes = 54;
    std::string bytes = "BM";
    AppendNumber(bytes, kHeaderBytes + pixelBytes, 4);
    AppendNumber(bytes, 0, 4);
    AppendNumber(bytes, kHeaderBytes, 4);
    AppendNumber(bytes, 40, 4);
    AppendNumber(bytes, width, 4);
    AppendNumber(bytes, height, 4);
    AppendNumber(bytes, 1, 2);
    AppendNumber(bytes, 24, 2);
    AppendNumber(bytes, 0, 4);
    AppendNumber(bytes, pixelBytes, 4);
    AppendNumber(bytes, 2835, 4);  // 72 dots an inch
    AppendNumber(bytes, 2835, 4);
    AppendNumber(bytes, 0, 8);
    return bytes;
}

}  // namespace

QImage SheetOf(const std::vector<Tile>& tiles, int columns) {
    constexpr int kSpare = 2;  // the opening line, and a column in which no mark is looked for
    const QRect common = CommonArea(tiles);
    const int cellWidth = common.width() + kSpare;
    const int cellHeight = common.height() + kSpare;
    const int rows = (static_cast<int>(tiles.size()) + columns - 1) / columns;
    constexpr int kLeastHeight = 6;  // room for the legend
    QImage sheet(columns * cellWidth + 1, std::max(rows * cellHeight + 1, kLeastHeight),
                 QImage::Format_RGB32);
    sheet.fill(kGridColor);
    PutFrame(sheet, cellWidth, cellHeight);
    for (int i = 0; i < rows * columns; ++i) {
        const QPoint corner(i % columns * cellWidth, i / columns * cellHeight);
        const bool exists = i < static_cast<int>(tiles.size());
        Put(sheet, corner, exists ? tiles[static_cast<std::size_t>(i)] : Tile(), common);
    }
    PutLegend(sheet);
    return sheet;
}

Result<Done> WriteBitmap(const std::string& path, const QImage& picture) {
    const int rowBytes = (picture.width() * 3 + 3) / 4 * 4;
    std::string bytes = Header(picture.width(), picture.height(), rowBytes * picture.height());
    for (int y = picture.height() - 1; y >= 0; --y) {
        const std::size_t rowStart = bytes.size();
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb color = picture.pixel(x, y);
            bytes += static_cast<char>(qBlue(color));
            bytes += static_cast<char>(qGreen(color));
            bytes += static_cast<char>(qRed(color));
        }
        bytes.resize(rowStart + static_cast<std::size_t>(rowBytes), '\0');
    }
    return WriteTextFile(path, bytes);
}

}  // namespace varnstride::art
