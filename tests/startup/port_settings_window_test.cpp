#include <gtest/gtest.h>

#include "panel/form1.h"
#include "startup/frm_settings.h"
#include "tests/startup/port_settings_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

// The port settings window as it comes up.
class PortSettingsWindow : public PortSettingsTest {};

TEST_F(PortSettingsWindow, SaysWhichDeviceAPortIsAndWhyItCantBeUsed) {
  startWith(
      {{.number = 3, .device = "/dev/ttyS2"},
       {.number = 5, .held = true, .device = "/dev/ttyUSB0", .trouble = "held by 1234 (minicom)"}});
  openWindow();
  EXPECT_EQ(window().cboPort.List.peek(), (Texts{"<none>", " 3", " 5 - Not Available"}));
  EXPECT_EQ(window().cboPort.ItemTips.peek(),
            (Texts{"", "/dev/ttyS2", "/dev/ttyUSB0: held by 1234 (minicom)"}));
}

TEST_F(PortSettingsWindow, APortPluggedInMeanwhileAppearsWhenTheListIsOpened) {
  startWith({{.number = 3}, {.number = 5, .held = true}});
  openWindow();
  window().cboPort.ListIndex = 1;
  machine().ports.set({{.number = 3}, {.number = 4}, {.number = 5}});
  openPortList();
  EXPECT_EQ(window().cboPort.List.peek(), (Texts{"<none>", " 3", " 4", " 5"}));
  EXPECT_EQ(window().cboPort.Text.peek(), " 3") << "the choice stays";
  EXPECT_EQ(window().cboPort.ListIndex.peek(), 1);
}

TEST_F(PortSettingsWindow, APortPulledOutMeanwhileGoesFromTheListAndIsNoChoice) {
  startWith({{.number = 3}, {.number = 4}});
  openWindow();
  window().cboPort.ListIndex = 2;
  machine().ports.set({{.number = 3}});
  openPortList();
  EXPECT_EQ(window().cboPort.List.peek(), (Texts{"<none>", " 3"}));
  EXPECT_EQ(window().cboPort.Text.peek(), "<none>");
  EXPECT_EQ(window().cboPort.ListIndex.peek(), 0);
}

TEST_F(PortSettingsWindow, ListsTheTenSpeeds) {
  startWith({{.number = 3}});
  openWindow();
  EXPECT_EQ(window().cboBaud.List.peek(), (Texts{"300", "600", "1200", "2400", "4800", "9600",
                                                 "19200", "38400", "57600", "115200"}));
}

TEST_F(PortSettingsWindow, ComesUpOnTopWithItsTitleAndItsButtonsEnabled) {
  startWith({{.number = 3}});
  openWindow();
  EXPECT_TRUE(window().Visible.peek());
  EXPECT_TRUE(window().TopMost.peek());
  EXPECT_TRUE(window().Centred.peek());
  EXPECT_EQ(window().Caption.peek(), "Communications Port Settings");
  EXPECT_EQ(window().MousePointer.peek(), MousePointer::arrow);
  EXPECT_TRUE(window().cmdAction[0].Enabled.peek());
  EXPECT_TRUE(window().cmdAction[1].Enabled.peek());
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_EQ(machine().files.path("COM.txt"), folder() / "COM.txt");
}

TEST_F(PortSettingsWindow, SaysThatItScansAndShowsTheHourglassMeanwhile) {
  startWith({{.number = 3}, {.number = 4}});
  struct Scanning {
    std::string caption;
    int pointer;
    bool visible;
    bool topMost;
    bool ok;
    bool cancel;
  };
  std::vector<Scanning> scans;
  PropertyWatch watch(window().cboPort, [&](PropertyId property) {
    if (property != PropertyId::List) return;
    frmSettings& form = window();
    scans.push_back({form.Caption.peek(), form.MousePointer.peek(), form.Visible.peek(),
                     form.TopMost.peek(), form.cmdAction[0].Enabled.peek(),
                     form.cmdAction[1].Enabled.peek()});
  });
  openWindow();
  ASSERT_EQ(scans.size(), 3U);  // "<none>" and the two ports
  for (const Scanning& scan : scans) {
    EXPECT_EQ(scan.caption, "Scanning available comm hardware...");
    EXPECT_EQ(scan.pointer, MousePointer::hourglass);
    EXPECT_TRUE(scan.visible);
    EXPECT_TRUE(scan.topMost);
    EXPECT_FALSE(scan.ok);
    EXPECT_FALSE(scan.cancel);
  }
}

