#include "platform/handler_stack.h"

namespace gsm {

class HandlerStack::Frame {
 public:
  explicit Frame(HandlerStack& stack) : stack_(stack) {
    if (++stack_.depth_ == kDeep) stack_.deepSince_ = stack_.clock_.now();
  }
  ~Frame() {
    const bool wasFull = isTooMuch();
    --stack_.depth_;
    if (wasFull && !isTooMuch() && stack_.relief_) stack_.relief_();
  }
  Frame(const Frame&) = delete;
  Frame& operator=(const Frame&) = delete;

 private:
  bool isTooMuch() const { return stack_.isFull() || stack_.isStuck(); }

  HandlerStack& stack_;
};

void HandlerStack::run(const std::function<void()>& handler) {
  const Frame frame(*this);
  try {
    handler();
  } catch (const RuntimeFailure& failure) {
    boxes_.show(failure.description());
    program_.end();
  } catch (const std::bad_alloc&) {
    // Of a library that has ways of its own to memory.
    boxes_.show(failure::outOfMemory().description());
    program_.end();
  }
}

}  // namespace gsm
