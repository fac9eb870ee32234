#pragma once

#include "base/url_opener.h"

namespace kalvo::base {

/// Opens addresses as the desktop is set up to.
class QtUrlOpener final : public UrlOpener {
 public:
    bool open(std::string_view address) override;
};

}  // namespace kalvo::base