TEST_F(PortSettingsWindow, LetsWhatWaitsHappenOnTheClosedPortBeforeItComesUp) {
  startWith({{.number = 3}});
  setLine(3, "9600,n,8,1", 0, true);
  world().time().after(Duration::zero(), [this] { form1().Command7.userClick(); });
  int happened = 0;
  inPanel([&] {
    ++happened;
    EXPECT_FALSE(form1().MSComm1.PortOpen);
    EXPECT_FALSE(window().isLoaded());
  });
  run(0);
  EXPECT_EQ(happened, 1);
  EXPECT_TRUE(window().isLoaded());
}

TEST_F(PortSettingsWindow, OfAClosedPortComesUpBeforeWhatWaits) {
  startWith({{.number = 3}});
  world().time().after(Duration::zero(), [this] { form1().Command7.userClick(); });
  bool wasLoaded = false;
  inPanel([&] { wasLoaded = window().isLoaded(); });
  run(0);
  EXPECT_TRUE(wasLoaded);
}

struct ShownPortRow {
  std::string name;
  std::vector<HeadlessPorts::Port> ports;
  int port;   // of the control
  bool open;  // at entry
  Texts list;
  std::string selected;
};
class SettingsPortList : public PortSettingsWindow,
                         public ::testing::WithParamInterface<ShownPortRow> {};

TEST_P(SettingsPortList, ReportsFreeAndHeldPortsAndSelects) {
  startWith(GetParam().ports, GetParam().port);
  setLine(GetParam().port, "9600,n,8,1", 0, GetParam().open);
  openWindow();
  EXPECT_EQ(window().cboPort.List.peek(), GetParam().list);
  EXPECT_EQ(port(), GetParam().selected);
  EXPECT_FALSE(form1().MSComm1.PortOpen);
}

INSTANTIATE_TEST_SUITE_P(
    Machines, SettingsPortList,
    ::testing::Values(
        ShownPortRow{"WithoutAnyPortSelectsNothing", {}, 3, false, {"<none>"}, ""},
        ShownPortRow{"OfTheOpenPort", {{.number = 3}}, 3, true, {"<none>", " 3"}, " 3"},
        ShownPortRow{"OfTheClosedPort", {{.number = 3}}, 3, false, {"<none>", " 3"}, "<none>"},
        ShownPortRow{"OfTheLastOfSeveral",
                     {{.number = 1}, {.number = 12}, {.number = 32}},
                     32,
                     true,
                     {"<none>", " 1", " 12", " 32"},
                     " 32"},
        ShownPortRow{"OfAPortBehindTheList",
                     {{.number = 1}, {.number = 33}},
                     33,
                     true,
                     {"<none>", " 1"},
                     "<none>"},
        ShownPortRow{"WithAPortThatFailsItself",
                     {{.number = 2, .fails = "Device I/O error"}, {.number = 3}},
                     3,
                     true,
                     {"<none>", " 3"},
                     " 3"},
        ShownPortRow{"StopsAtAHeldPortInFront",
                     {{.number = 2, .held = true}, {.number = 3}},
                     3,
                     true,
                     {"<none>", " 2 - Not Available", " 3"},
                     " 2 - Not Available"},
        ShownPortRow{"DoesntReachAHeldPortBehind",
                     {{.number = 3}, {.number = 12, .held = true}},
                     3,
                     true,
                     {"<none>", " 3", " 12 - Not Available"},
                     " 3"},
        ShownPortRow{"StopsAtAHeldPortWithThePortClosed",
                     {{.number = 1}, {.number = 2, .held = true}, {.number = 3}},
                     3,
                     false,
                     {"<none>", " 1", " 2 - Not Available", " 3"},
                     " 2 - Not Available"}),
    RowName());

struct LineRow {
  std::string name;
  std::string line;
  int handshaking;
  std::string baud;
  int parity;  // the indexes of the options that are set, -1 for none
  int dataBits;
  int stopBits;
  bool secondStopBit;  // can be chosen
};
class LineShown : public PortSettingsWindow, public ::testing::WithParamInterface<LineRow> {};

