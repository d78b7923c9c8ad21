#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"
#include "sms/form8.h"

namespace gsm {

void Form1::ShowServiceCenter(Position ok, Position error) try {
  Form8& window = panel_.form8;
  if (ok != 0) {
    const Position key = Text1.position("+CSCA:");
    if (key != 0) {
      // Between the quotes: the opening one is skipped, the closing one is cut off.
      const std::string quoted = Text1.slice(key + 8, Text1.position(","));
      const std::string centre = slice(quoted, 1, position(",", quoted) - 2);
      window.Text4.Text = centre;
      window.Label4.Caption = "";
    }
  }
  if (error != 0) window.Label4.Caption = "Service Center Unknown";
  Text1.clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
