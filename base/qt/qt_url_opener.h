#pragma once

#include "base/url_opener.h"

namespace kalvo::base {

/// The desktop as Qt finds it.
class QtUrlOpener final : public UrlOpener {
 public:
    bool open(std::string_view address) override;
};

}  // namespace kalvo::base