TEST_P(LineShown, IsThatOfTheControl) {
  startWith({{.number = 3}});
  setLine(3, GetParam().line, GetParam().handshaking, true);
  openWindow();
  EXPECT_EQ(baud(), GetParam().baud);
  EXPECT_EQ(chosen(window().optParity), GetParam().parity);
  EXPECT_EQ(chosen(window().optDataBits), GetParam().dataBits);
  EXPECT_EQ(chosen(window().optStopBits), GetParam().stopBits);
  EXPECT_EQ(chosen(window().optHandshake), GetParam().handshaking);
  EXPECT_EQ(window().optStopBits[1].Enabled.peek(), GetParam().secondStopBit);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, LineShown,
    ::testing::Values(LineRow{"EightNoneOne", "9600,n,8,1", 0, "9600", 2, 1, 0, false},
                      LineRow{"SevenEvenOne", "300,e,7,1", 1, "300", 0, 0, 0, true},
                      LineRow{"SevenOddTwo", "115200,O,7,2", 2, "115200", 1, 0, 1, true},
                      LineRow{"EightNoneTwo", "19200,N,8,2", 3, "19200", 2, 1, 1, false},
                      LineRow{"MarkIsNoChoice", "600,m,7,1", 0, "600", -1, 0, 0, true},
                      LineRow{"SpaceIsNoChoice", "1200,s,8,1", 0, "1200", -1, 1, 0, false},
                      LineRow{"SixBitsAreNoChoice", "2400,n,6,1", 0, "2400", 2, -1, 0, true},
                      LineRow{"OneAndAHalfIsNoChoice", "4800,n,7,1.5", 0, "4800", 2, 0, -1, true},
                      LineRow{"ASpeedThatIsNotListed", "14400,n,8,1", 0, "", 2, 1, 0, false},
                      LineRow{"Of38400", "38400,n,8,1", 0, "38400", 2, 1, 0, false},
                      LineRow{"Of57600", "57600,n,8,1", 0, "57600", 2, 1, 0, false}),
    RowName());

TEST_F(PortSettingsWindow, EightDataBitsTakeTheSecondStopBitAwayAndSevenGiveItBack) {
  startWith({{.number = 3}});
  setLine(3, "9600,n,7,2", 0, true);
  openWindow();
  frmSettings& form = window();
  click(form.optDataBits[1]);
  EXPECT_EQ(chosen(form.optStopBits), 0);
  EXPECT_FALSE(form.optStopBits[1].Enabled.peek());
  click(form.optStopBits[1]);
  EXPECT_EQ(chosen(form.optStopBits), 0);
  click(form.optDataBits[0]);
  EXPECT_TRUE(form.optStopBits[1].Enabled.peek());
  EXPECT_EQ(chosen(form.optStopBits), 0);
  click(form.optStopBits[1]);
  EXPECT_EQ(chosen(form.optStopBits), 1);
}

struct UselessControlRow {
  std::string name;
  bool isGiven;  // a label
  std::string words;
};
class UselessControl : public PortSettingsWindow,
                       public ::testing::WithParamInterface<UselessControlRow> {
 protected:
  void handOver() {
    inPanel(
        [this] { window().CommSettings(GetParam().isGiven ? &form1().Label1 : nullptr, "Title"); });
    run(0);
  }
};

TEST_P(UselessControl, IsReportedWithoutAWindow) {
  startWith({{.number = 3}});
  handOver();
  expectBox(GetParam().words, "GSM", BoxIcon::critical);
  EXPECT_FALSE(window().isLoaded());
  EXPECT_FALSE(ended());
}

TEST_P(UselessControl, ClosesTheWindowThatIsUpOnceTheBoxIsAnswered) {
  startWith({{.number = 3}});
  openWindow();
  machine().boxes.setAnswer(HeadlessBoxes::Answer::hold);
  handOver();
  EXPECT_TRUE(window().isLoaded());
  machine().boxes.answerTop();
  settle();
  EXPECT_FALSE(window().isLoaded());
  EXPECT_EQ(waiting(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, UselessControl,
    ::testing::Values(UselessControlRow{"OfNothing", false,
                                        "No serial communications control specified."},
                      UselessControlRow{"OfAnotherKind", true,
                                        "Passed control is not a serial communications control."}),
    RowName());

TEST_F(PortSettingsWindow, TakesTheTitleThatItIsGiven) {
  startWith({{.number = 3}});
  inPanel([this] { window().CommSettings(&form1().MSComm1, "Title"); });
  run(0);
  EXPECT_EQ(window().Caption.peek(), "Title");
}

TEST_F(PortSettingsWindow, OpenedAgainWhileItIsOpenListsThePortsOnceMore) {
  startWith({{.number = 3}});
  setLine(3, "9600,n,8,1", 0, true);
  openWindow();
  click(form1().Command7);
  EXPECT_EQ(window().cboPort.List.peek(), (Texts{"<none>", " 3", "<none>", " 3"}));
  EXPECT_EQ(port(), "<none>");  // the port is closed by then
  cancel();
  settle();
  EXPECT_FALSE(form1().MSComm1.PortOpen);
  EXPECT_EQ(sent(), Texts{});
  expectAtRest();
}

TEST_F(PortSettingsWindow, ForgetsItsChoicesWhenItIsClosed) {
  startWith({{.number = 3}});
  openWindow();
  choose(window().cboPort, " 3");
  click(window().optDataBits[0]);
  cancel();
  settle();
  openWindow();
  EXPECT_EQ(window().cboPort.List.peek(), (Texts{"<none>", " 3"}));
  EXPECT_EQ(port(), "<none>");
  EXPECT_EQ(chosen(window().optDataBits), 1);
}

}  // namespace
}  // namespace gsm
