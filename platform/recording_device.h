#pragma once

#include <optional>
#include <ostream>

#include "platform/line_record.h"
#include "platform/serial_device.h"

namespace gsm {

/// A serial device that keeps a record of what goes over it, and is otherwise the one beneath.
class RecordingDevice : public SerialDevice, private SerialDevice::Listener {
 public:
  /// All of them must outlive the device. The record begins now; `LineRecord` has its form.
  RecordingDevice(SerialDevice& device, std::ostream& file, const Clock& clock)
      : device_(device), record_(file, clock) {}
  RecordingDevice(const RecordingDevice&) = delete;
  RecordingDevice& operator=(const RecordingDevice&) = delete;

  void listen(SerialDevice::Listener* listener) override;
  void open(int number, const LineSettings& settings, Handshaking handshaking) override;
  void close() override;
  void configure(const LineSettings& settings, Handshaking handshaking) override;
  void readOn() override { device_.readOn(); }
  void write(std::string_view bytes) override;
  bool isGone() const override { return device_.isGone(); }

 private:
  void bytesArrived(std::string_view bytes) override;
  bool hasRoom() const override { return listener_ == nullptr || listener_->hasRoom(); }
  void bytesLeft(std::size_t waiting) override;
  void lineEvent(CommEvent event) override;

  SerialDevice& device_;
  LineRecord record_;
  SerialDevice::Listener* listener_ = nullptr;
  std::optional<int> openPort_;
};

}  // namespace gsm
