#include "simulator/messages/message_store.h"

#include <gtest/gtest.h>

#include "simulator/messages/message_text.h"

namespace gsm::simulator {
namespace {

Message received(std::string text) {
  return {MessageStatus::kReceivedUnread, "0123", "26/01/31,12:00:00+04", std::move(text)};
}

TEST(MessageStore, FirstFreeIsTheFirstHole) {
  MessageStore store("SM", 3, {{1, received("a")}, {3, received("c")}});
  EXPECT_EQ(store.firstFree(), 2);
  EXPECT_TRUE(store.store(2, received("b")));
  EXPECT_EQ(store.firstFree(), std::nullopt);
}

TEST(MessageStore, OnlyWhatIsUnreadIsMarked) {
  int changes = 0;
  MessageStore store("SM", 3,
                     {{1, received("a")}, {2, {MessageStatus::kStoredUnsent, "1", "", ""}}},
                     [&](std::string_view) { return ++changes > 0; });
  EXPECT_TRUE(store.markRead(1));
  EXPECT_TRUE(store.markRead(1));
  EXPECT_TRUE(store.markRead(2));
  EXPECT_TRUE(store.markRead(3));
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(store.entries().at(1).status, MessageStatus::kReceivedRead);
  EXPECT_EQ(store.entries().at(2).status, MessageStatus::kStoredUnsent);
}

TEST(MessageText, ReadsWhatItWrites) {
  MessageEntries entries = factoryMessages();
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  entries[7] = received(bytes.substr(0, 160));
  entries[8] = received(bytes.substr(160));
  entries[20] = {MessageStatus::kStoredUnsent, "", "", " \"x\" \\n "};
  const MessagesReading reading = readMessages(toText(entries));
  EXPECT_EQ(reading.entries, entries);
  EXPECT_TRUE(reading.complaints.empty());
}

TEST(MessageText, FactoryMessagesHaveNoFlaw) {
  for (const auto& [location, message] : factoryMessages()) {
    EXPECT_FALSE(flawOf(message)) << location;
  }
}

struct BadLine {
  std::string line;
  const char* complaint;
};

TEST(MessageText, SaysWhatIsWrongWithALine) {
  const BadLine kBad[] = {
      {"x\tREC READ\t1\tt\tx", "the location isn't a number from 1 to 20"},
      {"21\tREC READ\t1\tt\tx", "the location isn't a number from 1 to 20"},
      {"1\tREAD\t1\tt\tx", "the status isn't REC UNREAD, REC READ, STO UNSENT or STO SENT"},
      {"1\tREC READ\tanna\tt\tx", "the number isn't one"},
      {"1\tREC READ\t\tt\tx", "the number isn't one"},
      {"1\tREC READ\t123456789012345678901\tt\tx", "the number isn't one"},
      {"1\tREC READ\t1\t\tx", "a received message has a time and a stored one has none"},
      {"1\tREC READ\t1\t\"\tx", "a received message has a time and a stored one has none"},
      {"1\tSTO SENT\t1\tt\tx", "a received message has a time and a stored one has none"},
      {"1\tSTO SENT\t1\t\t\\q", "the text isn't escaped rightly"},
      {"1\tSTO SENT\t1\t\t" + std::string(161, 'x'), "the text is longer than 160 characters"},
  };
  for (const auto& [line, complaint] : kBad) {
    const MessagesReading reading = readMessages("\n" + line + "\r\n2\tSTO SENT\t1\t\tgood");
    EXPECT_EQ(reading.complaints, std::vector{std::string("line 2: ") + complaint}) << line;
    EXPECT_EQ(reading.entries,
              (MessageEntries{{2, {MessageStatus::kStoredSent, "1", "", "good"}}}));
  }
}

TEST(MessageText, FirstOfTwoForALocationStays) {
  const MessagesReading reading = readMessages("2\tSTO SENT\t1\t\ta\n2\tSTO SENT\t1\t\tb\n");
  EXPECT_EQ(reading.entries.at(2).text, "a");
  EXPECT_EQ(reading.complaints,
            std::vector<std::string>{"line 2: location 2 has a message already"});
}

}  // namespace
}  // namespace gsm::simulator
