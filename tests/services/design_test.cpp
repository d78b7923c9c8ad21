#include <gtest/gtest.h>

#include "tests/services/services_test.h"
#include "tests/support/window_design.h"

namespace gsm {
namespace {

class ServicesDesign : public ServicesTest {};

TEST_F(ServicesDesign, OfTheWindowAndItsControls) {
  EXPECT_EQ(form().Caption.peek(), "GSM-Supplementary Service");
  const Texts expected = {
      "Combo1: combo editable in Frame12",
      "Combo2: combo editable in Frame12",
      "Combo3: combo editable in Frame12",
      "Command1: button 'OK' in Frame1",
      "Command2: button 'Refresh' in Frame1",
      "Command3: button 'OK' in Frame5",
      "Command4: button 'Change Status' in Frame9",
      "Command5: button 'Change Status' in Frame10",
      "Command6: button 'OK' in Frame10",
      "Command7: button 'OK' in Frame12",
      "Command8: button '<Signal>'",
      "Frame10: frame",
      "Frame11: frame in Frame10",
      "Frame12: frame 'Closed User Group' hidden",
      "Frame13: frame 'Call Forward Current Status:'",
      "Frame1: frame",
      "Frame2: frame 'Reason' in Frame1",
      "Frame3: frame 'Mode' in Frame1",
      "Frame4: frame 'Class' in Frame1",
      "Frame5: frame hidden",
      "Frame6: frame 'Facility' in Frame5",
      "Frame7: frame 'Mode' in Frame5",
      "Frame8: frame 'Class' in Frame5",
      "Frame9: frame",
      "Label10: label 'Info' in Frame12",
      "Label11: label in Frame13",
      "Label12: label in Frame13",
      "Label13: label in Frame13",
      "Label14: label in Frame13",
      "Label15: label in Frame13",
      "Label16: label in Frame13",
      "Label1: label 'Number' in Frame1",
      "Label2: label in Frame1",
      "Label3: label in Frame9",
      "Label4: label 'Password' in Frame5",
      "Label5: label in Frame5",
      "Label6: label in Frame10",
      "Label7: label in Frame12",
      "Label8: label 'Mode' in Frame12",
      "Label9: label 'CUG Index' in Frame12",
      "Option12: option 'Voice' in Frame4",
      "Option13: option 'Data' in Frame4",
      "Option14: option 'Fax' in Frame4",
      "Option15: option 'SMS' in Frame4",
      "Option16: option 'All Classes' in Frame4",
      "Option17: option 'Barr All Outgoing Calls' in Frame6",
      "Option18: option 'Barr Outgoing International Calls' in Frame6",
      "Option19: option 'Barr Outgoing Internet calls Except Home Country' in Frame6",
      "Option1: option 'UnConditional' in Frame2",
      "Option20: option 'Barr All Incoming Calls' in Frame6",
      "Option21: option 'Barr Incoming When Roaming outside Home Country' in Frame6",
      "Option22: option 'Unlock' in Frame7",
      "Option23: option 'Lock' in Frame7",
      "Option24: option 'Voice' in Frame8",
      "Option25: option 'Data' in Frame8",
      "Option26: option 'Fax' in Frame8",
      "Option27: option 'Short Message' in Frame8",
      "Option28: option 'All Classes' in Frame8",
      "Option29: option 'Enable Call Waiting' in Frame11",
      "Option2: option 'Mobile Busy' in Frame2",
      "Option30: option 'Disable Call Waiting' in Frame11",
      "Option3: option 'No Reply' in Frame2",
      "Option4: option 'Not Reachable' in Frame2",
      "Option5: option 'All Call Forwarding' in Frame2",
      "Option6: option 'All Conditional Call Forwarding' in Frame2",
      "Option7: option 'Register' in Frame3",
      "Option8: option 'Erase' in Frame3",
      "TabStrip1: tabs 'Call Forward' 'Call Baring' 'Call Waiting' 'Closed User Group'",
      "Text1: text box in Frame1",
      "Text2: text box of 4 masked in Frame5",
  };
  EXPECT_EQ(describe(form()), expected);
}

TEST_F(ServicesDesign, TheForwardingPageIsUpOnceLoaded) {
  openWindow();
  EXPECT_EQ(pages(), (Texts{"Frame1", "Frame13", "Frame11", "Command6"}));
  EXPECT_FALSE(form().Command6.isReachable());
  EXPECT_EQ(form().TabStrip1.Value.peek(), forwarding);
}

TEST_F(ServicesDesign, ThePasswordsBoxTakesDigitsAndBackspaceOnly) {
  openWindow();
  turnTo(barring);
  click(form().Command4);
  const auto type = [this](const std::string& keys) {
    inPanel([this, keys] { form().Text2.userType(keys); });
    run(0);
    return form().Text2.Text.peek();
  };
  EXPECT_EQ(type("1a 2-B+"), "12");
  EXPECT_EQ(type("\b90"), "190");
  EXPECT_EQ(type("56"), "1905");
  EXPECT_EQ(type("\b\b\b\b\b"), "");
  EXPECT_EQ(type("3478"), "3478");
}

TEST_F(ServicesDesign, ThePasswordsBoxCutsWhatIsPasted) {
  openWindow();
  turnTo(barring);
  click(form().Command4);
  inPanel([this] { form().Text2.userEdit("123456", 6); });
  run(0);
  EXPECT_EQ(form().Text2.Text.peek(), "1234");
}

TEST_F(ServicesDesign, TheNumbersBoxTakesAnyTextOfAnyLength) {
  openWindow();
  const std::string text = "+33 (0)1 a\"b," + std::string(300, '9');
  inPanel([this, text] { form().Text1.userType(text); });
  run(0);
  EXPECT_EQ(form().Text1.Text.peek(), text);
}

TEST_F(ServicesDesign, SignalAsksForTheSignal) {
  openWindow();
  click(form().Command8);
  EXPECT_TRUE(panel().form7.Visible.peek());
  EXPECT_EQ(sent(), Texts{"AT\r"});
}

}  // namespace
}  // namespace gsm
