#include "controls/list_controls.h"

#include <algorithm>

#include "controls/text_box.h"
#include "platform/runtime_failure.h"
#include "platform/scoped_value.h"

namespace gsm {

ListControl::ListControl(Window& window, std::string name, int index, Control* container,
                         bool visible, bool enabled)
    : Control(window, std::move(name), index, container, visible, enabled),
      List(*this, PropertyId::List, {}),
      ListIndex(*this, PropertyId::ListIndex, -1,
                [](PropertyOwner& owner, int selection) {
                  static_cast<ListControl&>(owner).select(selection);
                }),
      ItemTips(*this, PropertyId::ItemTips, {}) {}

void ListControl::AddItem(std::string item, std::string tip) {
  reference();
  ItemTips.change([&](std::vector<std::string>& tips) { tips.push_back(std::move(tip)); });
  const ScopedValue kept(itemsKept_, List.peek().size());
  List.change([&](std::vector<std::string>& items) { items.push_back(std::move(item)); });
}

void ListControl::RemoveItem(int index) {
  reference();
  const int count = static_cast<int>(List.peek().size());
  if (index < 0 || index >= count) throw failure::invalidArgument();
  const auto erase = [index](std::vector<std::string>& items) {
    items.erase(items.begin() + index);
  };
  const int selection = ListIndex.peek();
  ItemTips.change(erase);
  List.change(erase);
  if (selection == index) ListIndex.store(-1);
  if (selection > index) ListIndex.store(selection - 1);
}

int ListControl::ListCount() const { return static_cast<int>(List.get().size()); }

void ListControl::select(int index) {
  const int count = static_cast<int>(List.peek().size());
  if (index < -1 || index >= count) throw failure::invalidPropertyValue();
  ListIndex.store(index);
  selected();
  Click.raise();
}

bool ListControl::userSelect(int index) {
  const int count = static_cast<int>(List.peek().size());
  if (!isReachable() || index < 0 || index >= count) return false;
  select(index);
  return true;
}

void ListControl::removeAll() {
  reference();
  ListIndex.store(-1);
  List.store({});
  ItemTips.store({});
}

ListBox::ListBox(Window& window, std::string name, Design design, int index)
    : ListControl(window, std::move(name), index, design.In, design.Visible, design.Enabled) {}

ComboBox::ComboBox(Window& window, std::string name, Design design, int index)
    : ListControl(window, std::move(name), index, design.In, design.Visible, design.Enabled),
      Text(*this, PropertyId::Text, "",
           [](PropertyOwner& owner, std::string text) {
             auto& combo = static_cast<ComboBox&>(owner);
             const auto& items = combo.List.peek();
             const auto item = std::find(items.begin(), items.end(), text);
             const bool found = item != items.end();
             if (!found && !combo.isEditable()) throw failure::invalidPropertyValue();
             combo.Text.store(std::move(text));
             combo.ListIndex.store(found ? static_cast<int>(item - items.begin()) : -1);
           }),
      style_(design.Style) {
  setUnseen(design.Unseen);
}

void ComboBox::Clear() {
  removeAll();
  Text.store("");
}

void ComboBox::selected() {
  const int index = ListIndex.peek();
  Text.store(index < 0 ? std::string{} : List.peek()[static_cast<std::size_t>(index)]);
}

bool ComboBox::userType(std::string_view keys) {
  std::string text = Text.peek();
  for (const char key : keys.substr(0, keys.find_first_of("\r\n"))) {
    if (key != TextBox::kBackspace) {
      text += singleLine({&key, 1});
    } else if (!text.empty()) {
      text.pop_back();
    }
  }
  return edit(std::move(text));
}

bool ComboBox::userErase() { return edit(""); }

bool ComboBox::userEdit(std::string text) {
  text = singleLine(text);
  return edit(std::move(text));
}

bool ComboBox::edit(std::string text) {
  if (!isReachable() || !isEditable()) return false;
  ListIndex.store(-1);
  Text.store(std::move(text));
  return true;
}

}  // namespace gsm
