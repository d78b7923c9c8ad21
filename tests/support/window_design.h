#pragma once

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "controls/controls.h"
#include "controls/data_control.h"
#include "controls/window.h"

namespace gsm {

/// A control's kind, in words.
inline std::string kindOf(const Control& control) {
  const Control* const any = &control;
  if (dynamic_cast<const Label*>(any) != nullptr) return "label";
  if (const auto* box = dynamic_cast<const TextBox*>(any)) {
    return box->isMultiLine() ? "text box of lines" : "text box";
  }
  if (dynamic_cast<const CommandButton*>(any) != nullptr) return "button";
  if (dynamic_cast<const OptionButton*>(any) != nullptr) return "option";
  if (dynamic_cast<const Picture*>(any) != nullptr) return "picture";
  if (dynamic_cast<const Frame*>(any) != nullptr) return "frame";
  if (dynamic_cast<const ListBox*>(any) != nullptr) return "list box";
  if (const auto* combo = dynamic_cast<const ComboBox*>(any)) {
    return combo->isEditable() ? "editable combo" : "drop-down list";
  }
  if (dynamic_cast<const DataControl*>(any) != nullptr) return "data control";
  return "something else";
}

/// What a control's property is, without a reference; the type's own nothing where it has none.
template <class Value>
Value valueOf(const Control& control, const char* property) {
  const PropertyBase* const found = control.property(property);
  return found == nullptr ? Value{} : std::get<Value>(found->value());
}

/// One line for each control of a window, in the order of their names: the name, the kind, the
/// caption or text, and what else isn't plain.
inline std::vector<std::string> describe(const Window& window) {
  std::vector<std::string> all;
  for (const Control* control : window.controls()) {
    std::ostringstream line;
    line << control->fullName() << ": " << kindOf(*control);
    for (const char* words : {"Caption", "Text"}) {
      const std::string text = valueOf<std::string>(*control, words);
      if (!text.empty()) line << " '" << text << "'";
    }
    const int length = valueOf<int>(*control, "MaxLength");
    if (length != 0) line << " of " << length;
    if (!control->Enabled.peek()) line << " disabled";
    if (!control->Visible.peek()) line << " hidden";
    if (control->container() != nullptr) line << " in " << control->container()->name();
    all.push_back(line.str());
  }
  std::sort(all.begin(), all.end());
  return all;
}

}  // namespace gsm
