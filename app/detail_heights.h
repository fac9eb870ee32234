#pragma once

namespace kalvo::app {

/// How the height of the detail column is divided, in points.
struct DetailHeights {
    int map;
    int details;
    /// The column is too low for the map and one whole chart: it scrolls as one page, in which the
    /// details have all the height that they need.
    bool isOnePage;
};

/// Divides a column of `column` points, of which `fixed` go to the pickers and what else does not
/// grow; `natural` is the height of the details without scrolling.
[[nodiscard]] DetailHeights divideDetailHeights(int column, int fixed, int natural);

}  // namespace kalvo::app
