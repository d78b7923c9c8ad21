#pragma once

#include <functional>
#include <utility>

#include "controls/property.h"
#include "controls/view.h"

namespace gsm {

/// Reports each change of a window's or control's properties, for as long as it lives.
class PropertyWatch : public View {
 public:
  PropertyWatch(PropertyOwner& owner, std::function<void(PropertyId)> tell)
      : owner_(owner), tell_(std::move(tell)) {
    owner_.attach(this);
  }
  ~PropertyWatch() override { owner_.attach(nullptr); }
  PropertyWatch(const PropertyWatch&) = delete;
  PropertyWatch& operator=(const PropertyWatch&) = delete;

  void changed(PropertyId property) override { tell_(property); }

 private:
  PropertyOwner& owner_;
  std::function<void(PropertyId)> tell_;
};

}  // namespace gsm
