// What happens when the disk, its rights or another program are in the way.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "platform/sqlite/phone_book_file.h"
#include "tests/platform/sqlite/book_fixture.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

// Whether `check` holds in a process of its own.
bool holdsInChild(const std::function<bool()>& check) {
  const pid_t child = fork();
  if (child == 0) {
    bool held = false;
    try {
      held = check();
    } catch (...) {}
    _exit(held ? 0 : 1);
  }
  int status = -1;
  waitpid(child, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

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
  const auto set = entries();
  const auto other = open();
  other->Execute("begin exclusive");
  const Failed reading = failureOf([&] { set->field("Name"); });
  EXPECT_EQ(reading.number, 3218);
  EXPECT_EQ(reading.description, "Couldn't update; currently locked: database is locked");
  EXPECT_EQ(failureOf([&] { addTo(*set, "Bert"); }).number, 3218);
  EXPECT_EQ(failureOf([&] { open(); }).number, 3218);
  other->Execute("commit");
  set->Update();  // the row that could not be stored is still there to be
  EXPECT_EQ(stored(), (std::vector<std::string>{"Anna", "Bert"}));
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
