#pragma once

namespace kalvo::ui {

/// Whether the desktop composes its windows now, so that a popup may be transparent at its corners.
[[nodiscard]] bool isDesktopComposited();

}  // namespace kalvo::ui
