#include "platform/qt/font_configuration.h"

#ifndef __APPLE__
#include <fontconfig/fontconfig.h>
#endif

namespace kalvo::platform {

std::future<void> readFontConfiguration() {
#ifdef __APPLE__
    return {};
#else
    return std::async([] { FcInit(); });
#endif
}

}  // namespace kalvo::platform
