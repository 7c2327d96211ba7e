#pragma once

#include "foundation/Subject.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <variant>

namespace quillon {

/// What a notification carries besides its name: few keys, plain values.
using NotificationUserInfo = std::map<std::string, std::variant<bool, double, std::string>>;

struct Notification {
    std::string name;
    /// Who it concerns; null when it concerns nobody in particular.
    const void* object = nullptr;
    NotificationUserInfo userInfo;
};

/// Delivers named notifications synchronously, in order of registration. Main thread only.
class NotificationCenter {
public:
    using Observer = std::function<void(const Notification&)>;

    /// Hears every notification of that name from any sender until the result is dropped.
    [[nodiscard]] Cancellable addObserver(std::string_view name, Observer observer);

    void post(std::string_view name, const void* object = nullptr,
              NotificationUserInfo userInfo = {}) const;

private:
    std::map<std::string, Subject<Notification>, std::less<>> m_subjects;
};

} // namespace quillon
