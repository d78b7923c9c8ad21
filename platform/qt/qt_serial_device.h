#pragma once

#include <memory>

#include "platform/clock.h"
#include "platform/event_loop.h"
#include "platform/posix/port_names.h"
#include "platform/posix/uucp_lock.h"
#include "platform/serial_device.h"

namespace gsm {

class SerialLine;

/// The machine's serial ports, by way of Qt.
class QtSerialDevice : public SerialDevice {
 public:
  /// All of them must outlive the device.
  QtSerialDevice(const Clock& clock, EventLoop& loop, const PortNames& names,
                 const UucpLocks& locks);
  ~QtSerialDevice() override;
  QtSerialDevice(const QtSerialDevice&) = delete;
  QtSerialDevice& operator=(const QtSerialDevice&) = delete;

  void listen(Listener* listener) override { listener_ = listener; }
  void open(int number, const LineSettings& settings, Handshaking handshaking) override;
  void close() override;
  void configure(const LineSettings& settings, Handshaking handshaking) override;
  void readOn() override;
  void write(std::string_view bytes) override;
  bool isGone() const override;

  /// Sends what waits to be sent, without Qt's event loop, and lets so much time pass.
  void serve(Duration realTime);

 private:
  const Clock& clock_;
  EventLoop& loop_;
  const PortNames& names_;
  const UucpLocks& locks_;
  Listener* listener_ = nullptr;
  std::shared_ptr<SerialLine> line_;
};

}  // namespace gsm
