#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <memory>
#include <vector>

#include "platform/files.h"
#include "platform/handler_stack.h"
#include "platform/platform.h"
#include "platform/posix/ini_settings_store.h"
#include "platform/posix/machine_clock.h"
#include "platform/posix/port_names.h"
#include "platform/posix/posix_port_probe.h"
#include "platform/posix/posix_program.h"
#include "platform/posix/telling_device.h"
#include "platform/posix/uucp_lock.h"
#include "platform/qt/end_requests.h"
#include "platform/qt/qt_event_loop.h"
#include "platform/qt/qt_message_boxes.h"
#include "platform/qt/qt_serial_device.h"
#include "platform/recording_device.h"
#include "platform/sqlite/sqlite_engine.h"
#include "platform/sqlite/telling_engine.h"

namespace gsm {

/// The machine with a screen: everything that the windows need of it.
class Desktop {
 public:
  struct Options {
    std::filesystem::path programFolder;  // of the program's own files
    double speed = 1;                     // how much faster than real the clock runs
    std::function<void()> atEnd;          // done first when the program ends
    std::ostream* record = nullptr;       // gets a record of the line; outlives the desktop
  };

  /// Needs Qt's application object, which from now on doesn't quit with its last window.
  explicit Desktop(const Options& options);
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  Platform& platform() { return platform_; }

  /// From now on the signals to end, the end of the session and the display's going run `end`,
  /// which is to end the program. It may wait, also without a display.
  void endBy(std::function<void()> end);

  /// Lets events run until the program ends.
  [[noreturn]] void run();

 private:
  MachineClock clock_;
  QtEventLoop loop_;
  QtMessageBoxes boxes_;
  Files files_;
  PortNames portNames_;
  UucpLocks locks_;
  PosixPortProbe ports_;
  QtSerialDevice serialPort_;
  TellingDevice tellingDevice_;
  std::unique_ptr<RecordingDevice> recordingDevice_;
  SerialDevice& serialDevice_;  // what tells, or what records that
  IniSettingsStore settings_;
  SqliteEngine sqlite_;
  TellingEngine database_;
  PosixProgram program_;
  HandlerStack handlers_;
  std::vector<Window*> windows_;
  Platform platform_;
  std::unique_ptr<EndRequests> endRequests_;
};

}  // namespace gsm
