#include <deque>

#include "platform/handler_queue_impl.h"

namespace platform {
namespace {

struct Waiting {
  std::weak_ptr<const char> owner;
  std::function<void()> handler;
};

std::deque<Waiting>& Queue() {
  static std::deque<Waiting> queue;
  return queue;
}

}  // namespace

void CallLater(const Life& owner, std::function<void()> handler) {
  Queue().push_back({owner, std::move(handler)});
}

bool RunHandlers() {
  bool any = false;
  while (!Queue().empty()) {
    const Waiting next = std::move(Queue().front());
    Queue().pop_front();
    if (next.owner.expired()) continue;
    any = true;
    next.handler();
  }
  return any;
}

}  // namespace platform
