#include "graphics/qt/coverage_mask.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace kalvo::graphics {

namespace {

// Blocks of four by two pixels are covered at a time, in fixed point: 256 is one pixel, or full
// cover. The compiler turns these into whatever vector instructions the processor has.
constexpr int kColumns = 4;
constexpr int kRows = 2;
constexpr int kOne = CoverageMask::kFull;
using Lanes = std::int16_t __attribute__((vector_size(16)));
using Cover = std::uint16_t __attribute__((vector_size(16)));
using Halves = std::uint64_t __attribute__((vector_size(16)));

/// Where a pixel's middle lies in it.
constexpr float kMiddle = 0.5F;

/// Pixels on each side of an edge on which the cover fades.
constexpr float kFade = 0.5F;

/// Longer pieces are covered bit by bit: the blocks round a slanting line are mostly empty.
constexpr float kLongestPiece = 12;

Lanes all(int value) {
    const auto lane = static_cast<std::int16_t>(value);
    return Lanes{lane, lane, lane, lane, lane, lane, lane, lane};
}
Lanes smaller(Lanes a, Lanes b) { return a < b ? a : b; }
Lanes larger(Lanes a, Lanes b) { return a > b ? a : b; }

std::uint64_t load(const std::uint16_t* from) {
    std::uint64_t four = 0;
    std::memcpy(&four, from, sizeof four);
    return four;
}

void store(std::uint64_t four, std::uint16_t* to) { std::memcpy(to, &four, sizeof four); }

int fixed(float value) { return static_cast<int>(value * kOne); }

/// A coordinate on the plane that grows by 1 pixel along its direction, at the middles of the
/// pixels of one block after the other.
struct Coordinate {
    Lanes here;
    Lanes stepColumns;  // to the next block of the row
    Lanes stepRows;     // to the next row of blocks

    /// `value` is that of the first block's first pixel.
    Coordinate(float value, float directionX, float directionY) {
        constexpr float kFiner = 16;
        const Lanes x = all(fixed(directionX * kFiner));
        const Lanes y = all(fixed(directionY * kFiner));
        const Lanes columns{0, 1, 2, 3, 0, 1, 2, 3};
        const Lanes lowerRow{0, 0, 0, 0, -1, -1, -1, -1};
        here = all(fixed(value)) + ((columns * x + (lowerRow & y)) >> 4);
        stepColumns = x >> 2;
        stepRows = y >> 3;
    }
};

float dot(float ax, float ay, float bx, float by) { return ax * bx + ay * by; }

}  // namespace

/// What the pieces of a line have in common.
struct CoverageMask::Brush {
    float reach;  // pixels to each side of the middle line where the cover ends
    Lanes reachLanes;
    Lanes mostAcross;

    explicit Brush(float width)
        : reach(width / 2 + kFade),
          reachLanes(all(fixed(reach))),
          mostAcross(all(std::min(fixed(width), kOne - 1))) {}

    /// The cover of a pixel is that of a pixel-wide box at its middle, turned to lie square to each
    /// edge in question: how far the box lies between the line's sides, times how far it lies past
    /// the first cut and not yet past the second. Pieces that share a cut add up to a whole there.
    [[nodiscard]] Cover cover(Lanes across, Lanes begun, Lanes ended) const {
        const Lanes none{};
        const Lanes one = all(kOne);
        const Lanes within =
            larger(smaller(reachLanes - larger(across, -across), mostAcross), none);
        const Lanes past = larger(smaller(begun, one), none);
        const Lanes beyond = larger(smaller(ended, one), none);
        const Lanes between = larger(past - beyond, none);
        // Both are at most one, and the first a little less: the product just fits.
        return (__builtin_convertvector(within, Cover) * __builtin_convertvector(between, Cover) +
                std::uint16_t{kOne / 2}) >>
               8;
    }
};

void CoverageMask::reset(int width, int height) {
    width_ = width;
    height_ = height;
    // Blocks may stick out to the right and below.
    stride_ = static_cast<std::size_t>(width) + kColumns;
    cover_.assign(stride_ * (static_cast<std::size_t>(height) + kRows), 0);
}

