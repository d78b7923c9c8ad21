#include "platform/headless/headless_boxes.h"

#include <algorithm>
#include <utility>

namespace gsm {

void HeadlessBoxes::show(const std::string& text, const std::string& title, BoxIcon icon) {
  shown_.push_back({clock_.now(), text, title, icon});
  if (answer_ == Answer::automatic) return;
  const int box = nextBox_++;
  up_.push_back(box);
  while (std::find(up_.begin(), up_.end(), box) != up_.end()) loop_.pass();
}

bool HeadlessBoxes::answerTop() {
  if (up_.empty()) return false;
  up_.pop_back();
  return true;
}

std::vector<HeadlessBoxes::Shown> HeadlessBoxes::takeShown() { return std::exchange(shown_, {}); }

}  // namespace gsm
