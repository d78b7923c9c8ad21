#pragma once

#include <algorithm>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

#include "controls/controls.h"
#include "controls/tab_strip.h"
#include "controls/window.h"

namespace gsm {

inline std::string kindOf(const Control& control) {
  const Control* const any = &control;
  if (dynamic_cast<const Label*>(any) != nullptr) return "label";
  if (dynamic_cast<const TextBox*>(any) != nullptr) return "text box";
  if (dynamic_cast<const CommandButton*>(any) != nullptr) return "button";
  if (dynamic_cast<const OptionButton*>(any) != nullptr) return "option";
  if (dynamic_cast<const ComboBox*>(any) != nullptr) return "combo";
  if (dynamic_cast<const Frame*>(any) != nullptr) return "frame";
  if (dynamic_cast<const TabStrip*>(any) != nullptr) return "tabs";
  return "something else";
}

/// One line for each control of a window, sorted: the name, the kind, the caption or text or tabs,
/// and what else isn't quite plain.
inline std::vector<std::string> describe(const Window& window) {
  std::vector<std::string> all;
  for (const Control* control : window.controls()) {
    std::ostringstream line;
    line << control->fullName() << ": " << kindOf(*control);
    for (const char* words : {"Caption", "Text"}) {
      const PropertyBase* const property = control->property(words);
      if (property == nullptr) continue;
      const auto text = std::get<std::string>(property->value());
      if (!text.empty()) line << " '" << text << "'";
    }
    if (const auto* tabs = dynamic_cast<const TabStrip*>(control)) {
      for (const std::string& tab : tabs->tabs()) line << " '" << tab << "'";
    }
    if (const auto* box = dynamic_cast<const TextBox*>(control)) {
      if (box->MaxLength.peek() != 0) line << " of " << box->MaxLength.peek();
      if (box->isMasked()) line << " masked";
    }
    if (const auto* combo = dynamic_cast<const ComboBox*>(control)) {
      if (combo->isEditable()) line << " editable";
    }
    if (const auto* option = dynamic_cast<const OptionButton*>(control)) {
      if (option->Value.peek()) line << " set";
    }
    if (!control->Enabled.peek()) line << " disabled";
    if (!control->Visible.peek()) line << " hidden";
    if (control->container() != nullptr) line << " in " << control->container()->name();
    all.push_back(line.str());
  }
  std::sort(all.begin(), all.end());
  return all;
}

}  // namespace gsm
