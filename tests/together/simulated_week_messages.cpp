// What is written, sent, kept and read in the simulated week.

#include <algorithm>

#include "link/text.h"
#include "modem/form11.h"
#include "panel/form1.h"
#include "simulator/messages/message_text.h"
#include "simulator/network/service_classes.h"
#include "simulator/text/text.h"
#include "sms/form8.h"
#include "tests/together/simulated_week.h"

namespace gsm {
namespace {

// Numbers that the network refuses messages for end in one of these.
constexpr std::string_view kRefused = "789";

constexpr int kEntriesOffered = 12;

}  // namespace

std::string SimulatedWeek::note() { return messages().Label4.Caption.peek(); }

void SimulatedWeek::openMessages() {
  if (messages().Visible.peek()) return;
  showPanel();
  click(form1().Command3);
  settle();
  ASSERT_TRUE(messages().Visible.peek());
  EXPECT_FALSE(form1().Visible.peek());
  EXPECT_EQ(form1().Command3.BackColor.peek(), kButtonGrey);
  if (!inPeace_) return;
  EXPECT_EQ(messages().Label6.Caption.peek(),
            reports_ ? "Status Report Enabled" : "Status Report Disabled");
}

simulator::MessageEntries SimulatedWeek::messagesOnCard() {
  return simulator::readMessages(tell("messages")).entries;
}

std::optional<int> SimulatedWeek::freePlaceOnCard() {
  const auto card = messagesOnCard();
  for (int place = 1; place <= simulator::kMessageLocations; ++place) {
    if (!card.contains(place)) return place;
  }
  return std::nullopt;
}

// The last digit decides, and the network's bar for messages.
bool SimulatedWeek::isMessageTaken(const std::string& number) {
  return kRefused.find(number.back()) == std::string_view::npos &&
         (truth().barred["AO"] & simulator::kMessageClass) == 0;
}

std::string SimulatedWeek::someText() {
  static const std::vector<std::string> texts = {
      "Dinner at eight?", "The train is late, again.",     " with blanks around it  ", "x",
      "1,2,\"3\"",        "Caf\xE9 at the corner? 5 \x80", std::string(160, 'm')};
  return oneOf(texts);
}

void SimulatedWeek::writeMessage(const std::string& number) {
  type(messages().Text1, number);
  if (perhaps(3)) type(messages().Text5, perhaps(2) ? "Fred: " : digits(25));
  type(messages().Text2, someText());
  const std::size_t header = messages().Text5.Text.peek().size();
  EXPECT_LE(header, 20U);
  EXPECT_LE(messages().Text2.Text.peek().size() + header, 160U) << "typed behind the header";
}

void SimulatedWeek::sendMessage() {
  comeToRest();
  openMessages();
  const std::string number = perhaps(20) ? "" : (perhaps(2) ? "0" : "+33") + digits(8);
  writeMessage(number);
  click(messages().Command1);
  settle();
  if (number.empty()) {
    expectBox("Please Enter Destination Number");
    return;
  }
  EXPECT_FALSE(messages().Combo2.Visible.peek());
  if (!inPeace_) return;
  const std::string told = note();
  if (isMessageTaken(number)) {
    EXPECT_TRUE(told.starts_with("Message Sent SuccessFully At ")) << told;
  } else {
    EXPECT_EQ(told, "Message Not Sent.Error Occurred");
  }
}

// Without the header.
void SimulatedWeek::saveMessage() {
  comeToRest();
  openMessages();
  const std::string number = (perhaps(2) ? "0" : "+") + digits(9);
  writeMessage(number);
  const std::string text = trim(messages().Text2.Text.peek());
  const auto place = freePlaceOnCard();
  auto expected = messagesOnCard();
  if (place) {
    expected[*place] = {simulator::MessageStatus::kStoredUnsent, number, "", text};
  }
  click(messages().Command2);
  settle();
  if (!inPeace_) return;
  EXPECT_EQ(note(), place ? "Message Saved" : "Message Not Saved.Error Occurred");
  EXPECT_EQ(messagesOnCard(), expected);
}

// Into either of the two boxes.
void SimulatedWeek::readMessage() {
  comeToRest();
  openMessages();
  const int place = 1 + static_cast<int>(below(kEntriesOffered));
  const auto card = messagesOnCard();
  const auto found = card.find(place);
  const bool toSend = perhaps(3);
  if (toSend) {
    click(messages().Command5);
    // A pick of the item that is selected already runs its handler, too.
    world().time().after(Duration::zero(),
                         [this, place] { messages().Combo2.userSelect(place - 1); });
  } else {
    world().time().after(Duration::zero(),
                         [this, place] { messages().Combo1.userSelect(place - 1); });
    run(0);
    click(messages().Command3);
  }
  settle();
  if (!inPeace_) return;
  if (found == card.end()) {
    EXPECT_EQ((toSend ? messages().Text2 : messages().Text3).Text.peek(), "");
  } else if (toSend) {
    const auto limit = static_cast<std::size_t>(messages().Text2.MaxLength.peek());
    EXPECT_EQ(messages().Text2.Text.peek(), textTold(found->second).substr(0, limit));
  } else {
    EXPECT_EQ(messages().Text3.Text.peek(), messageTold(found->second));
  }
  EXPECT_FALSE(messagesOnCard().contains(place) &&
               messagesOnCard()[place].status == simulator::MessageStatus::kReceivedUnread);
}

// The places that the window doesn't offer are emptied with the card elsewhere when it is full.
void SimulatedWeek::deleteMessage() {
  comeToRest();
  openMessages();
  const int place = 1 + static_cast<int>(below(kEntriesOffered));
  auto expected = messagesOnCard();
  expected.erase(place);
  world().time().after(Duration::zero(),
                       [this, place] { messages().Combo1.userSelect(place - 1); });
  run(0);
  click(messages().Command4);
  settle();
  EXPECT_EQ(messages().Text3.Text.peek(), "Message Deleted");
  if (inPeace_) {
    EXPECT_EQ(messagesOnCard(), expected);
  }
  if (freePlaceOnCard()) return;
  inPanel([this] {
    form1().modem.exchange("AT+CMGD=1,4");
    form1().Text1.clear();
  });
  settle();
}

// Capitals don't count, so a name may find another one's number; one with an apostrophe finds
// nobody.
void SimulatedWeek::writeToSomeName() {
  comeToRest();
  openMessages();
  click(messages().Command6);
  settle();
  const BookRows book = storedEntries();
  if (book.empty()) {
    expectBox("Empty !No Numbers Stored");
    EXPECT_FALSE(messages().List1.Visible.peek());
    return;
  }
  const Texts names = messages().List1.List.peek();
  ASSERT_EQ(names.size(), book.size());
  if (inPeace_) {
    EXPECT_TRUE(messages().Text4.Visible.peek());
    EXPECT_EQ(messages().Text4.Text.peek(), "+33639980000");
  }
  const std::size_t row = below(names.size());
  const std::string before = messages().Text1.Text.peek();
  world().time().after(Duration::zero(),
                       [this, row] { messages().List1.userSelect(static_cast<int>(row)); });
  settle();
  const auto named = std::find_if(book.begin(), book.end(), [&](const BookRow& each) {
    return std::equal(each[2].begin(), each[2].end(), names[row].begin(), names[row].end(),
                      [](char a, char b) { return simulator::upper(a) == simulator::upper(b); });
  });
  const bool isFound = names[row].find('\'') == std::string::npos && named != book.end();
  EXPECT_EQ(messages().Text1.Text.peek(), isFound ? (*named)[1] : before) << names[row];
}

void SimulatedWeek::switchReports() {
  comeToRest();
  openMessages();
  const bool on = perhaps(2);
  click(on ? messages().Option3 : messages().Option4);
  click(messages().Command9);
  settle();
  reports_ = on;
  if (!inPeace_) return;
  EXPECT_EQ(note(), on ? "Status Report Enabled" : "Status Report Disabled");
  EXPECT_EQ(messages().Label6.Caption.peek(), note());
}

// The modem takes the standard's meaning, which is the other way round. Pages of the cell are never
// handed over either way.
void SimulatedWeek::switchBroadcast() {
  comeToRest();
  openMessages();
  const bool on = perhaps(2);
  click(on ? messages().Option1 : messages().Option2);
  click(messages().Command8);
  settle();
  if (inPeace_) {
    EXPECT_EQ(note(), on ? "Cell BroadCast Enabled" : "Cell BroadCast Disabled");
  }
  const std::string before = transcript();
  EXPECT_EQ(tell("broadcast Road closed").empty(), !on);
  run(20);
  EXPECT_EQ(transcript(), before);
}

void SimulatedWeek::letSomebodyWrite() {
  comeToRest();
  const auto place = freePlaceOnCard();
  const std::string text = "Message of " + std::to_string(static_cast<int>(now()));
  EXPECT_EQ(tell("message +" + digits(9) + " " + text).empty(), place.has_value());
  // The picture of advice may come up on top of the wait.
  bool isPictured = false;
  for (int looks = 0; looks < 40; ++looks) {
    run(0.5);
    isPictured = isPictured || panel().form11.Visible.peek();
  }
  settle();
  EXPECT_EQ(isPictured, place.has_value());
  EXPECT_FALSE(panel().form11.Visible.peek());
  if (!place) return;
  EXPECT_EQ(messagesOnCard()[*place].text, text);
  // Two characters are taken, so a single digit has the line's end with it.
  const std::string told = std::to_string(*place) + "\r";
  EXPECT_EQ(note(), "New Message Received." + told.substr(0, 2));
  EXPECT_NE(form1().Command3.BackColor.peek(), kButtonGrey);
}

// A message that comes in takes away what the transcript holds, so what the user sees of his deed
// nobody can tell; but it never says more than is true.
void SimulatedWeek::letSomebodyWriteMeanwhile() {
  static const std::vector<void (SimulatedWeek::*)()> deeds = {
      &SimulatedWeek::sendMessage,   &SimulatedWeek::sendMessage,     &SimulatedWeek::saveMessage,
      &SimulatedWeek::readMessage,   &SimulatedWeek::writeToSomeName, &SimulatedWeek::switchReports,
      &SimulatedWeek::forwardCalls,  &SimulatedWeek::barCalls,        &SimulatedWeek::switchWaiting,
      &SimulatedWeek::joinUserGroup, &SimulatedWeek::turnLock,
  };
  comeToRest();
  const double after = static_cast<double>(below(12000)) / 1000;
  world().time().after(fromSeconds(after), [this] { tell("message +33639984477 Me again"); });
  inPeace_ = false;
  (this->*oneOf(deeds))();
  settle();
  machine().boxes.takeShown();
  // What an interrupted handler leaves behind would be another one's.
  inPanel([this] { form1().Text1.clear(); });
  settle();
  inPeace_ = true;
}

}  // namespace gsm
