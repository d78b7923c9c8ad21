#include "link/conversation.h"
#include "platform/clock.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"
#include "sms/form8.h"

namespace gsm {

/// A way in which the modem takes a message.
struct Form8::Delivery {
  std::string_view command;
  bool withHeader;
  float seconds;          // that the modem is given for it
  std::string_view sign;  // stands in the reply to a message that it took
};

// "Clear". The header stays.
void Form8::clearMessage() {
  Text1.Text = "";
  Text2.Text = "";
}

// "Send".
void Form8::sendMessage() try {
  if (!refuseWithoutNumber()) {
    const bool sent =
        deliver({.command = "AT+CMGS=", .withHeader = true, .seconds = 6, .sign = "+CMGS:"});
    Label4.Caption =
        sent ? "Message Sent SuccessFully At " + platform().clock.localTime().timeOfDay()
             : "Message Not Sent.Error Occurred";
    modem().clear();
  }
  Combo2.Visible = false;
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// "Save": into the modem's store, without the header.
void Form8::saveMessage() try {
  if (refuseWithoutNumber()) return;
  const bool saved =
      deliver({.command = "AT+CMGW=", .withHeader = false, .seconds = 3, .sign = "+CMGW:"});
  Label4.Caption = saved ? "Message Saved" : "Message Not Saved.Error Occurred";
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// Whether there is no number to send to, which a box then reports.
bool Form8::refuseWithoutNumber() {
  if (!Text1.Text.empty()) return false;
  platform().boxes.show("Please Enter Destination Number", "GSM");
  return true;
}

// Gives the message to the modem. Whether the modem took it: a refusal isn't looked for.
bool Form8::deliver(const Delivery& delivery) {
  constexpr char kEndOfMessage = '\x1A';
  Label4.Caption = "";
  // Nobody looks for the prompt; the wait stands for it. The number goes as typed, unquoted.
  modem().exchange(delivery.command + Text1.Text);
  const std::string header = delivery.withHeader ? trim(Text5.Text.get()) : std::string();
  modem().write(header + trim(Text2.Text.get()) + kEndOfMessage);
  modem().pause(delivery.seconds);
  return modem().holds(delivery.sign);
}

}  // namespace gsm
