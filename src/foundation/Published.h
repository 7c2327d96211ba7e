#pragma once

#include "foundation/Binding.h"
#include "foundation/Subject.h"

#include <functional>
#include <utility>

namespace quillon {

/// An object whose published properties announce every change before it happens.
class ObservableObject {
public:
    Subject<> objectWillChange;

    ObservableObject(const ObservableObject&) = delete;
    ObservableObject& operator=(const ObservableObject&) = delete;

protected:
    ObservableObject() = default;
    ~ObservableObject() = default;
};

/// One observable property of an `ObservableObject`.
///
/// Every assignment, also one of an equal value, takes the same path in this order:
/// 1. the owner's `objectWillChange` is sent;
/// 2. the new value is delivered to the property's own subscribers;
/// 3. the value is stored;
/// 4. the `didSet` step runs.
///
/// A subscriber therefore runs before the value is stored: it must use the value handed to it and
/// not read the property again.
template <typename T>
class Published {
public:
    Published(ObservableObject& owner, T initial, std::function<void(const T&)> didSet = {})
        : m_owner(owner)
        , m_value(std::move(initial))
        , m_didSet(std::move(didSet)) {}
    Published(const Published&) = delete;

    const T& get() const { return m_value; }
    operator const T&() const { return m_value; }
    const T* operator->() const { return &m_value; }
    const T& operator*() const { return m_value; }

    void set(T value) {
        m_owner.objectWillChange.send();
        m_subject.send(value);
        m_value = std::move(value);
        if (m_didSet) {
            m_didSet(m_value);
        }
    }
    Published& operator=(T value) {
        set(std::move(value));
        return *this;
    }
    Published& operator=(const Published& other) {
        set(other.m_value);
        return *this;
    }

    /// Changes the value where it stands. It announces like an assignment; the copy that an
    /// assignment would need is made only when somebody subscribed to the value itself.
    template <typename Change>
    void modify(Change&& change) {
        if (m_subject.hasSubscribers()) {
            T next = m_value;
            change(next);
            set(std::move(next));
            return;
        }
        m_owner.objectWillChange.send();
        change(m_value);
        if (m_didSet) {
            m_didSet(m_value);
        }
    }

    /// Hears the present value at once, and then every later assignment.
    [[nodiscard]] Cancellable sink(std::function<void(const T&)> subscriber) {
        subscriber(m_value);
        return m_subject.sink(std::move(subscriber));
    }

    /// Hears later assignments only.
    [[nodiscard]] Cancellable sinkDroppingFirst(std::function<void(const T&)> subscriber) {
        return m_subject.sink(std::move(subscriber));
    }

    /// A two-way binding to this property, which must outlive it.
    Binding<T> binding() {
        return Binding<T>([this]() -> const T& { return m_value; },
                          [this](T value) { set(std::move(value)); },
                          [this](const std::function<void(T&)>& change) { modify(change); });
    }

private:
    ObservableObject& m_owner;
    T m_value;
    std::function<void(const T&)> m_didSet;
    Subject<T> m_subject;
};

} // namespace quillon
