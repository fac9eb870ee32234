#pragma once

#include <QImage>

#include "base/bundle.h"

namespace kalvo::app {

/// The application's icon: "logo_rounded.png" of the bundle, or "AppIcon.icns" where there is no
/// such file. A null image when there is neither or the one that was found cannot be read.
[[nodiscard]] QImage loadApplicationIcon(const base::Bundle& bundle);

}  // namespace kalvo::app
