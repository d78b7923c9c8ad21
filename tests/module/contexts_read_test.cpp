#include <gtest/gtest.h>

#include "tests/module/contexts_test.h"

namespace gsm {
namespace {

class ContextsRead : public ContextsTest {};

TEST_F(ContextsRead, FillsItsListsBeforeItReads) {
  leaveInTranscript(information(kInternet));
  beginLoad();
  EXPECT_EQ(form().Combo1.List.peek(), (Texts{"1", "2", "3", "4"}));
  EXPECT_EQ(form().Combo2.List.peek(), (Texts{"IP", "PPP"}));
  EXPECT_FALSE(form().Combo1.isEditable());
  EXPECT_FALSE(form().Combo2.isEditable());
  EXPECT_EQ(line(), "");
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(sent(), Texts{"AT+CGDCONT?\r"});
  settle();
  EXPECT_EQ(line(), "");
  EXPECT_EQ(grid(), Texts{});
  EXPECT_FALSE(hasHeadings());
  EXPECT_TRUE(form().Visible.peek());
  expectAtRest();
}

TEST_F(ContextsRead, WaitsASecond) {
  inPanel([this] { form1().MSComm1.SThreshold = 0; });
  beginLoad();
  run(0.99);
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(waiting(), 0);
}

TEST_F(ContextsRead, ShowsAContextInItsRow) {
  load(information(kInternet));
  EXPECT_EQ(grid(), Texts{"1|IP|internet"});
  EXPECT_EQ(line(), "Current Status");
  EXPECT_TRUE(hasHeadings());
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(ContextsRead, TheBoxesOfTheGridTakeNoInput) {
  load(lines({kInternet, "+CGDCONT: 2,\"PPP\",\"b\",,0,0", "+CGDCONT: 3,\"IP\",\"c\",,0,0",
              "+CGDCONT: 4,\"PPP\",\"d\",,0,0"}));
  const Texts shown = grid();
  ASSERT_EQ(shown.size(), 4U);
  for (Control* control : form().controls()) {
    auto* box = dynamic_cast<TextBox*>(control);
    if (box == nullptr || box == &form().Text1) continue;
    EXPECT_FALSE(box->userType("x")) << box->name();
    EXPECT_FALSE(box->userErase()) << box->name();
  }
  EXPECT_EQ(grid(), shown);
}

struct GridRow {
  std::string name;
  Texts lines;
  Texts grid;
};

class ContextsReply : public ContextsRead, public ::testing::WithParamInterface<GridRow> {};

TEST_P(ContextsReply, IsShownInTheGrid) {
  load(lines(GetParam().lines));
  EXPECT_EQ(grid(), GetParam().grid);
  EXPECT_EQ(line(), "Current Status");
  EXPECT_TRUE(hasHeadings());
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Is, ContextsReply,
    ::testing::Values(
        GridRow{"FirstAndThird",
                {kInternet, "+CGDCONT: 3,\"PPP\",\"intranet\",,0,0"},
                {"1|IP|internet", "3|PPP|intranet"}},
        GridRow{"AllFour",
                {kInternet, "+CGDCONT: 2,\"PPP\",\"b\",,0,0", "+CGDCONT: 3,\"IP\",\"c.d\",,0,0",
                 "+CGDCONT: 4,\"PPP\",\"\",,1,1"},
                {"1|IP|internet", "2|PPP|b", "3|IP|c.d", "4|PPP|"}},
        GridRow{"SecondAlone", {"+CGDCONT: 2,\"IP\",\"b\",,0,0"}, {"2|IP|b"}},
        GridRow{"FourthAlone", {"+CGDCONT: 4,\"IP\",\"d\",,0,0"}, {"4|IP|d"}},
        GridRow{"OutOfOrder",
                {"+CGDCONT: 4,\"IP\",\"d\",,0,0", "+CGDCONT: 2,\"IP\",\"b\",,0,0"},
                {"2|IP|b", "4|IP|d"}},
        GridRow{"EmptyName", {"+CGDCONT: 1,\"IP\",\"\",,0,0"}, {"1|IP|"}},
        GridRow{"NameWithBlanksAndQuotes",
                {"+CGDCONT: 2,\"PPP\",\" a \"b\" \",,0,0"},
                {"2|PPP| a \"b\" "}},
        GridRow{
            "TheTypesLettersInAName", {"+CGDCONT: 1,\"PPP\",\"myIPnet.org\",,0,0"}, {"1|IP|.org"}},
        GridRow{"TheTypesLettersInTheNameOfAnIpContext",
                {"+CGDCONT: 1,\"IP\",\"myIPnet\",,0,0"},
                {"1|IP|myIPnet"}},
        GridRow{
            "TheOtherTypesLettersInAName", {"+CGDCONT: 1,\"IP\",\"PPPnet\",,0,0"}, {"1|IP|PPPnet"}},
        GridRow{"NeitherType", {"+CGDCONT: 1,\"X25\",\"internet\",,0,0"}, {"||"}},
        GridRow{"SmallLetters", {"+CGDCONT: 3,\"ip\",\"internet\",,0,0"}, {"||"}},
        GridRow{"NumberAboveFour", {"+CGDCONT: 5,\"IP\",\"internet\",,0,0"}, {}},
        GridRow{"NumberOfTwoDigits", {"+CGDCONT: 12,\"IP\",\"internet\",,0,0"}, {"1|IP|internet"}},
        GridRow{"WithoutABlank", {"+CGDCONT:1,\"IP\",\"internet\",,0,0"}, {}},
        // The line of a later context may reach on to the empty field of the next one, and shows
        // all that lies between.
        GridRow{"AnAddressInTheSecond",
                {"+CGDCONT: 2,\"PPP\",\"b\",\"10.0.0.1\",0,0", "+CGDCONT: 3,\"PPP\",\"c\",,0,0"},
                {"2|PPP|b\",\"10.0.0.1\",0,0\r\n+CGDCONT: 3,\"PPP\",\"c", "3|PPP|c"}},
        GridRow{"AnAddressInTheFirst",
                {"+CGDCONT: 1,\"IP\",\"a\",\"10.0.0.1\",0,0", "+CGDCONT: 2,\"IP\",\"b\",,0,0"},
                {"1|IP|a\",\"10.0.0.1\",0,0\r\n+CGDCONT: 2,\"IP\",\"b", "2|IP|b"}},
        GridRow{
            "TheSameTwice", {kInternet, "+CGDCONT: 1,\"PPP\",\"other\",,0,0"}, {"1|IP|internet"}},
        GridRow{"NameOfTwentyFiveCharacters",
                {"+CGDCONT: 1,\"IP\",\"abcdefghijklmnopqrstuvwxy\",,0,0"},
                {"1|IP|abcdefghijklmnopqrstuvwxy"}}),
    RowName());

TEST_F(ContextsRead, SeveralLinesMayBeSetApart) {
  load("\r\n" + std::string(kInternet) + "\r\n\r\n+CGDCONT: 2,\"IP\",\"b\",,0,0\r\n\r\nOK\r\n");
  EXPECT_EQ(grid(), (Texts{"1|IP|internet", "2|IP|b"}));
}

TEST_F(ContextsRead, TheSecondsEmptyFieldMayStandRightBeforeTheOk) {
  load("\r\n+CGDCONT: 2,\"IP\",\"b\",,OK\r\n");
  EXPECT_EQ(grid(), Texts{"2|IP|b"});
}

// The first context is looked for in the whole reply: it needs no "OK".
TEST_F(ContextsRead, TheFirstNeedsNoOk) {
  load("\r\n" + std::string(kInternet) + "\r\n");
  EXPECT_EQ(grid(), Texts{"1|IP|internet"});
  EXPECT_EQ(transcript(), "");
}

struct BrokenContextsRow {
  std::string name;
  std::string answer;
  Texts grid;
};

class BrokenContexts : public ContextsRead,
                       public ::testing::WithParamInterface<BrokenContextsRow> {};

TEST_P(BrokenContexts, EndTheReadWhereItIs) {
  load(GetParam().answer);
  EXPECT_EQ(grid(), GetParam().grid);
  EXPECT_EQ(line(), "");
  EXPECT_FALSE(hasHeadings());
  EXPECT_NE(transcript(), "");
  EXPECT_TRUE(form().Visible.peek());
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    With, BrokenContexts,
    ::testing::Values(
        BrokenContextsRow{
            "NoEmptyFieldInTheFirst", information("+CGDCONT: 1,\"IP\",\"internet\",\"\",0,0"), {}},
        // An empty field of an earlier line lies before the first one's.
        BrokenContextsRow{"AnEarlierLinesEmptyField",
                          lines({"+CGDCONT: 2,\"IP\",\"b\",,0,0", "+CGDCONT: 1,\"IP\",\"a\",,0,0"}),
                          {}},
        BrokenContextsRow{"NoEmptyFieldInTheSecond",
                          lines({kInternet, "+CGDCONT: 2,\"IP\",\"b\",\"\",0,0"}),
                          {"1|IP|internet"}},
        BrokenContextsRow{"NoOkBehindTheSecond",
                          "\r\n" + std::string(kInternet) + "\r\n+CGDCONT: 2,\"IP\",\"b\",,0,0\r\n",
                          {"1|IP|internet"}},
        BrokenContextsRow{
            "AnOkBeforeTheSecond",
            "\r\nOK\r\n" + std::string(kInternet) + "\r\n+CGDCONT: 2,\"IP\",\"b\",,0,0\r\n",
            {"1|IP|internet"}},
        BrokenContextsRow{"NoNameInTheFirst", information("+CGDCONT: 1,\"IP\",,,0,0"), {}},
        BrokenContextsRow{"NoNameInTheSecond",
                          lines({kInternet, "+CGDCONT: 2,\"PPP\",,,0,0"}),
                          {"1|IP|internet"}},
        BrokenContextsRow{"TheOtherTypesLettersAtANamesEnd",
                          information("+CGDCONT: 1,\"IP\",\"aPPPb\",,0,0"),
                          {}},
        BrokenContextsRow{
            "TheTypesLettersAtANamesEnd", information("+CGDCONT: 1,\"PPP\",\"voIP\",,0,0"), {}}),
    RowName());

TEST_F(ContextsRead, WithoutAnyKeepsTheGridHidden) {
  load(kOk);
  EXPECT_EQ(line(), "");
  EXPECT_EQ(grid(), Texts{});
  EXPECT_FALSE(hasHeadings());
  EXPECT_EQ(transcript(), "");
}

TEST_F(ContextsRead, AnErrorIsSaid) {
  load(kError);
  EXPECT_EQ(line(), "Current Status Not Avialable");
  EXPECT_EQ(grid(), Texts{});
  EXPECT_FALSE(hasHeadings());
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(ContextsRead, AnErrorBesideAContextEmptiesTheGrid) {
  load("\r\n" + std::string(kInternet) + "\r\n\r\nERROR\r\n");
  EXPECT_EQ(line(), "Current Status Not Avialable");
  EXPECT_EQ(grid(), Texts{});
  EXPECT_FALSE(hasHeadings());
  EXPECT_EQ(transcript(), "");
}

TEST_F(ContextsRead, WithoutAPortComesUpWithItsLists) {
  closePort();
  openWindow();
  EXPECT_EQ(line(), "");
  EXPECT_EQ(form().Combo1.ListCount(), 4);
  EXPECT_EQ(form().Combo2.ListCount(), 2);
  EXPECT_TRUE(form().Visible.peek());
  expectAtRest();
}

TEST_F(ContextsRead, RefreshEmptiesTheGridAndReadsAnew) {
  load(lines({kInternet, "+CGDCONT: 4,\"PPP\",\"d\",,0,0"}));
  pick(form().Combo1, 2);
  pick(form().Combo2, 1);
  fill(form().Text1, "kept");
  reply("AT+CGDCONT?", information("+CGDCONT: 2,\"IP\",\"b\",,0,0"));
  click(form().Command2);
  EXPECT_EQ(grid(), Texts{});
  EXPECT_FALSE(hasHeadings());
  EXPECT_EQ(line(), "");
  EXPECT_EQ(form().Combo1.Text.peek(), "");
  EXPECT_EQ(form().Combo2.Text.peek(), "");
  EXPECT_EQ(form().Text1.Text.peek(), "kept");
  settle();
  EXPECT_EQ(grid(), Texts{"2|IP|b"});
  EXPECT_TRUE(hasHeadings());
  EXPECT_EQ(line(), "Current Status");
  EXPECT_EQ(form().Combo1.ListCount(), 4);
  EXPECT_EQ(form().Combo2.ListCount(), 2);
  EXPECT_EQ(sent(), Texts{"AT+CGDCONT?\r"});
}

TEST_F(ContextsRead, EveryBoxAndHeadingGoesWithTheGrid) {
  load(lines({kInternet, "+CGDCONT: 2,\"PPP\",\"b\",,0,0", "+CGDCONT: 3,\"IP\",\"c\",,0,0",
              "+CGDCONT: 4,\"PPP\",\"d\",,0,0"}));
  EXPECT_EQ(grid().size(), 4U);
  inPanel([this] { form().ClearContextGrid(); });
  run(0);
  EXPECT_EQ(grid(), Texts{});
  EXPECT_FALSE(hasHeadings());
  EXPECT_EQ(line(), "Current Status");
}

TEST_F(ContextsRead, ARingTakesTheReplyThatItComesWith) {
  load(information(kInternet) + unsolicited("RING"));
  EXPECT_EQ(grid(), Texts{});
  EXPECT_EQ(line(), "");
  EXPECT_TRUE(form1().Timer2.Enabled.peek());
}

TEST_F(ContextsRead, APollInTheMiddleSharesTheTranscript) {
  load(information(kInternet));
  reply("AT+CIND?", information("+CIND: 5,4,1,0,1,0,0"));
  reply("AT+CGDCONT?", lines({kInternet, "+CGDCONT: 2,\"IP\",\"b\",,0,0"}), fromSeconds(1.5));
  inPanel([this] { form1().Timer2.Enabled = true; });
  run(1);
  click(form().Command2);
  run(10);
  // The poll's "OK" stands before the second context's line, which ends the read there.
  EXPECT_EQ(grid(), Texts{"1|IP|internet"});
}

TEST_F(ContextsRead, ClosingTheWindowInARefreshLoadsItAnewWithWhatWasTold) {
  load(lines({kInternet, "+CGDCONT: 2,\"IP\",\"b\",,0,0"}));
  click(form().Command2);
  run(0.5);
  closeWindow();
  EXPECT_FALSE(form().isLoaded());
  settle();
  EXPECT_TRUE(form().isLoaded());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_EQ(sent(), (Texts{"AT+CGDCONT?\r", "AT+CGDCONT?\r"}));
  EXPECT_EQ(grid(), (Texts{"1|IP|internet", "2|IP|b"}));
  expectAtRest();
}

// Its own reading clears what the first one has still to cut its second line from.
TEST_F(ContextsRead, ClosingTheWindowInARefreshEndsTheFirstReadingAtTheSecondContext) {
  load(lines({kInternet, "+CGDCONT: 2,\"IP\",\"b\",,0,0"}));
  click(form().Command2);
  run(0.5);
  reply("AT+CGDCONT?", lines({"+CGDCONT: 1,\"PPP\",\"own\",,0,0"}));
  closeWindow();
  settle();
  EXPECT_EQ(grid(), (Texts{"1|IP|internet"}));
  expectAtRest();
}

// Which contexts there are was known before, so the second is still looked for, and its want ends
// the first reading before it says that there is a status.
TEST_F(ContextsRead, ClosingTheWindowInARefreshDoesntMakeTheFirstReadingForgetTheSecondContext) {
  load(lines({kInternet, "+CGDCONT: 2,\"IP\",\"b\",,0,0"}));
  click(form().Command2);
  run(0.5);
  reply("AT+CGDCONT?", kOk);
  closeWindow();
  settle();
  EXPECT_EQ(grid(), (Texts{"1|IP|internet"}));
  EXPECT_EQ(line(), "");
  EXPECT_FALSE(hasHeadings());
  expectAtRest();
}

TEST_F(ContextsRead, ClosingTheWindowInARefreshDoesntMakeTheFirstReadingForgetTheError) {
  load("\r\n" + std::string(kInternet) + "\r\n\r\nERROR\r\n");
  click(form().Command2);
  run(0.5);
  reply("AT+CGDCONT?", information(kInternet));
  closeWindow();
  settle();
  EXPECT_EQ(grid(), Texts{});
  EXPECT_EQ(line(), "Current Status Not Avialable");
  EXPECT_FALSE(hasHeadings());
  expectAtRest();
}

TEST_F(ContextsRead, MidnightEndsItWhereItIs) {
  startWithOpenPort({2026, 3, 1, 23, 59, 0});
  reply("AT+CGDCONT?", information(kInternet));
  run(59.5 - now());
  beginLoad();
  run(1);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(grid(), Texts{});
  EXPECT_EQ(line(), "");
  EXPECT_TRUE(form().Visible.peek());
  expectAtRest();
}

// A reply of which the line loses everything behind some byte.
class CutContexts : public ContextsRead, public ::testing::WithParamInterface<int> {
 protected:
  const std::string command_ = "AT+CGDCONT?";
  const std::string second_ = "+CGDCONT: 2,\"IP\",\"b\",,0,0";
  const std::string answer_ = lines({kInternet, second_});
  /// Whether `text` stands before the cut as the reply's `place`-th, from 1.
  bool isThere(const std::string& text, std::size_t place = 1) const {
    const std::string whole = command_ + "\r" + answer_;
    const std::string begin = whole.substr(0, static_cast<std::size_t>(GetParam()));
    return static_cast<std::size_t>(getCountOf(begin, text)) >= place;
  }
};

TEST_P(CutContexts, AreShownAsFarAsTheyAreThere) {
  replyCut(command_, answer_, GetParam());
  openWindow();
  const bool any = isThere("+CGDCONT:");
  const bool first = isThere(",,");
  const bool firstBegun = isThere("+CGDCONT: 1");
  const bool secondBegun = isThere("+CGDCONT: 2");
  const bool second = isThere("OK");
  Texts rows;
  if (first) rows.push_back("1|IP|internet");
  if (second) rows.push_back("2|IP|b");
  EXPECT_EQ(grid(), rows);
  const bool broken = (firstBegun && !first) || (secondBegun && !second);
  EXPECT_EQ(line(), any && !broken ? "Current Status" : "");
  EXPECT_EQ(hasHeadings(), any && !broken);
  EXPECT_EQ(transcript().empty(), !broken);
  expectAtRest();
}

TEST_P(CutContexts, AreWholeAgainWhenTheRestFollowsShortly) {
  replyCut(command_, answer_, GetParam(), 0.5);
  openWindow();
  EXPECT_EQ(grid(), (Texts{"1|IP|internet", "2|IP|b"}));
}

INSTANTIATE_TEST_SUITE_P(AtByte, CutContexts, ::testing::Range(0, 84));

}  // namespace
}  // namespace gsm
