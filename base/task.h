#pragma once

#include <coroutine>
#include <exception>
#include <list>
#include <optional>
#include <type_traits>
#include <utility>

namespace kalvo::base {

template <class T>
class Task;

namespace detail {

/// Resumes whoever awaits the task that just ended.
struct ResumeAwaiter {
    [[nodiscard]] bool await_ready() const noexcept { return false; }
    template <class Promise>
    [[nodiscard]] std::coroutine_handle<> await_suspend(
        std::coroutine_handle<Promise> ended) const noexcept {
        return ended.promise().awaiting;
    }
    void await_resume() const noexcept {}
};

/// Awaits something that is no task, and counts the coroutine out of those that run meanwhile.
template <class Awaitable>
struct PausingAwaiter {
    Awaitable& awaitable;
    int* running;
    bool hasSuspended = false;

    [[nodiscard]] bool await_ready() { return awaitable.await_ready(); }
    void await_suspend(std::coroutine_handle<> awaiting) {
        hasSuspended = true;
        --*running;
        awaitable.await_suspend(awaiting);
    }
    decltype(auto) await_resume() {
        if (hasSuspended) ++*running;
        return awaitable.await_resume();
    }
};

/// What the coroutines of a scope may await: tasks that are handed over, and awaiters.
struct AwaitingPromise {
    int* running = nullptr;  // how many of the scope's coroutines run at this moment

    template <class T>
    [[nodiscard]] auto await_transform(Task<T>&& task) noexcept {
        // NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage): it does not see promises initialized.
        return std::move(task).awaiter(running);
    }
    template <class Awaitable>
    requires requires(Awaitable& awaitable) { awaitable.await_ready(); }
    [[nodiscard]] auto await_transform(Awaitable&& awaitable) noexcept {
        return PausingAwaiter<std::remove_reference_t<Awaitable>>{awaitable, running};
    }
};

struct TaskPromiseBase : AwaitingPromise {
    std::coroutine_handle<> awaiting = std::noop_coroutine();

    [[nodiscard]] std::suspend_always initial_suspend() const noexcept { return {}; }
    [[nodiscard]] ResumeAwaiter final_suspend() const noexcept { return {}; }
    /// Failures are values (`Result`); an exception that reaches this point is a defect.
    [[noreturn]] void unhandled_exception() const noexcept { std::terminate(); }
};

template <class T>
struct TaskPromise : TaskPromiseBase {
    std::optional<T> value;
    [[nodiscard]] Task<T> get_return_object() noexcept;
    void return_value(T result) { value.emplace(std::move(result)); }
    [[nodiscard]] T take() { return std::move(*value); }
};

template <>
struct TaskPromise<void> : TaskPromiseBase {
    [[nodiscard]] Task<void> get_return_object() noexcept;
    void return_void() const noexcept {}
    void take() const noexcept {}
};

}  // namespace detail

/// An asynchronous computation of one value on the user-interface thread. It starts when it is
/// awaited, as an rvalue and by another such coroutine, and resumes whoever awaits it when it ends.
/// Destroying a task that is suspended destroys everything it waits for, so a request under way is
/// given up with it.
///
/// A coroutine of this kind takes its parameters by value and keeps no reference or view to what
/// its caller owns; what it calls with `co_await` gets plain values or named locals moved in.
template <class T>
class [[nodiscard]] Task {
 public:
    using promise_type = detail::TaskPromise<T>;

    explicit Task(std::coroutine_handle<promise_type> handle) noexcept : handle_(handle) {}
    Task(Task&& other) noexcept : handle_(std::exchange(other.handle_, {})) {}
    Task& operator=(Task&& other) noexcept {
        if (this != &other) {
            destroy();
            handle_ = std::exchange(other.handle_, {});
        }
        return *this;
    }
    Task(const Task&) = delete;
    Task& operator=(const Task&) = delete;
    ~Task() { destroy(); }

 private:
    friend detail::AwaitingPromise;

    struct Awaiter {
        std::coroutine_handle<promise_type> handle;
        int* running;

        [[nodiscard]] bool await_ready() const noexcept { return false; }
        [[nodiscard]] std::coroutine_handle<> await_suspend(
            std::coroutine_handle<> awaiting) noexcept {
            handle.promise().running = running;
            handle.promise().awaiting = awaiting;
            return handle;
        }
        T await_resume() { return handle.promise().take(); }
    };
    [[nodiscard]] Awaiter awaiter(int* running) && noexcept { return {handle_, running}; }

    void destroy() noexcept {
        if (handle_) handle_.destroy();
    }

    std::coroutine_handle<promise_type> handle_;
};

template <class T>
Task<T> detail::TaskPromise<T>::get_return_object() noexcept {
    return Task<T>(std::coroutine_handle<TaskPromise>::from_promise(*this));
}

inline Task<void> detail::TaskPromise<void>::get_return_object() noexcept {
    return Task<void>(std::coroutine_handle<TaskPromise>::from_promise(*this));
}

/// Owns the tasks that nobody awaits. `start` runs a task up to its first suspension; a task that
/// ends leaves the scope, and the scope's end gives up all that are still under way. To end it
/// inside one of its own tasks, whose coroutine would be destroyed while it runs, ends the program.
class TaskScope {
 public:
    TaskScope() = default;
    TaskScope(const TaskScope&) = delete;
    TaskScope& operator=(const TaskScope&) = delete;
    ~TaskScope() {
        if (running_ != 0) std::terminate();
        // Destroying a frame may not start another task, but it does shorten the list.
        while (!tasks_.empty()) {
            const std::coroutine_handle<> last = tasks_.back();
            tasks_.pop_back();
            last.destroy();
        }
    }

    void start(Task<void> task) {
        const Runner runner = run(std::move(task));
        tasks_.push_front(runner.handle);
        runner.handle.promise().scope = this;
        runner.handle.promise().running = &running_;
        runner.handle.promise().place = tasks_.begin();
        ++running_;
        runner.handle.resume();
    }

    /// Returns whether no task is under way.
    [[nodiscard]] bool empty() const noexcept { return tasks_.empty(); }

 private:
    struct Runner {
        struct promise_type : detail::AwaitingPromise {
            TaskScope* scope = nullptr;
            std::list<std::coroutine_handle<>>::iterator place;

            [[nodiscard]] Runner get_return_object() noexcept {
                return {std::coroutine_handle<promise_type>::from_promise(*this)};
            }
            [[nodiscard]] std::suspend_always initial_suspend() const noexcept { return {}; }
            [[nodiscard]] auto final_suspend() const noexcept {
                struct Leave {
                    [[nodiscard]] bool await_ready() const noexcept { return false; }
                    void await_suspend(std::coroutine_handle<promise_type> ended) const noexcept {
                        --ended.promise().scope->running_;
                        ended.promise().scope->tasks_.erase(ended.promise().place);
                        ended.destroy();
                    }
                    void await_resume() const noexcept {}
                };
                return Leave{};
            }
            void return_void() const noexcept {}
            [[noreturn]] void unhandled_exception() const noexcept { std::terminate(); }
        };
        std::coroutine_handle<promise_type> handle;
    };

    static Runner run(Task<void> task) { co_await std::move(task); }

    std::list<std::coroutine_handle<>> tasks_;
    int running_ = 0;
};

}  // namespace kalvo::base
