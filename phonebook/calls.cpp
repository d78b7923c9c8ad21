#include <array>
#include <string_view>

#include "panel/form1.h"
#include "panel/panel.h"
#include "phonebook/form3.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"

namespace gsm {

// Every key sends its tone, in a call or not, and what the modem says to it is thrown away.
void Form3::pressKey(const std::string& key) try {
  Text1.Text = Text1.Text + key;
  modem().exchange("AT+VTS=" + key);
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// "Dial".
void Form3::dial() try {
  if (Text1.Text.empty()) {
    platform().boxes.show("Please Enter Correct Number To Dial", "GSM");
    return;
  }
  modem().exchange("ATD" + Text1.Text + ";");  // the semicolon makes it a voice call
  Label3.Caption = "Dialing...." + trim(Text1.Text.get());
  watchCall(OnError::ignored);
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// "Redial": the modem remembers the number, and says it after the echo and a line end.
void Form3::redial() try {
  Conversation& talk = modem();
  modem().exchange("ATDL");
  const std::string number = talk.slice(8, talk.position(";") - 8);
  Label3.Caption = "Redialing " + number;
  Text1.Text = number;
  watchCall(OnError::shown);
  talk.clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// "HangUp".
void Form3::hangUp() try {
  modem().exchange("ATH");
  Label3.Caption = "DisConnected ";
  modem().clear();
  Text1.Text = "";
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// Nine looks at the transcript, two seconds apart, of which none is spared: the first word that
// stands there reports the state, and the dispatcher may write another in between.
void Form3::watchCall(OnError onError) {
  const Conversation& talk = modem();
  for (int pass = 1; pass != 10; ++pass) {
    if (talk.holds("OK")) {
      Label3.Caption = "Connected SuccessFully-" + Text1.Text;
    } else if (talk.holds("NO ANSWER")) {
      Label3.Caption = "NO ANSWER.Plz Disconnect";
    } else if (talk.holds("NO CARRIER")) {
      Label3.Caption = "No Carrier.Plz Disconnect";
    } else if (talk.holds("BUSY")) {
      Label3.Caption = "Busy.Plz Disconnect";
    } else if (onError == OnError::shown && talk.holds("ERROR")) {
      Label3.Caption = "Error Occurred.Plz Disconnect";
    }
    modem().pause(2);
  }
}

void Form3::backspace() {
  const std::string number = Text1.Text;
  if (!number.empty()) Text1.Text = number.substr(0, number.size() - 1);
}

}  // namespace gsm
