#include "platform/qt/command_line.h"

#include <gtest/gtest.h>

#include <vector>

namespace gsm {
namespace {

using Words = std::vector<const char*>;

std::variant<CommandLine, CommandLineAnswer> read(Words words) {
  words.insert(words.begin(), "gsm-application");
  return readCommandLine(static_cast<int>(words.size()), words.data(), "1.2.3");
}
CommandLine options(const Words& words) {
  const auto result = read(words);
  const auto* line = std::get_if<CommandLine>(&result);
  EXPECT_NE(line, nullptr) << std::get<CommandLineAnswer>(result).text;
  return line == nullptr ? CommandLine{} : *line;
}
CommandLineAnswer answer(const Words& words) {
  const auto result = read(words);
  const auto* answer = std::get_if<CommandLineAnswer>(&result);
  EXPECT_NE(answer, nullptr);
  return answer == nullptr ? CommandLineAnswer{} : *answer;
}

TEST(CommandLineTest, NoneOfTheOptionsIsNeeded) {
  const CommandLine line = options({});
  EXPECT_FALSE(line.folder || line.port || line.record);
}

TEST(CommandLineTest, EachOptionTakesAFile) {
  const CommandLine line =
      options({"--folder", "/a b", "--port=/dev/ttyUSB0", "--record", "line.record"});
  EXPECT_EQ(line.folder, "/a b");
  EXPECT_EQ(line.port, "/dev/ttyUSB0");
  EXPECT_EQ(line.record, "line.record");
}

TEST(CommandLineTest, FileNamesKeepTheirBytes) {
  const CommandLine line = options({"--folder", "/caf\xE9/\xFF", "--record=\xE9"});
  EXPECT_EQ(line.folder, "/caf\xE9/\xFF");
  EXPECT_EQ(line.record, "\xE9");
}

TEST(CommandLineTest, TheVersionIsTheOneItIsGiven) {
  EXPECT_EQ(answer({"--version"}).text, "gsm-application 1.2.3\n");
  EXPECT_EQ(answer({"-v"}).status, 0);
}

TEST(CommandLineTest, TheHelpNamesEveryOption) {
  const CommandLineAnswer help = answer({"--help"});
  EXPECT_EQ(help.status, 0);
  for (const char* option : {"--folder <DIR>", "--port <DEVICE>", "--record <FILE>", "--version",
                             "--help", "8 MB at most"}) {
    EXPECT_NE(help.text.find(option), std::string::npos) << option << " in " << help.text;
  }
}

TEST(CommandLineTest, WhatItDoesNotKnowItTells) {
  for (const Words& words : {Words{"--colour"}, Words{"file"}, Words{"--folder"},
                             Words{"--record="}, Words{"--port", ""}}) {
    const CommandLineAnswer told = answer(words);
    EXPECT_EQ(told.status, 2) << words.front();
    EXPECT_TRUE(told.text.starts_with("gsm-application: ")) << told.text;
    EXPECT_TRUE(told.text.ends_with("\nSee gsm-application --help\n")) << told.text;
  }
}

TEST(CommandLineTest, HelpAndVersionAskForWords) {
  const auto asks = [](Words words) {
    words.insert(words.begin(), "gsm-application");
    return asksForWords(static_cast<int>(words.size()), words.data());
  };
  EXPECT_TRUE(asks({"--help"}));
  EXPECT_TRUE(asks({"--folder", "/", "--version"}));
  EXPECT_FALSE(asks({"--folder", "/"}));
  EXPECT_FALSE(asksForWords(0, nullptr));
}

}  // namespace
}  // namespace gsm
