// What it costs to take a chunk into the transcript and to look for all that the dispatcher looks
// for, by how much unclaimed text already stands there; and the same by searching the whole text
// each time.
//
// An iteration of the transcript takes in as many chunks as double it, so that what its growth
// costs is in the figure; filling it beforehand isn't timed. "per_chunk" is the figure to compare.
//
// With a record of the line each chunk is written to its file first. What that is held against is
// the least that anybody can do who wants each chunk to be in the file at once.

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

#include "app/headless_panel.h"
#include "panel/form1.h"
#include "platform/line_record.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

// The keys of the row of tests, and the words of their further conditions.
constexpr auto kKeys = std::to_array<std::string_view>(
    {"CMTI",   "+CCWA:",   "\"",       "NO ANSWER", "NO CARRIER", "BUSY",  "ATI0",
     "ATI3",   "OK",       "AT+CPBS?", "AT+VGR=",   "AT+VGT=",    "VGR:",  "VGT:",
     "ECHO:",  "AT+ECHO=", "SIDET:",   "AT+SIDET=", "CSQ:",       "CREG:", "CPIN:",
     "+CPIN=", "AT+CSCA?", "RING",     "+CDS:"});

constexpr std::size_t kChunk = 64;

// A chunk of lines that nothing claims, as a module sends them while it looks for a network.
const std::string& chunk() {
  static const std::string text = [] {
    std::string lines;
    while (lines.size() < kChunk) lines += "\r\n+WIND: 7\r\n\r\n+CCED: 262,03,4ad2\r\n";
    return lines.substr(0, kChunk);
  }();
  return text;
}

using Seconds = std::chrono::duration<double>;

// The time that one chunk takes, of so many in each iteration.
benchmark::Counter perChunk(const benchmark::State& state, std::size_t chunks) {
  const auto all = static_cast<double>(state.iterations()) * static_cast<double>(chunks);
  return {all, benchmark::Counter::kIsRate | benchmark::Counter::kInvert};
}

void growingTranscript(benchmark::State& state) {
  const auto unclaimed = static_cast<std::size_t>(state.range(0));
  const bool recorded = state.range(1) != 0;
  const TemporaryFolder folder;
  const std::filesystem::path recordPath = folder.path() / "record";
  HeadlessPanel panel(folder.path(), {2026, 3, 1, 10, 0, 0});
  Transcript& transcript = panel.panel.form1.Text1;
  const auto lookForAll = [&transcript] {
    int found = 0;
    for (const std::string_view key : kKeys) found += transcript.holds(key);
    return found;
  };

  const std::size_t chunks = unclaimed / kChunk;
  for (auto _ : state) {
    transcript.clear();
    for (std::size_t each = 0; each < chunks; ++each) transcript.append(chunk());
    benchmark::DoNotOptimize(lookForAll());
    // A new one each time, so that it is never full.
    std::ofstream file;
    std::optional<LineRecord> record;
    if (recorded) {
      file.open(recordPath, std::ios::binary);
      record.emplace(file, panel.time());
    }

    const auto begin = std::chrono::steady_clock::now();
    for (std::size_t each = 0; each < chunks; ++each) {
      if (record) record->received(chunk());
      transcript.append(chunk());
      benchmark::DoNotOptimize(lookForAll());
    }
    const Seconds took = std::chrono::steady_clock::now() - begin;
    state.SetIterationTime(took.count());
  }
  state.counters["per_chunk"] = perChunk(state, chunks);
}
BENCHMARK(growingTranscript)
    ->ArgsProduct({{1 << 10, 1 << 20}, {0, 1}})
    ->ArgNames({"unclaimed", "recorded"})
    ->UseManualTime();

void searchedWhole(benchmark::State& state) {
  const auto unclaimed = static_cast<std::size_t>(state.range(0));
  std::string text;
  while (text.size() < unclaimed) text += chunk();
  text.reserve(2 * unclaimed + kChunk);  // growth is on the house here
  for (auto _ : state) {
    text.resize(unclaimed);
    const auto begin = std::chrono::steady_clock::now();
    text += chunk();
    int found = 0;
    for (const std::string_view key : kKeys) found += text.find(key) != std::string::npos;
    benchmark::DoNotOptimize(found);
    const Seconds took = std::chrono::steady_clock::now() - begin;
    state.SetIterationTime(took.count());
  }
  state.counters["per_chunk"] = perChunk(state, 1);
}
BENCHMARK(searchedWhole)->Arg(1 << 10)->Arg(1 << 20)->ArgName("unclaimed")->UseManualTime();

// Each chunk written as it is, and flushed: no time, no direction, and nothing blotted out.
void writtenPlain(benchmark::State& state) {
  const auto chunks = static_cast<std::size_t>(state.range(0)) / kChunk;
  const TemporaryFolder folder;
  for (auto _ : state) {
    std::ofstream file(folder.path() / "plain", std::ios::binary);
    const auto begin = std::chrono::steady_clock::now();
    for (std::size_t each = 0; each < chunks; ++each) file << chunk() << std::flush;
    const Seconds took = std::chrono::steady_clock::now() - begin;
    state.SetIterationTime(took.count());
  }
  state.counters["per_chunk"] = perChunk(state, chunks);
}
BENCHMARK(writtenPlain)->Arg(1 << 10)->Arg(1 << 20)->ArgName("bytes")->UseManualTime();

}  // namespace
}  // namespace gsm
