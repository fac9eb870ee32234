#include "platform/task.h"

#include <optional>
#include <string>

#include <gtest/gtest.h>

namespace kalvo::platform {
namespace {

/// A point where a task waits until the test lets it go on.
struct Gate {
    std::coroutine_handle<> waiting{};
    bool destroyed = false;

    struct Awaiter {
        Gate& gate;
        [[nodiscard]] bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> handle) const noexcept { gate.waiting = handle; }
        void await_resume() const noexcept {}
    };
    Awaiter wait() { return {*this}; }
};

struct OnDestruction {
    bool& flag;
    ~OnDestruction() { flag = true; }
};

Task<std::string> answer(Gate* gate) {
    const OnDestruction guard{gate->destroyed};
    co_await gate->wait();
    co_return "answer";
}

Task<void> keep(Gate* gate, std::string* result) { *result = co_await answer(gate); }

TEST(TaskScope, LetsTasksEndInAnyOrderAndForgetsThem) {
    Gate first;
    Gate second;
    std::string result;
    std::string other;
    TaskScope scope;
    scope.start(keep(&first, &result));
    scope.start(keep(&second, &other));
    second.waiting.resume();
    EXPECT_EQ(other, "answer");
    EXPECT_EQ(result, "");
    EXPECT_FALSE(scope.empty());
    first.waiting.resume();
    EXPECT_EQ(result, "answer");
    EXPECT_TRUE(scope.empty());
}

TEST(TaskScope, EndsWhatIsStillUnderWayWithIt) {
    Gate gate;
    std::string result;
    std::optional<TaskScope> scope(std::in_place);
    scope->start(keep(&gate, &result));
    EXPECT_FALSE(gate.destroyed);
    scope.reset();
    EXPECT_TRUE(gate.destroyed);
    EXPECT_EQ(result, "");
}

}  // namespace
}  // namespace kalvo::platform
