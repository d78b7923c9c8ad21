#include "controls/property.h"

namespace gsm {

std::string_view nameOf(PropertyId property) {
  switch (property) {
    case PropertyId::Caption: return "Caption";
    case PropertyId::Text: return "Text";
    case PropertyId::Value: return "Value";
    case PropertyId::Visible: return "Visible";
    case PropertyId::Enabled: return "Enabled";
    case PropertyId::ListIndex: return "ListIndex";
    case PropertyId::List: return "List";
    case PropertyId::BackColor: return "BackColor";
    case PropertyId::ForeColor: return "ForeColor";
    case PropertyId::MaxLength: return "MaxLength";
    case PropertyId::Min: return "Min";
    case PropertyId::Max: return "Max";
    case PropertyId::Interval: return "Interval";
    case PropertyId::SelStart: return "SelStart";
    case PropertyId::WindowState: return "WindowState";
    case PropertyId::MousePointer: return "MousePointer";
    case PropertyId::TopMost: return "TopMost";
    case PropertyId::Centred: return "Centred";
    case PropertyId::ItemTips: return "ItemTips";
  }
  return "";
}

const PropertyBase* PropertyOwner::property(std::string_view name) const {
  for (const PropertyBase* property : properties_) {
    if (nameOf(property->id()) == name) return property;
  }
  return nullptr;
}

void PropertyOwner::restoreDesign() {
  for (PropertyBase* property : properties_) property->restoreDesign();
}

}  // namespace gsm
