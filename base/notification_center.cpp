#include "base/notification_center.h"

#include <utility>

namespace kalvo::base {

NotificationCenter& NotificationCenter::defaultCenter() {
    static NotificationCenter center;
    return center;
}

NotificationCenter::Observation NotificationCenter::observe(std::string name,
                                                            std::function<void()> notified) {
    auto observer = std::make_shared<Observation::Observer>(
        Observation::Observer{std::move(name), std::move(notified)});
    std::erase_if(observers_, [](const auto& known) { return known.expired(); });
    observers_.push_back(observer);
    return Observation(std::move(observer));
}

void NotificationCenter::post(std::string_view name) {
    // A copy, because an observer may bring in or send away others.
    const auto observers = observers_;
    for (const auto& known : observers) {
        if (const auto observer = known.lock(); observer && observer->name == name) {
            observer->notified();
        }
    }
}

}  // namespace kalvo::base
