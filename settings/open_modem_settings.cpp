#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"
#include "settings/line_options.h"

namespace gsm {

// "Modem Setting->": opens the line settings preset to the modem's profile.
void Form1::openModemSettings() try {
  modem.exchange("AT&V");
  Form15& window = panel_.form15;
  const Position flow = modem.position("IFC:");
  if (flow != 0) {
    selectOption<Form15>(window, kFlowToHost, modem.slice(flow + 4, 1));
    selectOption<Form15>(window, kFlowToModem, modem.slice(flow + 6, 1));
  }
  ShowModemSpeed();
  ParseCharacterFraming();

  std::string carrierDigit;
  const Position carrier = modem.position("&C");
  if (carrier != 0) {
    carrierDigit = modem.slice(carrier + 3, 1);
    selectOption<Form15>(window, kCarrier, carrierDigit);
  }
  const Position terminalReady = modem.position("&D");
  if (terminalReady != 0) {
    const std::string digit = modem.slice(terminalReady + 3, 1);
    if (digit == "0") {
      selectOption<Form15>(window, kTerminalReady, digit);
    } else if (carrierDigit != "0") {
      // The digit of "&C" stands in for that of "&D" here.
      selectOption<Form15>(window, kTerminalReady, carrierDigit);
    }
  }
  window.Show();
  Hide();
  modem.clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
