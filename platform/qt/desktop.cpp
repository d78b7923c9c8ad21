#include "platform/qt/desktop.h"

#include <QApplication>
#include <clocale>
#include <iostream>
#include <memory>
#include <utility>

namespace gsm {
Desktop::Desktop(const Options& options)
    : clock_(options.speed),
      loop_(clock_),
      files_(options.programFolder),
      portNames_(options.programFolder),
      ports_(portNames_, locks_),
      serialPort_(clock_, loop_, portNames_, locks_),
      tellingDevice_(serialPort_, ports_,
                     [](const std::string& text) { std::cerr << text << std::endl; }),
      recordingDevice_(options.record == nullptr ? nullptr
                                                 : std::make_unique<RecordingDevice>(
                                                       tellingDevice_, *options.record, clock_)),
      serialDevice_(recordingDevice_ == nullptr ? static_cast<SerialDevice&>(tellingDevice_)
                                                : *recordingDevice_),
      settings_(options.programFolder / "settings.ini"),
      database_(sqlite_, [](const std::string& text) { std::cerr << text << std::endl; }),
      program_([this, atEnd = options.atEnd] {
        if (atEnd) atEnd();
        serialDevice_.close();
        files_.closeAll();
      }),
      handlers_(clock_, boxes_, program_),
      platform_{.clock = clock_,
                .loop = loop_,
                .handlers = handlers_,
                .boxes = boxes_,
                .program = program_,
                .files = files_,
                .ports = ports_,
                .serialDevice = serialDevice_,
                .settings = settings_,
                .database = database_,
                .windows = windows_} {
  // Qt takes the user's ways of writing numbers for the whole program; the modem has none but C's.
  std::setlocale(LC_NUMERIC, "C");
  // Windows come and go; the program ends when it says so.
  QApplication::setQuitOnLastWindowClosed(false);
}

void Desktop::endBy(std::function<void()> end) {
  endRequests_ = std::make_unique<EndRequests>(loop_, std::move(end), [this] {
    loop_.goOnWithoutScreen([this](Duration realTime) { serialPort_.serve(realTime); });
  });
}

void Desktop::run() {
  QApplication::exec();
  program_.end();
}

}  // namespace gsm
