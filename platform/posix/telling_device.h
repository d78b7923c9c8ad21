#pragma once

#include <functional>
#include <map>
#include <string>

#include "platform/port_probe.h"
#include "platform/runtime_failure.h"
#include "platform/serial_device.h"

namespace gsm {

/// A serial device that says why a port can't be opened, once for each reason, and goes on failing
/// as before. Most handlers end silently on such a failure, and somebody should learn of it.
class TellingDevice : public SerialDevice {
 public:
  /// `tell` is given what to show, in UTF-8: which port, what is wrong and what to do. All of them
  /// must outlive the device.
  TellingDevice(SerialDevice& device, PortProbe& ports,
                std::function<void(const std::string&)> tell)
      : device_(device), ports_(ports), tell_(std::move(tell)) {}

  void listen(Listener* listener) override { device_.listen(listener); }
  void open(int number, const LineSettings& settings, Handshaking handshaking) override;
  void close() override { device_.close(); }
  void configure(const LineSettings& settings, Handshaking handshaking) override {
    device_.configure(settings, handshaking);
  }
  void readOn() override { device_.readOn(); }
  void write(std::string_view bytes) override { device_.write(bytes); }
  bool isGone() const override { return device_.isGone(); }

 private:
  void tellOf(int number, const RuntimeFailure& failure);

  SerialDevice& device_;
  PortProbe& ports_;
  const std::function<void(const std::string&)> tell_;
  std::map<int, std::string> told_;  // what was told last of each port that can't be opened
};

}  // namespace gsm
