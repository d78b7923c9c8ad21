#pragma once

#include <string>
#include <vector>

namespace gsm::manual {

/// A window as a person sees it.
struct SeenWindow {
  std::string name;                // the design's, which nobody sees
  std::string title;               // as it stands over the window, or on it where it has none
  std::vector<std::string> words;  // on its controls, with single blanks and without key signs
};

/// The windows by the file that holds their design.
std::vector<SeenWindow> seenWindows();

}  // namespace gsm::manual
