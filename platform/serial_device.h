#pragma once

#include <string_view>

#include "platform/serial_settings.h"

namespace gsm {

/// What a serial port's control reports of the line, by the values of `CommEvent`.
enum class CommEvent {
  none = 0,
  send = 1,
  receive = 2,
  cts = 3,
  dsr = 4,
  cd = 5,
  ring = 6,
  endOfFile = 7,
  breakReceived = 1001,
  ctsTimeout = 1002,
  dsrTimeout = 1003,
  framing = 1004,
  overrun = 1006,
  cdTimeout = 1007,
  receiveOverflow = 1008,
  parity = 1009,
  transmitFull = 1010,
  deviceControlBlock = 1011,
};

/// One serial line of the machine, opened and closed at will: the thin part that each platform has
/// to write. The rules of the control are in `SerialControl`.
class SerialDevice {
 public:
  /// Who is told of what happens on the line. Always called from an event of the loop, never from
  /// inside a call of the device.
  class Listener {
   public:
    virtual ~Listener() = default;

    /// Bytes have come in, in the order of the line.
    virtual void bytesArrived(std::string_view bytes) = 0;
    /// Whether more bytes may come now. While they may not, the device reads nothing off the line;
    /// the listener says `readOn` when they may again.
    virtual bool hasRoom() const { return true; }
    /// `waiting` bytes of what was written are still to leave, fewer than before.
    virtual void bytesLeft(std::size_t waiting) = 0;
    /// A modem line changed, or the line had an error. Neither `send` nor `receive`.
    virtual void lineEvent(CommEvent event) = 0;
  };

  virtual ~SerialDevice() = default;

  /// Null: nobody is told.
  virtual void listen(Listener* listener) = 0;

  /// Opens port `number` for this program alone, raises DTR and RTS, and forgets old input.
  /// Throws `portAlreadyOpen` when another program holds it, `invalidPortNumber` when there is no
  /// such port, another `RuntimeFailure` when it can't be opened for another reason.
  virtual void open(int number, const LineSettings& settings, Handshaking handshaking) = 0;

  /// Closes the port; what has not been sent is lost.
  virtual void close() = 0;

  /// Changes the open line. Throws `invalidPropertyValue` when the line refuses the values.
  virtual void configure(const LineSettings& settings, Handshaking handshaking) = 0;

  /// The listener has room again. On a line that holds nothing back there is nothing to do.
  virtual void readOn() {}

  /// Begins to send `bytes` on the open line. Throws `deviceError` when the device is gone.
  virtual void write(std::string_view bytes) = 0;

  /// Whether the device has gone since the port was opened, which hasn't been closed yet.
  virtual bool isGone() const { return false; }
};

}  // namespace gsm
