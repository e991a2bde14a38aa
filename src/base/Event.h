#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace ormala {

/// Ends its subscription when it is destroyed or reset. Default-constructed it holds none.
class Subscription {
  public:
    Subscription() = default;
    explicit Subscription(std::shared_ptr<void> handler) : handler_(std::move(handler)) {}

    void reset() { handler_.reset(); }

  private:
    std::shared_ptr<void> handler_;
};

/// A list of handlers that `raise` calls in the order of their subscription. A handler may end any
/// subscription and may destroy the event's owner; a handler added while raising waits for the next
/// time.
template <typename... Args>
class Event {
  public:
    using Handler = std::function<void(Args...)>;

    [[nodiscard]] Subscription subscribe(Handler handler) {
        std::erase_if(*handlers_, [](const auto& entry) { return entry.expired(); });
        auto owned = std::make_shared<Handler>(std::move(handler));
        handlers_->push_back(owned);
        return Subscription(std::move(owned));
    }

    /// Whether there is a subscription.
    [[nodiscard]] bool isHeard() const {
        return std::ranges::any_of(*handlers_, [](const auto& entry) { return !entry.expired(); });
    }

    void raise(Args... args) const {
        const std::vector<std::weak_ptr<Handler>> present = *handlers_;
        for (const auto& entry : present) {
            if (const auto handler = entry.lock()) {
                (*handler)(args...);
            }
        }
    }

  private:
    using Handlers = std::vector<std::weak_ptr<Handler>>;
    std::unique_ptr<Handlers> handlers_ = std::make_unique<Handlers>();
};

}  // namespace ormala
