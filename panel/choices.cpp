#include "panel/choices.h"

#include "controls/text_box.h"

namespace gsm {

void refill(ComboBox& combo, std::span<const Item> items) {
  combo.Clear();
  for (const Item& item : items) combo.AddItem(std::string(item.text));
}

std::string selectedCode(const ComboBox& combo, std::span<const Item> items) {
  const auto selected = static_cast<std::size_t>(combo.ListIndex.get());
  return selected < items.size() ? std::string(items[selected].code) : std::string();
}

int LimitTextInput(int KeyAscii) {
  const bool passes = KeyAscii == TextBox::kBackspace || (KeyAscii >= '0' && KeyAscii <= '9');
  return passes ? KeyAscii : 0;
}

}  // namespace gsm
