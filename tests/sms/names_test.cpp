#include <gtest/gtest.h>

#include "panel/form1.h"
#include "tests/phonebook/failing_database.h"
#include "tests/sms/message_window_test.h"
#include "tests/support/platform_fixture.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

constexpr const char* kCentreReply = "\r\n+CSCA: \"+33609001390\",145\r\n\r\nOK\r\n";

class Names : public MessageWindowTest {
 protected:
  void list() { press(window().Command6); }
  bool centreUp() {
    EXPECT_EQ(window().Label3.Visible.peek(), window().Text4.Visible.peek());
    return window().Text4.Visible.peek();
  }
  std::string source() { return window().Data1.RecordSource; }
};

TEST_F(Names, AreListedInTheBooksOrderAndTheServiceCentreIsAskedFor) {
  stopSendEvents();
  layEntries({{"2", "0146290800", "ALICE"}, {"1", "112", "Help"}, {"7", "5", ""}});
  leaveInTranscript("old");
  EXPECT_TRUE(window().List1.Visible.peek());
  EXPECT_FALSE(centreUp());
  click(window().Command6);
  EXPECT_EQ(names(), (Texts{"ALICE", "Help", ""}));
  EXPECT_EQ(sent(), Texts{"AT+CSCA?\r"});
  EXPECT_EQ(transcript(), "");
  run(0.99);
  EXPECT_FALSE(centreUp());
  run(0.02);
  EXPECT_TRUE(centreUp());
  EXPECT_EQ(centre() + note(), "");
  expectAtRest();
}

TEST_F(Names, StandBesideTheServiceCentreThatTheModemReports) {
  layEntries({{"1", "112", "HELP"}});
  window().Label4.Caption = "before";
  reply("AT+CSCA?", kCentreReply);
  list();
  EXPECT_EQ(centre(), "+33609001390");
  EXPECT_EQ(note(), "");
  EXPECT_TRUE(centreUp());
  EXPECT_EQ(transcript(), "");
}

TEST_F(Names, StandBesideAnUnknownServiceCentreToo) {
  layEntries({{"1", "112", "HELP"}});
  reply("AT+CSCA?", kError);
  list();
  EXPECT_EQ(centre(), "");
  EXPECT_EQ(note(), "Service Center Unknown");
  EXPECT_TRUE(centreUp());
}

TEST_F(Names, TheServiceCentreStaysOnViewOnceItWas) {
  layEntries({{"1", "112", "HELP"}});
  list();
  closePort();
  list();
  EXPECT_TRUE(centreUp());
}

TEST_F(Names, OfAnEmptyBookAreMissedInABoxAndTheListGoes) {
  window().List1.AddItem("before");
  leaveInTranscript("old");
  machine().boxes.setAnswer(HeadlessBoxes::Answer::hold);
  click(window().Command6);
  EXPECT_TRUE(window().List1.Visible.peek());
  machine().boxes.answerTop();
  settle();
  expectBox("Empty !No Numbers Stored");
  EXPECT_FALSE(window().List1.Visible.peek());
  EXPECT_EQ(names(), Texts{"before"});
  EXPECT_FALSE(centreUp());
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(transcript(), "old");
}

TEST_F(Names, ComeBackWithTheListWhenTheBookIsFilled) {
  list();
  boxes();
  layEntries({{"1", "112", "HELP"}});
  list();
  EXPECT_TRUE(window().List1.Visible.peek());
  EXPECT_EQ(names(), Texts{"HELP"});
}

TEST_F(Names, AreListedAnewEachTime) {
  layEntries({{"1", "112", "HELP"}});
  list();
  layEntries({{"2", "113", "MORE"}});
  list();
  EXPECT_EQ(names(), (Texts{"HELP", "MORE"}));
  choose(window().List1, "MORE");
  list();
  EXPECT_EQ(names(), (Texts{"HELP", "MORE"}));
  EXPECT_EQ(window().List1.ListIndex.peek(), -1);
}

TEST_F(Names, AreReadFromTheSourceThatTheRefreshOpened) {
  layEntries({{"1", "112", "HELP"}});
  EXPECT_EQ(source(), "DATA");
  list();
  EXPECT_EQ(source(), "select name from data");
  // Opened before the source was set, so there is more in it than the names.
  inPanel([this] {
    RecordSet& entries = window().Data1.Recordset();
    entries.MoveFirst();
    EXPECT_EQ(entries.field("number"), "112");
  });
  run(0);
  list();
  inPanel([this] {
    RecordSet& entries = window().Data1.Recordset();
    entries.MoveFirst();
    EXPECT_EQ(entries.field("name"), "HELP");
    EXPECT_NE(failureOf([&] { entries.field("number"); }), 0);
  });
  run(0);
}

TEST_F(Names, WithoutABookChangeNothing) {
  removeBook();
  window().List1.AddItem("before");
  leaveInTranscript("old");
  list();
  EXPECT_EQ(names(), Texts{"before"});
  EXPECT_EQ(source(), "DATA");
  EXPECT_EQ(transcript(), "old");
  EXPECT_FALSE(centreUp());
  EXPECT_EQ(sent(), Texts{});
  expectAtRest();
}

// Picking a name.
class PickName : public Names {
 protected:
  void pick(const std::string& name) {
    choose(window().List1, name);
    settle();
  }
};

