#include "report/qt/pdf_file.h"

#include <csignal>

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <QProcess>

#include "base/bundle.h"
#include "tests/report/sample_report.h"
#include "tests/support/temporary_folder.h"

namespace kalvo::report {
namespace {

using testing::HasSubstr;

/// What a program of poppler-utils prints of a file.
std::string printed(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " is missing";
    return process.readAllStandardOutput().toStdString();
}

TEST(PdfFileTest, IsOfTwoSearchablePagesWithEmbeddedFontsAndSaysWhatItIs) {
    tests::TemporaryFolder folder;
    const QString path = QString::fromStdString(folder.path() / "report.pdf");
    ASSERT_TRUE(saveFile(pdfOf(sampleReport()), path));

    const std::string text = printed("pdftotext", {"-layout", path, "-"});
    for (const char* found : {"Trapani (TP)", "6.048", "8.640", "Gennaio", "L’errore tipico qui",
                              "Rosa dei venti", "Pagina 2 di 2"}) {
        EXPECT_THAT(text, HasSubstr(found));
    }
    const std::string info = printed("pdfinfo", {path});
    for (const char* found :
         {"Relazione sulla produzione annua stimata: Trapani (TP)",
          "Author:          Kalvo Wind & Solar", "CreationDate", "Pages:           2", "(A4)"}) {
        EXPECT_THAT(info, HasSubstr(found));
    }
    EXPECT_THAT(base::readFile(path.toStdString()).value(), HasSubstr("/Lang (it-IT)"));
    // One line a font after two of heads: name, type, encoding, embedded, subset, Unicode.
    const QStringList fonts = QString::fromStdString(printed("pdffonts", {path})).split('\n');
    EXPECT_GE(fonts.size(), 4);
    for (const QString& font : fonts.mid(2, fonts.size() - 3)) {
        EXPECT_TRUE(font.contains("yes no  yes") || font.contains("yes yes yes"))
            << font.toStdString();
    }
}

TEST(PdfFileTest, AFaultLeavesTheOldFileWholeAndSaysWhy) {
    tests::TemporaryFolder folder;
    const std::filesystem::path old = folder.write("old.pdf", "old");
    const auto failure = [](const std::filesystem::path& path) {
        const auto saved = saveFile(QByteArray(100'000, 'x'), QString::fromStdString(path));
        return saved ? std::string() : saved.error().message;
    };
    // A disk that is full after 50 kB.
    rlimit whole{};
    getrlimit(RLIMIT_FSIZE, &whole);
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit full{50'000, whole.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    const std::string message = failure(old);
    setrlimit(RLIMIT_FSIZE, &whole);
    std::signal(SIGXFSZ, before);
    EXPECT_THAT(message, HasSubstr("Il file non si può scrivere"));
    EXPECT_EQ(base::readFile(old).value(), "old");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);

    EXPECT_NE(failure(folder.path()), "") << "a folder is no file";
    EXPECT_NE(failure(folder.path() / "none" / "new.pdf"), "");
    EXPECT_EQ(failure(old), "");
    EXPECT_EQ(base::readFile(old).value().size(), 100'000u);
}

TEST(PdfFileTest, IsNamedAfterItsPlaceInLettersThatFileSystemsTake) {
    Report report = sampleReport();
    const auto nameOf = [&](const std::string& city) {
        report.city = city;
        return suggestedFileName(report).toStdString();
    };
    EXPECT_EQ(nameOf("Trapani"), "Kalvo - Trapani (TP).pdf");
    EXPECT_EQ(nameOf("a/b\\c:d*e?f\"g<h>i|j\nk"), "Kalvo - a_b_c_d_e_f_g_h_i_j_k (TP).pdf");
    std::string winds;
    for (int i = 0; i < 200; ++i) winds += "𝕎";
    EXPECT_LE(nameOf(winds).size(), 220u);
    EXPECT_EQ(nameOf(winds).find("\xEF\xBF\xBD"), std::string::npos) << "half a letter";
}

}  // namespace
}  // namespace kalvo::report
