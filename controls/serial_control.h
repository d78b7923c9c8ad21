#pragma once

#include <functional>
#include <set>
#include <string>
#include <string_view>

#include "controls/object.h"
#include "platform/clock.h"
#include "platform/serial_device.h"

namespace gsm {

struct Platform;

/// The serial communications control: one port, opened and closed at will, plain bytes out and in,
/// and one event for all that happens on the line.
class SerialControl : public Object, private SerialDevice::Listener {
 public:
  /// A property whose uses are calls of the control.
  template <class T>
  class Value {
   public:
    using Get = T (SerialControl::*)() const;
    using Set = void (SerialControl::*)(T);
    Value(SerialControl& control, Get get, Set set) : control_(control), get_(get), set_(set) {}
    Value(const Value&) = delete;
    Value& operator=(const Value&) = delete;
    Value& operator=(T value) {
      (control_.*set_)(std::move(value));
      return *this;
    }
    operator T() const { return (control_.*get_)(); }

   private:
    SerialControl& control_;
    const Get get_;
    const Set set_;
  };

  /// `name` is the design's.
  SerialControl(const Platform& platform, std::string name);
  ~SerialControl() override;
  SerialControl(const SerialControl&) = delete;
  SerialControl& operator=(const SerialControl&) = delete;

  const std::string& name() const { return name_; }

  /// The port's number, 1 to 255; others fail with `invalidPortNumber`. Can't change while the port
  /// is open (`invalidWhileOpen`).
  Value<int> CommPort{*this, &SerialControl::commPort, &SerialControl::setCommPort};

  /// "9600,n,8,1": speed, parity, data bits, stop bits. Reads back as it was assigned. A text that
  /// names no such line fails with `invalidPropertyValue`, and the old one stands.
  Value<std::string> Settings{*this, &SerialControl::settings, &SerialControl::setSettings};

  /// The flow control, 0 to 3 as in `gsm::Handshaking`; others fail with `invalidPropertyValue`.
  Value<int> Handshaking{*this, &SerialControl::handshaking, &SerialControl::setHandshaking};

  /// Assigning opens and closes the port. Opening fails with `portAlreadyOpen` when this program or
  /// another holds the port, with `invalidPortNumber` when there is none of that number, and with
  /// the machine's own text otherwise. Closing what is closed does nothing.
  Value<bool> PortOpen{*this, &SerialControl::isOpen, &SerialControl::setOpen};

  /// So many bytes must have come in for a receive event; 0: none comes.
  int RThreshold = 1;
  /// A send event comes when fewer bytes than these are left to send; 0: none comes.
  int SThreshold = 1;
  /// 1 (binary): `Input` yields bytes as they are. The control knows no other way.
  int InputMode = 1;

  static constexpr int kInBufferSize = 1024;
  static constexpr int kOutBufferSize = 512;
  static constexpr std::string_view kParityReplace = "?";

  /// Assigning sends the text as it stands. Fails with `invalidUnlessOpen` when the port is closed,
  /// `deviceError` when the device is gone.
  struct OutputProperty {
    SerialControl& control;
    void operator=(std::string_view bytes) { control.write(bytes); }
  };
  OutputProperty Output{*this};

  /// So many bytes may wait to be taken before the device is told to read no more off the line: a
  /// minute and a half of the fastest line.
  static constexpr std::size_t kMostWaiting = 1 << 20;

  /// Takes all that has come in. Fails with `invalidUnlessOpen` when the port is closed.
  std::string Input();

  /// The cause of the current `OnComm`.
  gsm::CommEvent CommEvent = gsm::CommEvent::none;

  /// Raised for everything that happens on the line.
  std::function<void()> OnComm;

  /// Raises `OnComm` with `event` as its cause: something happened on the line. While the handler
  /// stack is full or stuck the event is held back, each cause once.
  void raise(gsm::CommEvent event);

 private:
  int commPort() const { return port_; }
  void setCommPort(int port);
  std::string settings() const { return settingsText_; }
  void setSettings(std::string text);
  int handshaking() const { return static_cast<int>(handshaking_); }
  void setHandshaking(int value);
  bool isOpen() const { return open_; }
  void setOpen(bool open);
  void write(std::string_view bytes);

  void bytesArrived(std::string_view bytes) override;
  bool hasRoom() const override { return received_.size() < kMostWaiting; }
  void bytesLeft(std::size_t waiting) override;
  void lineEvent(gsm::CommEvent event) override { raise(event); }

  // Whether events of the line wait until the handler stack has shrunk: while it is full, and while
  // it is stuck. A stack in which somebody has sent a command of late isn't: its reply is waited
  // for.
  bool holdsBack() const;
  void run(gsm::CommEvent cause);
  // Raises the receive event when there is cause, unless it is held back: then the bytes stay, and
  // come as one larger chunk when the stack has shrunk.
  void deliver();
  // Once the stack has shrunk, what was held back waits its turn like any other event.
  void deliverLater();

  const Platform& platform_;
  const std::string name_;
  int port_ = 1;
  std::string settingsText_ = "9600,n,8,1";
  LineSettings line_;
  gsm::Handshaking handshaking_ = gsm::Handshaking::none;
  bool open_ = false;
  std::string received_;
  std::set<gsm::CommEvent> held_;
  Instant lastWrite_{0};
  bool deliveryPosted_ = false;
};

}  // namespace gsm
