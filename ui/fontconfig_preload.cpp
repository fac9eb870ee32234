#include "ui/fontconfig_preload.h"

#ifndef __APPLE__
#include <fontconfig/fontconfig.h>
#endif

namespace kalvo::ui {

std::future<void> preloadFontconfig() {
#ifdef __APPLE__
    return {};
#else
    return std::async([] { FcInit(); });
#endif
}

}  // namespace kalvo::ui
