#pragma once

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace kalvo::tests {

/// Returns the bytes of a file below tests/.
inline std::string readFile(const std::string& name) {
    std::ifstream file(std::filesystem::path(KALVO_SOURCE_DIR "/tests") / name, std::ios::binary);
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Checks a transcript: the file `name` below tests/ with questions, each followed by the lines
/// that `answer` must give it, indented by two blanks. The lines of a question begin with "> "; one
/// that begins with "? " ends it. Other lines are comments. Where an answer differs, the transcript
/// as it would be is left in the temporary folder, for a look and, if it is right, to replace the
/// file.
inline void expectTranscript(const std::string& name,
                             const std::function<std::string(const std::string&)>& answer) {
    const std::string expected = readFile(name);
    std::istringstream file(expected);
    std::string actual;
    std::string question;
    const auto reply = [&] {
        if (question.empty()) return;
        question.pop_back();
        const std::string answered = answer(question);
        std::istringstream lines(answered.empty() ? "(nothing)" : answered);
        for (std::string line; std::getline(lines, line);) actual += "  " + line + "\n";
        question.clear();
    };
    for (std::string line; std::getline(file, line);) {
        const bool isLast = line.starts_with("? ");
        const bool asks = isLast || line.starts_with("> ");
        if (!asks) reply();
        if (line.starts_with("  ")) continue;
        actual += line + "\n";
        if (asks) question += line.substr(2) + "\n";
        if (isLast) reply();
    }
    reply();
    if (actual == expected) return;
    std::string copy = name;
    for (char& letter : copy) letter = letter == '/' ? '-' : letter;
    std::ofstream(testing::TempDir() + copy) << actual;
    EXPECT_EQ(expected, actual) << "the second one stands in " << testing::TempDir() << copy;
}

}  // namespace kalvo::tests
