#include "platform/posix/modem_lines.h"

#include <gtest/gtest.h>

#include "simulator/host/pseudo_terminal.h"

namespace gsm {
namespace {

struct Row {
  const char* name;
  LineState before;
  LineState after;
  std::vector<CommEvent> events;
};

TEST(ModemLines, SayWhatHappenedBetweenTwoLooks) {
  const Row rows[] = {
      {"nothing", {.cts = true, .ctsCount = 3}, {.cts = true, .ctsCount = 3}, {}},
      {"a line rose", {}, {.cts = true, .ctsCount = 1}, {CommEvent::cts}},
      {"a line of a driver without counts", {.dsr = true}, {}, {CommEvent::dsr}},
      {"a pulse between the looks", {.cdCount = 4}, {.cdCount = 6}, {CommEvent::cd}},
      {"a ring begins", {}, {.ring = true}, {CommEvent::ring}},
      {"a ring ends", {.ring = true}, {.ringCount = 1}, {}},
      {"a whole ring between the looks", {}, {.ringCount = 1}, {CommEvent::ring}},
      {"a break", {}, {.breaks = 1}, {CommEvent::breakReceived}},
      {"errors of the line",
       {},
       {.framingErrors = 2, .overruns = 1, .parityErrors = 9},
       {CommEvent::framing, CommEvent::overrun, CommEvent::parity}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(eventsBetween(row.before, row.after), row.events) << row.name;
  }
}

TEST(ModemLines, APseudoTerminalHasNone) {
  const pty::PseudoTerminal terminal;
  EXPECT_FALSE(readLineState(terminal.descriptor()));
}

}  // namespace
}  // namespace gsm
