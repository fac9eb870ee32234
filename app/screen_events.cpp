#include "app/screen_events.h"

#include <utility>

namespace kalvo::app {

ScreenEvents::ScreenEvents(ContentView& state) : state_(state), drawn_(current()) {}

ScreenEvents::Fields ScreenEvents::current() const {
    return {.selectedCountry = state_.selectedCountry,
            .selectedTurbineKW = state_.selectedTurbineKW,
            .quantityString = state_.quantityString,
            .searchText = state_.searchText,
            .selectedLocationLabel = state_.selectedLocationLabel};
}

void ScreenEvents::dispatch() {
    for (Fields now = current(); now != drawn_; now = current()) {
        const Fields before = std::exchange(drawn_, now);
        if (before.selectedCountry != now.selectedCountry) {
            state_.onCountryChanged(now.selectedCountry);
        }
        if (before.selectedTurbineKW != now.selectedTurbineKW) state_.calculate();
        if (before.quantityString != now.quantityString) state_.calculate();
        if (before.searchText != now.searchText) state_.filterLocations(now.searchText);
        if (before.selectedLocationLabel != now.selectedLocationLabel) state_.calculate();
    }
}

}  // namespace kalvo::app
