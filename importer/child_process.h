#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace gsm {

/// What a child process may use up.
struct ChildBounds {
  std::chrono::milliseconds time;  // by the clock on the wall
  std::size_t memory;              // bytes of address space
  std::size_t output;              // bytes that it may say
};

/// Whether the bound on memory holds in this build: sanitizers reserve more than any bound.
extern const bool kChildMemoryIsBounded;

/// Runs `work` in a child process and returns what it wrote to the descriptor that it is given.
///
/// For code that may crash or never end on bad input: the child has no terminal, no environment and
/// can write no files. However it ends, what it had said before is returned, and at most
/// `bounds.output` bytes of it; so the caller can tell from the text alone whether the work was
/// done. Nothing when the time ran out. A failure when no child can be started.
std::optional<std::string> runInChild(const std::function<void(int descriptor)>& work,
                                      const ChildBounds& bounds);

}  // namespace gsm
