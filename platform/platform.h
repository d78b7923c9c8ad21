#pragma once

#include <vector>

namespace gsm {

class Clock;
class DatabaseEngine;
class EventLoop;
class Files;
class HandlerStack;
class MessageBoxes;
class PortProbe;
class Program;
class SerialDevice;
class SettingsStore;
class Window;

/// Everything that the windows need of the machine. All of it outlives the windows. Whoever uses a
/// part of it includes its header.
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
