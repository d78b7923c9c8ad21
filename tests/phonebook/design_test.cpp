#include <gtest/gtest.h>

#include "panel/form1.h"
#include "tests/phonebook/phone_book_test.h"
#include "tests/support/rows.h"
#include "tests/support/window_design.h"

namespace gsm {
namespace {

struct DesignRow {
  std::string name;
  std::string caption;
  Texts controls;
};

class PhoneBookDesign : public PhoneBookTest, public ::testing::WithParamInterface<DesignRow> {};

TEST_P(PhoneBookDesign, StandsBeforeAndBehindTheFirstLoad) {
  layEntries({{"1", "112", "HELP"}});
  Window& window = *windowNamed(panel().platform, GetParam().name);
  for (int load = 0; load < 2; ++load) {
    EXPECT_EQ(window.Caption.peek(), GetParam().caption);
    EXPECT_EQ(describe(window), GetParam().controls);
    inPanel([&window] { window.Show(); });
    settle();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PhoneBookDesign,
    ::testing::Values(
        DesignRow{"Form3",
                  "GSM-Call",
                  {"Command1: button in Frame1",
                   "Command2: button 'Add' in Frame2",
                   "Command3: button 'Delete' in Frame2",
                   "Command4: button in Frame1",
                   "Command5: button 'Reload PhoneBook' in Frame2",
                   "Command6: button '<=' in Frame1",
                   "Command7: button 'Clear' in Frame1",
                   "Command8: button 'Redial' in Frame1",
                   "Data1: data control",
                   "Data2: data control",
                   "Frame1: frame 'Dail'",
                   "Frame2: frame",
                   "Frame3: frame",
                   "Image(0): picture in Frame1",
                   "Image(1): picture in Frame1",
                   "Image(2): picture in Frame1",
                   "Image(3): picture in Frame1",
                   "Image(4): picture in Frame1",
                   "Image(5): picture in Frame1",
                   "Image(6): picture in Frame1",
                   "Image(7): picture in Frame1",
                   "Image(8): picture in Frame1",
                   "Image(9): picture in Frame1",
                   "Image1: picture in Frame1",
                   "Image2: picture in Frame1",
                   "Label1: label '<<Signal>>'",
                   "Label2: label '#' in Frame1",
                   "Label3: label in Frame3",
                   "Label4: label 'X' in Frame1",
                   "List1: list box in Frame2",
                   "Text1: text box of 30 disabled in Frame1",
                   "Text2: text box in Frame2",
                   "Text4: text box in Frame2"}},
        DesignRow{"Form4",
                  "GSM-Add NUmbers To PhoneBook",
                  {"Command1: button '&Ok'", "Command2: button '&Cancel'", "Label1: label 'Name'",
                   "Label2: label 'Phone-Number'", "Label3: label 'Area-Code'",
                   "Label4: label 'Country-Code'", "Text1: text box of 4", "Text2: text box of 4",
                   "Text3: text box of 15", "Text4: text box of 14"}},
        DesignRow{"Form5",
                  "Call Received.....",
                  {"Command1: button '&Answer' in Frame1", "Command2: button '&HangUp' in Frame1",
                   "Frame1: frame", "Image1: picture in Frame1", "Label1: label in Frame1",
                   "Label2: label in Frame1"}}),
    RowName());

TEST_F(PhoneBookTest, TheTimersOfTheCallAndTheClockHaveTheirIntervals) {
  EXPECT_EQ(form1().Timer1.Interval.peek(), 1000);
  EXPECT_TRUE(form1().Timer1.Enabled.peek());
  EXPECT_EQ(form1().Timer2.Interval.peek(), 2000);
  EXPECT_FALSE(form1().Timer2.Enabled.peek());
}

}  // namespace
}  // namespace gsm
