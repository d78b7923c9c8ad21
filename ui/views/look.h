#pragma once

namespace gsm {

/// What task bars and the like call the program.
inline constexpr const char* kDisplayName = "GSM-APPLICATION";

/// Gives Qt's application object the program's look: its style, its style sheet and its icon. The
/// look is light whatever the desktop's colours are, and in letters of the desktop's size.
void dressApplication();

/// Gives all windows letters of the desktop's size, once more after that has changed: on a desktop
/// with large letters all sizes of the style sheet grow alike.
void takeDesktopsLetters();

}  // namespace gsm
