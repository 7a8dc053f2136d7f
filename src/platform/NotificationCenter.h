// Notifications from one part of the program to whoever registered for them.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace sonavel {

/// Delivers at once, on the thread that posts, which is the main thread; in the order of registration.
class NotificationCenter {
public:
    using Action = std::function<void()>;

    /// Calls `action` for every notification of that name from `sender`, or from every sender when it is null. The
    /// registration lasts as long as this object.
    void addObserver(Action action, std::string_view name, const void* sender);

    void postNotificationName(std::string_view name, const void* sender) const;

private:
    struct Registration {
        std::string name;
        const void* sender;
        Action action;
    };
    std::vector<Registration> registrations_;
};

} // namespace sonavel
