#include "graphics/qt/thin_line_renderer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <optional>
#include <span>

#include <QImage>
#include <QPaintEngine>

namespace kalvo::graphics {

namespace {

/// A mask is looked through in words of so many pixels, most of which are blank.
constexpr int kWord = 8;

/// Larger pictures than any screen are not worth the memory.
constexpr double kMostPixels = 64e6;

/// From logical coordinates to the pixels of the mask.
struct ToMask {
    float scale;
    float dx;
    float dy;

    [[nodiscard]] float x(const Point& point) const {
        return static_cast<float>(point.x) * scale + dx;
    }
    [[nodiscard]] float y(const Point& point) const {
        return static_cast<float>(point.y) * scale + dy;
    }
};

/// The smallest rectangle round all points, or nothing when one lies outside the surface or is
/// not made of numbers.
std::optional<QRectF> boundsInside(const std::vector<Point>& points, const QRectF& surface) {
    if (points.empty()) return QRectF();
    double left = surface.right();
    double right = surface.left();
    double top = surface.bottom();
    double bottom = surface.top();
    bool inside = true;
    for (const Point& point : points) {
        left = std::min(left, point.x);
        right = std::max(right, point.x);
        top = std::min(top, point.y);
        bottom = std::max(bottom, point.y);
        inside &= point.x >= surface.left() && point.x <= surface.right() &&
                  point.y >= surface.top() && point.y <= surface.bottom();
    }
    if (!inside) return std::nullopt;
    return QRectF(QPointF(left, top), QPointF(right, bottom));
}

/// Points closer than this to the one before, in pixels, change nothing that can be seen.
constexpr float kNegligible = 0.25F;

/// The points of a line on the mask, without those that change nothing. Its last one stays.
void placeVertices(std::span<const Point> line,
                   const ToMask& toMask,
                   std::vector<CoverageMask::Vertex>& vertices) {
    vertices.clear();
    const auto squaredDistance = [](CoverageMask::Vertex a, CoverageMask::Vertex b) {
        return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y);
    };
    for (const Point& point : line) {
        const CoverageMask::Vertex vertex{toMask.x(point), toMask.y(point)};
        if (vertices.empty() ||
            squaredDistance(vertices.back(), vertex) >= kNegligible * kNegligible) {
            vertices.push_back(vertex);
        }
    }
    const CoverageMask::Vertex last{toMask.x(line.back()), toMask.y(line.back())};
    constexpr float kDistinct = 1e-6F;
    if (squaredDistance(vertices.back(), last) > kDistinct) vertices.push_back(last);
}

using Shades = std::array<QRgb, CoverageMask::kFull + 1>;

/// The premultiplied color at every cover.
Shades shadesOf(const QColor& color) {
    Shades table{};
    for (int cover = 0; cover <= CoverageMask::kFull; ++cover) {
        const int alpha = (color.alpha() * cover + 128) / CoverageMask::kFull;
        table[static_cast<std::size_t>(cover)] =
            qPremultiply(qRgba(color.red(), color.green(), color.blue(), alpha));
    }
    return table;
}

void shadeRow(std::span<const std::uint16_t> cover, const Shades& shades, QRgb* pixels) {
    for (std::size_t x = 0; x < cover.size(); x += kWord) {
        std::array<std::uint64_t, kWord * sizeof(std::uint16_t) / sizeof(std::uint64_t)> word{};
        std::memcpy(word.data(), cover.data() + x, sizeof word);
        if ((word[0] | word[1]) == 0) {
            std::fill_n(pixels + x, kWord, QRgb{0});
            continue;
        }
        for (std::size_t i = x; i < x + kWord; ++i) {
            pixels[i] = shades[std::min(cover[i], CoverageMask::kFull)];
        }
    }
}

}  // namespace

bool ThinLineRenderer::stroke(QPainter& painter,
                              const LineBatch& lines,
                              const QColor& color,
                              double width,
                              const QRectF& surface) {
    const QTransform toPixels = painter.deviceTransform();
    const double scale = toPixels.m11();
    const auto pixelWidth = static_cast<float>(width * scale);
    if (painter.paintEngine()->type() != QPaintEngine::Raster ||
        toPixels.type() > QTransform::TxScale || scale != toPixels.m22() ||
        !(pixelWidth > 0 && pixelWidth <= CoverageMask::kMaxWidth)) {
        return false;
    }
    const std::optional<QRectF> bounds = boundsInside(lines.points, surface);
    if (!bounds) return false;
    const double margin = CoverageMask::margin(pixelWidth);
    const QRectF covered = toPixels.mapRect(*bounds).adjusted(-margin, -margin, margin, margin);
    if (covered.width() * covered.height() > kMostPixels) return false;
    const QRect area = covered.toAlignedRect();

    // Whole words, so that a row can be looked through in them.
    mask_.reset((area.width() + kWord - 1) / kWord * kWord, area.height());
    const ToMask toMask{static_cast<float>(scale), static_cast<float>(toPixels.dx() - area.left()),
                        static_cast<float>(toPixels.dy() - area.top())};
    for (std::size_t i = 0; i < lines.lineCount(); ++i) {
        const std::span<const Point> line = lines.line(i);
        if (line.empty()) continue;
        placeVertices(line, toMask, vertices_);
        mask_.add(vertices_, pixelWidth);
    }
    blend(painter, area.topLeft(), color);
    return true;
}

void ThinLineRenderer::blend(QPainter& painter, QPoint topLeft, const QColor& color) {
    const Shades shades = shadesOf(color);
    pixels_.resize(static_cast<std::size_t>(mask_.width()) *
                   static_cast<std::size_t>(mask_.height()));
    QRgb* row = pixels_.data();
    for (int y = 0; y < mask_.height(); ++y, row += mask_.width()) {
        shadeRow(mask_.row(y), shades, row);
    }
    const void* const bytes = pixels_.data();
    const QImage picture(static_cast<const uchar*>(bytes), mask_.width(), mask_.height(),
                         QImage::Format_ARGB32_Premultiplied);
    // In pixels of the device the painter need not scale.
    const QTransform world = painter.worldTransform();
    painter.setWorldTransform(painter.deviceTransform().inverted() * world);
    painter.drawImage(topLeft, picture);
    painter.setWorldTransform(world);
}

}  // namespace kalvo::graphics
