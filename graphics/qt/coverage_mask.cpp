#include "graphics/qt/coverage_mask.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <cmath>
#include <cstring>

namespace kalvo::graphics {

namespace {

// Coverage is computed for blocks of four by two pixels at a time, in fixed point: 256 is one
// pixel, or full coverage. The compiler turns these vectors into whatever the processor has.
constexpr int kColumns = 4;
constexpr int kRows = 2;
constexpr int kOne = CoverageMask::kFull;
using Lanes = std::int16_t __attribute__((vector_size(16)));
using Coverage = std::uint16_t __attribute__((vector_size(16)));
using Halves = std::uint64_t __attribute__((vector_size(16)));

/// Where a pixel's center lies in it.
constexpr float kPixelCenter = 0.5F;

/// Pixels on each side of an edge over which the coverage fades.
constexpr float kFade = 0.5F;

/// Longer segments are split: of the blocks around a long slanting line most are empty.
constexpr float kMaxSegmentLength = 12;  // pixels

Lanes broadcast(int value) {
    const auto lane = static_cast<std::int16_t>(value);
    return Lanes{lane, lane, lane, lane, lane, lane, lane, lane};
}
Lanes lesser(Lanes a, Lanes b) { return a < b ? a : b; }
Lanes greater(Lanes a, Lanes b) { return a > b ? a : b; }

std::uint64_t load(const std::uint16_t* from) {
    std::uint64_t four = 0;
    std::memcpy(&four, from, sizeof four);
    return four;
}

void store(std::uint64_t four, std::uint16_t* to) { std::memcpy(to, &four, sizeof four); }

int fixed(float value) { return static_cast<int>(value * kOne); }

/// An edge function: the signed distance from a straight line, growing along its normal, at the
/// centers of the pixels of one block after the other.
struct EdgeFunction {
    Lanes value;
    Lanes stepColumns;  // to the next block of the row
    Lanes stepRows;     // to the next row of blocks

    /// `first` is the distance of the first block's first pixel.
    EdgeFunction(float first, float normalX, float normalY) {
        constexpr float kFiner = 16;
        const Lanes x = broadcast(fixed(normalX * kFiner));
        const Lanes y = broadcast(fixed(normalY * kFiner));
        const Lanes columns{0, 1, 2, 3, 0, 1, 2, 3};
        const Lanes lowerRow{0, 0, 0, 0, -1, -1, -1, -1};
        value = broadcast(fixed(first)) + ((columns * x + (lowerRow & y)) >> 4);
        stepColumns = x >> 2;
        stepRows = y >> 3;
    }
};

float dot(float ax, float ay, float bx, float by) { return ax * bx + ay * by; }

}  // namespace

/// What the segments of a line have in common.
struct CoverageMask::Brush {
    float halfWidth;  // pixels from the center line to where the coverage has faded
    Lanes halfWidths;
    Lanes mostAcross;

    explicit Brush(float width)
        : halfWidth(width / 2 + kFade),
          halfWidths(broadcast(fixed(halfWidth))),
          mostAcross(broadcast(std::min(fixed(width), kOne - 1))) {}

