#include "fuzz/player/modem_words.h"

#include <array>
#include <string_view>

namespace gsm {
namespace {

// What modems say: the words that the panel looks for, and pieces of replies around them.
constexpr auto kPieces = std::to_array<std::string_view>({"OK",
                                                          "\r\nOK\r\n",
                                                          "ERROR",
                                                          "\r\nERROR\r\n",
                                                          "RING\r\n",
                                                          "CMTI",
                                                          "+CMTI: \"SM\",4\r\n",
                                                          "+CCWA:",
                                                          "\"",
                                                          "BUSY",
                                                          "NO CARRIER\r\n",
                                                          "NO ANSWER",
                                                          "+CLIP: \"123\",129\r\n",
                                                          "+CDS: ",
                                                          "ATI0",
                                                          "ATI3",
                                                          "AT+CPBS?",
                                                          "+CPBS: \"SM\",8,250\r\n",
                                                          "+CPBR: 3,\"112\",129,\"Help\"\r\n",
                                                          "AT+VGR=",
                                                          "AT+VGT=",
                                                          "+VGR: 128",
                                                          "+VGT: 64",
                                                          "+ECHO: 0,1,2,3",
                                                          "AT+ECHO=",
                                                          "+SIDET: 1,2\r\n",
                                                          "AT+SIDET=",
                                                          "+CSQ: 31,0\r\n",
                                                          "+CSQ: ",
                                                          "+CREG: 0,1\r\n",
                                                          "+CREG: 1\r\n",
                                                          "+CPIN: READY",
                                                          "+CPIN: SIM PIN",
                                                          "+CPIN: SIM PUK",
                                                          "AT+CPIN=\"0000\"",
                                                          "AT+CSCA?",
                                                          "+CSCA: \"+49\",145",
                                                          "+CIND: 0,0,0,0,1,0,0",
                                                          "AT+CGSN\r\r\n",
                                                          "+ICF: 3,4",
                                                          "+IPR: 9600",
                                                          "+CCED: ",
                                                          "&C1 &D2",
                                                          ",",
                                                          "1",
                                                          "-99999",
                                                          "\r",
                                                          "\r\n",
                                                          "> ",
                                                          "AT",
                                                          "S0:000"});

// What a person may type at the simulated modem's console.
constexpr auto kLines = std::to_array<std::string_view>({"silent on",
                                                         "silent off",
                                                         "echo on",
                                                         "echo off",
                                                         "speed 115200",
                                                         "speed 9600",
                                                         "speed 0",
                                                         "fault add cut 3",
                                                         "fault add delay 1",
                                                         "fault add garble 10",
                                                         "fault add drop 10",
                                                         "fault clear",
                                                         "signal 31 0",
                                                         "signal 99",
                                                         "register 5",
                                                         "register 0",
                                                         "sim ready",
                                                         "sim pin",
                                                         "sim puk",
                                                         "sim out",
                                                         "sim in",
                                                         "sim failed",
                                                         "line +CREG: 1",
                                                         "line RING",
                                                         "ring 0146290800",
                                                         "ring hidden",
                                                         "wait 112",
                                                         "giveup",
                                                         "giveup silent",
                                                         "answer",
                                                         "busy",
                                                         "hangup",
                                                         "hangup silent",
                                                         "unplug",
                                                         "plug",
                                                         "state"});
}  // namespace

std::string saying(Decisions& decisions) {
  if (decisions.next() % 4 == 0) return decisions.text(40);
  std::string text;
  for (std::size_t pieces = 1 + decisions.below(4); pieces > 0; --pieces) {
    text += kPieces[decisions.below(kPieces.size())];
  }
  return text;
}

std::string consoleLine(Decisions& decisions) {
  return std::string(kLines[decisions.below(kLines.size())]);
}

std::vector<std::pair<std::string, std::string>> bookAnswers() {
  return {{"AT+CPBS?", "\r\n+CPBS: \"SM\",8,250\r\n\r\nOK\r\n"},
          {"AT+CPBR=", "\r\n+CPBR: 3,\"0146290800\",129,\"Carol\"\r\n\r\nOK\r\n"}};
}

}  // namespace gsm