TEST_F(PickName, FillsInItsNumber) {
  layEntries({{"1", "112", "HELP"}, {"2", "+33146290800", "Alice"}});
  list();
  sent();
  compose("999", "text", "header");
  leaveInTranscript("old");
  pick("Alice");
  EXPECT_EQ(number(), "+33146290800");
  EXPECT_EQ(message() + header(), "textheader");
  EXPECT_EQ(source(), "select * from data");
  EXPECT_EQ(transcript(), "old");
  EXPECT_EQ(sent(), Texts{});
  pick("HELP");
  EXPECT_EQ(number(), "112");
  expectAtRest();
}

TEST_F(PickName, TakesTheNumberAsItStandsInTheBookByThen) {
  layEntries({{"1", "112", "HELP"}});
  list();
  {
    const auto book = SqliteEngine().OpenDatabase(bookFile());
    const auto entries = book->openRecordSet("DATA");
    entries->MoveFirst();
    entries->Edit();
    entries->setField("Number", "113");
    entries->Update();
  }
  pick("HELP");
  EXPECT_EQ(number(), "113");
}

// Twice listed, the open record set holds the names alone.
TEST_F(PickName, ReadsMoreThanTheNamesThatWereListed) {
  layEntries({{"1", "112", "HELP"}});
  list();
  list();
  pick("HELP");
  EXPECT_EQ(number(), "112");
}

TEST_F(PickName, OfAnEntryThatHasGoneChangesNothing) {
  layEntries({{"1", "112", "HELP"}, {"2", "113", "MORE"}});
  list();
  {
    const auto book = SqliteEngine().OpenDatabase(bookFile());
    const auto entries = book->openRecordSet("DATA");
    entries->MoveFirst();
    entries->Delete();
  }
  window().Text1.Text = "999";
  pick("HELP");
  EXPECT_EQ(number(), "999");
  expectAtRest();
}

TEST_F(PickName, WithoutABookChangesNothing) {
  layEntries({{"1", "112", "HELP"}});
  list();
  removeBook();
  window().Text1.Text = "999";
  pick("HELP");
  EXPECT_EQ(number(), "999");
  EXPECT_EQ(source(), "select * from data");
  expectAtRest();
}

struct NameRow {
  std::string name;
  BookRows book;
  std::string pick;
  std::string number;
};

class PickNames : public PickName, public ::testing::WithParamInterface<NameRow> {};

TEST_P(PickNames, FindTheFirstEntryOfTheName) {
  layEntries(GetParam().book);
  list();
  window().Text1.Text = "999";
  pick(GetParam().pick);
  EXPECT_EQ(number(), GetParam().number);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PickNames,
    ::testing::Values(
        NameRow{"OfTwoAlike", {{"1", "112", "Al"}, {"2", "113", "Al"}}, "Al", "112"},
        NameRow{"InAnotherCase", {{"1", "112", "AL"}, {"2", "113", "al"}}, "al", "112"},
        NameRow{"WithBlanksBehind", {{"1", "112", "Al  "}}, "Al  ", "112"},
        NameRow{"WithBlanksBefore", {{"1", "112", "Al"}, {"2", "113", " Al"}}, " Al", "113"},
        NameRow{"WithAnApostrophe", {{"1", "112", "O'Neil"}}, "O'Neil", "999"},
        NameRow{"WithAQuote", {{"1", "112", "\"Al\""}}, "\"Al\"", "112"},
        NameRow{"WithoutLetters", {{"1", "112", ""}}, "", "999"},
        NameRow{"WithAccents", {{"1", "112", "Ren\xE9"}}, "Ren\xE9", "112"},
        NameRow{"WithoutANumber", {{"1", "", "Al"}}, "Al", ""}),
    RowName());

// The book on a disk that fails.
class NamesOnAFailingDisk : public Names {
 protected:
  void SetUp() override {
    useDatabase(engine_);
    Names::SetUp();
    layEntries({{"1", "112", "HELP"}, {"2", "113", "MORE"}});
  }

  std::shared_ptr<FailingEngine> engine_ = std::make_shared<FailingEngine>();
};

TEST_F(NamesOnAFailingDisk, AreSearchedForInTheSpellingOfTheWindow) {
  list();
  engine_->takeCriteria();
  choose(window().List1, "MORE");
  settle();
  EXPECT_EQ(engine_->takeCriteria(), Texts{"name = 'MORE ' "});
}

TEST_F(NamesOnAFailingDisk, AreListedUpToTheFailure) {
  engine_->failAt(0);
  list();
  const int operations = engine_->done();
  for (int failing = 1; failing <= operations; ++failing) {
    close();
    open();
    engine_->failAt(failing);
    list();
    EXPECT_TRUE(engine_->hasFailed());
    EXPECT_LE(names().size(), 2U);
    EXPECT_FALSE(centreUp()) << failing;
    EXPECT_EQ(sent(), Texts{});
    expectAtRest();
  }
}

TEST_F(NamesOnAFailingDisk, ArePickedOrLeaveTheNumber) {
  list();
  engine_->failAt(0);
  choose(window().List1, "MORE");
  settle();
  const int operations = engine_->done();
  for (int failing = 1; failing <= operations; ++failing) {
    window().Text1.Text = "999";
    engine_->failAt(failing);
    choose(window().List1, "MORE");
    settle();
    EXPECT_TRUE(engine_->hasFailed());
    EXPECT_EQ(number(), "999") << failing;
    expectAtRest();
  }
}

}  // namespace
}  // namespace gsm
