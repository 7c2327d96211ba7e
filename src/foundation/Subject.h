#pragma once

#include "foundation/Cancellable.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace quillon {

/// A list of subscribers to which values are sent, synchronously and in order of subscription.
///
/// A subscriber may subscribe, cancel or send again during a delivery: one that was cancelled hears
/// nothing more, one that joined hears the next value. Main thread only.
template <typename... Values>
class Subject {
public:
    using Subscriber = std::function<void(const Values&...)>;

    [[nodiscard]] Cancellable sink(Subscriber subscriber) {
        auto entry = std::make_shared<Subscriber>(std::move(subscriber));
        m_subscribers->push_back(entry);
        return Cancellable([list = std::weak_ptr(m_subscribers), weak = std::weak_ptr(entry)] {
            const auto subscribers = list.lock();
            const auto cancelled = weak.lock();
            if (subscribers && cancelled) {
                // The entry may be in the middle of its own call, so the function inside is
                // emptied later, with the last reference.
                std::erase(*subscribers, cancelled);
            }
        });
    }

    void send(const Values&... values) const {
        if (m_subscribers->empty()) {
            return;
        }
        const auto list = m_subscribers;
        const List present = *list;
        for (const auto& entry : present) {
            if (std::find(list->begin(), list->end(), entry) != list->end()) {
                (*entry)(values...);
            }
        }
    }

    bool hasSubscribers() const { return !m_subscribers->empty(); }
    std::size_t subscriberCount() const { return m_subscribers->size(); }

private:
    using List = std::vector<std::shared_ptr<Subscriber>>;
    std::shared_ptr<List> m_subscribers = std::make_shared<List>();
};

} // namespace quillon
