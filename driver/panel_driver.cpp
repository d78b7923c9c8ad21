// The panel without a screen: one request in JSON a line on standard input, one answer a line on
// standard output.

#include <iostream>
#include <string>

#include "driver/session.h"
#include "platform/posix/core_files.h"

int main() {
  gsm::leaveNoCoreFile();
  std::ios::sync_with_stdio(false);
  gsm::driver::Session session;
  for (std::string line; std::getline(std::cin, line);) {
    std::cout << session.answer(line) << '\n' << std::flush;
  }
  return 0;
}
