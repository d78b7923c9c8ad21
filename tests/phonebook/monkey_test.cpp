#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>

#include "panel/form1.h"
#include "phonebook/form3.h"
#include "phonebook/form4.h"
#include "tests/phonebook/download_test.h"
#include "tests/support/seed.h"

namespace gsm {
namespace {

// A user, a modem and a network without any plan.
class PhoneBookMonkey : public DownloadTest {
 protected:
  void SetUp() override {
    DownloadTest::SetUp();
    layEntries({{"1", "112", "HELP"}, {"2", "0146290800", "ALICE"}});
    layCounts("100", "2");
    openCalls();
    answerCounts("3,100");
    for (int i = 1; i <= 3; ++i) answerEntry(i, "014629080" + std::to_string(i), "Name");
    for (const char* command : {"ATH", "ATA", "AT+CPBW=1", "AT+CPBW=2", "AT+VTS=5"}) {
      reply(command, kOk);
    }
    reply("AT+CIND?", information("+CIND: 5,4,1,0,1,0,0"));
    reply("ATDL", "\r\n0146290800;\r\n");
  }

  std::vector<std::function<void()>> actions() {
    Form3& book = calls();
    Form4& add = panel().form4;
    std::vector<std::function<void()>> all;
    for (CommandButton* button :
         {&book.Command1, &book.Command2, &book.Command3, &book.Command4, &book.Command5,
          &book.Command6, &book.Command7, &book.Command8, &add.Command1, &add.Command2,
          &prompt().Command1, &prompt().Command2}) {
      all.push_back([button] { button->userClick(); });
    }
    for (int key : {1, 5}) all.push_back([&book, key] { book.Image[key].userClick(); });
    for (int row : {0, 1, 2}) all.push_back([&book, row] { book.List1.userSelect(row); });
    all.push_back([&add] { add.Text3.userType("0146"); });
    all.push_back([&add] { add.Text4.userType("Al'\"b"); });
    for (Window* window : std::initializer_list<Window*>{&book, &add, &prompt()}) {
      all.push_back([window] { window->userClose(); });
    }
    for (int often = 0; often < 6; ++often) all.push_back([&book] { book.Show(); });
    for (const char* line :
         {"RING", "+CLIP: \"0146290801\",129", "+CLIP: \"\",128", "NO CARRIER", "BUSY", "OK",
          "ERROR", "+CCWA: \"112\",129,1", "+CMTI: \"SM\",3", "+CPBS: \"SM\",2,100"}) {
      all.push_back([this, line] { machine().line.arrive(unsolicited(line)); });
    }
    for (const bool open : {false, true, true}) {
      all.push_back([this, open] {
        if (form1().MSComm1.PortOpen != open) form1().MSComm1.PortOpen = open;
      });
    }
    return all;
  }
};

TEST_F(PhoneBookMonkey, NeverBringsTheProgramDownAndTheBookIsReadAsEverBehindIt) {
  std::mt19937 random(newSeed());
  const auto all = actions();
  double at = 0;
  for (int step = 0; step < 400; ++step) {
    inPanel(all[random() % all.size()], at);
    at += static_cast<double>(random() % 4000) / 1000;
  }
  run(at);
  inPanel([this] {
    if (!form1().MSComm1.PortOpen) form1().MSComm1.PortOpen = true;
  });
  run(8000);  // every call watch has its turn
  form1().Timer2.Enabled = false;
  settle();
  ASSERT_FALSE(ended());
  ASSERT_EQ(waiting(), 0);
  for (const std::string& box : boxes()) {
    const Texts known = {"Please Enter Correct Number To Dial", "Please Enter Valid Number/Name",
                         "Address Book full", "Select the Number To Delete In PhoneBook",
                         "Error Occurred.Try Again"};
    EXPECT_NE(std::find(known.begin(), known.end(), box), known.end()) << box;
  }
  inPanel([this] { calls().Show(); });
  settle();
  clearTranscript();
  click(calls().Command5);
  settle();
  EXPECT_EQ(storedEntries().size(), 3U);
  EXPECT_EQ(rows().size(), 3U);
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "3"}}));
}

}  // namespace
}  // namespace gsm
