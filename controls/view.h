#pragma once

namespace gsm {

/// The properties that windows and controls have.
enum class PropertyId {
  Caption,
  Text,
  Value,
  Visible,
  Enabled,
  ListIndex,
  List,
  BackColor,
  ForeColor,
  MaxLength,
  Min,
  Max,
  Interval,
  SelStart,
  WindowState,
  MousePointer,
  TopMost,
  Centred,
  ItemTips,
};

/// What shows a window or a control to the user. There may be none.
class View {
 public:
  virtual ~View() = default;

  /// The property has a new value, or is to be brought up although it has the old one (a window
  /// that is shown again).
  virtual void changed(PropertyId property) = 0;
};

}  // namespace gsm
