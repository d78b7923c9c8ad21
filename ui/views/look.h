#pragma once

namespace gsm {

/// What task bars and the like call the program.
inline constexpr const char* kDisplayName = "GSM-APPLICATION";

/// Gives Qt's application object the program's look: its style, its style sheet and its icon.
void dressApplication();

}  // namespace gsm
