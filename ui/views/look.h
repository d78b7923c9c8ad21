#pragma once

namespace gsm {

/// Gives Qt's application object the program's look: its style, its style sheet and its icon.
void dressApplication();

}  // namespace gsm
