#include "engine/location.h"

#include <boost/container_hash/hash.hpp>

namespace {

template <class Field>
void combine(std::size_t& seed, const Field& field) {
    boost::hash_combine(seed, std::hash<Field>{}(field));
}

}  // namespace

std::size_t std::hash<kalvo::engine::Location>::operator()(
    const kalvo::engine::Location& location) const noexcept {
    std::size_t seed = 0;
    for (const std::string* text : {&location.label, &location.city, &location.province,
                                    &location.region, &location.station, &location.stationOwner}) {
        combine(seed, *text);
    }
    combine(seed, location.source);
    for (const std::optional<double>* number :
         {&location.kwh1kw, &location.kwh2kw, &location.kwh3kw, &location.latitude,
          &location.longitude}) {
        combine(seed, *number);
    }
    return seed;
}
