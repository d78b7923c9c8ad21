#pragma once

#include <filesystem>
#include <iosfwd>
#include <memory>

#include "panel/panel.h"
#include "platform/headless/headless_platform.h"
#include "platform/headless/modem_script.h"

namespace gsm {

class Windows;

/// The whole panel on virtual time, with a scripted modem on its line.
class HeadlessPanel {
 public:
  /// `folder` is the program's own; `now` is the wall clock's time at the start. `otherDatabase`,
  /// if given, stands in for the real engine; `record`, if given, gets a record of the line.
  HeadlessPanel(std::filesystem::path folder, LocalTime now,
                DatabaseEngine* otherDatabase = nullptr, std::ostream* record = nullptr);
  ~HeadlessPanel();
  HeadlessPanel(const HeadlessPanel&) = delete;
  HeadlessPanel& operator=(const HeadlessPanel&) = delete;

  /// Begins the program; nothing happens before time passes.
  void start();

  VirtualTime& time() { return machine.time; }
  HandlerStack& handlers() { return machine.handlers(); }

  HeadlessPlatform machine;
  ModemScript modem;

 private:
  std::unique_ptr<Windows> windows_;

 public:
  Panel& panel;
};

}  // namespace gsm
