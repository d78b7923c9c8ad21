#pragma once

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

#include "controls/list_controls.h"
#include "controls/option_button.h"

namespace gsm {

/// An item of a drop-down with the code that it stands for in a command. What counts is the item's
/// place in the list, not its text.
struct Item {
  std::string_view text;
  std::string_view code;
};

/// Empties `combo`, the text too, and adds `items` in their order.
void refill(ComboBox& combo, std::span<const Item> items);

/// The code of the selected item; empty when none is selected, as after typing.
std::string selectedCode(const ComboBox& combo, std::span<const Item> items);

/// An option button with the code that it stands for, in a command and in a reply alike, and what
/// a label says of it, where one does.
template <class Window>
struct OptionCode {
  std::string_view code;
  OptionButton Window::*option;
  std::string_view words = {};
};

/// The row of the option that is set, or null when none is.
template <class Window>
const OptionCode<Window>* selectedOption(const Window& window,
                                         std::span<const OptionCode<Window>> options) {
  const auto set = std::find_if(options.begin(), options.end(), [&window](const auto& each) {
    return (window.*each.option).Value.get();
  });
  return set == options.end() ? nullptr : &*set;
}

/// Sets the option of `code` and returns its row; null when no option has the code.
template <class Window>
const OptionCode<Window>* selectOption(Window& window, std::span<const OptionCode<Window>> options,
                                       std::string_view code) {
  const auto found = std::find_if(options.begin(), options.end(),
                                  [code](const auto& each) { return each.code == code; });
  if (found == options.end()) return nullptr;
  (window.*found->option).Value = true;
  return &*found;
}

/// A key filter for boxes that take digits only: `KeyAscii` as it is for a digit and for the
/// backspace key, 0 for any other key.
int LimitTextInput(int KeyAscii);

}  // namespace gsm