    /// Returns the coverage of a block. A pixel counts as a box of its width, turned to lie square
    /// to each edge in question: how much of the box lies between the line's sides, times how much
    /// lies past the start's miter line and not yet past the end's. Two segments that share a
    /// miter line add up to full coverage along it.
    [[nodiscard]] Coverage coverage(Lanes across, Lanes pastStart, Lanes pastEnd) const {
        const Lanes none{};
        const Lanes one = broadcast(kOne);
        const Lanes within =
            greater(lesser(halfWidths - greater(across, -across), mostAcross), none);
        const Lanes begun = greater(lesser(pastStart, one), none);
        const Lanes ended = greater(lesser(pastEnd, one), none);
        const Lanes between = greater(begun - ended, none);
        // Both are at most one, and the first a little less: the product just fits.
        return (__builtin_convertvector(within, Coverage) *
                    __builtin_convertvector(between, Coverage) +
                std::uint16_t{kOne / 2}) >>
               8;
    }
};

void CoverageMask::reset(int width, int height) {
    width_ = width;
    height_ = height;
    // Blocks may stick out to the right and below.
    stride_ = static_cast<std::size_t>(width) + kColumns;
    coverage_.assign(stride_ * (static_cast<std::size_t>(height) + kRows), 0);
}

void CoverageMask::add(std::span<const Vertex> line, float width) {
    const Brush brush(width);
    // One stage after the other for the whole line: the square roots and divisions of a stage do
    // not wait for each other.
    segments_.clear();
    for (std::size_t i = 1; i < line.size(); ++i) {
        segments_.push_back(makeSegment(line[i - 1], line[i]));
    }
    for (std::size_t i = 1; i < segments_.size(); ++i) {
        join(segments_[i - 1], segments_[i], brush.halfWidth);
    }
    for (Segment& rest : segments_) {
        while (rest.length > kMaxSegmentLength) {
            const Vertex between{rest.start.at.x + rest.direction.x * kMaxSegmentLength,
                                 rest.start.at.y + rest.direction.y * kMaxSegmentLength};
            const Joint seam{between, rest.direction, kFade};
            add({rest.start, seam, rest.direction, kMaxSegmentLength}, brush);
            rest.start = seam;
            rest.length -= kMaxSegmentLength;
        }
        add(rest, brush);
    }
}

CoverageMask::Segment CoverageMask::makeSegment(Vertex from, Vertex to) {
    const float dx = to.x - from.x;
    const float dy = to.y - from.y;
    const float length = std::sqrt(dx * dx + dy * dy);
    const float inverse = 1 / length;
    const Vertex direction{dx * inverse, dy * inverse};
    return {{from, direction, kFade}, {to, direction, kFade}, direction, length};
}

void CoverageMask::join(Segment& one, Segment& next, float halfWidth) {
    const float x = one.direction.x + next.direction.x;
    const float y = one.direction.y + next.direction.y;
    const float length = std::sqrt(x * x + y * y);
    // Half of it is the cosine of half the turn, whose inverse is the miter's length in widths.
    if (length < 2 / kMiterLimit) return;
    const float inverse = 1 / length;
    const Vertex miterNormal{x * inverse, y * inverse};
    const float sinHalf =
        std::abs(one.direction.x * miterNormal.y - one.direction.y * miterNormal.x);
    one.end.normal = next.start.normal = miterNormal;
    one.end.overhang = next.start.overhang = (halfWidth * sinHalf + kFade) * 2 * inverse;
}

void CoverageMask::add(const Segment& segment, const Brush& brush) {
    const Vertex along = segment.direction;
    const Vertex startTip{segment.start.at.x - segment.start.overhang * along.x,
                          segment.start.at.y - segment.start.overhang * along.y};
    const Vertex endTip{segment.end.at.x + segment.end.overhang * along.x,
                        segment.end.at.y + segment.end.overhang * along.y};
    const float sideX = brush.halfWidth * std::abs(along.y);
    const float sideY = brush.halfWidth * std::abs(along.x);
    const int left = static_cast<int>(std::min(startTip.x, endTip.x) - sideX + kPixelCenter);
    const int right = static_cast<int>(std::max(startTip.x, endTip.x) + sideX + kPixelCenter);
    const int top = static_cast<int>(std::min(startTip.y, endTip.y) - sideY + kPixelCenter);
    const int bottom = static_cast<int>(std::max(startTip.y, endTip.y) + sideY + kPixelCenter);

    assert(left >= 0 && right <= width_ && top >= 0 && bottom <= height_);

    const auto edgeThrough = [&](const Joint& joint, Vertex normal, float offset) {
        const float first =
            dot(static_cast<float>(left) + kPixelCenter - joint.at.x,
                static_cast<float>(top) + kPixelCenter - joint.at.y, normal.x, normal.y);
        return EdgeFunction(first + offset, normal.x, normal.y);
    };
    EdgeFunction across = edgeThrough(segment.start, {-along.y, along.x}, 0);
    EdgeFunction pastStart = edgeThrough(segment.start, segment.start.normal, kFade);
    EdgeFunction pastEnd = edgeThrough(segment.end, segment.end.normal, kFade);

    const std::size_t blockRows = static_cast<std::size_t>(bottom - top + kRows - 1) / kRows;
    const std::size_t blockColumns =
        static_cast<std::size_t>(right - left + kColumns - 1) / kColumns;
    std::uint16_t* firstOfRow =
        coverage_.data() + static_cast<std::size_t>(top) * stride_ + static_cast<std::size_t>(left);
    for (std::size_t row = 0; row < blockRows; ++row) {
        Lanes a = across.value;
        Lanes s = pastStart.value;
        Lanes e = pastEnd.value;
        std::uint16_t* upper = firstOfRow;
        for (std::size_t column = 0; column < blockColumns; ++column) {
            const Coverage added = brush.coverage(a, s, e);
            std::uint16_t* const lower = upper + stride_;
            const auto sum = std::bit_cast<Halves>(
                std::bit_cast<Coverage>(Halves{load(upper), load(lower)}) + added);
            store(sum[0], upper);
            store(sum[1], lower);
            a += across.stepColumns;
            s += pastStart.stepColumns;
            e += pastEnd.stepColumns;
            upper += kColumns;
        }
        across.value += across.stepRows;
        pastStart.value += pastStart.stepRows;
        pastEnd.value += pastEnd.stepRows;
        firstOfRow += kRows * stride_;
    }
}

}  // namespace kalvo::graphics
