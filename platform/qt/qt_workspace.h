#pragma once

#include "platform/workspace.h"

namespace kalvo::platform {

/// The desktop as Qt finds it.
class QtWorkspace final : public Workspace {
 public:
    bool open(std::string_view address) override;
};

}  // namespace kalvo::platform
