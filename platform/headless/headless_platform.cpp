#include "platform/headless/headless_platform.h"

#include <utility>

#include "platform/headless/program_end.h"

namespace gsm {

void HeadlessProgram::end() {
  line_.close();
  files_.closeAll();
  throw ProgramEnd{};
}

HeadlessPlatform::HeadlessPlatform(std::filesystem::path folder, LocalTime start,
                                   DatabaseEngine* otherDatabase)
    : time(start, [this] { return handlers_.depth() == 0; }),
      files(std::move(folder)),
      platform_{time,  time,  handlers_, boxes,    program_,
                files, ports, line,      settings, otherDatabase ? *otherDatabase : database} {}

}  // namespace gsm
