#include <gtest/gtest.h>

#include "tests/services/services_test.h"

namespace gsm {
namespace {

// What the user and the network do while the window reads.
class OvertakenServices : public ServicesTest {};

TEST_F(OvertakenServices, ATabInTheMiddleOfALoadReadsOnTopOfIt) {
  for (int reason = 0; reason < 6; ++reason) {
    reply("AT+CCFC=" + std::to_string(reason) + ",2", information("+CCFC: 0,1"));
  }
  beginLoad();
  run(4);
  sent();
  const double begin = now();
  clickTab(forwarding);
  settle();
  // The new load, and then what the old one had left.
  Texts expected = kForwardingReads;
  expected.insert(expected.end(), kForwardingReads.begin() + 2, kForwardingReads.end());
  EXPECT_EQ(sent(), expected);
  EXPECT_NEAR(now() - begin, kLoad + 12, 0.1);
  const std::string twice = "Call Forward Not Active For Voice NO REPLY-";
  EXPECT_EQ(forwardingShown()[1], "MOBILE BUSY-Call Forward Not Active For Voice ");
  EXPECT_EQ(forwardingShown()[2], "NO REPLY-" + twice + "Call Forward Not Active For Voice ");
  expectAtRest();
}

// The window is loaded anew by the reference in the middle of the reading, which empties the
// transcript; the reply that the reading has taken goes on to be read.
TEST_F(OvertakenServices, AWindowClosedInTheMiddleOfALoadShowsTheReplyThatWasTakenOnceMore) {
  openWindow();
  reply("AT+CCFC=0,2", information("+CCFC: 0,1"));
  clickTab(forwarding);
  run(0.2);
  inPanel([this] { form().userClose(); });
  settle();
  const std::string once = "UNCONDITIONAL-Call Forward Not Active For Voice ";
  EXPECT_EQ(forwardingShown()[0], once + once);
}

TEST_F(OvertakenServices, AnotherPageInTheMiddleOfALoadIsReadFirst) {
  reply("AT+CCUG?", information("+CCUG: 1,1,0"));
  beginLoad();
  run(1);
  clickTab(userGroup);
  settle();
  Texts expected = kForwardingReads;
  expected.insert(expected.begin() + 1, "AT+CCUG?\r");
  EXPECT_EQ(sent(), expected);
  EXPECT_EQ(form().Combo2.Text.peek(), "1");
  EXPECT_EQ(pages(), (Texts{"Frame13", "Frame12", "Command6"}));
  expectAtRest();
}

TEST_F(OvertakenServices, AChangeInTheMiddleOfALoadIsMade) {
  reply("AT+CCFC=0,4", kOk);
  beginLoad();
  run(1);
  choose({&form().Option1, &form().Option8});
  click(form().Command1);
  run(3.1);
  EXPECT_EQ(caption(form().Label2), "Changes SuccessFul");
  settle();
  EXPECT_EQ(caption(form().Label2), "");
  EXPECT_FALSE(form().Option1.Value.peek());
  EXPECT_EQ(sent().size(), 7U);
}

TEST_F(OvertakenServices, TheChangeOfTheBarringCantBeOpenedWhileItReads) {
  openWindow();
  clickTab(barring);
  run(1);
  click(form().Command4);
  EXPECT_FALSE(form().Frame5.Visible.peek());
  settle();
  click(form().Command4);
  EXPECT_TRUE(form().Frame5.Visible.peek());
}

TEST_F(OvertakenServices, ClosingTheWindowInItsLoadLoadsItAnewAtTheNextLabel) {
  beginLoad();
  run(1);
  closeWindow();
  EXPECT_FALSE(form().isLoaded());
  EXPECT_TRUE(form1().Visible.peek());
  run(2.01);  // the first reason's reader empties a label
  EXPECT_TRUE(form().isLoaded());
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_EQ(caption(form().Label2), "Checking Current Status...");
  settle();
  EXPECT_EQ(caption(form().Label2), "");
  EXPECT_EQ(sent().size(), 12U);
  expectAtRest();
}

TEST_F(OvertakenServices, ClosingTheWindowInTheReadOfTheBarringLoadsItAnewAtItsEnd) {
  openWindow();
  clickTab(barring);
  run(1);
  closeWindow();
  settle();
  Texts expected = kBarringReads;
  expected.insert(expected.end(), kForwardingReads.begin(), kForwardingReads.end());
  EXPECT_EQ(sent(), expected);
  EXPECT_EQ(caption(form().Label3), ",      ,     ,     ,     ");
  EXPECT_EQ(pages(), (Texts{"Frame1", "Frame13", "Frame11", "Command6"}));
  expectAtRest();
}

TEST_F(OvertakenServices, ARingTakesTheReplyThatItComesWith) {
  reply("AT+CCFC=0,2", information("+CCFC: 0,7") + unsolicited("RING"));
  reply("AT+CCFC=1,2", information("+CCFC: 0,7"));
  beginLoad();
  settle();
  EXPECT_EQ(forwardingShown()[0], "");
  EXPECT_EQ(forwardingShown()[1], "MOBILE BUSY-Call Forward Not Active For All Classes ");
}

TEST_F(OvertakenServices, ARingBeforeTheReplyLeavesIt) {
  openWindow();
  receive(unsolicited("RING"), 0.1);
  reply("AT+CCWA=1,2", information("+CCWA: 1,1"), fromSeconds(2.5));
  turnTo(waitingCalls);
  EXPECT_EQ(caption(form().Label6), "Current Status:Call Waiting Enabled");
  EXPECT_TRUE(form1().Timer2.Enabled.peek());
}

TEST_F(OvertakenServices, ANewMessageTakesTheReplyThatItComesWith) {
  openWindow();
  reply("AT+CCWA=1,2", information("+CCWA: 1,1") + unsolicited("+CMTI: \"SM\",1"));
  turnTo(waitingCalls);
  EXPECT_EQ(caption(form().Label6), "");
}

// The poll clears nothing, and its own wait ends before the read's.
TEST_F(OvertakenServices, APollSharesTheTranscript) {
  openWindow();
  reply("AT+CIND?", information("+CIND: 5,4,1,0,1,0,0"));
  reply("AT+CLCK=\"AO\",2", information("+CLCK: 0,7"));
  inPanel([this] { form1().Timer2.Enabled = true; });
  clickTab(barring);
  run(2.9);
  EXPECT_NE(transcript().find("+CIND:"), std::string::npos);
  EXPECT_NE(transcript().find("+CLCK:"), std::string::npos);
  run(20);
  EXPECT_TRUE(caption(form().Label3).starts_with("OutGoing Calls Not Barred,"));
}

TEST_F(OvertakenServices, ADeviceThatGoesEndsTheLoadWhereItIs) {
  beginLoad();
  run(4);
  machine().ports.set({});
  settle();
  EXPECT_EQ(sent(), (Texts{kForwardingReads[0], kForwardingReads[1]}));
  EXPECT_EQ(caption(form().Label2), "Checking Current Status...");
  expectAtRest();
}

// No wait carries over midnight: the handler ends there, and what it has done stays.
class ServicesAtMidnight : public ServicesTest {
 protected:
  void SetUp() override { startWithOpenPort({2026, 3, 1, 23, 59, 0}); }
  void passMidnight() {
    run(60.01 - now());
    EXPECT_EQ(waiting(), 0);
    expectAtRest();
  }
  void startAt(double second) { run(second - now()); }
};

TEST_F(ServicesAtMidnight, ALoadEndsWithWhatItHasRead) {
  reply("AT+CCFC=0,2", information("+CCFC: 0,7"));
  startAt(55);
  beginLoad();
  passMidnight();
  EXPECT_EQ(sent(), (Texts{kForwardingReads[0], kForwardingReads[1]}));
  EXPECT_EQ(forwardingShown()[0], "UNCONDITIONAL-Call Forward Not Active For All Classes ");
  EXPECT_EQ(caption(form().Label2), "Checking Current Status...");
  EXPECT_TRUE(form().Visible.peek());
}

TEST_F(ServicesAtMidnight, EveryOtherWaitEndsTheSame) {
  startAt(10);
  openWindow();
  startAt(58.5);
  choose({&form().Option1, &form().Option8, &form().Option30});
  form().Text1.Text = "0146290800";
  click(form().Command1);
  run(0.1);
  inPanel([this] {
    form().Option17.Value = true;
    form().Option22.Value = true;
    form().Option24.Value = true;
    form().Text2.Text = "1234";
    form().Frame5.Visible = true;
  });
  run(0);
  click(form().Command3);
  run(0.1);
  clickTab(waitingCalls);
  run(0.1);
  click(form().Command5);
  click(form().Option30);
  click(form().Command6);
  run(0.1);
  clickTab(userGroup);
  run(0.1);
  clickTab(barring);
  passMidnight();
  EXPECT_EQ(sent().size(), 6U);
  EXPECT_EQ(form().Text1.Text.peek(), "0146290800");
  EXPECT_EQ(form().Text2.Text.peek(), "1234");
  EXPECT_EQ(caption(form().Label3), "Please Wait....");
  EXPECT_EQ(caption(form().Label5), "Please Wait");
  EXPECT_EQ(caption(form().Label6), "Please Wait");
  EXPECT_EQ(caption(form().Label7), "Plz wait...");
  EXPECT_FALSE(form().Command4.Enabled.peek());
}

}  // namespace
}  // namespace gsm
