#include "base/bundle.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace kalvo::base {

namespace {

std::optional<std::filesystem::path> ifFile(std::filesystem::path path) {
    std::error_code ignored;
    if (!std::filesystem::exists(path, ignored)) return std::nullopt;
    return path;
}

std::string fileName(std::string_view name, std::string_view type) {
    return std::string(name).append(".").append(type);
}

}  // namespace

std::optional<std::filesystem::path> Bundle::path(std::string_view name,
                                                  std::string_view type) const {
    return ifFile(root_ / fileName(name, type));
}

std::optional<std::filesystem::path> Bundle::image(std::string_view name) const {
    if (auto named = ifFile(root_ / "images" / fileName(name, "png"))) return named;
    return path(name, "png");
}

Result<std::string> readFile(const std::filesystem::path& path) {
    const auto failure = [] {
        const int code = errno;
        return Failure({"FileRead", code, std::strerror(code)});
    };
    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    const std::unique_ptr<std::FILE, Close> file(std::fopen(path.c_str(), "rb"));
    if (!file) return failure();

    std::string bytes;
    std::error_code unknownSize;
    if (const auto size = std::filesystem::file_size(path, unknownSize); !unknownSize) {
        // A byte more than expected, which stays free, shows that the file ends there.
        bytes.resize(size + 1);
    }
    std::size_t length = 0;
    while (true) {
        if (length == bytes.size()) bytes.resize(length + 1 + length / 2);
        const std::size_t got =
            std::fread(bytes.data() + length, 1, bytes.size() - length, file.get());
        if (std::ferror(file.get())) return failure();
        if (got == 0) break;
        length += got;
    }
    bytes.resize(length);
    return bytes;
}

}  // namespace kalvo::base
