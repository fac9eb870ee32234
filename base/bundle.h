#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/result.h"

namespace kalvo::base {

/// The folder of data files and images that the application ships with.
class Bundle {
 public:
    explicit Bundle(std::filesystem::path root) : root_(std::move(root)) {}

    /// Returns the application's own: "resources" beside the executable (a build tree), else
    /// "../share/kalvo-tresk" from there (an installation). The working directory plays no part.
    [[nodiscard]] static const Bundle& main();

    /// Returns the path of the resource file `name`.`type`, or nothing when there is none.
    [[nodiscard]] std::optional<std::filesystem::path> path(std::string_view name,
                                                            std::string_view type) const;

    /// Returns the path of a named image: of the image catalogue (images/`name`.png, with @2x and
    /// @3x variants beside it), else of the resource file `name`.png, else nothing.
    [[nodiscard]] std::optional<std::filesystem::path> image(std::string_view name) const;

 private:
    std::filesystem::path root_;
};

/// Returns all bytes of a file, or fails with the domain "FileRead" and an errno code.
[[nodiscard]] Result<std::string> readFile(const std::filesystem::path& path);

}  // namespace kalvo::base
