#include <gtest/gtest.h>

#include <fstream>

#include "modem/form2.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/support/healthy_modem_test.h"

namespace gsm {
namespace {

// The window with the modem's details, read back from the file of the last modem.
class ModelDetails : public HealthyModemTest {
 protected:
  void SetUp() override { startUnlocked(); }

  void open() {
    click(form1().Command1);
    settle();
    ASSERT_TRUE(form().Visible.peek());
  }
  void layModelFile(const std::string& bytes) {
    std::ofstream(folder() / "Model.txt", std::ios::binary) << bytes;
  }
  void view() {
    click(form().Command1);
    settle();
  }

  Form2& form() { return panel().form2; }
  Texts labels() {
    return {form().Label2.Caption.peek(), form().Label3.Caption.peek(),
            form().Label4.Caption.peek(), form().Label5.Caption.peek(),
            form().Label6.Caption.peek()};
  }

  static constexpr const char* kHeading = "ManuFacturer And Model Details ";
};

TEST_F(ModelDetails, AreLostWhenTheWindowIsClosedAndReadBackFromTheFile) {
  open();
  close(form());
  EXPECT_FALSE(form().isLoaded());
  EXPECT_TRUE(form1().Visible.peek());
  open();
  EXPECT_EQ(labels(), (Texts{"", "", "", "", ""}));
  view();
  EXPECT_EQ(labels(), (Texts{"IMEI: ", "012345678901234", kHeading,
                             "WAVECOM MODEM MULTIBAND  900E  1800 ", kRevision}));
}

struct FileRow {
  std::string name;
  std::string bytes;
  std::string imei;
  std::string model;
  std::string revision;
};
class ModelFile : public ModelDetails, public ::testing::WithParamInterface<FileRow> {};

TEST_P(ModelFile, FillsTheLabels) {
  layModelFile(GetParam().bytes);
  open();
  view();
  EXPECT_EQ(labels(),
            (Texts{"IMEI: ", GetParam().imei, kHeading, GetParam().model, GetParam().revision}));
  view();
  EXPECT_EQ(labels(),
            (Texts{"IMEI: ", GetParam().imei, kHeading, GetParam().model, GetParam().revision}));
  EXPECT_EQ(file("Model.txt"), GetParam().bytes);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Files, ModelFile,
    ::testing::Values(FileRow{"OfFourLines", "1\r\n2\r\n3\r\n4\r\n", "1", "23", "4"},
                      FileRow{"OfThreeLinesHasNoRevision", "1\r\n2\r\n3\r\n", "1", "23", ""},
                      FileRow{"OfTwoLines", "1\r\n2\r\n", "1", "2", ""},
                      FileRow{"OfOneLine", "1\r\n", "1", "", ""},
                      FileRow{"OfMoreThanFourShowsTheFirstFour", "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n",
                              "1", "23", "4"},
                      FileRow{"WithEmptyLinesSkipsThem",
                              "\r\n\r\n1\r\n\r\n2\r\n\r\n\r\n3\r\n\r\n4\r\n\r\n", "1", "23", "4"},
                      FileRow{"WithBlanksKeepsThem", " 1\r\n 2 \r\n 3 \r\n 4\r\n", " 1", " 2  3 ",
                              " 4"},
                      FileRow{"WithALineOfABlankCountsIt", "1\r\n \r\n3\r\n4\r\n", "1", " 3", "4"},
                      FileRow{"WithoutALastLineEnd", "1\r\n2\r\n3\r\n4", "1", "23", "4"}),
    RowName());

TEST_F(ModelDetails, OfAnEmptyFileLeaveTheLabels) {
  layModelFile("");
  open();
  close(form());
  open();
  inPanel([this] { form().Label3.Caption = "before"; });
  view();
  EXPECT_EQ(labels(), (Texts{"IMEI: ", "before", kHeading, "", ""}));
}

TEST_F(ModelDetails, HoldTheFileUnderANewNumberAtEachPress) {
  open();
  EXPECT_EQ(machine().files.freeFile(), 1);
  view();
  EXPECT_EQ(machine().files.freeFile(), 2);
  view();
  EXPECT_EQ(machine().files.freeFile(), 3);
}

TEST_F(ModelDetails, HoldTheFileUntilTheNextRevisionIsSaved) {
  open();
  view();
  view();
  receive(std::string("ATI3\r") + information("new one"));
  settle();
  EXPECT_EQ(file("Model.txt"),
            "012345678901234\r\nWAVECOM MODEM MULTIBAND  900E  1800 \r\nnew one\r\n\r\r\n");
  EXPECT_EQ(machine().files.freeFile(), 1);
  // The file tells maker and model in one line now, so the revision counts as the model's second.
  view();
  EXPECT_EQ(labels(), (Texts{"IMEI: ", "012345678901234", kHeading,
                             "WAVECOM MODEM MULTIBAND  900E  1800 new one", ""}));
}

TEST_F(ModelDetails, OfAMissingFileEndTheProgram) {
  open();
  std::filesystem::remove(folder() / "Model.txt");
  view();
  expectEndedBy("File not found");
  EXPECT_EQ(form().Label2.Caption.peek(), "IMEI: ");
  EXPECT_EQ(form().Label4.Caption.peek(), kHeading);
}

TEST_F(ModelDetails, TakeTheStatusWindowAlongWhenMinimised) {
  open();
  const auto state = [this](int value) {
    inPanel([this, value] { form().userState(value); });
    run(0);
    return panel().form7.WindowState.peek();
  };
  EXPECT_EQ(state(WindowState::minimised), WindowState::minimised);
  EXPECT_EQ(state(WindowState::maximised), WindowState::minimised);
  EXPECT_EQ(state(WindowState::normal), WindowState::normal);
  EXPECT_EQ(state(WindowState::maximised), WindowState::normal);
}

TEST_F(ModelDetails, AreFilledAnewByARestartBehindTheWindow) {
  open();
  close(form());
  click(form1().Command9);
  settle();
  EXPECT_EQ(form().Label3.Caption.peek(), "012345678901234");
  EXPECT_EQ(form().Label6.Caption.peek(), std::string(kRevision) + "\r\n\r");
}

}  // namespace
}  // namespace gsm
