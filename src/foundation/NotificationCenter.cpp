#include "foundation/NotificationCenter.h"

#include <utility>

namespace quillon {

Cancellable NotificationCenter::addObserver(std::string_view name, Observer observer) {
    return m_subjects[std::string(name)].sink(std::move(observer));
}

void NotificationCenter::post(std::string_view name, const void* object,
                              NotificationUserInfo userInfo) const {
    const auto subject = m_subjects.find(name);
    if (subject != m_subjects.end()) {
        subject->second.send(Notification{std::string(name), object, std::move(userInfo)});
    }
}

} // namespace quillon
