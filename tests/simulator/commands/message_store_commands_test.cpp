#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

// The messages in the modem's memories, in the words of a host.
namespace gsm::simulator {
namespace {

class MessageStoreCommands : public testing::Test {
 protected:
  MessageStoreCommands() { bench_.ask("AT+CMGF=1;+CMEE=1"); }

  Bench bench_{
      {.messages = {
           {1, {MessageStatus::kReceivedRead, "+33639981201", "26/01/12,09:41:07+04", "Dinner?"}},
           {2, {MessageStatus::kReceivedUnread, "0146290800", "98/10/01,18:22:11+00", "ABCdefGHI"}},
           {4, {MessageStatus::kStoredUnsent, "+33146290800", "", "Draft"}},
           {5, {MessageStatus::kStoredSent, "0123", "", "Gone"}}}}};
};

constexpr const char* kUnread =
    "+CMGR: \"REC UNREAD\",\"0146290800\",,\"98/10/01,18:22:11+00\"\r\nABCdefGHI";
constexpr const char* kRead =
    "+CMGR: \"REC READ\",\"0146290800\",,\"98/10/01,18:22:11+00\"\r\nABCdefGHI";

TEST_F(MessageStoreCommands, ReadReportsAReceivedMessageByteForByteAndMarksIt) {
  EXPECT_EQ(bench_.write("AT+CMGR= 2\r"), std::string("AT+CMGR= 2\r") + withOk(kUnread));
  EXPECT_EQ(bench_.ask("AT+CMGR=2"), withOk(kRead));
  ASSERT_EQ(bench_.messages.size(), 1u);
  EXPECT_NE(bench_.messages[0].find("2\tREC READ\t0146290800\t"), std::string::npos);
}

TEST_F(MessageStoreCommands, ReadReportsAStoredMessageWithoutATime) {
  EXPECT_EQ(bench_.ask("AT+CMGR= 4"), withOk("+CMGR: \"STO UNSENT\",\"+33146290800\",\r\nDraft"));
  EXPECT_EQ(bench_.ask("AT+CMGR= 5"), withOk("+CMGR: \"STO SENT\",\"0123\",\r\nGone"));
  EXPECT_TRUE(bench_.messages.empty());
}

TEST_F(MessageStoreCommands, HoleHasNothingToTell) {
  EXPECT_EQ(bench_.ask("AT+CMGR= 3"), kOk);
  EXPECT_EQ(bench_.ask("AT+CMGR= 20"), kOk);
}

TEST_F(MessageStoreCommands, BadReadsAreErrors) {
  const std::pair<const char*, std::string> kBad[] = {{"AT+CMGR= ", kError},
                                                      {"AT+CMGR=", kError},
                                                      {"AT+CMGR=x", kError},
                                                      {"AT+CMGR=1,2", kError},
                                                      {"AT+CMGR", kError},
                                                      {"AT+CMGR=0", cmsError(321)},
                                                      {"AT+CMGR=21", cmsError(321)},
                                                      {"AT+CMGD=", kError},
                                                      {"AT+CMGD=x", kError},
                                                      {"AT+CMGD=1,x", kError},
                                                      {"AT+CMGD=1,1,1", kError},
                                                      {"AT+CMGD=0", cmsError(321)},
                                                      {"AT+CMGD=21", cmsError(321)},
                                                      {"AT+CMGD=1,5", cmsError(321)},
                                                      {"AT+CMGL=\"NEW\"", cmsError(305)},
                                                      {"AT+CMGL=\"ALL\",1", cmsError(305)}};
  for (const auto& [command, answer] : kBad) EXPECT_EQ(bench_.ask(command), answer) << command;
  EXPECT_EQ(bench_.ask("AT+CMGR=?;+CMGD=?"), withOk("+CMGD: (1-20),(0-4)"));
  EXPECT_TRUE(bench_.messages.empty());
}

TEST_F(MessageStoreCommands, ErrorsHaveTheirCodesOnlyWhenAskedFor) {
  bench_.ask("AT+CMEE=0");
  EXPECT_EQ(bench_.ask("AT+CMGR=21"), kError);
}

struct CardTrouble {
  const char* sim;
  int number;
};

TEST_F(MessageStoreCommands, NeedTheCard) {
  constexpr CardTrouble kTroubles[] = {
      {"pin", 311}, {"puk", 316}, {"failed", 313}, {"blocked", 313}, {"out", 310}};
  for (const auto& [sim, number] : kTroubles) {
    Bench bench;
    bench.ask("AT+CMGF=1;+CMEE=1");
    bench.modem.console(std::string("sim ") + sim);
    bench.listen();
    for (const char* command : {"AT+CMGR=1", "AT+CMGD=1", "AT+CMGL", "AT+CPMS?", "AT+CPMS=\"SM\"",
                                "AT+CSCA?", "AT+CSCA=\"1\"", "AT+CMGS=1", "AT+CMGW=1"}) {
      EXPECT_EQ(bench.ask(command), cmsError(number)) << sim << " " << command;
    }
  }
}

TEST_F(MessageStoreCommands, DeleteLeavesAHoleAndDoesntMindOne) {
  EXPECT_EQ(bench_.ask("AT+CMGD=2"), kOk);
  EXPECT_EQ(bench_.ask("AT+CMGR=2"), kOk);
  EXPECT_EQ(bench_.ask("AT+CMGD=2"), kOk);
  EXPECT_EQ(bench_.ask("AT+CPMS?"), withOk("+CPMS: \"SM\",3,20,\"SM\",3,20"));
}

struct Deletion {
  const char* command;
  const char* left;  // the status words of those that stay
};

class MessageDeletions : public MessageStoreCommands,
                         public testing::WithParamInterface<Deletion> {};

TEST_P(MessageDeletions, TakeAllOfAKind) {
  EXPECT_EQ(bench_.ask(GetParam().command), kOk);
  std::string left;
  for (const char* status : {"REC READ", "REC UNREAD", "STO UNSENT", "STO SENT"}) {
    const std::string list = bench_.ask("AT+CMGL=\"" + std::string(status) + "\"");
    if (list.find("+CMGL:") != std::string::npos) left += std::string(status) + ".";
  }
  EXPECT_EQ(left, GetParam().left);
}

INSTANTIATE_TEST_SUITE_P(All, MessageDeletions,
                         testing::Values(Deletion{"AT+CMGD=5,0", "REC READ.REC UNREAD.STO UNSENT."},
                                         Deletion{"AT+CMGD=5,1", "REC UNREAD.STO UNSENT.STO SENT."},
                                         Deletion{"AT+CMGD=1,2", "REC UNREAD.STO UNSENT."},
                                         Deletion{"AT+CMGD=1,3", "REC UNREAD."},
                                         Deletion{"AT+CMGD=1,4", ""}));

TEST_F(MessageStoreCommands, ChangeThatCantBeKeptDoesntHappen) {
  bench_.messagesFit = false;
  EXPECT_EQ(bench_.ask("AT+CMGD=1"), cmsError(320));
  EXPECT_EQ(bench_.ask("AT+CMGR=2"), withOk(kUnread));
  EXPECT_EQ(bench_.ask("AT+CMGR=2"), withOk(kUnread)) << "it couldn't be marked";
  EXPECT_EQ(bench_.ask("AT+CMGD=1,4"), cmsError(320));
  EXPECT_EQ(bench_.ask("AT+CPMS?"), withOk("+CPMS: \"SM\",4,20,\"SM\",4,20"));
}

TEST_F(MessageStoreCommands, ListReportsAllOrThoseOfAStatus) {
  EXPECT_EQ(bench_.ask("AT+CMGL=\"ALL\"", seconds(2)),
            withOk("+CMGL: 1,\"REC READ\",\"+33639981201\",,\"26/01/12,09:41:07+04\"\r\nDinner?\r\n"
                   "+CMGL: 2,\"REC UNREAD\",\"0146290800\",,\"98/10/01,18:22:11+00\"\r\nABCdefGHI\r"
                   "\n+CMGL: 4,\"STO UNSENT\",\"+33146290800\",,\r\nDraft\r\n"
                   "+CMGL: 5,\"STO SENT\",\"0123\",,\r\nGone"));
  EXPECT_EQ(bench_.ask("AT+CMGL=\"STO SENT\""), withOk("+CMGL: 5,\"STO SENT\",\"0123\",,\r\nGone"));
  EXPECT_EQ(bench_.ask("AT+CMGL=\"REC UNREAD\""), kOk) << "the first list has read it";
  EXPECT_EQ(bench_.ask("AT+CMGL=?"), withOk("+CMGL: (\"REC UNREAD\",\"REC READ\",\"STO UNSENT\","
                                            "\"STO SENT\",\"ALL\")"));
}

TEST_F(MessageStoreCommands, ListWithoutAStatusSaysWhatIsNewOnce) {
  EXPECT_EQ(bench_.ask("AT+CMGL"), withOk("+CMGL: 2,\"REC UNREAD\",\"0146290800\",,"
                                          "\"98/10/01,18:22:11+00\"\r\nABCdefGHI"));
  EXPECT_EQ(bench_.ask("AT+CMGL"), kOk);
  EXPECT_EQ(bench_.ask("AT+CMGR=2"), withOk(kRead));
}

TEST_F(MessageStoreCommands, MemoriesAreThreeToReadAndOneToWriteTo) {
  EXPECT_EQ(bench_.ask("AT+CPMS=?"), withOk("+CPMS: ((\"SM\",\"BM\",\"SR\"),(\"SM\"))"));
  EXPECT_EQ(bench_.ask("AT+CPMS=\"SM\",\"SM\""), withOk("+CPMS: 4,20,4,20"));
  EXPECT_EQ(bench_.ask("AT+CPMS=\"SM\",\"SM\",\"SR\""), kError);
  EXPECT_EQ(bench_.ask("AT+CPMS=\"BM\""), withOk("+CPMS: 0,5,4,20"));
  EXPECT_EQ(bench_.ask("AT+CPMS?"), withOk("+CPMS: \"BM\",0,5,\"SM\",4,20"));
  EXPECT_EQ(bench_.ask("AT+CMGR=6"), cmsError(321));
  EXPECT_EQ(bench_.ask("AT+CPMS=\"ME\""), cmsError(303));
  EXPECT_EQ(bench_.ask("AT+CPMS=\"SM\",\"BM\""), cmsError(303));
  EXPECT_EQ(bench_.ask("AT+CPMS="), kError);
  EXPECT_EQ(bench_.ask("AT+CPMS?"), withOk("+CPMS: \"BM\",0,5,\"SM\",4,20"));
}

TEST(FreshCard, HoldsAMessageOfEachStatusAndHoles) {
  Bench bench;
  bench.ask("AT+CMGF=1");
  EXPECT_EQ(bench.ask("AT+CPMS?"), withOk("+CPMS: \"SM\",5,20,\"SM\",5,20"));
  for (const char* line : {"AT+CMGL=\"REC UNREAD\"", "AT+CMGL=\"REC READ\"",
                           "AT+CMGL=\"STO UNSENT\"", "AT+CMGL=\"STO SENT\""}) {
    EXPECT_NE(bench.ask(line), kOk) << line;
  }
  EXPECT_EQ(bench.ask("AT+CMGR= 3"), kOk);
}

}  // namespace
}  // namespace gsm::simulator
