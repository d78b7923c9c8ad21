#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"
#include "platform/secret_blots.h"
#include "platform/serial_device.h"

namespace gsm {

/// What went over a serial port, as one JSON object a line, so that somebody far away can see it
/// and play it back. A byte of the port is one character, by the code page; PINs, PUKs and
/// passwords are blotted out byte for byte with asterisks, and "blotted" says where: [[first, how
/// many], ...].
///
///     {"record":1,"started":"01/03/2026 10:00:00"}
///     {"at":0.000125000,"open":3,"settings":"9600,N,8,1","handshaking":0}
///     {"at":0.000131000,"out":"AT+CPIN=****\r","blotted":[[8,4]]}
///     {"at":0.050131000,"in":"AT+CPIN=****\r\r\nOK\r\n","blotted":[[8,4]]}
///     {"at":9.000000000,"event":5}
///     {"at":9.500000000,"close":3}
///
/// "at" is in seconds from the beginning of the record. An opening or a write that failed has
/// "failed" with the reason; new settings of the open port are "configured".
class LineRecord {
 public:
  static constexpr std::size_t kMostBytes = 8'000'000;

  /// Begins a record on `file`, which gets each line at once, and `most` bytes at most: when the
  /// next line has no room, the last one is {"full":true}. Both must outlive the record.
  LineRecord(std::ostream& file, const Clock& clock, std::size_t most = kMostBytes);

  // What happens on the line. `failure` says why it didn't; empty: it did.

  void opened(int port, const LineSettings& settings, Handshaking handshaking,
              std::string_view failure = {});
  void configured(const LineSettings& settings, Handshaking handshaking);
  void closed(int port);
  void sent(std::string_view bytes, std::string_view failure = {});
  void received(std::string_view bytes);
  void event(CommEvent event);

 private:
  // `fields` are those of a JSON object without its braces.
  void write(const std::string& fields);
  void put(const std::string& fields);

  std::ostream& file_;
  const Clock& clock_;
  const Instant beginning_;
  std::size_t room_;
  bool full_ = false;
  SecretBlots blots_{clock_};
};

}  // namespace gsm
