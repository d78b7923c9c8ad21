#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/control.h"
#include "controls/property.h"

namespace gsm {

struct Platform;

enum WindowState { normal = 0, minimised = 1, maximised = 2 };
enum MousePointer { arrow = 0, hourglass = 11 };

/// What a window is from the start. What follows the caption is for the screen alone.
struct WindowDesign {
  std::string Caption;
  bool Quiet = false;   // comes up without taking the keyboard: the user may be typing elsewhere
  bool Urgent = false;  // comes up over another program's windows too
  bool Notice = false;  // is there to be looked at for some seconds, and takes no click
  bool Asks = false;    // asks the user for something, and what goes on beneath waits for that
};

/// A window. The object exists for the whole run; being loaded is a state. Any reference to a
/// property of it or of its controls loads it: every control takes its design state, and
/// `Form_Load` runs. Closing it runs `Form_Unload` and loses the state. Both may wait, and be
/// overtaken by a closing: a reference ends with a loaded window all the same, and a window that is
/// on view is loaded.
class Window : public PropertyOwner {
 public:
  /// Enters itself into `platform`'s list of windows, for as long as it exists.
  Window(Platform& platform, std::string name, WindowDesign design = {});
  ~Window() override;

  void Show();
  void Hide();

  /// Runs `Form_Unload` and unloads the window; nothing when it isn't loaded.
  void Unload();

  bool isLoaded() const { return loaded_; }
  void reference() const override;

  Property<std::string> Caption;
  Property<bool> Visible;
  Property<int> WindowState;
  Property<int> MousePointer;
  Property<bool> TopMost;
  /// Stands in the middle of the screen when it is shown.
  Property<bool> Centred;

  // What the user does. False when the window isn't in reach.
  bool userClose();
  bool userState(int state);

  const std::vector<Control*>& controls() const { return controls_; }
  /// The control of that name and index, or null.
  Control* control(std::string_view name, int index = Control::kNoIndex) const;

  Platform& platform() const { return platform_; }

  const WindowDesign& design() const { return design_; }

 protected:
  virtual void Form_Load() {}
  virtual void Form_Unload() {}
  virtual void Form_Resize() {}

  void stored(PropertyId property) override;

 private:
  friend class Control;

  void load();
  bool isReachable() const;

  Platform& platform_;
  const WindowDesign design_;
  std::vector<Control*> controls_;
  bool loaded_ = false;
  int loads_ = 0;  // so far
};

/// The window of that name, or null.
Window* windowNamed(const Platform& platform, std::string_view name);

}  // namespace gsm
