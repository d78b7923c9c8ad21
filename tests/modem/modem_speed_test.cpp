#include <gtest/gtest.h>

#include "panel/form1.h"
#include "settings/form15.h"
#include "tests/support/healthy_modem_test.h"
#include "tests/support/open_port_test.h"

namespace gsm {
namespace {

struct SpeedRow {
  std::string name;
  std::string text;
  std::string speed;
};

// What a text in the transcript says of the modem's speed.
class ModemSpeed : public OpenPortTest, public ::testing::WithParamInterface<SpeedRow> {};

TEST_P(ModemSpeed, IsTheFirstThatStandsInTheText) {
  leaveInTranscript(GetParam().text);
  inPanel([this] {
    form1().Label6.Caption = kBefore;
    panel().form15.Combo1.Text = kBefore;
    form1().ShowModemSpeed();
  });
  settle();
  EXPECT_EQ(form1().Label6.Caption.peek(), GetParam().speed);
  EXPECT_EQ(panel().form15.Combo1.Text.peek(), GetParam().speed);
  EXPECT_EQ(transcript(), GetParam().text);
}

std::string reportedSpeed(const std::string& speed) {
  return "AT+IPR?\r\r\n+IPR: " + speed + "\r\n\r\nOK\r\n";
}

INSTANTIATE_TEST_SUITE_P(
    Speeds, ModemSpeed,
    ::testing::Values(SpeedRow{"Of300", reportedSpeed("300"), "300"},
                      SpeedRow{"Of600", reportedSpeed("600"), "600"},
                      SpeedRow{"Of1200", reportedSpeed("1200"), "1200"},
                      SpeedRow{"Of2400", reportedSpeed("2400"), "2400"},
                      SpeedRow{"Of4800", reportedSpeed("4800"), "4800"},
                      SpeedRow{"Of9600", reportedSpeed("9600"), "9600"},
                      SpeedRow{"Of19200", reportedSpeed("19200"), "19200"},
                      SpeedRow{"Of38400", reportedSpeed("38400"), "38400"},
                      SpeedRow{"Of57600Is600", reportedSpeed("57600"), "600"},
                      SpeedRow{"Of115200", reportedSpeed("115200"), "115200"},
                      SpeedRow{"OfAutoBaudStays", reportedSpeed("0"), kBefore},
                      SpeedRow{"Of14400Stays", reportedSpeed("14400"), kBefore},
                      SpeedRow{"Of230400Stays", reportedSpeed("230400"), kBefore},
                      SpeedRow{"OfAnErrorStays", kError, kBefore},
                      SpeedRow{"OfNothingStays", "", kBefore},
                      SpeedRow{"OfAnyDigits", "x1396001x", "9600"}),
    RowName());

// Of two speeds in one text the one of higher priority counts, wherever it stands.
INSTANTIATE_TEST_SUITE_P(Priority, ModemSpeed,
                         ::testing::Values(SpeedRow{"Of9600Over115200", "115200 9600", "9600"},
                                           SpeedRow{"Of115200Over19200", "19200 115200", "115200"},
                                           SpeedRow{"Of19200Over300", "300 19200", "19200"},
                                           SpeedRow{"Of300Over600", "600 300", "300"},
                                           SpeedRow{"Of600Over1200", "1200 600", "600"},
                                           SpeedRow{"Of1200Over2400", "2400 1200", "1200"},
                                           SpeedRow{"Of2400Over4800", "4800 2400", "2400"},
                                           SpeedRow{"Of4800Over38400", "38400 4800", "4800"},
                                           SpeedRow{"Of38400Over57600IsOf600", "57600 38400",
                                                    "600"}),
                         RowName());

class ModemSpeedAtStart : public HealthyModemTest {};

TEST_F(ModemSpeedAtStart, Of57600ShowsAs600) {
  startHealthy();
  reply("AT+IPR?", information("+IPR: 57600"));
  settle();
  EXPECT_EQ(form1().Label6.Caption.peek(), "600");
  EXPECT_EQ(panel().form15.Combo1.Text.peek(), "600");
  expectWorking();
}

TEST_F(ModemSpeedAtStart, OfAutoBaudLeavesTheLabelEmpty) {
  startHealthy();
  reply("AT+IPR?", information("+IPR: 0"));
  settle();
  EXPECT_EQ(form1().Label6.Caption.peek(), "");
  EXPECT_EQ(panel().form15.Combo1.Text.peek(), "");
  expectWorking();
}

}  // namespace
}  // namespace gsm
