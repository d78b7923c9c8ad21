#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace gsm {

/// A function on a native stack of its own, which takes turns with its owner: exactly one of the
/// two runs at any time. So a test or a driver can stop and look while handlers wait, and the
/// handlers need not know.
class SideStack {
 public:
  explicit SideStack(std::function<void()> body);
  /// The body must have ended, or never have had a turn.
  ~SideStack();
  SideStack(const SideStack&) = delete;
  SideStack& operator=(const SideStack&) = delete;

  /// Called by the owner: the body's turn, until it yields or ends. Nothing once it has ended.
  void resume();

  /// Called by the body: the owner's turn.
  void yield();

  bool hasBegun() const { return thread_.joinable(); }
  bool hasEnded() const { return ended_; }

 private:
  enum class Turn { owner, body };
  void give(Turn turn);
  void await(Turn turn);

  std::function<void()> body_;
  // Who waits sleeps at once. The library's semaphores would try again and again before that, and
  // on a busy machine each try costs a round of all that runs there.
  std::mutex mutex_;
  std::condition_variable changed_;
  Turn turn_ = Turn::owner;
  bool ended_ = false;
  std::thread thread_;
};

}  // namespace gsm
