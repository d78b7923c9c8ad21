#include "fuzz/player/player_user.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "controls/controls.h"
#include "controls/window.h"
#include "fuzz/player/modem_words.h"

namespace gsm {

namespace {

template <class Container, class Predicate>
auto those(const Container& all, Predicate&& isOne) {
  Container some;
  std::copy_if(all.begin(), all.end(), std::back_inserter(some), isOne);
  return some;
}

}  // namespace

Control* anyControl(const Platform& platform, Decisions& decisions) {
  std::vector<Window*> windows = platform.windows;
  const bool tries = decisions.next() % 8 == 0;
  if (!tries) windows = those(windows, [](const Window* each) { return each->Visible.peek(); });
  if (windows.empty()) return nullptr;
  const auto controls = those(
      windows[decisions.below(windows.size())]->controls(),
      [tries](const Control* each) { return !each->isUnseen() && (tries || each->isReachable()); });
  return controls.empty() ? nullptr : controls[decisions.below(controls.size())];
}

std::function<bool()> deed(Control& control, Decisions& decisions) {
  if (auto* label = dynamic_cast<Label*>(&control)) {
    return [label] { return label->userClick(); };
  }
  if (auto* picture = dynamic_cast<Picture*>(&control)) {
    return [picture] { return picture->userClick(); };
  }
  if (auto* option = dynamic_cast<OptionButton*>(&control)) {
    return [option] { return option->userClick(); };
  }
  if (auto* button = dynamic_cast<CommandButton*>(&control)) {
    return [button] { return button->userClick(); };
  }
  const int number = static_cast<int>(decisions.next()) - 8;
  if (auto* slider = dynamic_cast<Slider*>(&control)) {
    return [slider, number] { return slider->userMove(number); };
  }
  if (auto* tabs = dynamic_cast<TabStrip*>(&control)) {
    return [tabs, number] { return tabs->userTab(number % 8); };
  }
  const std::string keys = typing(decisions);
  if (auto* box = dynamic_cast<TextBox*>(&control)) {
    return [box, keys, number] { return number < 0 ? box->userErase() : box->userType(keys); };
  }
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    if (number % 2 == 0) return [combo, keys] { return combo->userType(keys); };
  }
  if (auto* list = dynamic_cast<ListControl*>(&control)) {
    return [list, number] { return list->userSelect(number % 20); };
  }
  return {};
}

}  // namespace gsm
