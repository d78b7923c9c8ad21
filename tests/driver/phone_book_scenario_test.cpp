// The phone book and calls, driven from outside from the start of the program on.

#include "phonebook/form3.h"
#include "tests/driver/driver_fixture.h"
#include "tests/support/modem_bytes.h"

namespace gsm::driver {
namespace {

class PhoneBookScenario : public DriverTest {
 protected:
  void store(const std::string& table, const std::string& rows) {
    tell({{"op", "store"},
          {"folder", folder().path().string()},
          {"table", table},
          {"rows", Json::parse(rows)}});
  }
  Json rows(const std::string& table) { return tell({{"op", "rows"}, {"table", table}})["rows"]; }
  void reply(const std::string& command, const std::string& text) {
    tell({{"op", "reply"}, {"write", command + "\r"}, {"text", text}});
  }
  // Starts against a modem with a ready SIM until the panel's buttons are unlocked.
  void startUnlocked() {
    layComFile("9600,N,8,1 3\r\n");
    start();
    tell({{"op", "otherwise"}, {"text", kOk}});
    reply("AT+CGSN", kImeiReply);
    reply("AT+CPIN?", unsolicited("+CPIN: READY"));
    reply("ATS0?", information("000"));
    reply("AT+ICF?", information("+ICF: 3,4"));
    settle();
    EXPECT_EQ(get("Form1.Command2.Enabled"), true);
    sent();
  }
  void ring(const std::string& number) {
    receive("\r\nRING\r\n\r\n+CLIP: \"" + number + "\",129\r\n");
    settle();
  }
  void clickAndSettle(const std::string& control) {
    click(control);
    settle();
  }
  void clickKey(int index) {
    tell({{"op", "click"}, {"control", "Form3.Image"}, {"index", index}});
    settle();
  }
};

TEST_F(PhoneBookScenario, ACallerIsNamedByTheRowsThatWereStored) {
  store("DATA", R"([{"Index":"1","Number":"0146290800","Name":"Ärger"}])");
  startWithOpenPort();
  ring("0146290800");
  EXPECT_EQ(get("Form5.Visible"), true);
  EXPECT_EQ(get("Form5.Label1.Caption"), "Call Received From  Ärger");
}

TEST_F(PhoneBookScenario, TheNextCallSeesRowsThatWereStoredMeanwhile) {
  store("DATA", R"([{"Index":"1","Number":"0146290800","Name":"ANNA"}])");
  startWithOpenPort();
  ring("0146290800");
  ASSERT_EQ(get("Form5.Label1.Caption"), "Call Received From  ANNA");
  store("DATA", R"([{"Index":"1","Number":"112","Name":"HELP"},
                    {"Index":"2","Number":"0146290800","Name":"BERT"}])");
  ring("0146290800");
  EXPECT_EQ(get("Form5.Label1.Caption"), "Call Received From  BERT");
  store("DATA", "[]");
  ring("0146290800");
  EXPECT_EQ(get("Form5.Label1.Caption"), "Call Received-  0146290800");
}

TEST_F(PhoneBookScenario, TheCallWindowListsTheStoredRowsAndItsKeysDial) {
  store("DATA", R"([{"Index":"1","Number":"0146290800","Name":"ANNA"},
                    {"Index":"2","Number":"112","Name":"O'NEIL"}])");
  store("Details", R"([{"TotalIndex":"250","UsedIndex":"2"}])");
  startUnlocked();
  EXPECT_EQ(get("Form3.List1.List"), nullptr);
  clickAndSettle("Form1.Command2");
  EXPECT_EQ(get("Form3.List1.List"),
            Json::array({"1  0146290800          ANNA", "2  112                 O'NEIL"}));
  EXPECT_EQ(get("Form3.Text2.Text"), "2");
  EXPECT_EQ(get("Form3.Text4.Text"), "250");
  EXPECT_EQ(get("Form3.Image(5).Visible"), true);
  EXPECT_EQ(sent(), Texts{"AT\r"});  // the button's own; the book is not asked for

  for (const int key : {1, 0, 9}) clickKey(key);
  EXPECT_EQ(get("Form3.Text1.Text"), "109");
  EXPECT_EQ(sent(), (Texts{"AT+VTS=1\r", "AT+VTS=0\r", "AT+VTS=9\r"}));
  EXPECT_TRUE(isRefused(R"({"op":"click","control":"Form3.Image","index":10})"));
  EXPECT_TRUE(isRefused(R"({"op":"click","control":"Form3.Image"})"));
  EXPECT_TRUE(isRefused(R"({"op":"get","property":"Form3.Image(10).Visible"})"));
}

TEST_F(PhoneBookScenario, TheTablesFollowADownloadAnAdditionAndADeletion) {
  store("DATA", "[]");
  startUnlocked();
  reply("AT+CPBS?", information("+CPBS: \"SM\",2,250"));
  reply("AT+CPBR=1", information("+CPBR: 1,\"0146290800\",129,\"Anna\""));
  reply("AT+CPBR=2", information("+CPBR: 2,\"+33612345678\",145,\"Bert\""));
  clickAndSettle("Form1.Command2");
  EXPECT_EQ(sent(), (Texts{"AT\r", "AT+CPBS?\r", "AT+CPBR=1\r", "AT+CPBR=2\r"}));
  EXPECT_EQ(rows("DATA").dump(), R"([{"Index":"1","Number":"0146290800","Name":"Anna"},)"
                                 R"({"Index":"2","Number":"+33612345678","Name":"Bert"}])");
  EXPECT_EQ(rows("Details").dump(), R"([{"TotalIndex":"250","UsedIndex":"2"}])");

  clickAndSettle("Form3.Command2");
  tell({{"op", "type"}, {"control", "Form4.Text3"}, {"text", "112"}});
  tell({{"op", "type"}, {"control", "Form4.Text4"}, {"text", "Help"}});
  clickAndSettle("Form4.Command1");
  EXPECT_EQ(sent(), Texts{"AT+CPBW=3,112,,\" Help\"\r"});
  EXPECT_EQ(rows("DATA")[2].dump(), R"({"Index":"3","Number":"112","Name":"HELP"})");
  EXPECT_EQ(rows("Details").dump(), R"([{"TotalIndex":"250","UsedIndex":"3"}])");

  tell({{"op", "select"}, {"control", "Form3.List1"}, {"index", 0}});
  clickAndSettle("Form3.Command3");
  EXPECT_EQ(sent(), Texts{"AT+CPBW=1\r"});
  EXPECT_EQ(rows("DATA").dump(), R"([{"Index":"2","Number":"+33612345678","Name":"Bert"},)"
                                 R"({"Index":"3","Number":"112","Name":"HELP"}])");
  EXPECT_EQ(rows("Details").dump(), R"([{"TotalIndex":"250","UsedIndex":"3"}])");
  EXPECT_EQ(get("Form3.List1.List"),
            Json::array({"2  +33612345678        Bert", "3  112                 HELP"}));
  EXPECT_EQ(shown(), Texts{});
}

}  // namespace
}  // namespace gsm::driver
