#include "platform/qt/font_configuration.h"

#ifndef __APPLE__
#include <fontconfig/fontconfig.h>
#endif

namespace kalvo::platform {

std::jthread readFontConfiguration() {
#ifdef __APPLE__
    return {};
#else
    return std::jthread([] { FcInit(); });
#endif
}

}  // namespace kalvo::platform
