// What happens when the disk, its rights or another program are in the way.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

#include "platform/sqlite/connection.h"
#include "platform/sqlite/phone_book_file.h"
#include "tests/platform/sqlite/book_fixture.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

// Without the rights of root, for as long as it lives: root may read and write all files.
class WithoutPrivileges {
 public:
  WithoutPrivileges() : changed_(geteuid() == 0 && seteuid(65534) == 0) {}
  ~WithoutPrivileges() {
    if (changed_ && seteuid(0) != 0) ADD_FAILURE() << "root no more";
  }
  WithoutPrivileges(const WithoutPrivileges&) = delete;
  WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;

 private:
  const bool changed_;
};

// As on a full disk, no file can grow beyond so many bytes from here on.
void allowFilesOf(rlim_t size) {
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit limit{size, size};
  setrlimit(RLIMIT_FSIZE, &limit);
}

class StorageFailure : public BookTest {
 protected:
  // Rights of the file for everybody, in a folder that everybody may enter.
  void allow(fs::perms rights) const {
    fs::permissions(folder_.path(), static_cast<fs::perms>(0711));
    fs::permissions(file_, rights);
  }
  static void addTo(RecordSet& set, const std::string& name) {
    set.AddNew();
    set.setField("Name", name);
    set.Update();
  }
};

TEST_F(StorageFailure, AnotherProcessSeesEachUpdateAtOnce) {
  const auto set = entries();
  addTo(*set, "Anna");
  EXPECT_TRUE(holdsInChild([this] { return stored() == std::vector<std::string>{"Anna"}; }));
  set->Edit();
  set->setField("Name", "Bert");
  set->Update();
  EXPECT_TRUE(holdsInChild([this] { return stored() == std::vector<std::string>{"Bert"}; }));
  set->Delete();
  EXPECT_TRUE(holdsInChild([this] { return stored().empty(); }));
}

TEST_F(StorageFailure, AnUpdateOutlivesTheSuddenEndOfItsProcess) {
  holdsInChild([this]() -> bool {
    const auto set = open()->openRecordSet("DATA");
    addTo(*set, "Anna");
    set->AddNew();
    set->setField("Name", "never stored");
    std::raise(SIGKILL);
    return true;
  });
  EXPECT_EQ(stored(), std::vector<std::string>{"Anna"});
}

TEST_F(StorageFailure, ALockedFileIsAFailureUntilItIsFree) {
  add({"Anna"});
  const auto set = SqliteEngine(kAtOnce).OpenDatabase(file_)->openRecordSet("DATA");
  const auto other = open();
  other->Execute("begin exclusive");
  const Failed reading = failureOf([&] { set->field("Name"); });
  EXPECT_EQ(reading.number, 3218);
  EXPECT_EQ(reading.description, "Couldn't update; currently locked: database is locked");
  EXPECT_EQ(failureOf([&] { addTo(*set, "Bert"); }).number, 3218);
  EXPECT_EQ(failureOf([&] { SqliteEngine(kAtOnce).OpenDatabase(file_); }).number, 3218);
  other->Execute("commit");
  set->Update();  // the row that could not be stored is still there to be
  EXPECT_EQ(stored(), (std::vector<std::string>{"Anna", "Bert"}));
}

// Another process changes the file, and lets it go only a moment after this one has come to it.
TEST_F(StorageFailure, AChangeWaitsForAnotherProgramThatHoldsTheFile) {
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe(ends.data()), 0);
  book_.reset();
  const pid_t child = fork();
  if (child == 0) {
    const auto other = open();
    other->Execute("begin exclusive");
    const bool told = write(ends[1], "x", 1) == 1;
    usleep(50'000);
    other->Execute("commit");
    _exit(told ? 0 : 1);
  }
  char held = 0;
  ASSERT_EQ(read(ends[0], &held, 1), 1);
  EXPECT_EQ(failureOf([this] {
              addTo(
                  *SqliteEngine(std::chrono::minutes(1)).OpenDatabase(file_)->openRecordSet("DATA"),
                  "Anna");
            }).description,
            "");
  waitpid(child, nullptr, 0);
  close(ends[0]);
  close(ends[1]);
  EXPECT_EQ(stored(), std::vector<std::string>{"Anna"});
}

TEST_F(StorageFailure, EveryConnectionWaitsASecondForOthers) {
  const Connection connection(file_);
  Statement query(connection, "PRAGMA busy_timeout");
  ASSERT_TRUE(query.step());
  EXPECT_EQ(query.number(0), 1000);
}

TEST_F(StorageFailure, WantOfMemoryIsAFailureLikeAnyOther) {
  add({"Anna"});
  EXPECT_TRUE(holdsInChild([this] {
    const auto set = entries();
    sqlite3_hard_heap_limit64(sqlite3_memory_used() + 100);
    const int opening = failureOf([this] { open(); }).number;
    const int reading = failureOf([&] { set->FindFirst("Name='Anna'"); }).number;
    return opening == 7 && reading == 7;
  }));
}

TEST_F(StorageFailure, AReadOnlyFileCanBeReadAndNotChanged) {
  add({"Anna"});
  allow(static_cast<fs::perms>(0444));
  const WithoutPrivileges plain;
  if (geteuid() == 0) GTEST_SKIP() << "root may write all files";
  const auto set = open()->openRecordSet("DATA");
  EXPECT_EQ(set->field("Name"), "Anna");
  const Failed failed = failureOf([&] { addTo(*set, "Bert"); });
  EXPECT_EQ(failed.number, 3027);
  EXPECT_EQ(failed.description, "Can't update. Database or object is read-only.");
  EXPECT_EQ(failureOf([&] { set->Delete(); }).number, 3027);
  EXPECT_EQ(stored(), std::vector<std::string>{"Anna"});
}

TEST_F(StorageFailure, AFileThatMayNotBeReadIsAFailure) {
  allow(fs::perms::none);
  const WithoutPrivileges plain;
  if (geteuid() == 0) GTEST_SKIP() << "root may read all files";
  const Failed failed = failureOf([&] { open(); });
  EXPECT_EQ(failed.number, 3051);
  EXPECT_EQ(failed.description, "Couldn't open the database: unable to open database file");
}

TEST_F(StorageFailure, AFullDiskIsAFailureAndWhatWasStoredStays) {
  add({"Anna"});
  const auto size = fs::file_size(file_);
  EXPECT_TRUE(holdsInChild([this, size] {
    allowFilesOf(size);
    const auto set = open()->openRecordSet("DATA");
    return !failureOf([&] { addTo(*set, std::string(50'000, 'x')); }).description.empty() &&
           stored() == std::vector<std::string>{"Anna"};
  }));
  EXPECT_EQ(stored(), std::vector<std::string>{"Anna"});
}

TEST_F(StorageFailure, ABookThatCannotBeMadeWholeIsNotThere) {
  const fs::path other = folder_.path() / "other.mdb";
  EXPECT_TRUE(holdsInChild([&other] {
    allowFilesOf(6000);
    return failureOf([&] { createPhoneBook(other); }).number != 0;
  }));
  EXPECT_FALSE(fs::exists(other));
}

}  // namespace
}  // namespace gsm
