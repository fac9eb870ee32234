#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kalvo::base {

/// Passes on named notifications within the process: whoever posts one need not know who observes
/// it. A notification carries nothing but its name. Used on the user-interface thread only.
class NotificationCenter {
 public:
    /// Keeps an observer in the center for as long as it lives.
    class Observation {
     private:
        friend class NotificationCenter;
        struct Observer {
            std::string name;
            std::function<void()> notified;
        };
        explicit Observation(std::shared_ptr<Observer> observer) : observer_(std::move(observer)) {}

        std::shared_ptr<Observer> observer_;
    };

    /// Returns the center of the process.
    [[nodiscard]] static NotificationCenter& defaultCenter();

    [[nodiscard]] Observation observe(std::string name, std::function<void()> notified);

    /// Notifies those who observe the name, in the order in which they came; one that leaves while
    /// the others are told is told no more.
    void post(std::string_view name);

 private:
    std::vector<std::weak_ptr<Observation::Observer>> observers_;
};

}  // namespace kalvo::base
