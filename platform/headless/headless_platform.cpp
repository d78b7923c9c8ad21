#include "platform/headless/headless_platform.h"

#include <utility>

#include "platform/headless/program_end.h"

namespace gsm {

void HeadlessProgram::end() {
  line_.close();
  try {
    files_.closeAll();
  } catch (const RuntimeFailure&) {
    // The end is no handler's to trap.
  }
  throw ProgramEnd{};
}

HeadlessPlatform::HeadlessPlatform(std::filesystem::path folder, LocalTime start,
                                   DatabaseEngine* otherDatabase, std::ostream* record)
    : time(start, [this] { return handlers_.depth() == 0; }),
      files(std::move(folder)),
      recording_(record == nullptr ? nullptr
                                   : std::make_unique<RecordingDevice>(line, *record, time)),
      serialDevice_(recording_ == nullptr ? static_cast<SerialDevice&>(line) : *recording_),
      platform_{.clock = time,
                .loop = time,
                .handlers = handlers_,
                .boxes = boxes,
                .program = program_,
                .files = files,
                .ports = ports,
                .serialDevice = serialDevice_,
                .settings = settings,
                .database = otherDatabase != nullptr ? *otherDatabase : database,
                .windows = windows} {}

}  // namespace gsm
