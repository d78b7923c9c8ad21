#include "simulator/messages/messages.h"

#include <chrono>
#include <initializer_list>
#include <utility>

#include "simulator/messages/pdu_format.h"
#include "simulator/text/phone_number.h"
#include "simulator/text/text.h"

namespace gsm::simulator {

namespace {

using std::chrono::seconds;

constexpr const char* kStandingTime = "26/01/31,12:00:00+04";

// From a message's acceptance by the network to its arrival.
constexpr seconds kUntilReport(5);

constexpr int kBroadcastKind = 50;

std::string joined(std::initializer_list<std::string> fields) {
  std::string text;
  for (const std::string& field : fields) text += (text.empty() ? "" : ",") + field;
  return text;
}

}  // namespace

Messages::Messages(Timeline& timeline, const Settings& settings, Notices& notices,
                   std::function<std::string()> clock, MessageEntries entries,
                   MessageStore::Keep keep)
    : card("SM", kMessageLocations, std::move(entries), std::move(keep)),
      timeline_(timeline),
      settings_(settings),
      notices_(notices),
      clock_(std::move(clock)) {}

MessageStore* Messages::memory(std::string_view name) {
  for (MessageStore* const memory : {&card, &broadcasts, &reports}) {
    if (memory->name() == name) return memory;
  }
  return nullptr;
}

void Messages::noteSent(int reference, const std::string& number, bool wantsReport) {
  sent_ = {reference, number, now()};
  if (!wantsReport) return;
  timeline_.after(kUntilReport, [this, sent = *sent_] { tellReport(sent, 0); });
}

bool Messages::report(int status) {
  if (!sent_) return false;
  timeline_.cancelAll();
  tellReport(*sent_, status);
  return true;
}

bool Messages::receive(const std::string& number, const std::string& text) {
  constexpr Way kWays[] = {Way::kKeep, Way::kKeepAndTell, Way::kHandOver, Way::kKeepAndTell};
  return deliver(kWays[settings_.profile.messageRoute], card, "+CMT",
                 {MessageStatus::kReceivedUnread, number, now(), text});
}

bool Messages::page(const std::string& text) {
  constexpr Way kWays[] = {Way::kDrop, Way::kKeepAndTell, Way::kHandOver, Way::kKeepAndTell};
  if (broadcast.mode != 0) return false;
  Message page{.status = MessageStatus::kReceivedUnread, .number = {}, .time = {}, .text = text};
  page.fields = joined({std::to_string(++pages_), std::to_string(kBroadcastKind), "1", "1", "1"});
  page.pdu = pagePdu(pages_, kBroadcastKind, text);
  return deliver(kWays[settings_.profile.broadcastRoute], broadcasts, "+CBM", std::move(page));
}

std::string Messages::now() const { return clock_ ? clock_() : kStandingTime; }

void Messages::tellReport(const Sent& sent, int status) {
  constexpr Way kWays[] = {Way::kDrop, Way::kHandOver, Way::kKeepAndTell};
  Message report{.status = MessageStatus::kReceivedUnread, .number = {}, .time = {}, .text = {}};
  report.fields =
      joined({std::to_string(kReport), std::to_string(sent.reference), numberFields(sent.number),
              quoted(sent.time), quoted(now()), std::to_string(status)});
  report.pdu = reportPdu(serviceCentre, {.reference = sent.reference,
                                         .number = sent.number,
                                         .sent = sent.time,
                                         .arrived = now(),
                                         .status = status});
  deliver(kWays[settings_.profile.reportRoute], reports, "+CDS", std::move(report));
}

// In PDU mode only a message from somebody has a field in front, which is empty.
std::string Messages::told(std::string_view notice, const Message& message) const {
  const std::string head = std::string(notice) + ": ";
  if (settings_.profile.textMode != 0) return withText(head + headerOf(message), message);
  const auto [digits, length] = pduOf(message, serviceCentre);
  return head + (message.fields.empty() ? "," : "") + std::to_string(length) + "\r\n" + digits;
}

// A notice of what has been kept has the name of the other one with an I after it.
bool Messages::deliver(Way way, MessageStore& memory, std::string_view notice, Message message) {
  if (way == Way::kDrop) return true;
  const std::string name(notice);
  if (way == Way::kHandOver) {
    notices_.line(told(notice, message));
    return true;
  }
  const auto location = memory.firstFree();
  if (!location || !memory.store(*location, std::move(message))) return false;
  if (way == Way::kKeepAndTell) {
    notices_.line(name + "I: " + quoted(memory.name()) + "," + std::to_string(*location));
  }
  return true;
}

}  // namespace gsm::simulator
