#include "platform/files.h"

#include <unistd.h>

#include <filesystem>

#include "tests/support/platform_fixture.h"

namespace gsm {
namespace {

class FilesTest : public PlatformTest {
 protected:
  Files& files() { return machine().files; }

  /// The lines of a file that holds `bytes`.
  Notes linesOf(const std::string& bytes) {
    folder().write("lines.txt", bytes);
    files().openForInput(1, "lines.txt");
    Notes lines;
    while (!files().atEnd(1)) lines.push_back(files().readLine(1));
    files().closeAll();
    return lines;
  }
};

TEST_F(FilesTest, LinesEndInCarriageReturnLineFeedOrBoth) {
  EXPECT_EQ(linesOf("a\r\nb\nc\rd"), Notes({"a", "b", "c", "d"}));
  EXPECT_EQ(linesOf("a\r\n"), Notes({"a"}));
  EXPECT_EQ(linesOf("a"), Notes({"a"}));
}

TEST_F(FilesTest, EmptyLinesAreLines) {
  EXPECT_EQ(linesOf("\r\n"), Notes({""}));
  EXPECT_EQ(linesOf("\n\r"), Notes({"", ""}));
  EXPECT_EQ(linesOf("a\r\n\r\nb\r\n"), Notes({"a", "", "b"}));
  EXPECT_EQ(linesOf("\r\r\n"), Notes({"", ""}));
}

TEST_F(FilesTest, AnEmptyFileHasNoLine) { EXPECT_EQ(linesOf(""), Notes()); }

TEST_F(FilesTest, EveryOtherByteIsPartOfItsLine) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != '\r' && byte != '\n') bytes += static_cast<char>(byte);
  }
  EXPECT_EQ(linesOf(bytes + "\r\n" + bytes), Notes({bytes, bytes}));
}

TEST_F(FilesTest, ALineMayBeLong) {
  const std::string line(1'000'000, 'x');
  EXPECT_EQ(linesOf(line + "\n"), Notes({line}));
}

TEST_F(FilesTest, FreeNumbersAreTakenFromOneUpward) {
  folder().write("a.txt", "");
  EXPECT_EQ(files().freeFile(), 1);
  files().openForInput(1, "a.txt");
  EXPECT_EQ(files().freeFile(), 2);
  files().openForInput(3, "a.txt");
  EXPECT_EQ(files().freeFile(), 2);
  files().openForInput(2, "a.txt");
  EXPECT_EQ(files().freeFile(), 4);
  files().closeAll();
  EXPECT_EQ(files().freeFile(), 1);
}

TEST_F(FilesTest, ANumberInUseIsRefusedForReadingAndWriting) {
  folder().write("a.txt", "kept");
  files().openForInput(1, "a.txt");
  EXPECT_EQ(failureOf([this] { files().openForInput(1, "a.txt"); }), 55);
  EXPECT_EQ(failureOf([this] { files().openForOutput(1, "a.txt"); }), 55);
  EXPECT_EQ(failureOf([this] { files().openForInput(1, "missing.txt"); }), 55);
  EXPECT_EQ(folder().read("a.txt"), "kept");
  EXPECT_EQ(files().readLine(1), "kept");
}

TEST_F(FilesTest, AMissingFileIsNotFound) {
  EXPECT_EQ(failureOf([this] { files().openForInput(1, "missing.txt"); }), 53);
  EXPECT_EQ(failureOf([this] { files().openForInput(1, "missing/a.txt"); }), 53);
  EXPECT_EQ(failureOf([this] { files().openForOutput(1, "missing/a.txt"); }), 53);
  EXPECT_EQ(files().freeFile(), 1);
}

TEST_F(FilesTest, AFolderIsNoFile) {
  std::filesystem::create_directory(folder().path() / "folder");
  EXPECT_EQ(failureOf([this] { files().openForInput(1, "folder"); }), 75);
  EXPECT_EQ(failureOf([this] { files().openForOutput(1, "folder"); }), 75);
  EXPECT_EQ(files().freeFile(), 1);
}

TEST_F(FilesTest, WhatTheUserMayNotOpenIsDenied) {
  if (geteuid() == 0) GTEST_SKIP() << "root may open everything";
  folder().write("locked.txt", "x");
  std::filesystem::permissions(folder().path() / "locked.txt", std::filesystem::perms::none);
  EXPECT_EQ(failureOf([this] { files().openForInput(1, "locked.txt"); }), 70);
  EXPECT_EQ(failureOf([this] { files().openForOutput(1, "locked.txt"); }), 70);
}

TEST_F(FilesTest, ReadingPastTheEndFails) {
  folder().write("a.txt", "only\r\n");
  files().openForInput(1, "a.txt");
  EXPECT_FALSE(files().atEnd(1));
  EXPECT_EQ(files().readLine(1), "only");
  EXPECT_TRUE(files().atEnd(1));
  EXPECT_EQ(failureOf([this] { files().readLine(1); }), 62);
}

