// Looking: what a property holds, what was written, what was shown.

#include "panel/form1.h"
#include "startup/frm_settings.h"
#include "tests/driver/driver_fixture.h"

namespace gsm::driver {
namespace {

class LookRequests : public DriverTest {
 protected:
  std::string look(const std::string& property) {
    return answerTo(Json{{"op", "get"}, {"property", property}}.dump());
  }
};

TEST_F(LookRequests, AValueHasItsOwnKind) {
  start();
  run(0);
  EXPECT_EQ(look("Form1.Label8.Caption"), R"({"ok":true,"value":"<<Signal>>"})");
  EXPECT_EQ(look("Form1.Command2.Enabled"), R"({"ok":true,"value":false})");
  EXPECT_EQ(look("Form1.Command2.Visible"), R"({"ok":true,"value":true})");
  EXPECT_EQ(look("Form1.Text2.Text"), R"({"ok":true,"value":"0"})");
  EXPECT_EQ(look("Form1.Text2.MaxLength"), R"({"ok":true,"value":0})");
  EXPECT_EQ(look("Form1.Text2.SelStart"), R"({"ok":true,"value":0})");
  EXPECT_EQ(look("Form1.Combo1.ListIndex"), R"({"ok":true,"value":-1})");
  EXPECT_EQ(look("Form1.Combo1.List"), R"({"ok":true,"value":[]})");
  EXPECT_EQ(look("Form1.List1.List"),
            R"({"ok":true,"value":["                      Welcome To Ormalin Telecom )"
            R"(Application"]})");
  EXPECT_EQ(look("Form1.Timer1.Interval"), R"({"ok":true,"value":1000})");
  EXPECT_EQ(look("Form1.Timer2.Enabled"), R"({"ok":true,"value":false})");
}

TEST_F(LookRequests, AColourIsAWholeNumber) {
  start();
  run(0);
  EXPECT_TRUE(get("Form1.Command7.BackColor").is_number_integer());
  EXPECT_TRUE(get("Form1.Label8.ForeColor").is_number_integer());
}

TEST_F(LookRequests, AWindowHasItsOwnProperties) {
  start();
  run(0);
  EXPECT_EQ(look("Form1.Caption"), R"({"ok":true,"value":"GSM-APPLICATION"})");
  EXPECT_EQ(look("Form1.Visible"), R"({"ok":true,"value":true})");
  EXPECT_EQ(look("Form1.WindowState"), R"({"ok":true,"value":0})");
  EXPECT_EQ(look("Form1.Loaded"), R"({"ok":true,"value":true})");
}

TEST_F(LookRequests, AWindowThatIsNotLoadedHasNothingToShow) {
  start();
  run(0);
  for (const char* property :
       {"Form7.Label4.Caption", "Form7.Image1.Visible", "Form6.Slider1.Value", "Form6.Slider1.Max",
        "Form6.Slider1.Min", "Form6.Option1.Value", "Form2.Label3.Caption", "Form7.Caption",
        "Form7.WindowState"}) {
    EXPECT_EQ(look(property), R"({"ok":true,"value":null})") << property;
  }
  EXPECT_EQ(look("Form7.Loaded"), R"({"ok":true,"value":false})");
  EXPECT_EQ(look("Form7.Visible"), R"({"ok":true,"value":false})");
}

TEST_F(LookRequests, LookingNeverLoads) {
  start();
  EXPECT_EQ(look("Form1.Label8.Caption"), R"({"ok":true,"value":null})");
  EXPECT_EQ(state()["loaded"], Json::array());
}

TEST_F(LookRequests, AControlHasItsOwnVisibilityWhateverHoldsIt) {
  startWithOpenPort();
  receive("+SIDET: 1,2\r");  // loads the audio window without showing it
  settle();
  EXPECT_EQ(look("Form6.Loaded"), R"({"ok":true,"value":true})");
  EXPECT_EQ(look("Form6.Visible"), R"({"ok":true,"value":false})");
  EXPECT_EQ(look("Form6.Slider10.Visible"), R"({"ok":true,"value":true})");
  EXPECT_EQ(look("Form6.Slider10.Value"), R"({"ok":true,"value":2})");
  EXPECT_EQ(look("Form6.Option2.Value"), R"({"ok":true,"value":true})");
  EXPECT_EQ(look("Form6.Option1.Value"), R"({"ok":true,"value":false})");
  EXPECT_EQ(look("Form6.Slider10.Max"), R"({"ok":true,"value":3})");
  EXPECT_EQ(look("Form6.Slider10.Min"), R"({"ok":true,"value":0})");
}

