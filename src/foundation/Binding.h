#pragma once

#include <functional>
#include <utility>

namespace quillon {

/// A two-way reference to a value that somebody else owns: a control reads and writes through it
/// and holds no copy.
template <typename T>
class Binding {
public:
    using Get = std::function<const T&()>;
    using Set = std::function<void(T)>;
    using Modify = std::function<void(const std::function<void(T&)>&)>;

    Binding(Get get, Set set, Modify modify)
        : m_get(std::move(get))
        , m_set(std::move(set))
        , m_modify(std::move(modify)) {}

    /// A binding to a plain variable, which must outlive it.
    static Binding to(T& variable) {
        return Binding([&variable]() -> const T& { return variable; },
                       [&variable](T value) { variable = std::move(value); },
                       [&variable](const std::function<void(T&)>& change) { change(variable); });
    }

    const T& get() const { return m_get(); }
    void set(T value) const { m_set(std::move(value)); }
    /// Changes the value in place, as one change.
    void modify(const std::function<void(T&)>& change) const { m_modify(change); }

private:
    Get m_get;
    Set m_set;
    Modify m_modify;
};

} // namespace quillon
