#include "engine/catalogue.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace kalvo::engine {

namespace {

struct ByLabel {
    bool operator()(const Location& one, const Location& other) const {
        return one.label < other.label;
    }
    bool operator()(const Location& place, std::string_view label) const {
        return place.label < label;
    }
};

bool haveSameLabel(const Location& one, const Location& other) { return one.label == other.label; }

}  // namespace

Catalogue::Catalogue(std::vector<Location> places) : places_(std::move(places)) {
    // The catalogue that ships is in order already; moving records about is what costs.
    if (!std::is_sorted(places_.begin(), places_.end(), ByLabel{})) {
        std::stable_sort(places_.begin(), places_.end(), ByLabel{});
    }
    // Seen from the end, `unique` keeps the last of several.
    const auto kept = std::unique(places_.rbegin(), places_.rend(), haveSameLabel);
    places_.erase(places_.begin(), kept.base());
}

const Location* Catalogue::find(std::string_view label) const {
    const auto found = std::lower_bound(places_.begin(), places_.end(), label, ByLabel{});
    return found != places_.end() && found->label == label ? &*found : nullptr;
}

}  // namespace kalvo::engine
