#include <gtest/gtest.h>

#include "tests/services/services_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

const std::string kNotBarred = information("+CLCK: 0,7");
constexpr const char* kOutgoing = "OutGoing Calls Not Barred";
constexpr const char* kInternational = "OutGoing International Calls Not Barred";
constexpr const char* kInternet = "OutGoing Internet Calls Not Barred";
constexpr const char* kIncoming = "Incoming Calls Not Barred";
constexpr const char* kRoaming = "Incoming Calls While Roaming Calls Not Barred";
constexpr const char* kNothing = ",      ,     ,     ,     ";

class BarringRead : public ServicesTest {
 protected:
  void SetUp() override {
    ServicesTest::SetUp();
    openWindow();
  }
  void answer(const std::string& facility, const std::string& text) {
    reply("AT+CLCK=\"" + facility + "\",2", text);
  }
  void answerWithoutEcho(const std::string& facility, const std::string& text) {
    replyWithoutEcho("AT+CLCK=\"" + facility + "\",2", text);
  }
  void answerAllNotBarred() {
    for (const char* facility : {"AO", "OI", "OX", "AI", "IR"}) answer(facility, kNotBarred);
  }
  std::string shown() { return caption(form().Label3); }

  /// What stands on view once the facility (counted from 0) has been read.
  std::string shownAfter(int facility) {
    clickTab(barring);
    run(3 * facility + 3.01);
    return shown();
  }
};

TEST_F(BarringRead, AsksForOneFacilityAfterTheOtherForThreeSecondsEach) {
  const double begin = now();
  turnTo(barring);
  const auto writes = sentWithTimes();
  ASSERT_EQ(writes.size(), kBarringReads.size());
  for (std::size_t i = 0; i < writes.size(); ++i) {
    EXPECT_EQ(writes[i].text, kBarringReads[i]);
    EXPECT_NEAR(toSeconds(writes[i].at), begin + 3 * static_cast<double>(i), 0.01);
  }
}

