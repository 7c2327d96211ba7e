#pragma once

#include <functional>
#include <utility>

namespace quillon {

/// A subscription that ends with its holder: keep it in a field for as long as it should live.
class Cancellable {
public:
    Cancellable() = default;
    explicit Cancellable(std::function<void()> cancel)
        : m_cancel(std::move(cancel)) {}
    Cancellable(Cancellable&& other) noexcept
        : m_cancel(std::exchange(other.m_cancel, nullptr)) {}
    Cancellable& operator=(Cancellable&& other) noexcept {
        if (this != &other) {
            cancel();
            m_cancel = std::exchange(other.m_cancel, nullptr);
        }
        return *this;
    }
    ~Cancellable() { cancel(); }

    /// Ends the subscription now. Safe at any time, also from inside a delivery and after the
    /// publisher is gone.
    void cancel() {
        if (const auto cancel = std::exchange(m_cancel, nullptr)) {
            cancel();
        }
    }

    explicit operator bool() const { return m_cancel != nullptr; }

private:
    std::function<void()> m_cancel;
};

} // namespace quillon
