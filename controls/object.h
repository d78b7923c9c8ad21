#pragma once

namespace gsm {

/// Whatever a handler can be handed without knowing what it is: a window, a control, the port.
class Object {
 public:
  virtual ~Object() = default;
};

}  // namespace gsm
