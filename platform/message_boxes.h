#pragma once

#include <string>

namespace gsm {

enum class BoxIcon { none, critical };

/// Message boxes with an OK button alone. They hold the handler that shows them, and every window;
/// timers and the port go on underneath.
class MessageBoxes {
 public:
  static constexpr const char* kDefaultTitle = "GSM-APPLICATION";

  virtual ~MessageBoxes() = default;

  /// Shows the box and returns when the user has pressed OK.
  virtual void show(const std::string& text, const std::string& title = kDefaultTitle,
                    BoxIcon icon = BoxIcon::none) = 0;

  /// Whether a box is up now, so that no window can be reached.
  virtual bool isUp() const = 0;
};

}  // namespace gsm