void CoverageMask::add(std::span<const Vertex> line, float width) {
    const Brush brush(width);
    // One stage after the other for the whole line: the square roots and divisions of a stage do
    // not wait for each other.
    pieces_.clear();
    for (std::size_t i = 1; i < line.size(); ++i) pieces_.push_back(piece(line[i - 1], line[i]));
    for (std::size_t i = 1; i < pieces_.size(); ++i) join(pieces_[i - 1], pieces_[i], brush.reach);
    for (Segment& rest : pieces_) {
        while (rest.length > kLongestPiece) {
            const Vertex between{rest.start.at.x + rest.direction.x * kLongestPiece,
                                 rest.start.at.y + rest.direction.y * kLongestPiece};
            const Joint cut{between, rest.direction, kFade};
            add({rest.start, cut, rest.direction, kLongestPiece}, brush);
            rest.start = cut;
            rest.length -= kLongestPiece;
        }
        add(rest, brush);
    }
}

CoverageMask::Segment CoverageMask::piece(Vertex from, Vertex to) {
    const float dx = to.x - from.x;
    const float dy = to.y - from.y;
    const float length = std::sqrt(dx * dx + dy * dy);
    const float inverse = 1 / length;
    const Vertex direction{dx * inverse, dy * inverse};
    return {{from, direction, kFade}, {to, direction, kFade}, direction, length};
}

void CoverageMask::join(Segment& one, Segment& other, float reach) {
    const float x = one.direction.x + other.direction.x;
    const float y = one.direction.y + other.direction.y;
    const float length = std::sqrt(x * x + y * y);
    // Half of it is the cosine of half the turn, and the miter's length in widths the inverse of
    // that.
    if (length < 2 / kMiterLimit) return;
    const float inverse = 1 / length;
    const Vertex direction{x * inverse, y * inverse};
    const float sinHalf = std::abs(one.direction.x * direction.y - one.direction.y * direction.x);
    one.end.direction = other.start.direction = direction;
    one.end.beyond = other.start.beyond = (reach * sinHalf + kFade) * 2 * inverse;
}

void CoverageMask::add(const Segment& piece, const Brush& brush) {
    const Vertex along = piece.direction;
    const Vertex startTip{piece.start.at.x - piece.start.beyond * along.x,
                          piece.start.at.y - piece.start.beyond * along.y};
    const Vertex endTip{piece.end.at.x + piece.end.beyond * along.x,
                        piece.end.at.y + piece.end.beyond * along.y};
    const float sideX = brush.reach * std::abs(along.y);
    const float sideY = brush.reach * std::abs(along.x);
    const int left = static_cast<int>(std::min(startTip.x, endTip.x) - sideX + kMiddle);
    const int right = static_cast<int>(std::max(startTip.x, endTip.x) + sideX + kMiddle);
    const int top = static_cast<int>(std::min(startTip.y, endTip.y) - sideY + kMiddle);
    const int bottom = static_cast<int>(std::max(startTip.y, endTip.y) + sideY + kMiddle);

    const auto distanceFrom = [&](const Joint& cut, Vertex direction, float offset) {
        const float value =
            dot(static_cast<float>(left) + kMiddle - cut.at.x,
                static_cast<float>(top) + kMiddle - cut.at.y, direction.x, direction.y);
        return Coordinate(value + offset, direction.x, direction.y);
    };
    Coordinate across = distanceFrom(piece.start, {-along.y, along.x}, 0);
    Coordinate begun = distanceFrom(piece.start, piece.start.direction, kFade);
    Coordinate ended = distanceFrom(piece.end, piece.end.direction, kFade);

    const std::size_t blockRows = static_cast<std::size_t>(bottom - top + kRows - 1) / kRows;
    const std::size_t blockColumns =
        static_cast<std::size_t>(right - left + kColumns - 1) / kColumns;
    std::uint16_t* firstOfRow =
        cover_.data() + static_cast<std::size_t>(top) * stride_ + static_cast<std::size_t>(left);
    for (std::size_t row = 0; row < blockRows; ++row) {
        Lanes a = across.here;
        Lanes b = begun.here;
        Lanes e = ended.here;
        std::uint16_t* upper = firstOfRow;
        for (std::size_t column = 0; column < blockColumns; ++column) {
            const Cover added = brush.cover(a, b, e);
            std::uint16_t* const lower = upper + stride_;
            const auto sum = std::bit_cast<Halves>(
                std::bit_cast<Cover>(Halves{load(upper), load(lower)}) + added);
            store(sum[0], upper);
            store(sum[1], lower);
            a += across.stepColumns;
            b += begun.stepColumns;
            e += ended.stepColumns;
            upper += kColumns;
        }
        across.here += across.stepRows;
        begun.here += begun.stepRows;
        ended.here += ended.stepRows;
        firstOfRow += kRows * stride_;
    }
}

}  // namespace kalvo::graphics
