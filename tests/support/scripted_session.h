#pragma once

#include <algorithm>
#include <coroutine>
#include <cstddef>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "net/http_session.h"

namespace kalvo::tests {

/// An HTTP session that answers from a script instead of a network. `answer` and `hold` say, URL by
/// URL and request by request, what the next ones get: an answer at once, or a wait that the test
/// ends with `release`. A request that the script does not know fails.
class ScriptedSession final : public net::HttpSession {
 public:
    using Answer = base::Result<std::string>;

    /// What a request that the network cannot serve gets.
    [[nodiscard]] static Answer failure(std::string message) {
        return base::Failure({"Transport", 1, std::move(message)});
    }

    void answer(const std::string& url, Answer answer) {
        script_[url].emplace_back(std::move(answer));
    }
    void hold(const std::string& url) { script_[url].emplace_back(std::nullopt); }
    /// From now on a request that the script does not know waits.
    void holdEverything() { holdsUnknown_ = true; }

    /// Ends the wait of the oldest held request for the URL and runs its task on. Returns whether
    /// there was one.
    bool release(const std::string& url, Answer answer) {
        const auto found = std::find_if(held_.begin(), held_.end(),
                                        [&](const Held* held) { return held->url == url; });
        if (found == held_.end()) return false;
        Held& held = **found;
        held_.erase(found);
        held.answer = std::move(answer);
        held.waiting.resume();
        return true;
    }

    /// How many requests are waiting; one whose task has been given up is not.
    [[nodiscard]] std::size_t heldCount() const { return held_.size(); }

    /// The URLs of the requests that are waiting, the oldest first.
    [[nodiscard]] std::vector<std::string> waiting() const {
        std::vector<std::string> urls;
        for (const Held* held : held_) urls.push_back(held->url);
        return urls;
    }

    /// Every request so far, in the order of their start.
    [[nodiscard]] const std::vector<net::HttpRequest>& requests() const { return requests_; }

    [[nodiscard]] base::Task<Answer> get(net::HttpRequest request) override {
        requests_.push_back(request);
        std::deque<std::optional<Answer>>& next = script_[request.url];
        if (next.empty() && !holdsUnknown_) {
            co_return failure("unexpected request for " + request.url);
        }
        std::optional<Answer> now;
        if (!next.empty()) {
            now = std::move(next.front());
            next.pop_front();
        }
        if (now) co_return std::move(*now);
        Held held(held_, request.url);
        co_return co_await held;
    }

 private:
    struct Held {
        Held(std::vector<Held*>& owner, std::string requested)
            : others(owner), url(std::move(requested)) {}
        Held(const Held&) = delete;
        Held& operator=(const Held&) = delete;
        ~Held() { std::erase(others, this); }

        [[nodiscard]] bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> handle) {
            waiting = handle;
            others.push_back(this);
        }
        [[nodiscard]] Answer await_resume() { return std::move(*answer); }

        std::vector<Held*>& others;
        std::string url;
        std::coroutine_handle<> waiting{};
        std::optional<Answer> answer{};
    };

    std::map<std::string, std::deque<std::optional<Answer>>> script_;
    std::vector<net::HttpRequest> requests_;
    std::vector<Held*> held_;
    bool holdsUnknown_ = false;
};

}  // namespace kalvo::tests
