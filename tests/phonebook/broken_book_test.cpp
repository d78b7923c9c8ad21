#include <gtest/gtest.h>

#include <fstream>
#include <functional>

#include "panel/form1.h"
#include "phonebook/form3.h"
#include "phonebook/form4.h"
#include "tests/phonebook/download_test.h"
#include "tests/phonebook/failing_database.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

using File = std::filesystem::path;

const std::string kKnownRing = unsolicited("RING") + unsolicited("+CLIP: \"112\",129");
const std::string kKnownWaiting = unsolicited("+CCWA: \"112\",129,1");
const std::string kEchoedCounts = "AT+CPBS?\r" + information("+CPBS: \"SM\",1,100");

class DamagedBook : public DownloadTest {
 protected:
  void execute(const std::string& statement) {
    SqliteEngine().OpenDatabase(bookFile())->Execute(statement);
  }
  /// Nothing was shown, and the program answers a call as ever once it has a book.
  void expectAlive() {
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_FALSE(ended());
    EXPECT_EQ(waiting(), 0);
    clearTranscript();
    route(unsolicited("RING"));
    EXPECT_TRUE(polls());
  }
};

struct DamageRow {
  std::string name;
  std::function<void(const File&)> damage;
};

void replaceBy(const File& file, const std::string& bytes) {
  std::ofstream(file, std::ios::binary) << bytes;
}

void changeBy(const File& file, const std::string& statement) {
  SqliteEngine().OpenDatabase(file)->Execute(statement);
}

// Files in which no entry can be found.
class UselessBook : public DamagedBook, public ::testing::WithParamInterface<DamageRow> {
 protected:
  void SetUp() override {
    DamagedBook::SetUp();
    layEntries({{"1", "112", "HELP"}});
    layCounts("100", "1");
  }
};

TEST_P(UselessBook, LetsTheCallWindowOpenEmpty) {
  GetParam().damage(bookFile());
  openCalls();
  EXPECT_TRUE(calls().Visible.peek());
  EXPECT_EQ(rows(), Texts{});
  EXPECT_EQ(used() + total(), "");
  click(calls().Image[5]);
  settle();
  EXPECT_EQ(dialBox(), "5");
  expectAlive();
}

TEST_P(UselessBook, EndsADownloadSilently) {
  openCalls();
  inPanel([this] { calls().Hide(); });
  run(0);
  GetParam().damage(bookFile());
  receive(kEchoedCounts);
  settle();
  EXPECT_EQ(statusLine(), kSaving);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_FALSE(calls().Visible.peek());
  EXPECT_EQ(transcript(), kEchoedCounts);
  expectAlive();
}

TEST_P(UselessBook, OpensNoPromptAndKeepsTheRing) {
  openCalls();
  GetParam().damage(bookFile());
  for (const std::string& line : {kKnownRing, kKnownWaiting}) {
    route(line);
    EXPECT_FALSE(promptUp());
    EXPECT_FALSE(polls());
    EXPECT_EQ(transcript(), line);
    clearTranscript();
  }
  expectAlive();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, UselessBook,
    ::testing::Values(DamageRow{"NoFile", [](const File& file) { std::filesystem::remove(file); }},
                      DamageRow{"AFolder",
                                [](const File& file) {
                                  std::filesystem::remove(file);
                                  std::filesystem::create_directory(file);
                                }},
                      DamageRow{"AnEmptyFile", [](const File& file) { replaceBy(file, ""); }},
                      DamageRow{"NoDatabase",
                                [](const File& file) { replaceBy(file, std::string(4096, 'x')); }},
                      DamageRow{"AnOldMachinesFile",
                                [](const File& file) {
                                  using namespace std::string_literals;
                                  replaceBy(file,
                                            "\0\1\0\0Standard Jet DB\0"s + std::string(4096, '\0'));
                                }},
                      DamageRow{"NoTables",
                                [](const File& file) {
                                  changeBy(file, "drop table DATA");
                                  changeBy(file, "drop table Details");
                                }},
                      DamageRow{"TablesWithOtherColumns",
                                [](const File& file) {
                                  changeBy(file, "drop table DATA");
                                  changeBy(file, "drop table Details");
                                  changeBy(file, "create table DATA (Place text, Phone text)");
                                  changeBy(file, "create table Details (Total text, Used text)");
                                  changeBy(file, "insert into DATA values ('1','112')");
                                  changeBy(file, "insert into Details values ('100','1')");
                                }}),
    RowName());

// A file that another program holds: for itself alone, or for its own changes only.
class HeldBook : public DamagedBook {
 protected:
  void SetUp() override {
    useDatabase(std::make_shared<SqliteEngine>(/*patience=*/std::chrono::milliseconds(0)));
    DamagedBook::SetUp();
    layEntries({{"1", "112", "HELP"}});
    layCounts("100", "1");
  }
  void hold(const std::string& how) {
    other_ = SqliteEngine().OpenDatabase(bookFile());
    other_->Execute("begin " + how);
  }
  void release() { other_->Execute("commit"); }

  std::shared_ptr<Database> other_;
};

TEST_F(HeldBook, ForAnotherAloneOpensEmptyAndIsThereWhenItIsFree) {
  hold("exclusive");
  openCalls();
  EXPECT_TRUE(calls().Visible.peek());
  EXPECT_EQ(rows(), Texts{});
  EXPECT_EQ(sent(), Texts{});
  release();
  inPanel([this] { calls().userClose(); });
  settle();
  openCalls();
  EXPECT_EQ(rows(), Texts{"1  112                 HELP"});
  expectAlive();
}

