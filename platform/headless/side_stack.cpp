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
      await(Turn::body);
      body_();
      ended_ = true;
      give(Turn::owner);
    });
  }
  give(Turn::body);
  await(Turn::owner);
}

void SideStack::yield() {
  give(Turn::owner);
  await(Turn::body);
}

void SideStack::give(Turn turn) {
  const std::lock_guard lock(mutex_);
  turn_ = turn;
  changed_.notify_one();
}

void SideStack::await(Turn turn) {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this, turn] { return turn_ == turn; });
}

}  // namespace gsm
