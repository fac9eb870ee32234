#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kalvo::tests {

/// An empty folder for the files of one test, removed with all it holds at the end.
class TemporaryFolder {
 public:
    TemporaryFolder() {
        std::string name = std::filesystem::temp_directory_path() / "kalvo-test-XXXXXX";
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
        path_ = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// Writes a file of the folder, or of a folder in it that it makes on the way.
    std::filesystem::path write(const std::filesystem::path& name, std::string_view bytes) const {
        const std::filesystem::path file = path_ / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream stream(file, std::ios::binary);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!stream.flush()) throw std::runtime_error("cannot write " + file.string());
        return file;
    }

 private:
    std::filesystem::path path_;
};

}  // namespace kalvo::tests
