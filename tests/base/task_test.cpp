#include "base/task.h"

#include <optional>
#include <string>
#include <tuple>
#include <utility>

#include <gtest/gtest.h>

#include "tests/support/scripted_session.h"

namespace kalvo::base {
namespace {

Task<void> keep(Task<Result<std::string>> task, std::string* result) {
    *result = (co_await std::move(task)).value();
}

class TaskScopeTest : public testing::Test {
 protected:
    /// Starts a task that waits until the test answers this address.
    void start(const std::string& url, std::string* result) {
        session.hold(url);
        scope->start(keep(session.get({url, {}, {}}), result));
    }

    tests::ScriptedSession session;
    std::optional<TaskScope> scope{std::in_place};
    std::string first;
    std::string second;
};

TEST_F(TaskScopeTest, LetsTasksEndInAnyOrderAndForgetsThem) {
    start("a", &first);
    start("b", &second);
    session.release("b", "answer");
    EXPECT_EQ(second, "answer");
    EXPECT_EQ(first, "");
    EXPECT_FALSE(scope->empty());
    session.release("a", "other");
    EXPECT_EQ(first, "other");
    EXPECT_TRUE(scope->empty());
}

Task<void> endScope(Task<Result<std::string>> waiting, std::optional<TaskScope>* scope) {
    std::ignore = co_await std::move(waiting);
    scope->reset();
}

TEST_F(TaskScopeTest, MustNotEndInsideItsOwnTasksButInsideAnothers) {
    session.hold("own");
    scope->start(endScope(session.get({"own", {}, {}}), &scope));
    EXPECT_DEATH(session.release("own", "answer"), "terminate");
    TaskScope other;
    session.hold("others");
    other.start(endScope(session.get({"others", {}, {}}), &scope));
    session.release("others", "answer");
    EXPECT_FALSE(scope);
}

// A task that is awaited twice would take its value twice.
template <class Awaited>
concept Awaitable = requires(detail::AwaitingPromise& promise, Awaited&& task) {
    promise.await_transform(std::forward<Awaited>(task));
};
static_assert(Awaitable<Task<int>&&> && !Awaitable<Task<int>&>);

}  // namespace
}  // namespace kalvo::base
