#pragma once

#include <memory>
#include <utility>

namespace quillon {

/// Lets work that is to run later hold its owner weakly: keep one as the last member, and wrap
/// every closure that is handed to a queue. After the owner has gone the closure does nothing.
class Lifetime {
public:
    template <typename Work>
    auto guard(Work work) const {
        return
            [token = std::weak_ptr(m_token), work = std::move(work)](auto&&... arguments) mutable {
                if (!token.expired()) {
                    work(std::forward<decltype(arguments)>(arguments)...);
                }
            };
    }

private:
    std::shared_ptr<char> m_token = std::make_shared<char>();
};

} // namespace quillon
