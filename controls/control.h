#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "controls/property.h"

namespace gsm {

class Event;
class Window;
struct Platform;

/// A control on a window: its properties are its state; a view may show it.
class Control : public PropertyOwner {
 public:
  static constexpr int kNoIndex = -1;

  /// The design's name with the index of an array's member: "optParity(0)", "Command1".
  std::string fullName() const;

  /// The index within a control array, from 0; `kNoIndex` for a control that stands alone.
  int index() const { return index_; }

  Window& window() const { return window_; }

  /// The frame that holds the control, or null for the window itself.
  Control* container() const { return container_; }

  void reference() const override;

  /// Whether it is a place for data that is never on view.
  bool isUnseen() const { return unseen_; }

  /// The key that clicks the control from wherever the focus is in its window, but for a box that
  /// takes typing; 0 for none, `kBackspaceKey` for that key.
  char key() const { return key_; }
  static constexpr char kBackspaceKey = '\b';

  /// Whether the user could act on the control now: enabled and visible, with all that holds it,
  /// and no message box in front.
  bool isReachable() const;

  /// The window has come into being with its design state, or has gone: what goes on by itself
  /// begins or ends.
  virtual void loaded() {}
  virtual void unloaded() {}

  Property<bool> Visible;
  Property<bool> Enabled;

 protected:
  /// `container` is the frame that holds the control, or null for the window itself.
  Control(Window& window, std::string name, int index, Control* container, bool visible,
          bool enabled);

  const Platform& platform() const;

  // For the constructors of those whose design says so.
  void setUnseen(bool unseen) { unseen_ = unseen; }
  void setKey(char key) { key_ = key; }

  /// Raises the event for the user, unless the control is out of reach. Whether it did.
  bool raiseIfReachable(const Event& event);

 private:
  friend class Event;

  Window& window_;
  const int index_;
  Control* const container_;
  bool unseen_ = false;
  char key_ = 0;
};

/// An event of a control, to which its window ties a handler.
class Event {
 public:
  explicit Event(Control& control) : control_(control) {}
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  Event& operator=(std::function<void()> handler) {
    handler_ = std::move(handler);
    return *this;
  }

  /// Runs the handler, if there is one, on top of the handler stack.
  void raise() const;

 private:
  Control& control_;
  std::function<void()> handler_;
};

}  // namespace gsm
