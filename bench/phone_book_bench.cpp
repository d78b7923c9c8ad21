// What 10,000 entries in the phone book cost: naming a caller, finding an entry by its location,
// opening the call window, and listing the names for a message. Each beside what the bare library
// takes for the same answer in the same run: with an index that the phone book's own file doesn't
// have, and with nothing around it.

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "app/headless_panel.h"
#include "phonebook/form3.h"
#include "platform/sqlite/phone_book_file.h"
#include "platform/sqlite/sqlite_engine.h"
#include "sms/form8.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

constexpr int kRows = 10'000;

// The entries' numbers are 0140000001 to 0140010000; the name holds the location.
std::string numberAt(int location) { return "0" + std::to_string(140'000'000 + location); }
std::string nameAt(int location) { return "NAME " + std::to_string(location); }

// A phone book with the indexes that only the baseline asks for when wanted.
void layBook(const std::filesystem::path& file, bool withIndexes, int rows = kRows) {
  createPhoneBook(file);
  const auto book = SqliteEngine().OpenDatabase(file);
  book->Execute(
      "INSERT INTO DATA WITH RECURSIVE at(n) AS (VALUES(1) UNION ALL SELECT n+1 FROM at WHERE n<" +
      std::to_string(rows) + ") SELECT n, '0'||(140000000+n), 'NAME '||n FROM at");
  book->Execute("INSERT INTO Details VALUES('" + std::to_string(rows) + "','" +
                std::to_string(rows) + "')");
  if (!withIndexes) return;
  book->Execute("CREATE INDEX byTail ON DATA(substr(Number,-10))");
  book->Execute("CREATE INDEX byIndex ON DATA(\"Index\")");
}

// The row that is looked for: the first, the last, or none.
enum Target { kFirst, kLast, kNone };

int locationOf(benchmark::State& state) {
  switch (static_cast<Target>(state.range(0))) {
    case kFirst: state.SetLabel("first row"); return 1;
    case kLast: state.SetLabel("last row"); return kRows;
    case kNone: break;
  }
  state.SetLabel("no match");
  return kRows + 1;
}

std::string expectedName(int location) { return location > kRows ? "" : nameAt(location); }

// What is looked for, as the panel says it and as the baseline does.
struct Search {
  std::string criterion;
  const char* query;
  std::string value;
};

Search byCaller(int location) {
  const std::string number = numberAt(location);
  return {"right(number,10) = '" + number + " '",
          "SELECT Name FROM DATA WHERE substr(Number,-10)=?1 ORDER BY rowid LIMIT 1", number};
}

Search byIndex(int location) {
  const std::string index = std::to_string(location);
  return {"INDEX='" + index + "'",
          "SELECT Name FROM DATA WHERE \"Index\"=?1 ORDER BY rowid LIMIT 1", index};
}

std::string nameIn(RecordSet& entries, const std::string& criterion) {
  entries.FindFirst(criterion);
  return entries.NoMatch() ? "" : entries.field("name");
}

// The record set, opened beforehand.
void findFirst(benchmark::State& state, Search (*search)(int location)) {
  const TemporaryFolder folder;
  layBook(folder.path() / "phonebook.mdb", /*withIndexes=*/false);
  const auto entries =
      SqliteEngine().OpenDatabase(folder.path() / "phonebook.mdb")->openRecordSet("DATA");
  const int location = locationOf(state);
  const Search wanted = search(location);
  for (auto _ : state) {
    if (nameIn(*entries, wanted.criterion) != expectedName(location)) {
      state.SkipWithError("another row was found");
    }
  }
}

// As a ring does it: the call window's control reopens the record set, so that it sees what was
// added meanwhile, and then looks.
void refreshAndFindFirst(benchmark::State& state, Search (*search)(int location)) {
  const TemporaryFolder folder;
  layBook(folder.path() / "phonebook.mdb", /*withIndexes=*/false);
  HeadlessPanel world(folder.path(), {2026, 3, 1, 10, 0, 0});
  DataControl& mirror = world.panel.form3.Data1;
  mirror.Refresh();  // loads the window
  const int location = locationOf(state);
  const Search wanted = search(location);
  for (auto _ : state) {
    mirror.Refresh();
    if (nameIn(mirror.Recordset(), wanted.criterion) != expectedName(location)) {
      state.SkipWithError("another row was found");
    }
  }
}

using Library = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;
using Query = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

Library openFile(const std::filesystem::path& file) {
  sqlite3* handle = nullptr;
  sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READWRITE, nullptr);
  return {handle, &sqlite3_close};
}

Query prepare(const Library& library, const char* sql) {
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(library.get(), sql, -1, &statement, nullptr);
  return {statement, &sqlite3_finalize};
}

std::string column(const Query& query, int number) {
  return reinterpret_cast<const char*>(sqlite3_column_text(query.get(), number));
}

std::string nameIn(const Query& query, const std::string& value) {
  sqlite3_reset(query.get());
  sqlite3_bind_text(query.get(), 1, value.data(), static_cast<int>(value.size()), SQLITE_STATIC);
  return sqlite3_step(query.get()) == SQLITE_ROW ? column(query, 0) : "";
}