TEST_F(FilesTest, ANumberThatIsNotOpenHasNothingToReadOrWrite) {
  EXPECT_EQ(failureOf([this] { files().atEnd(1); }), 52);
  EXPECT_EQ(failureOf([this] { files().readLine(1); }), 52);
  EXPECT_EQ(failureOf([this] { files().printLine(1, "x"); }), 52);
  folder().write("a.txt", "x");
  files().openForInput(1, "a.txt");
  files().closeAll();
  EXPECT_EQ(failureOf([this] { files().atEnd(1); }), 52);
  EXPECT_EQ(failureOf([this] { files().readLine(1); }), 52);
}

TEST_F(FilesTest, AFileIsOpenEitherForReadingOrForWriting) {
  folder().write("a.txt", "x");
  files().openForInput(1, "a.txt");
  files().openForOutput(2, "b.txt");
  EXPECT_EQ(failureOf([this] { files().printLine(1, "y"); }), 52);
  EXPECT_EQ(failureOf([this] { files().readLine(2); }), 52);
  EXPECT_EQ(failureOf([this] { files().atEnd(2); }), 52);
}

TEST_F(FilesTest, LinesAreWrittenWithCarriageReturnAndLineFeed) {
  files().openForOutput(1, "out.txt");
  files().printLine(1, "9600,N,8,1 3");
  files().printLine(1, "");
  files().closeAll();
  EXPECT_EQ(folder().read("out.txt"), "9600,N,8,1 3\r\n\r\n");
}

TEST_F(FilesTest, TheNewFileTakesTheOldOnesPlaceAtTheClosing) {
  folder().write("out.txt", "a much longer text than before\r\n");
  files().openForOutput(1, "out.txt");
  files().printLine(1, "x");
  EXPECT_EQ(folder().read("out.txt"), "a much longer text than before\r\n");
  files().closeAll();
  EXPECT_EQ(folder().read("out.txt"), "x\r\n");
  files().openForOutput(1, "out.txt");
  files().closeAll();
  EXPECT_EQ(folder().read("out.txt"), "") << "nothing was written";
}

TEST_F(FilesTest, AFileThatCantTakeItsPlaceFailsTheClosingOfAllWhichCloseAllTheSame) {
  files().openForOutput(1, "first.txt");
  files().openForOutput(2, "second.txt");
  files().openForOutput(3, "third.txt");
  for (const int number : {1, 2, 3}) files().printLine(number, "new");
  std::filesystem::create_directories(folder().path() / "first.txt" / "in its way");
  std::filesystem::create_directories(folder().path() / "second.txt" / "in its way");
  EXPECT_THROW(files().closeAll(), RuntimeFailure);
  EXPECT_EQ(files().freeFile(), 1);
  EXPECT_EQ(folder().read("third.txt"), "new\r\n");
}

TEST_F(FilesTest, TwoNumbersMayWriteOneFileAndTheLastClosedStays) {
  files().openForOutput(1, "out.txt");
  files().openForOutput(2, "out.txt");
  files().printLine(2, "second");
  files().printLine(1, "first");
  files().closeAll();
  EXPECT_EQ(folder().read("out.txt"), "second\r\n");
}

TEST_F(FilesTest, AFullDiskFailsTheLineThatDoesNotFit) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "needs a device that is always full";
  files().openForOutput(1, "/dev/full");
  EXPECT_EQ(failureOf([this] { files().printLine(1, "x"); }), 61);
  EXPECT_EQ(files().freeFile(), 2) << "its number stays in use";
  files().closeAll();
  EXPECT_EQ(files().freeFile(), 1);
}

TEST_F(FilesTest, ClosingOneKeepsTheOthersOpen) {
  folder().write("a.txt", "a\r\nb\r\nc\r\n");
  files().openForInput(1, "a.txt");
  files().openForInput(2, "a.txt");
  EXPECT_EQ(files().readLine(2), "a");
  files().close(1);
  files().close(9);
  EXPECT_EQ(files().freeFile(), 1);
  EXPECT_EQ(files().readLine(2), "b");
  EXPECT_EQ(failureOf([this] { files().readLine(1); }), 52);
  files().close(2);
  EXPECT_EQ(failureOf([this] { files().readLine(2); }), 52);
}

TEST_F(FilesTest, NamesAreRelativeToTheProgramsFolder) {
  EXPECT_EQ(files().path("COM.txt"), folder().path() / "COM.txt");
}

TEST_F(FilesTest, TheEndOfTheProgramClosesFiles) {
  now([this] {
    files().openForOutput(1, "out.txt");
    files().printLine(1, "kept");
    platform().program.end();
  });
  EXPECT_TRUE(ended());
  EXPECT_EQ(files().freeFile(), 1);
  EXPECT_EQ(folder().read("out.txt"), "kept\r\n");
}

}  // namespace
}  // namespace gsm
