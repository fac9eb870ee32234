#pragma once

#include <random>
#include <string>
#include <vector>

#include "net/http_session.h"

namespace kalvo::monkey {

/// An HTTP session without a network: what it answers, and whether at once or a little later, is
/// drawn from the random numbers of the run. Answers are good, broken, hostile or failures.
class UnreliableSession final : public net::HttpSession {
 public:
    explicit UnreliableSession(std::mt19937_64& random) : random_(random) {}

    [[nodiscard]] base::Task<base::Result<std::string>> get(net::HttpRequest request) override;

    /// How many requests are under way.
    [[nodiscard]] int pending() const { return pending_; }

 private:
    [[nodiscard]] std::string goodAnswer(const std::string& url);
    [[nodiscard]] std::string chart(const std::vector<std::string>& series, int values);
    [[nodiscard]] int below(int bound) {
        return std::uniform_int_distribution(0, bound - 1)(random_);
    }

    std::mt19937_64& random_;
    int pending_ = 0;
};

}  // namespace kalvo::monkey