// The library with an index, the query prepared beforehand.
void indexedQuery(benchmark::State& state, Search (*search)(int location)) {
  const TemporaryFolder folder;
  layBook(folder.path() / "indexed.db", /*withIndexes=*/true);
  const Library library = openFile(folder.path() / "indexed.db");
  const int location = locationOf(state);
  const Search wanted = search(location);
  const Query query = prepare(library, wanted.query);
  for (auto _ : state) {
    if (nameIn(query, wanted.value) != expectedName(location)) {
      state.SkipWithError("another row was found");
    }
  }
}

// The same from opening the file on, as a ring would have to.
void openAndIndexedQuery(benchmark::State& state, Search (*search)(int location)) {
  const TemporaryFolder folder;
  layBook(folder.path() / "indexed.db", /*withIndexes=*/true);
  const int location = locationOf(state);
  const Search wanted = search(location);
  for (auto _ : state) {
    const Library library = openFile(folder.path() / "indexed.db");
    const Query query = prepare(library, wanted.query);
    if (nameIn(query, wanted.value) != expectedName(location)) {
      state.SkipWithError("another row was found");
    }
  }
}

void eachTarget(benchmark::internal::Benchmark* benchmark) {
  for (const Target target : {kFirst, kLast, kNone}) benchmark->Arg(target);
  benchmark->Unit(benchmark::kMicrosecond);
}
BENCHMARK_CAPTURE(findFirst, byCaller, byCaller)->Apply(eachTarget);
BENCHMARK_CAPTURE(indexedQuery, byCaller, byCaller)->Apply(eachTarget);
BENCHMARK_CAPTURE(findFirst, byIndex, byIndex)->Apply(eachTarget);
BENCHMARK_CAPTURE(indexedQuery, byIndex, byIndex)->Apply(eachTarget);
BENCHMARK_CAPTURE(refreshAndFindFirst, byCaller, byCaller)->Apply(eachTarget);
BENCHMARK_CAPTURE(openAndIndexedQuery, byCaller, byCaller)->Apply(eachTarget);

// The call window comes up with all entries in its list.
void openCallWindow(benchmark::State& state) {
  const auto rows = static_cast<int>(state.range(0));
  const TemporaryFolder folder;
  layBook(folder.path() / "phonebook.mdb", /*withIndexes=*/false, rows);
  for (auto _ : state) {
    state.PauseTiming();
    auto world = std::make_unique<HeadlessPanel>(folder.path(), LocalTime{2026, 3, 1, 10, 0, 0});
    Form3& calls = world->panel.form3;
    state.ResumeTiming();
    calls.Show();
    if (calls.List1.ListCount() != rows) state.SkipWithError("the list isn't whole");
    state.PauseTiming();
    world.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(openCallWindow)->Arg(250)->Arg(kRows)->Unit(benchmark::kMillisecond);

// The message window comes up, and reads nothing of the book before it is asked to.
void openMessageWindow(benchmark::State& state) {
  const auto rows = static_cast<int>(state.range(0));
  const TemporaryFolder folder;
  layBook(folder.path() / "phonebook.mdb", /*withIndexes=*/false, rows);
  for (auto _ : state) {
    state.PauseTiming();
    auto world = std::make_unique<HeadlessPanel>(folder.path(), LocalTime{2026, 3, 1, 10, 0, 0});
    state.ResumeTiming();
    world->panel.form8.Show();
    state.PauseTiming();
    world.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(openMessageWindow)
    ->Arg(250)
    ->Arg(kRows)
    ->Iterations(50)  // most of the time goes into making panels
    ->Unit(benchmark::kMillisecond);

// The message window lists all names: "PhoneBook", up to the question for the service centre, which
// a closed port ends.
void listNames(benchmark::State& state) {
  const auto rows = static_cast<int>(state.range(0));
  const TemporaryFolder folder;
  layBook(folder.path() / "phonebook.mdb", /*withIndexes=*/false, rows);
  HeadlessPanel world(folder.path(), {2026, 3, 1, 10, 0, 0});
  Form8& messages = world.panel.form8;
  messages.Show();
  for (auto _ : state) {
    messages.Command6.userClick();
    if (messages.List1.ListCount() != rows) state.SkipWithError("the list isn't whole");
  }
}
BENCHMARK(listNames)->Arg(250)->Arg(kRows)->Unit(benchmark::kMillisecond);

// The least that the same rows can cost: one query into a vector.
void selectIntoVector(benchmark::State& state) {
  const auto rows = static_cast<int>(state.range(0));
  const TemporaryFolder folder;
  layBook(folder.path() / "phonebook.mdb", /*withIndexes=*/false, rows);
  for (auto _ : state) {
    const Library library = openFile(folder.path() / "phonebook.mdb");
    const Query query = prepare(library, "SELECT \"Index\", Number, Name FROM DATA ORDER BY rowid");
    std::vector<std::string> list;
    while (sqlite3_step(query.get()) == SQLITE_ROW) {
      const std::string number = column(query, 1);
      list.push_back(column(query, 0) + "  " + number + std::string(20 - number.size(), ' ') +
                     column(query, 2));
    }
    if (static_cast<int>(list.size()) != rows) state.SkipWithError("the list isn't whole");
  }
}
BENCHMARK(selectIntoVector)->Arg(250)->Arg(kRows)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace gsm
