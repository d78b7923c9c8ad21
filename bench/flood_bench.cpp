// A modem that never stops talking: 100,000 chunks into the whole panel without a screen.

#include <benchmark/benchmark.h>

#include <fstream>
#include <string>

#include "app/headless_panel.h"
#include "panel/form1.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

constexpr int kChunks = 100'000;

// The panel with its port open on a modem that has answered once and says nothing by itself.
void openPort(HeadlessPanel& world) {
  world.machine.ports.set({{.number = 3}});
  world.machine.line.plug(3);
  world.modem.add(
      {.write = "AT+CGSN\r",
       .replies = {{{ModemScript::kDefaultDelay, "\r\n012345678901234\r\n\r\nOK\r\n"}}}});
  world.start();
  world.time().settle(std::chrono::minutes(1));
}

void flood(benchmark::State& state) {
  const auto gap = std::chrono::microseconds(state.range(0));
  const bool recorded = state.range(1) != 0;
  const TemporaryFolder folder;
  folder.write("COM.txt", "9600,N,8,1 3\r\n");
  std::size_t kept = 0;
  for (auto _ : state) {
    state.PauseTiming();
    std::ofstream record(folder.path() / "record", std::ios::binary);
    HeadlessPanel world(folder.path(), {2026, 3, 1, 10, 0, 0}, nullptr,
                        recorded ? &record : nullptr);
    openPort(world);
    state.ResumeTiming();
    for (int each = 0; each < kChunks; ++each) {
      world.time().after(each * gap,
                         [&world, each] { world.machine.line.arrive(std::to_string(each) + ";"); });
    }
    world.time().settle(std::chrono::hours(1));
    kept = world.panel.form1.Text1.Text.peek().size();
  }
  if (kept != 588'890) state.SkipWithError("bytes were lost");
  state.SetItemsProcessed(state.iterations() * kChunks);
}
// All at one instant, and one each millisecond; without a record of the line, and with one.
BENCHMARK(flood)
    ->ArgsProduct({{0, 1000}, {0, 1}})
    ->ArgNames({"gap", "recorded"})
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();

}  // namespace
}  // namespace gsm
