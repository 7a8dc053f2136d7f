#include "platform/NotificationCenter.h"

namespace sonavel {

void NotificationCenter::addObserver(Action action, std::string_view name, const void* sender)
{
    registrations_.push_back({std::string(name), sender, std::move(action)});
}

void NotificationCenter::postNotificationName(std::string_view name, const void* sender) const
{
    for (const Registration& registration : registrations_)
        if (registration.name == name && (registration.sender == nullptr || registration.sender == sender))
            registration.action();
}

} // namespace sonavel
