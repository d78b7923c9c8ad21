#include "controls/serial_control.h"

#include <utility>

#include "platform/event_loop.h"
#include "platform/handler_stack.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"

namespace gsm {

SerialControl::SerialControl(const Platform& platform, std::string name)
    : platform_(platform), name_(std::move(name)) {
  platform_.serialDevice.listen(this);
  platform_.handlers.onRelief([this] { deliverLater(); });
}

SerialControl::~SerialControl() {
  platform_.handlers.onRelief({});
  platform_.serialDevice.listen(nullptr);
  if (open_) platform_.serialDevice.close();
}

void SerialControl::setCommPort(int port) {
  if (open_) throw failure::invalidWhileOpen();
  if (port < 1 || port > 255) throw failure::invalidPortNumber();
  port_ = port;
}

void SerialControl::setSettings(std::string text) {
  const auto line = parseLineSettings(text);
  if (!line) throw failure::invalidPropertyValue();
  if (open_) platform_.serialDevice.configure(*line, handshaking_);
  line_ = *line;
  settingsText_ = std::move(text);
}

void SerialControl::setHandshaking(int value) {
  if (value < 0 || value > 3) throw failure::invalidPropertyValue();
  const auto handshaking = static_cast<gsm::Handshaking>(value);
  if (open_) platform_.serialDevice.configure(line_, handshaking);
  handshaking_ = handshaking;
}

void SerialControl::setOpen(bool open) {
  if (open) {
    if (open_) throw failure::portAlreadyOpen();
    platform_.serialDevice.open(port_, line_, handshaking_);
    open_ = true;
  } else if (open_) {
    platform_.serialDevice.close();
    open_ = false;
    received_.clear();
    held_.clear();
  }
}

void SerialControl::write(std::string_view bytes) {
  if (!open_) throw failure::invalidUnlessOpen();
  platform_.serialDevice.write(bytes);
  lastWrite_ = platform_.clock.now();
}

std::string SerialControl::Input() {
  if (!open_) throw failure::invalidUnlessOpen();
  if (!hasRoom()) platform_.serialDevice.readOn();
  return std::exchange(received_, {});
}

bool SerialControl::holdsBack() const {
  const HandlerStack& handlers = platform_.handlers;
  const bool replyIsDue = platform_.clock.now() - lastWrite_ < HandlerStack::kLong;
  return handlers.isFull() || (handlers.isStuck() && !replyIsDue);
}

void SerialControl::raise(gsm::CommEvent event) {
  if (holdsBack()) {
    held_.insert(event);
  } else {
    run(event);
  }
}

void SerialControl::run(gsm::CommEvent cause) {
  platform_.handlers.run([this, cause] {
    CommEvent = cause;
    if (OnComm) OnComm();
  });
}

void SerialControl::bytesArrived(std::string_view bytes) {
  if (!open_) return;
  received_ += bytes;
  deliver();
}

void SerialControl::deliver() {
  const bool due = RThreshold > 0 && received_.size() >= static_cast<std::size_t>(RThreshold);
  if (due && !holdsBack()) run(gsm::CommEvent::receive);
}

void SerialControl::deliverLater() {
  if ((received_.empty() && held_.empty()) || deliveryPosted_) return;
  deliveryPosted_ = true;
  platform_.loop.post([this] {
    deliveryPosted_ = false;
    for (const gsm::CommEvent event : std::exchange(held_, {})) raise(event);
    deliver();
  });
}

void SerialControl::bytesLeft(std::size_t waiting) {
  if (open_ && SThreshold > 0 && waiting < static_cast<std::size_t>(SThreshold)) {
    run(gsm::CommEvent::send);  // one a write, so never many
  }
}

}  // namespace gsm
