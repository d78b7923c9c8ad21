// A fuzz target: a phone book file of any bytes is used as the panel uses one. Each step is done or
// is a failure, in bounded time and memory. The first byte decides where the file comes from: the
// others are the file, or they spoil a sound one, three of them a byte.

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/must_hold.h"
#include "platform/runtime_failure.h"
#include "platform/sqlite/sqlite_engine.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

// Sound files of small pages, so that the fuzzer has few bytes to think about. Each is there for a
// kind of page or of text that the others lack.
using Statements = std::vector<std::string>;

const std::string kEntries = "create table DATA (\"Index\" text, Number text, Name text)";
const std::string kCounts = "create table Details (TotalIndex text, UsedIndex text)";
const std::string kAlice = "insert into DATA values ('1', '0146290800', 'ALICE')";

const std::vector<Statements> kSeeds = {
    {kEntries, kCounts},
    {kEntries, kCounts, kAlice, "insert into Details values ('100', '1')"},
    // A tree of two levels.
    {kEntries,
     "with recursive n(x) as (select 1 union all select x+1 from n where x<60) "
     "insert into DATA select x, '0' || (140000000+x), 'NAME ' || x from n"},
    // A text that goes on over several pages, numbers, bytes, nothing.
    {"create table DATA (\"Index\" integer, Number, Name blob)",
     "insert into DATA values (1, 1.5, hex(zeroblob(900))), (2, x'00FF', null)"},
    // Two bytes a character.
    {"pragma encoding='UTF-16le'", kEntries, kAlice},
    // What the panel refuses to run, and an index that a change must keep up.
    {"create table DATA (\"Index\" text, Number text, Name text check (length(Name) < 50))",
     "create index byTail on DATA (substr(Number, -10))", kCounts,
     "create view Everything as select * from DATA",
     "create trigger T after insert on DATA begin delete from Details; end", kAlice},
};

std::string bytesOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> seeds(const fs::path& file) {
  std::vector<std::string> bytes;
  for (const Statements& statements : kSeeds) {
    std::ofstream(file, std::ios::trunc).close();  // an empty file is an empty database
    const auto book = SqliteEngine().OpenDatabase(file);
    book->Execute("pragma page_size=512");
    for (const std::string& each : statements) book->Execute(each);
    bytes.push_back(bytesOf(file));
  }
  return bytes;
}

// Each three bytes are a place and what stands there.
std::string spoilt(std::string bytes, std::string_view changes) {
  for (std::size_t at = 0; at + 3 <= changes.size(); at += 3) {
    const auto high = static_cast<unsigned char>(changes[at]);
    const auto low = static_cast<unsigned char>(changes[at + 1]);
    bytes[(high * 256U + low) % bytes.size()] = changes[at + 2];
  }
  return bytes;
}

// A failure of the database ends the step, and nothing else may come out of it.
template <class Step>
bool done(Step&& step) {
  try {
    step();
    return true;
  } catch (const RuntimeFailure& failure) {
    mustHold(!failure.description().empty());
    return false;
  }
}

void walk(RecordSet& set, const std::vector<std::string>& columns) {
  std::size_t rows = 0;
  std::size_t bytes = 0;
  if (set.isEof()) return;
  for (set.MoveFirst(); !set.isEof(); set.MoveNext()) {
    for (const std::string& column : columns) bytes += set.field(column).size();
    mustHold(++rows <= 100'000);
    mustHold(bytes <= (66U << 20));
  }
}

void useTable(Database& book, const std::string& source, const std::vector<std::string>& columns) {
  std::unique_ptr<RecordSet> set;
  if (!done([&] { set = book.openRecordSet(source); })) return;
  done([&] { walk(*set, columns); });
  done([&] {
    set->FindFirst("right(" + columns[0] + ",10) = '0146290800 '");
    if (!set->NoMatch()) set->field(columns.back());
  });
  const bool added = done([&] {
    set->AddNew();
    for (const std::string& column : columns) set->setField(column, "7");
    set->Update();
  });
  if (added) {
    done([&] {
      set->FindFirst(columns[0] + "='7'");
      if (set->NoMatch()) return;
      set->Edit();
      set->setField(columns[0], "8");
      set->Update();
      set->Delete();
    });
  }
}

void use(const fs::path& file) {
  SqliteEngine engine(std::chrono::milliseconds(0));
  std::shared_ptr<Database> book;
  if (!done([&] { book = engine.OpenDatabase(file); })) return;
  useTable(*book, "DATA", {"Index", "Number", "Name"});
  useTable(*book, "Details", {"TotalIndex", "UsedIndex"});
  useTable(*book, "select name from data", {"name"});
  done([&] { book->Execute("delete from data"); });
  done([&] { book->Execute("delete from details"); });
}

void lay(const fs::path& file, std::string_view input) {
  static const std::vector<std::string> sound = seeds(file);
  for (const char* end : {"", "-journal", "-wal", "-shm"}) fs::remove(file.string() + end);
  const std::size_t which = static_cast<unsigned char>(input.front()) % (kSeeds.size() + 1);
  const std::string_view rest = input.substr(1);
  std::ofstream(file, std::ios::binary)
      << (which == 0 ? std::string(rest) : spoilt(sound[which - 1], rest));
}

}  // namespace
}  // namespace gsm

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const gsm::TemporaryFolder folder;
  if (size == 0) return 0;
  const auto file = folder.path() / "phonebook.mdb";
  gsm::lay(file, {reinterpret_cast<const char*>(data), size});
  gsm::use(file);
  return 0;
}