TEST_F(LookRequests, WhatDoesNotExistIsAnError) {
  start();
  run(0);
  for (const char* property : {"",
                               ".",
                               "..",
                               "Caption",
                               "Form1",
                               "Form1.",
                               "Form1..Caption",
                               "Form1.Label8.",
                               ".Label8.Caption",
                               "Form99.Caption",
                               "Form1.Label99.Caption",
                               "Form1.Label8.Text",
                               "Form1.Label8.caption",
                               "form1.Label8.Caption",
                               "Form1.Label8.Caption.Caption",
                               "Form1.Loaded.Caption",
                               "Form1.Label8.Loaded",
                               "Form1.Text",
                               " Form1.Caption",
                               "Form1.Caption "}) {
    EXPECT_TRUE(isRefused(Json{{"op", "get"}, {"property", property}}.dump()));
  }
}

TEST_F(LookRequests, AControlThatStandsAloneHasNoMembers) {
  start();
  run(0);
  for (const char* name :
       {"Form1.Label8(0)", "Form1.Label8(1)", "Form1.Label8()", "Form1.Label8(x)", "Form1.Label8(0",
        "Form1.Label8(0)x", "Form1.Label8(99999999999)", "Form1.Label8( 0)", "Form1.Label8(0))"}) {
    EXPECT_TRUE(
        isRefused(Json{{"op", "get"}, {"property", name + std::string(".Caption")}}.dump()));
    EXPECT_TRUE(isRefused(Json{{"op", "click"}, {"control", name}}.dump()));
  }
  for (const int index : {0, 1, 99}) {
    EXPECT_TRUE(
        isRefused(Json{{"op", "click"}, {"control", "Form1.Label8"}, {"index", index}}.dump()));
  }
}

TEST_F(LookRequests, NoMemberHasANegativeIndex) {
  start();
  run(0);
  const std::string member = "Form1.Label8(-1)";
  EXPECT_TRUE(isRefused(Json{{"op", "get"}, {"property", member + ".Caption"}}.dump()));
  EXPECT_TRUE(isRefused(Json{{"op", "click"}, {"control", member}}.dump()));
  EXPECT_TRUE(isRefused(R"({"op":"click","control":"Form1.Label8","index":-1})"));
}

TEST_F(LookRequests, AMemberOfAnArrayHasItsIndexInBrackets) {
  start();
  run(0);
  EXPECT_EQ(look("frmSettings.optParity(2).Caption"), R"({"ok":true,"value":null})");
  click("Form1.Command7");
  run(1);
  ASSERT_EQ(get("frmSettings.Visible"), true);
  EXPECT_EQ(look("frmSettings.optParity(2).Caption"), R"({"ok":true,"value":"None"})");
  EXPECT_EQ(look("frmSettings.optParity(0).Value"), R"({"ok":true,"value":false})");
  for (const char* member : {"optParity(3)", "optParity(-1)", "optParity()", "optParity"}) {
    EXPECT_TRUE(isRefused(
        Json{{"op", "get"}, {"property", std::string("frmSettings.") + member + ".Caption"}}
            .dump()));
  }
}

TEST_F(LookRequests, AMemberOfAnArrayIsClickedByItsIndex) {
  start();
  run(0);
  click("Form1.Command7");
  run(1);
  tell({{"op", "click"}, {"control", "frmSettings.optParity"}, {"index", 1}});
  run(0);
  EXPECT_EQ(get("frmSettings.optParity(1).Value"), true);
  click("frmSettings.optParity(0)");
  run(0);
  EXPECT_EQ(get("frmSettings.optParity(0).Value"), true);
  EXPECT_EQ(get("frmSettings.optParity(1).Value"), false);
  for (const int index : {3, 99}) {
    EXPECT_TRUE(isRefused(
        Json{{"op", "click"}, {"control", "frmSettings.optParity"}, {"index", index}}.dump()));
  }
  EXPECT_TRUE(isRefused(R"({"op":"click","control":"frmSettings.optParity"})"));
  EXPECT_EQ(state()["refused"], 0);
}

TEST_F(LookRequests, WhatWasWrittenIsReportedOnceWithItsTime) {
  layComFile("9600,N,8,1 3\r\n");
  start();
  run(0.5);
  EXPECT_EQ(answerTo(R"({"op":"sent"})"),
            R"({"ok":true,"writes":[{"at":0.0,"text":"AT+CGSN\r"}]})");
  EXPECT_EQ(answerTo(R"({"op":"sent"})"), R"({"ok":true,"writes":[]})");
}

TEST_F(LookRequests, WritesAreReportedInTheirOrder) {
  layComFile("9600,N,8,1 3\r\n");
  start();
  run(8);
  const Json writes = tell({{"op", "sent"}})["writes"];
  ASSERT_GE(writes.size(), 3u);
  for (std::size_t write = 1; write < writes.size(); ++write) {
    EXPECT_GT(writes[write]["at"], writes[write - 1]["at"]);
  }
}

}  // namespace
}  // namespace gsm::driver
