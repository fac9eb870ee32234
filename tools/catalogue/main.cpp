#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "base/bundle.h"
#include "tools/catalogue/catalogue_maker.h"

/// catalogue <folder of resources>: makes the catalogue and the table of stations there, and the
/// readable one at the end of the README beside them, from the tables in its folder "source".
/// catalogue --check-error <folder of resources>: prints how far the estimate misses a station
/// that it does not know.

namespace {

using kalvo::base::Failure;
using kalvo::base::readFile;
using kalvo::base::Result;
using kalvo::tools::CatalogueSources;

constexpr std::string_view kTableMark = "<!-- Made by tools/catalogue from here on. -->\n";

struct SourceTexts {
    std::string places;
    std::string stations;
    std::string exposures;

    [[nodiscard]] CatalogueSources views() const {
        return {.places = places, .stations = stations, .exposures = exposures};
    }
};

Result<SourceTexts> readSources(const std::filesystem::path& folder) {
    SourceTexts texts;
    for (const auto& [name, text] : {std::pair{"comuni.csv", &texts.places},
                                     {"stazioni.csv", &texts.stations},
                                     {"esposizione.csv", &texts.exposures}}) {
        auto read = readFile(folder / name);
        if (!read) return Failure(read.error());
        *text = std::move(*read);
    }
    return texts;
}

Result<void> write(const std::filesystem::path& file, std::string_view text) {
    std::ofstream stream(file, std::ios::binary);
    stream.write(text.data(), static_cast<std::streamsize>(text.size()));
    if (!stream.flush()) return Failure({"FileWrite", 1, "cannot write " + file.string()});
    return {};
}

Result<void> make(const std::filesystem::path& resources) {
    const auto sources = readSources(resources / "source");
    if (!sources) return Failure(sources.error());
    auto note = readFile(resources / "README.md");
    if (!note) return Failure(note.error());
    const std::size_t mark = note->find(kTableMark);
    if (mark == std::string::npos) return Failure({"Note", 1, "README.md lacks the mark"});

    const auto made = kalvo::tools::makeCatalogue(sources->views());
    if (!made) return Failure(made.error());
    note->replace(mark + kTableMark.size(), std::string::npos, "\n" + made->stationTable);
    return write(resources / "README.md", *note)
        .and_then([&] { return write(resources / "centraline.csv", made->stations); })
        .and_then([&] { return write(resources / "comuni_italia.csv", made->catalogue); });
}

Result<void> printError(const std::filesystem::path& resources) {
    return readSources(resources / "source")
        .and_then([](const SourceTexts& texts) { return kalvo::tools::checkError(texts.views()); })
        .map([](const kalvo::tools::LeaveOneOutError& error) {
            std::printf(
                "Mean error of the mean wind at a station left out, m/s at 10 m:\n"
                "  this rule        %.3f\n"
                "  nearest station  %.3f\n",
                error.rule, error.nearestStation);
        });
}

}  // namespace

int main(int argc, char** argv) {
    const bool checksError = argc == 3 && argv[1] == std::string_view("--check-error");
    if (argc != 2 && !checksError) {
        std::fprintf(stderr, "usage: catalogue [--check-error] <folder of resources>\n");
        return 2;
    }
    const auto done = checksError ? printError(argv[2]) : make(argv[1]);
    if (!done) {
        std::fprintf(stderr, "catalogue: %s\n", done.error().description().c_str());
        return 1;
    }
    return 0;
}
