#include "simulator/simulator_options.h"

#include <gtest/gtest.h>

namespace gsm::simulator {
namespace {

using Given = std::vector<const char*>;

SimulatorOptions parsed(const Given& given) {
  return std::get<SimulatorOptions>(parseOptions(given));
}

std::string complaint(const Given& given) { return std::get<std::string>(parseOptions(given)); }

TEST(SimulatorOptions, NothingGivenIsARegisteredModemWithoutALink) {
  const SimulatorOptions options = parsed({});
  EXPECT_EQ(options.modem.sim, SimStatus::kReady);
  EXPECT_FALSE(options.link || options.profile || options.phoneBook || options.messages ||
               options.modem.speed);
  EXPECT_EQ(options.modem.phoneBook, factoryPhoneBook());
  EXPECT_EQ(options.modem.messages, factoryMessages());
  EXPECT_EQ(options.modem.nameRoom, 14u);
  EXPECT_FALSE(options.seeded || options.help || options.modem.silent);
  EXPECT_EQ(options.timeFactor, 1);
  EXPECT_EQ(options.modem.cutter.name(), "real");
}

TEST(SimulatorOptions, EveryOptionArrives) {
  const SimulatorOptions options =
      parsed({"--link",      "/tmp/m",     "--speed",       "9600",
              "--sim",       "puk",        "--profile",     "p",
              "--phonebook", "b",          "--messages",    "m",
              "--name-room", "10",         "--seed",        "18446744073709551615",
              "--cut",       "8",          "--fault",       "cut 3",
              "--fault",     "garble 0.1", "--time-factor", "2.5",
              "--silent",    "--help"});
  EXPECT_EQ(options.link, "/tmp/m");
  EXPECT_EQ(options.modem.speed, 9600);
  EXPECT_EQ(options.modem.sim, SimStatus::kPukWanted);
  EXPECT_EQ(options.profile, "p");
  EXPECT_EQ(options.phoneBook, "b");
  EXPECT_EQ(options.messages, "m");
  EXPECT_EQ(options.modem.nameRoom, 10u);
  EXPECT_EQ(options.modem.seed, 18446744073709551615u);
  EXPECT_TRUE(options.seeded);
  EXPECT_EQ(options.modem.cutter.name(), "8");
  ASSERT_EQ(options.modem.faults.size(), 2u);
  EXPECT_EQ(options.modem.faults[1]->name(), "garble 0.1");
  EXPECT_EQ(options.timeFactor, 2.5);
  EXPECT_TRUE(options.modem.silent);
  EXPECT_TRUE(options.help);
}

TEST(SimulatorOptions, BadValuesAreNamed) {
  const Given kBad[] = {{"--speed", "1234"},    {"--speed", ""},        {"--sim", "maybe"},
                        {"--seed", "-1"},       {"--cut", "0"},         {"--fault", "melt"},
                        {"--fault", "cut 0"},   {"--time-factor", "0"}, {"--time-factor", "nan"},
                        {"--time-factor", "x"}, {"--link", ""},         {"--profile", ""},
                        {"--phonebook", ""},    {"--messages", ""},     {"--name-room", "9"},
                        {"--name-room", "15"},  {"--name-room", "-10"}, {"--name-room", "x"}};
  for (const Given& given : kBad) {
    const std::string text = complaint(given);
    EXPECT_NE(text.find(given[0]), std::string::npos) << text;
    EXPECT_NE(text.find("'" + std::string(given[1]) + "'"), std::string::npos) << text;
  }
}

TEST(SimulatorOptions, MissingValuesAndUnknownOptionsAreNamed) {
  EXPECT_EQ(complaint({"--link"}), "--link wants a value after it");
  EXPECT_EQ(complaint({"--colour"}), "there is no option '--colour'");
  EXPECT_EQ(complaint({"modem"}), "there is no option 'modem'");
}

TEST(SimulatorOptions, HelpNamesEveryOption) {
  const std::string help = optionsHelp();
  for (const char* name :
       {"--link", "--speed", "--sim", "--profile", "--phonebook", "--messages", "--name-room",
        "--seed", "--cut", "--fault", "--time-factor", "--silent", "--help"}) {
    EXPECT_NE(help.find(std::string("  ") + name + " "), std::string::npos) << name;
  }
}

}  // namespace
}  // namespace gsm::simulator