TEST_F(BarringRead, ShowsThatItReadsAndLocksTheChangeMeanwhile) {
  answerAllNotBarred();
  clickTab(barring);
  EXPECT_EQ(shown(), "Please Wait....");
  EXPECT_FALSE(form().Command4.Enabled.peek());
  run(14.99);
  EXPECT_EQ(shown(), "Please Wait....");
  EXPECT_FALSE(form().Command4.Enabled.peek());
  run(0.02);
  EXPECT_EQ(shown(), std::string(kOutgoing) + ",      " + kInternational + ",     " + kInternet +
                         ",     " + kIncoming + ",     " + kRoaming);
  EXPECT_TRUE(form().Command4.Enabled.peek());
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(BarringRead, WithoutAModemShowsTheCommasAfterFifteenSeconds) {
  clickTab(barring);
  run(14.99);
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(shown(), kNothing);
  EXPECT_TRUE(form().Command4.Enabled.peek());
}

TEST_F(BarringRead, ClearsTheTranscriptBeforeEachFacility) {
  leaveInTranscript("\r\n+CLCK: 1,1\r\n");
  clickTab(barring);
  EXPECT_EQ(transcript(), "");
  answer("AO", kNotBarred);
  settle();
  EXPECT_EQ(shown(), kNothing);
}

TEST_F(BarringRead, AnErrorLeavesAnEmptyPlace) {
  answerAllNotBarred();
  answer("OX", kError);
  turnTo(barring);
  EXPECT_EQ(shown(), std::string(kOutgoing) + ",      " + kInternational + ",     " + ",     " +
                         kIncoming + ",     " + kRoaming);
}

TEST_F(BarringRead, AnotherStatusThanTheTwoLeavesAnEmptyPlace) {
  answerAllNotBarred();
  answer("AI", information("+CLCK: 2,1"));
  turnTo(barring);
  EXPECT_EQ(shown(), std::string(kOutgoing) + ",      " + kInternational + ",     " + kInternet +
                         ",     " + ",     " + kRoaming);
}

struct FacilityRow {
  std::string name;
  std::string facility;
  int place;
  std::string barred;     // what is on view while the next one is read, for voice
  std::string notBarred;  // at the end, when all others are silent
};

class BarredFacility : public BarringRead, public ::testing::WithParamInterface<FacilityRow> {};

TEST_P(BarredFacility, IsReportedWhileItReadsOnly) {
  answer(GetParam().facility, information("+CLCK: 1,1"));
  EXPECT_EQ(shownAfter(GetParam().place), GetParam().place == 4 ? kNothing : GetParam().barred);
  settle();
  EXPECT_EQ(shown(), kNothing);
  EXPECT_TRUE(form().Command4.Enabled.peek());
  expectAtRest();
}

TEST_P(BarredFacility, IsReportedWhenItIsNotBarred) {
  answer(GetParam().facility, kNotBarred);
  turnTo(barring);
  EXPECT_EQ(shown(), GetParam().notBarred);
}

// The class of the last two stands after an error: with the echo on, and no error, that is the
// quote in the command, and no words come.
INSTANTIATE_TEST_SUITE_P(
    Is, BarredFacility,
    ::testing::Values(
        FacilityRow{"Outgoing", "AO", 0, "Current Status:All OutGoing Calls Barred For Voice",
                    "OutGoing Calls Not Barred,      ,     ,     ,     "},
        FacilityRow{"International", "OI", 1,
                    "Please Wait.... Current Status:OutGoing International Calls Barred For Voice",
                    ",      OutGoing International Calls Not Barred,     ,     ,     "},
        FacilityRow{"Internet", "OX", 2,
                    "Please Wait.... Current Status:OutGoing Internet Calls Barred For Voice",
                    ",      ,     OutGoing Internet Calls Not Barred,     ,     "},
        FacilityRow{"Incoming", "AI", 3, "Please Wait....",
                    ",      ,     ,     Incoming Calls Not Barred,     "},
        FacilityRow{"Roaming", "IR", 4, "Please Wait....",
                    ",      ,     ,     ,     Incoming Calls While Roaming Calls Not Barred"}),
    RowName());

TEST_F(BarringRead, BarredFacilitiesAddUpWhileItReads) {
  for (const char* facility : {"AO", "OI", "OX"}) answer(facility, information("+CLCK: 1,7"));
  EXPECT_EQ(shownAfter(2),
            "Current Status:All OutGoing Calls Barred All Classes"
            " Current Status:OutGoing International Calls Barred All Classes"
            " Current Status:OutGoing Internet Calls Barred All Classes");
}

TEST_F(BarringRead, ABarredFirstFacilityLeavesItsPlaceEmpty) {
  answerAllNotBarred();
  answer("AO", information("+CLCK: 1,1"));
  turnTo(barring);
  EXPECT_EQ(shown(), ",      " + std::string(kInternational) + ",     " + kInternet + ",     " +
                         kIncoming + ",     " + kRoaming);
}

struct ClassRow {
  std::string name;
  std::string digit;
  std::string words;
};

class BarredClass : public BarringRead, public ::testing::WithParamInterface<ClassRow> {};

TEST_P(BarredClass, StandsAfterTheBarredWords) {
  answer("AO", information("+CLCK: 1," + GetParam().digit));
  EXPECT_EQ(shownAfter(0), GetParam().words);
}

constexpr const char* kAllOutgoing = "Current Status:All OutGoing Calls Barred ";

INSTANTIATE_TEST_SUITE_P(
    Of, BarredClass,
    ::testing::Values(ClassRow{"Voice", "1", std::string(kAllOutgoing) + "For Voice"},
                      ClassRow{"Data", "2", std::string(kAllOutgoing) + "For Data"},
                      ClassRow{"Fax", "4", std::string(kAllOutgoing) + "For Fax"},
                      ClassRow{"Messages", "8", std::string(kAllOutgoing) + "For Short Message"},
                      ClassRow{"All", "7", std::string(kAllOutgoing) + "All Classes"},
                      ClassRow{"Another", "3", kAllOutgoing},
                      ClassRow{"NoDigit", "x", "Please Wait...."},
                      ClassRow{"Nothing", "", "Please Wait...."}),
    RowName());

// With the echo off the ninth character is one of the reply's.
TEST_F(BarringRead, WithoutEchoTheNinthCharacterMayBeADigit) {
  answerWithoutEcho("AI", "\n+CLCK: 1,7\r\n\r\nOK\r\n");
  EXPECT_EQ(shownAfter(3),
            "Please Wait.... Current Status:OutGoing Internet Calls Barred For Voice");
}

// Up to the last wait's end only: the list is shown right after it.
TEST_F(BarringRead, WithoutEchoTheLastFacilityHasItsWordsToo) {
  inPanel([this] {
    form1().Text1.append("\n+CLCK: 1,7");
    form().Label3.Caption = "before";
  });
  run(0);
  answerWithoutEcho("IR",
                    "12345678"
                    "4"
                    "+CLCK: 1,7\r\n");
  Texts captions;
  PropertyWatch watch(form().Label3, [&](PropertyId) { captions.push_back(shown()); });
  turnTo(barring);
  EXPECT_EQ(captions,
            (Texts{"Please Wait....", "Please Wait.... Current Status:Barr Incoing when  For Fax",
                   kNothing}));
}

TEST_F(BarringRead, BesideAnErrorTheClassStandsNineAfterIt) {
  answer("AI", "\r\n+CLCK: 1,1\r\n\r\nERROR12342\r\n");
  EXPECT_EQ(shownAfter(3),
            "Please Wait.... Current Status:OutGoing Internet Calls Barred For Data");
}

TEST_F(BarringRead, AnErrorDoesntMatterToTheFirstFacilities) {
  answer("OX", "\r\n+CLCK: 1,1\r\n\r\nERROR12342\r\n");
  EXPECT_EQ(shownAfter(2),
            "Please Wait.... Current Status:OutGoing Internet Calls Barred For Voice");
}

TEST_F(BarringRead, OfSeveralClassesTheFirstLineCounts) {
  answer("AO", "\r\n+CLCK: 1,2\r\n+CLCK: 1,4\r\n\r\nOK\r\n");
  answer("OI", "\r\n+CLCK: 0,1\r\n+CLCK: 1,2\r\n\r\nOK\r\n");
  EXPECT_EQ(shownAfter(0), "Current Status:All OutGoing Calls Barred For Data");
  settle();
  EXPECT_EQ(shown(), ",      OutGoing International Calls Not Barred,     ,     ,     ");
}

struct BrokenStatusRow {
  std::string name;
  std::string reply;
};

class BrokenStatus : public BarringRead, public ::testing::WithParamInterface<BrokenStatusRow> {};

TEST_P(BrokenStatus, EndsTheReadAndLeavesTheChangeLocked) {
  answer("OI", GetParam().reply);
  turnTo(barring);
  EXPECT_EQ(shown(), "Please Wait....");
  EXPECT_FALSE(form().Command4.Enabled.peek());
  EXPECT_EQ(transcript(), kBarringReads[1] + GetParam().reply);
  EXPECT_EQ(sent(), (Texts{kBarringReads[0], kBarringReads[1]}));
  expectAtRest();
}

TEST_P(BrokenStatus, IsOverWithTheNextReadThatEnds) {
  answer("OI", GetParam().reply);
  turnTo(barring);
  answer("OI", kNotBarred);
  turnTo(barring);
  EXPECT_TRUE(form().Command4.Enabled.peek());
}

INSTANTIATE_TEST_SUITE_P(Of, BrokenStatus,
                         ::testing::Values(BrokenStatusRow{"ALetter", information("+CLCK: x,1")},
                                           BrokenStatusRow{"Nothing", "\r\n+CLCK: "},
                                           BrokenStatusRow{"ABlankTooMany",
                                                           information("+CLCK:  1,1")},
                                           BrokenStatusRow{"NoBlank", information("+CLCK:1,1")}),
                         RowName());

TEST_F(BarringRead, WithoutAPortEndsSilentlyAndLeavesTheChangeLocked) {
  closePort();
  turnTo(barring);
  EXPECT_EQ(shown(), "Please Wait....");
  EXPECT_FALSE(form().Command4.Enabled.peek());
  expectAtRest();
}

}  // namespace
}  // namespace gsm
