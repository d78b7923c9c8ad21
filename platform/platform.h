#pragma once

#include <vector>

#include "platform/clock.h"
#include "platform/database.h"
#include "platform/event_loop.h"
#include "platform/files.h"
#include "platform/handler_stack.h"
#include "platform/message_boxes.h"
#include "platform/port_probe.h"
#include "platform/program.h"
#include "platform/serial_device.h"
#include "platform/settings_store.h"

namespace gsm {

class Window;

/// Everything that the windows need of the machine. All of it outlives the windows.
struct Platform {
  Clock& clock;
  EventLoop& loop;
  HandlerStack& handlers;
  MessageBoxes& boxes;
  Program& program;
  Files& files;
  PortProbe& ports;
  SerialDevice& serialDevice;
  SettingsStore& settings;
  DatabaseEngine& database;
  /// The windows that there are, in the order of their making; each enters itself.
  std::vector<Window*>& windows;
};

}  // namespace gsm
