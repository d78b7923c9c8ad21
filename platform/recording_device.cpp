#include "platform/recording_device.h"

#include "platform/runtime_failure.h"

namespace gsm {

void RecordingDevice::listen(SerialDevice::Listener* listener) {
  listener_ = listener;
  device_.listen(listener == nullptr ? nullptr : this);
}

void RecordingDevice::open(int number, const LineSettings& settings, Handshaking handshaking) {
  try {
    device_.open(number, settings, handshaking);
  } catch (const RuntimeFailure& failure) {
    record_.opened(number, settings, handshaking, failure.description());
    throw;
  }
  openPort_ = number;
  record_.opened(number, settings, handshaking);
}

void RecordingDevice::close() {
  device_.close();
  if (openPort_) record_.closed(*openPort_);
  openPort_.reset();
}

void RecordingDevice::configure(const LineSettings& settings, Handshaking handshaking) {
  device_.configure(settings, handshaking);
  record_.configured(settings, handshaking);
}

void RecordingDevice::write(std::string_view bytes) {
  try {
    device_.write(bytes);
  } catch (const RuntimeFailure& failure) {
    record_.sent(bytes, failure.description());
    throw;
  }
  record_.sent(bytes);
}

void RecordingDevice::bytesArrived(std::string_view bytes) {
  record_.received(bytes);
  if (listener_ != nullptr) listener_->bytesArrived(bytes);
}

void RecordingDevice::bytesLeft(std::size_t waiting) {
  if (listener_ != nullptr) listener_->bytesLeft(waiting);
}

void RecordingDevice::lineEvent(CommEvent event) {
  record_.event(event);
  if (listener_ != nullptr) listener_->lineEvent(event);
}

}  // namespace gsm
