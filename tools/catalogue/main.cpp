#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "base/bundle.h"
#include "tools/catalogue/catalogue_maker.h"

/// catalogue <folder of resources>: makes the catalogue there, and the table of stations at the
/// end of the README beside it, from the tables in its folder "source".

namespace {

using kalvo::base::Failure;
using kalvo::base::readFile;
using kalvo::base::Result;

constexpr std::string_view kTableMark = "<!-- Made by tools/catalogue from here on. -->\n";

Result<void> write(const std::filesystem::path& file, std::string_view text) {
    std::ofstream stream(file, std::ios::binary);
    stream.write(text.data(), static_cast<std::streamsize>(text.size()));
    if (!stream.flush()) return Failure({"FileWrite", 1, "cannot write " + file.string()});
    return {};
}

Result<void> make(const std::filesystem::path& resources) {
    const auto places = readFile(resources / "source" / "comuni.csv");
    if (!places) return Failure(places.error());
    const auto stations = readFile(resources / "source" / "stazioni.csv");
    if (!stations) return Failure(stations.error());
    auto note = readFile(resources / "README.md");
    if (!note) return Failure(note.error());
    const std::size_t mark = note->find(kTableMark);
    if (mark == std::string::npos) return Failure({"Note", 1, "README.md lacks the mark"});

    const auto made = kalvo::tools::makeCatalogue({.places = *places, .stations = *stations});
    if (!made) return Failure(made.error());
    note->replace(mark + kTableMark.size(), std::string::npos, "\n" + made->stationTable);
    return write(resources / "README.md", *note).and_then([&] {
        return write(resources / "comuni_italia.csv", made->catalogue);
    });
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: catalogue <folder of resources>\n");
        return 2;
    }
    if (const auto made = make(argv[1]); !made) {
        std::fprintf(stderr, "catalogue: %s\n", made.error().description().c_str());
        return 1;
    }
    return 0;
}
