#pragma once

#include <string>
#include <string_view>

#include "base/text.h"

namespace kalvo::engine {

/// The name of a region as the models read it: they look for words in it, whatever their case.
class FoldedRegion {
 public:
    explicit FoldedRegion(std::string_view region) : text_(base::lowercased(region)) {}

    /// The word is in lower case.
    [[nodiscard]] bool contains(std::string_view word) const {
        return text_.find(word) != std::string::npos;
    }

 private:
    std::string text_;
};

}  // namespace kalvo::engine
