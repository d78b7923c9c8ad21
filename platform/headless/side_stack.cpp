#include "platform/headless/side_stack.h"

#include <utility>

namespace gsm {

SideStack::SideStack(std::function<void()> body) : body_(std::move(body)) {}

SideStack::~SideStack() {
  if (thread_.joinable()) thread_.join();
}

void SideStack::resume() {
  if (ended_) return;
  if (!thread_.joinable()) {
    thread_ = std::thread([this] {
      bodysTurn_.acquire();
      body_();
      ended_ = true;
      ownersTurn_.release();
    });
  }
  bodysTurn_.release();
  ownersTurn_.acquire();
}

void SideStack::yield() {
  ownersTurn_.release();
  bodysTurn_.acquire();
}

}  // namespace gsm
