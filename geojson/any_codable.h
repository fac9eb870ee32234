#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>
#include <vector>

namespace kalvo::geojson {

/// A recursive coordinate value: a number, or an array of such values. It is a view of a value
/// inside a `CoordinateList` and valid as long as that list is, unchanged; copying it is cheap.
///
/// The values of one list stand in one pool of 64-bit words, by NaN-boxing: a word is a double or,
/// inside the payload of a NaN, which JSON cannot write, an array's first element and size. A
/// position of two numbers takes 24 bytes.
class AnyCodable {
 public:
    using Word = std::uint64_t;

    class Iterator {
     public:
        using value_type = AnyCodable;
        using difference_type = std::ptrdiff_t;
        using iterator_category = std::input_iterator_tag;

        Iterator() = default;
        Iterator(const Word* pool, const Word* at) : pool_(pool), at_(at) {}
        [[nodiscard]] AnyCodable operator*() const { return {pool_, *at_}; }
        Iterator& operator++() {
            ++at_;
            return *this;
        }
        Iterator operator++(int) { return {pool_, at_++}; }
        friend bool operator==(const Iterator&, const Iterator&) = default;

     private:
        const Word* pool_ = nullptr;
        const Word* at_ = nullptr;
    };

    AnyCodable(const Word* pool, Word word) : pool_(pool), word_(word) {}

    [[nodiscard]] bool isNumber() const { return word_ < kArrayMark; }
    [[nodiscard]] bool isArray() const { return !isNumber(); }

    /// Returns the value of a number; the value must be one.
    [[nodiscard]] double number() const { return std::bit_cast<double>(word_); }

    /// Returns how many elements an array has; 0 for a number.
    [[nodiscard]] std::size_t size() const {
        if (isNumber()) return 0;
        const Word size = word_ >> kSizeShift & kLargeSize;
        return size < kLargeSize ? size : elements()[-1];
    }
    [[nodiscard]] bool empty() const { return size() == 0; }

    /// Returns an element of an array; `index` is below its size.
    [[nodiscard]] AnyCodable operator[](std::size_t index) const {
        return {pool_, elements()[index]};
    }
    [[nodiscard]] AnyCodable front() const { return (*this)[0]; }

    /// Returns whether this is a GeoJSON position: an array that begins with two numbers, longitude
    /// first.
    [[nodiscard]] bool isPosition() const {
        return size() >= 2 && (*this)[0].isNumber() && (*this)[1].isNumber();
    }

    /// Iterate over the elements of an array in order; none for a number.
    [[nodiscard]] Iterator begin() const { return {pool_, isArray() ? elements() : nullptr}; }
    [[nodiscard]] Iterator end() const {
        return {pool_, isArray() ? elements() + size() : nullptr};
    }

    /// Return the words of a pool. The elements of an array stand from `first` on, which fits 32
    /// bits because texts of 4 GB and more are not read; the word before them holds the size from
    /// `kLargeSize` on.
    [[nodiscard]] static Word numberWord(double number) { return std::bit_cast<Word>(number); }
    [[nodiscard]] static Word arrayWord(std::size_t first, std::size_t size) {
        return kArrayMark | std::min<Word>(size, kLargeSize) << kSizeShift | first;
    }
    static constexpr Word kLargeSize = 0x7'FFFF;

 private:
    /// The bit patterns from here on are those of quiet NaNs with a sign.
    static constexpr Word kArrayMark = 0xFFF8'0000'0000'0000;
    static constexpr int kSizeShift = 32;

    [[nodiscard]] const Word* elements() const { return pool_ + (word_ & 0xFFFF'FFFF); }

    const Word* pool_;
    Word word_;
};

/// A list of coordinate values, of any depth. A value: copies are independent and compare equal
/// when they hold the same numbers in the same nesting.
class CoordinateList {
 public:
    using Word = AnyCodable::Word;

    CoordinateList() = default;
    /// Takes over a pool laid out as `AnyCodable` describes. Its first word is the list itself.
    explicit CoordinateList(std::vector<Word> pool) : pool_(std::move(pool)) {}

    [[nodiscard]] std::size_t size() const { return root().size(); }
    [[nodiscard]] AnyCodable operator[](std::size_t index) const { return root()[index]; }
    [[nodiscard]] AnyCodable::Iterator begin() const { return root().begin(); }
    [[nodiscard]] AnyCodable::Iterator end() const { return root().end(); }

    friend bool operator==(const CoordinateList&, const CoordinateList&) = default;

 private:
    [[nodiscard]] AnyCodable root() const {
        return {pool_.data(), pool_.empty() ? AnyCodable::arrayWord(0, 0) : pool_.front()};
    }

    std::vector<Word> pool_;
};

/// Calls `visit` for every value of the list in document order, each before its elements. The
/// elements of an array follow only when `visit` returns true for it. Nesting of any depth is
/// traversed without recursion.
template <class Visit>
void traverse(const CoordinateList& list, Visit visit) {
    struct Open {
        AnyCodable::Iterator next;
        AnyCodable::Iterator end;
    };
    std::vector<Open> open{{list.begin(), list.end()}};
    while (!open.empty()) {
        Open& innermost = open.back();
        if (innermost.next == innermost.end) {
            open.pop_back();
            continue;
        }
        const AnyCodable value = *innermost.next++;
        if (visit(value)) open.push_back({value.begin(), value.end()});
    }
}

}  // namespace kalvo::geojson