TEST_F(HeldBook, ForAnotherAloneOpensThePromptAtTheNextRing) {
  hold("exclusive");
  route(kKnownRing);
  EXPECT_FALSE(promptUp());
  EXPECT_FALSE(polls());
  EXPECT_EQ(transcript(), kKnownRing);
  release();
  route(kKnownRing);
  EXPECT_EQ(caller(), "Call Received From  HELP");
  EXPECT_TRUE(polls());
  EXPECT_EQ(transcript(), "");
}

TEST_F(HeldBook, ForAnothersChangesStillNamesACaller) {
  hold("immediate");
  openCalls();
  EXPECT_EQ(rows(), Texts{"1  112                 HELP"});
  route(kKnownRing);
  EXPECT_EQ(caller(), "Call Received From  HELP");
  EXPECT_TRUE(polls());
}

class HeldBookOf : public HeldBook, public ::testing::WithParamInterface<const char*> {};

TEST_P(HeldBookOf, AnotherIsNotEmptiedByADownload) {
  openCalls();
  hold(GetParam());
  inPanel([this] { calls().Hide(); });
  receive(kEchoedCounts);
  settle();
  EXPECT_EQ(statusLine(), kSaving);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(transcript(), kEchoedCounts);
  EXPECT_FALSE(calls().Visible.peek());
  release();
  EXPECT_EQ(storedEntries(), (BookRows{{"1", "112", "HELP"}}));
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "1"}}));
  expectAlive();
}

TEST_P(HeldBookOf, AnotherGetsAnAddedEntryIntoTheListAndTheCountOnly) {
  openCalls();
  click(calls().Command2);
  panel().form4.Text3.Text = "113";
  panel().form4.Text4.Text = "Al";
  hold(GetParam());
  click(panel().form4.Command1);
  settle();
  EXPECT_EQ(sent(), Texts{"AT+CPBW=2,113,,\" Al\"\r"});
  EXPECT_EQ(rows().back(), "2  113                 AL");
  EXPECT_EQ(used(), "2");
  EXPECT_EQ(callStatus(), "");
  EXPECT_TRUE(calls().Visible.peek());
  EXPECT_TRUE(panel().form4.Visible.peek());
  release();
  EXPECT_EQ(storedEntries(), (BookRows{{"1", "112", "HELP"}}));
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "1"}}));
  expectAlive();
}

TEST_P(HeldBookOf, AnotherKeepsADeletedEntry) {
  openCalls();
  reply("AT+CPBW=1", kOk);
  select(0);
  hold(GetParam());
  click(calls().Command3);
  settle();
  EXPECT_EQ(callStatus(), "Number Deleted");
  EXPECT_EQ(rows(), Texts{});
  EXPECT_EQ(used(), "0");
  EXPECT_EQ(dialBox(), "112");
  release();
  EXPECT_EQ(storedEntries(), (BookRows{{"1", "112", "HELP"}}));
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "1"}}));
  expectAlive();
}

std::string heldAs(const ::testing::TestParamInfo<const char*>& row) { return row.param; }

INSTANTIATE_TEST_SUITE_P(Rows, HeldBookOf, ::testing::Values("exclusive", "immediate"), heldAs);

// A table that can be read and takes no change of some kind, as a file without the right to write.
struct RefusalRow {
  std::string name;
  std::string change;  // what is refused, of which table
};

class RefusingBook : public DamagedBook, public ::testing::WithParamInterface<RefusalRow> {
 protected:
  void SetUp() override {
    useDatabase(engine_);
    DamagedBook::SetUp();
  }

  const std::shared_ptr<FailingEngine> engine_ = std::make_shared<FailingEngine>();
};

TEST_P(RefusingBook, LetsEveryHandlerEndSilently) {
  layEntries({{"1", "112", "HELP"}, {"2", "113", "MORE"}});
  layCounts("100", "2");
  openCalls();
  engine_->refuse(GetParam().change);
  reply("AT+CPBW=2", kOk);
  select(1);
  click(calls().Command3);
  settle();
  click(calls().Command2);
  panel().form4.Text3.Text = "119";
  panel().form4.Text4.Text = "new";
  click(panel().form4.Command1);
  settle();
  route(kKnownRing);
  EXPECT_TRUE(promptUp());
  answerCounts("2,100");
  answerEntry(1, "0146290801", "One");
  answerEntry(2, "0146290802", "Two");
  inPanel([this] { calls().Show(); });
  run(0);
  click(calls().Command5);
  settle();
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
  form1().Timer2.Enabled = false;
  settle();
  EXPECT_TRUE(engine_->hasRefused());
  engine_->refuse("");
  clearTranscript();
  click(calls().Command5);
  settle();
  EXPECT_EQ(storedEntries(), (BookRows{{"1", "0146290801", "One"}, {"2", "0146290802", "Two"}}));
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "2"}}));
}

INSTANTIATE_TEST_SUITE_P(Rows, RefusingBook,
                         ::testing::Values(RefusalRow{"OfEntriesAdded", "insert on DATA"},
                                           RefusalRow{"OfEntriesDeleted", "delete on DATA"},
                                           RefusalRow{"OfCountsAdded", "insert on Details"},
                                           RefusalRow{"OfCountsChanged", "update on Details"},
                                           RefusalRow{"OfCountsDeleted", "delete on Details"}),
                         RowName());

}  // namespace
}  // namespace gsm
