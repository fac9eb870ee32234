#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "engine/location.h"

namespace kalvo::engine {

/// The places of the catalogue, a dictionary keyed by their label. They stand in ascending order
/// of the label's code points, so that lists made from it need no sorting.
class Catalogue {
 public:
    Catalogue() = default;
    /// Keeps of several places with one label the last.
    explicit Catalogue(std::vector<Location> places);

    /// Returns the place with this label, or null.
    [[nodiscard]] const Location* find(std::string_view label) const;

    [[nodiscard]] std::size_t size() const { return places_.size(); }
    [[nodiscard]] bool empty() const { return places_.empty(); }
    [[nodiscard]] auto begin() const { return places_.begin(); }
    [[nodiscard]] auto end() const { return places_.end(); }

 private:
    std::vector<Location> places_;
};

}  // namespace kalvo::engine
