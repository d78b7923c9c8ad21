// What a test pays for a panel of its own: the whole panel without a screen, from nothing to the
// first window, and to the end of a start-up that has found its modem.

#include <benchmark/benchmark.h>

#include "app/headless_panel.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

void firstWindow(benchmark::State& state) {
  const TemporaryFolder folder;
  for (auto _ : state) {
    HeadlessPanel world(folder.path(), {2026, 3, 1, 10, 0, 0});
    world.start();
    world.time().run(Duration::zero());
    if (!world.panel.form1.Visible.peek()) state.SkipWithError("the first window is not on view");
  }
}
BENCHMARK(firstWindow)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime()->UseRealTime();

void modemFound(benchmark::State& state) {
  const TemporaryFolder folder;
  folder.write("COM.txt", "9600,N,8,1 3\r\n");
  for (auto _ : state) {
    HeadlessPanel world(folder.path(), {2026, 3, 1, 10, 0, 0});
    world.machine.ports.set({{.number = 3}});
    world.machine.line.plug(3);
    world.modem.setOtherwise({.replies = {{{ModemScript::kDefaultDelay, "\r\nOK\r\n"}}}});
    world.start();
    world.time().settle(std::chrono::minutes(10));
    if (!world.panel.form7.Visible.peek()) state.SkipWithError("the modem was not accepted");
  }
}
BENCHMARK(modemFound)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime()->UseRealTime();

}  // namespace
}  // namespace gsm
