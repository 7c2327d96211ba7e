#pragma once

#include <functional>

namespace quillon {

/// Runs work later on the one thread of the system.
///
/// Work handed in with `async` runs in a later turn of the loop, in the order in which it was
/// handed in; work of `asyncAfter` runs once its delay is over, earlier deadlines first. Nothing
/// runs inside the call itself. No single piece can be taken back. Work that is pending when the
/// queue ends is dropped. `async` may be called on any thread, everything else on the main one.
class MainQueue {
public:
    using Work = std::function<void()>;

    virtual ~MainQueue() = default;

    virtual void async(Work work) = 0;
    /// `seconds` from now; zero or less means the next turn.
    virtual void asyncAfter(double seconds, Work work) = 0;
    /// Seconds on a steady clock; only differences carry meaning.
    virtual double now() const = 0;
    /// Drops all work that is pending, together with whatever it holds.
    virtual void clear() = 0;
};

} // namespace quillon
