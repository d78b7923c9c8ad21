#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "controls/control.h"

namespace gsm {

/// What list boxes and combo boxes share: items, counted from 0, of which one may be selected.
class ListControl : public Control {
 public:
  Property<std::vector<std::string>> List;

  /// The selected item, -1 for none. Setting it, by code or by the user, runs `Click`; a value that
  /// is no item's fails with `invalidPropertyValue`.
  Property<int> ListIndex;
  Event Click{*this};

  /// A tip for each item that has one, by the item's index.
  Property<std::vector<std::string>> ItemTips;

  void AddItem(std::string item, std::string tip = {});
  /// Takes the item at `index` out; nothing is selected then if it was the selected one. Fails with
  /// `invalidArgument` when there is none.
  void RemoveItem(int index);
  int ListCount() const;

  /// For views, while they are told that the list has changed: so many items at its beginning are
  /// known to be as before, so that nobody has to compare them.
  std::size_t itemsKept() const { return itemsKept_; }

  /// The user picks the item at `index`. False when the control or the item is out of reach.
  bool userSelect(int index);

 protected:
  ListControl(Window& window, std::string name, int index, Control* container, bool visible,
              bool enabled);

  void removeAll();
  /// The selection has changed to an item (or to none), before `Click` runs.
  virtual void selected() {}

 private:
  void select(int index);

  std::size_t itemsKept_ = 0;
};

struct ListBoxDesign {
  Control* In = nullptr;
  bool Visible = true;
  bool Enabled = true;
};

class ListBox : public ListControl {
 public:
  using Design = ListBoxDesign;
  ListBox(Window& window, std::string name, Design design = {}, int index = kNoIndex);

  void Clear() { removeAll(); }
};

enum class ComboStyle { editable, dropDownList };

struct ComboBoxDesign {
  Control* In = nullptr;
  ComboStyle Style = ComboStyle::editable;
  bool Visible = true;
  bool Enabled = true;
  bool Unseen = false;  // a place for data
};

/// A text with a list of items to take it from.
class ComboBox : public ListControl {
 public:
  using Design = ComboBoxDesign;
  ComboBox(Window& window, std::string name, Design design = {}, int index = kNoIndex);

  /// Setting it by code selects the item equal to it, or none, and doesn't run `Click`. A drop-down
  /// list refuses a text that is no item's with `invalidPropertyValue`.
  Property<std::string> Text;

  /// The user has opened the list. The handler may fill it anew.
  Event DropDown{*this};

  /// Empties the list and the text.
  void Clear();

  bool isEditable() const { return style_ == ComboStyle::editable; }

  /// The user opens the list. False when the control is out of reach.
  bool userDropDown() { return raiseIfReachable(DropDown); }

  // What the user does with an editable combo, as with a text box: False when it is out of reach
  // or takes no typing. Typing selects no item. It takes a single line, without control characters.
  bool userType(std::string_view keys);
  bool userErase();
  bool userEdit(std::string text);

 protected:
  void selected() override;

 private:
  bool edit(std::string text);

  const ComboStyle style_;
};

}  // namespace gsm
