#pragma once

#include <QSerialPort>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/chunk_gatherer.h"
#include "platform/clock.h"
#include "platform/event_loop.h"
#include "platform/posix/modem_lines.h"
#include "platform/serial_device.h"

namespace gsm {

/// One opening of a serial device, from its opening to its closing.
///
/// What Qt tells is never handled in place but queued: Qt reports nothing new from inside its own
/// signals, and handlers wait. What is still queued when the opening ends is dropped.
///
/// What comes in is gathered into chunks. While the listener has no room nothing is read, and then
/// the machine's own buffers fill up, which are small.
///
/// Qt doesn't report a device that has gone; depending on the moment it reports read errors as
/// fast as the processor goes, or nothing. So each error, and a look now and then, makes sure that
/// the device still answers; one that doesn't is let go of, and writing fails from then on.
class SerialLine : public std::enable_shared_from_this<SerialLine> {
 public:
  using Listener = SerialDevice::Listener;

  struct Opening {
    std::shared_ptr<SerialLine> line;    // null when the device can't be opened
    QSerialPort::SerialPortError error;  // why
  };

  /// Opens the device at `device` (a path with all links resolved) for this program alone, with DTR
  /// and RTS raised and old input forgotten. `listener` is looked up anew for each event, and may
  /// be null. `clock`, `loop` and the variable `listener` must outlive the line. Throws
  /// `invalidPropertyValue` for settings that no line can have.
  static Opening open(const std::filesystem::path& device, const LineSettings& settings,
                      Handshaking handshaking, const Clock& clock, EventLoop& loop,
                      Listener* const& listener);
  ~SerialLine();
  SerialLine(const SerialLine&) = delete;
  SerialLine& operator=(const SerialLine&) = delete;

  /// Throws `invalidPropertyValue` when the line refuses the values (the old ones stand),
  /// `deviceError` when the device is gone.
  void configure(const LineSettings& settings, Handshaking handshaking);

  /// The listener has room again.
  void readOn();

  /// Begins to send. Throws `deviceError` when the device is gone.
  void write(std::string_view bytes);

  /// Whether the device was let go of, since it no longer answers.
  bool isGone() const { return !port_.isOpen(); }
  /// Sends what waits to be sent, without Qt's event loop, and lets so much time pass.
  void serve(Duration realTime);

  /// Ends the opening: nobody is told of anything from now on.
  void close();

 private:
  SerialLine(const Clock& clock, EventLoop& loop, Listener* const& listener)
      : clock_(clock), loop_(loop), listener_(listener) {}

  bool begin(const std::filesystem::path& device, const LineSettings& settings,
             Handshaking handshaking);
  void connectSignals();
  void watch();

  // Wraps `action` into an event that does nothing once the line has been closed.
  std::function<void()> guarded(std::function<void(SerialLine&)> action);

  bool isAlive() const;
  void letGoIfDead();
  bool mayRead() const;
  void drain();
  // Takes what Qt has read into the chunk that is being gathered.
  void gather();
  // Reports the chunk when it has ended, and else looks again when it will have.
  void tellOfChunk();
  void tell(std::string_view bytes);
  void look();
  bool apply(const LineSettings& settings, Handshaking handshaking);
  void finishHandshaking(Handshaking handshaking);

  const Clock& clock_;
  EventLoop& loop_;
  Listener* const& listener_;
  QSerialPort port_;
  LineSettings settings_;
  Handshaking handshaking_ = Handshaking::none;
  std::optional<LineState> lineState_;  // nothing: a line without modem lines
  ChunkGatherer chunk_;
  std::unique_ptr<Repetition> chunkEnds_;  // set while a chunk is being gathered
  std::unique_ptr<Repetition> watching_;
};

}  // namespace gsm
