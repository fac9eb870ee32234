#include "online/meteoblue_search_result.h"

#include <boost/container_hash/hash.hpp>

std::size_t std::hash<kalvo::online::MeteoblueSearchResult>::operator()(
    const kalvo::online::MeteoblueSearchResult& result) const noexcept {
    std::size_t seed = 0;
    boost::hash_combine(seed, result.name);
    boost::hash_combine(seed, result.country);
    // Adding zero turns -0.0 into 0.0.
    boost::hash_combine(seed, result.lat + 0.0);
    boost::hash_combine(seed, result.lon + 0.0);
    boost::hash_combine(seed, result.slug);
    boost::hash_combine(seed, result.iso2);
    boost::hash_combine(seed, result.label);
    return seed;
}
