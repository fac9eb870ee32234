#include "app/country.h"

#include <algorithm>

namespace kalvo::app {

const Country* findCountry(std::string_view name) {
    const auto found = std::ranges::find(kCountries, name, &Country::name);
    return found == kCountries.end() ? nullptr : &*found;
}

const Country& countryOfRegion(std::string_view region) {
    const auto found = std::ranges::find(kCountries, region, &Country::region);
    return found == kCountries.end() ? kCountries.front() : *found;
}

}  // namespace kalvo::app
