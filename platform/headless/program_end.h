#pragma once

namespace gsm {

/// Unwinds the handlers when a program without a screen ends. It is no exception of theirs: it has
/// no base, so no trap catches it.
struct ProgramEnd {};

}  // namespace gsm
