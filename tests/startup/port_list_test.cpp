#include <gtest/gtest.h>

#include "panel/form1.h"
#include "tests/support/panel_fixture.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

using Texts = std::vector<std::string>;
using Ports = std::vector<HeadlessPorts::Port>;

// The two probes, which differ in what they count as there and in how far they go.
class PortProbes : public PanelTest {
 protected:
  void startWith(Ports ports) {
    start({.ports = std::move(ports)});
    settle();
  }
  Texts freePorts() {
    inPanel([this] { form1().ListCommPorts(); });
    run(0);
    return form1().Combo2.List.peek();
  }
};

TEST_F(PortProbes, TheFirstCountsAnyPortThatIsThere) {
  startWith({{.number = 1}, {.number = 2, .held = true}, {.number = 3, .fails = "Broken"}});
  EXPECT_TRUE(form1().ComPortExists(1));
  EXPECT_TRUE(form1().ComPortExists(2));
  EXPECT_TRUE(form1().ComPortExists(3));
  EXPECT_FALSE(form1().ComPortExists(4));
}

TEST_F(PortProbes, TheSecondCountsOnlyThePortsThatCanBeOpened) {
  startWith({{.number = 1}, {.number = 2, .held = true}, {.number = 3, .fails = "Broken"}});
  EXPECT_EQ(freePorts(), Texts{" 1"});
}

TEST_F(PortProbes, TheSecondGoesUpToThirtyTwo) {
  startWith({{.number = 33}, {.number = 32}, {.number = 17}, {.number = 9}});
  EXPECT_EQ(freePorts(), (Texts{" 9", " 17", " 32"}));
}

// What start-up lists for the sweep, for an empty line in the file with the saved port.
struct ListRow {
  std::string name;
  Ports ports;
  Texts list;  // of Combo1
};

class PortList : public PanelTest, public ::testing::WithParamInterface<ListRow> {};

TEST_P(PortList, HoldsThePortsToSweep) {
  layComFile("\r\n");
  start({.ports = GetParam().ports, .modemPort = std::nullopt});
  run(0);
  EXPECT_EQ(form1().Combo1.List.peek(), GetParam().list);
  EXPECT_EQ(form1().PortsFound, static_cast<int>(GetParam().list.size()));
  ASSERT_GE(log().size(), 3U);
  EXPECT_EQ(log()[2], "Found  " + std::to_string(GetParam().list.size()) + " Ports");
  EXPECT_EQ(form1().Label5.Caption.peek(), "Scanning Port  " + GetParam().list[0]);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PortList,
    ::testing::Values(
        ListRow{"InOrder", {{.number = 7}, {.number = 1}, {.number = 16}}, {"1", "7", "16"}},
        ListRow{"WithHeldPortsBehindTheFirst",
                {{.number = 1}, {.number = 2, .held = true}},
                {"1", "2"}},
        ListRow{"WithoutPortsAboveSixteenWhereOneIsBelow", {{.number = 3}, {.number = 17}}, {"3"}},
        ListRow{"OfFreePortsAboveSixteenWithALeadingBlank",
                {{.number = 17}, {.number = 18, .held = true}, {.number = 32}},
                {" 17", " 32"}}),
    RowName());

class PortListCases : public PanelTest {};

TEST_F(PortListCases, APortAboveSixteenIsSweptAndAccepted) {
  layComFile("\r\n");
  start({.ports = {{.number = 17}}, .modemPort = 17, .modemSpeed = 300});
  reply("AT+CGSN", "\r\n012345678901234\r\n\r\nOK\r\n");
  settle();
  EXPECT_EQ(form1().Label2.Caption.peek(), "Port 17");
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(PortListCases, TheFreePortsAreCopiedOneByOne) {
  layComFile("\r\n");
  start({.ports = {{.number = 17}, {.number = 20}}});
  run(0);
  EXPECT_EQ(form1().Combo2.List.peek(), (Texts{" 17", " 20"}));
  EXPECT_EQ(form1().Combo2.ListIndex.peek(), 1);
  EXPECT_EQ(form1().FallbackCount, 2);
  EXPECT_EQ(form1().FallbackLimit, 2);
  EXPECT_EQ(form1().FallbackIndex, "2");
}

TEST_F(PortListCases, TheFirstListIsMadeAnewAndTheSecondGrowsEachTime) {
  layComFile("\r\n\r\n");
  start({.ports = {{.number = 17}}});
  settle();
  EXPECT_EQ(form1().Combo1.List.peek(), (Texts{" 17", " 17"}));
  ASSERT_EQ(log().size(), 7U);
  EXPECT_EQ(log()[2], "Found  1 Ports");
  EXPECT_EQ(log()[5], "Found  2 Ports");

  start({.ports = {{.number = 3}}});
  settle();
  EXPECT_EQ(form1().Combo1.List.peek(), Texts{"3"});
}

TEST_F(PortListCases, HeldPortsAboveSixteenAloneAreNoPorts) {
  layComFile("\r\n");
  start({.ports = {{.number = 17, .held = true}}});
  settle();
  EXPECT_EQ(boxes(), Texts{"No Comm Ports Present"});
  EXPECT_EQ(log().size(), 1U);
  EXPECT_EQ(form1().Label5.Caption.peek(), "");
}

TEST_F(PortListCases, TheListBeginsSelected) {
  layComFile("9600,N,8,1 3\r\n");
  start({.ports = {{.number = 2}, {.number = 3}}});
  run(2.1);
  EXPECT_EQ(form1().Combo1.ListIndex.peek(), 0);
  EXPECT_EQ(form1().Combo1.Text.peek(), "2");
}

}  // namespace
}  // namespace gsm
