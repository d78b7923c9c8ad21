#pragma once

namespace gsm {

/// Ends the process where the fuzzer sees it when something that must hold doesn't.
inline void mustHold(bool held) {
  if (!held) __builtin_trap();
}

}  // namespace gsm
