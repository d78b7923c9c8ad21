#pragma once

#include <filesystem>
#include <iosfwd>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/handler_stack.h"
#include "platform/headless/headless_boxes.h"
#include "platform/headless/headless_line.h"
#include "platform/headless/headless_ports.h"
#include "platform/headless/virtual_time.h"
#include "platform/platform.h"
#include "platform/program.h"
#include "platform/recording_device.h"
#include "platform/settings_store.h"
#include "platform/sqlite/sqlite_engine.h"

namespace gsm {

/// A settings store that can be looked at.
class HeadlessSettings : public SettingsStore {
 public:
  void save(const std::string&, const std::string& key, const std::string& value) override {
    values_[key] = value;
  }
  const std::map<std::string, std::string>& values() const { return values_; }

 private:
  std::map<std::string, std::string> values_;
};

/// Ends a run by unwinding its handlers.
class HeadlessProgram : public Program {
 public:
  HeadlessProgram(Files& files, SerialDevice& line) : files_(files), line_(line) {}

  [[noreturn]] void end() override;

 private:
  Files& files_;
  SerialDevice& line_;
};

/// Everything that the windows need, on virtual time, without a screen or a serial port.
class HeadlessPlatform {
 public:
  /// `otherDatabase`, if given, stands in for the real engine; `record`, if given, gets a record of
  /// the line. Both outlive the platform.
  HeadlessPlatform(std::filesystem::path folder, LocalTime start,
                   DatabaseEngine* otherDatabase = nullptr, std::ostream* record = nullptr);

  HandlerStack& handlers() { return handlers_; }
  Platform& platform() { return platform_; }

  VirtualTime time;
  HeadlessPorts ports;
  HeadlessLine line{time, ports};
  HeadlessBoxes boxes{time, time};
  HeadlessSettings settings;
  Files files;
  SqliteEngine database;
  std::vector<Window*> windows;

 private:
  std::unique_ptr<RecordingDevice> recording_;
  SerialDevice& serialDevice_;  // the line, or what records it
  HeadlessProgram program_{files, serialDevice_};
  HandlerStack handlers_{time, boxes, program_};
  Platform platform_;
};

}  // namespace gsm
