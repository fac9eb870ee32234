#pragma once

#include <string>

#include "app/content_view.h"

namespace kalvo::app {

/// The change events of the main screen: one fires when a field differs from what it was at the
/// last redraw, whether the user or an operation changed it.
class ScreenEvents {
 public:
    /// The state outlives the events; what it holds now counts as drawn.
    explicit ScreenEvents(ContentView& state);

    /// Runs what the fields that changed since the last call ask for, then what those operations
    /// changed in turn, until nothing differs. To be called before each redraw.
    void dispatch();

 private:
    /// The fields whose changes are events.
    struct Fields {
        std::string selectedCountry;
        int selectedTurbineKW;
        std::string quantityString;
        std::string searchText;
        std::string selectedLocationLabel;
        friend bool operator==(const Fields&, const Fields&) = default;
    };
    [[nodiscard]] Fields current() const;

    ContentView& state_;
    Fields drawn_;
};

}  // namespace kalvo::app
