#include "fuzz/player/modem_words.h"

#include <array>
#include <string_view>

namespace gsm {
namespace {

// What modems say: the words that the panel looks for, and pieces of replies around them.
constexpr auto kPieces = std::to_array<std::string_view>({
    "OK",
    "\r\nOK\r\n",
    "ERROR",
    "\r\nERROR\r\n",
    "\r",
    "\r\n",
    "\"",
    ",",
    "1",
    "-99999",
    "> ",
    "AT",
    // unasked
    "RING\r\n",
    "CMTI",
    "+CMTI: \"SM\",4\r\n",
    "+CCWA:",
    "+CCWA: \"112\",129,1\r\n",
    "BUSY",
    "NO CARRIER\r\n",
    "NO ANSWER",
    "+CLIP: \"123\",129\r\n",
    "+CDS: ",
    "+CDS: 6,13,\"112\",129,\"26/02/27,22:00:00+04\"\r\n",
    "+CBM: 1,2,3,1,1\r\nPage\r\n",
    // the modem, its line and the network
    "ATI0",
    "ATI3",
    "AT+CGSN\r\r\n",
    "+ICF: 3,4",
    "+IPR: 9600",
    "S0:000",
    "&C1 &D2",
    "+CCED: ",
    "+CSQ: 31,0\r\n",
    "+CSQ: ",
    "+CREG: 0,1\r\n",
    "+CREG: 1\r\n",
    "+CIND: 0,0,0,0,1,0,0",
    "+CPIN: READY",
    "+CPIN: SIM PIN",
    "+CPIN: SIM PUK",
    "AT+CPIN=\"0000\"",
    "AT+CSCA?",
    "+CSCA: \"+49\",145",
    // the phone book
    "AT+CPBS?",
    "+CPBS: \"SM\",8,250\r\n",
    "+CPBR: 3,\"112\",129,\"Help\"\r\n",
    // sound
    "AT+VGR=",
    "AT+VGT=",
    "+VGR: 128",
    "+VGT: 64",
    "+ECHO: 0,1,2,3",
    "AT+ECHO=",
    "+SIDET: 1,2\r\n",
    "AT+SIDET=",
    "ECHO: 1,1,15,3,31,31\r\n",
    "+ECHO: 1,3,63,32767,256\r\n",
    "SIDET: 0,",
    "VGR: 064",
    "ATS0?\r\r\n002\r\n",
    "+VTD: 3\r\n",
    "+VTD: 328\r\n",
    // data and fax
    "+CBST: 71,0,1\r\n\r\nOK\r\n",
    "+CBST: ",
    "AT%C?",
    "AT\\N?",
    "2\r\n",
    "+FCLASS: 2\r\n",
    // the module's own
    "+CIND: 5,3,1,1,0,0,1\r\n\r\nOK\r\n",
    "+CCED:208,20,00C3,7066,37,706,31,,,0,,,0\r\n",
    "+WIND: 5,1\r\n",
    "AT+CPHS=1,1",
    "+WVMI: 1,1\r\n",
    "+WIOR: 1\r\n",
    "+STSF: 1,\"160060C01F\",3,1\r\n\r\nOK\r\n",
    "+STSF: 2,\"16\",",
    "+CGDCONT: 1,\"IP\",\"internet\",,0,0\r\n",
    "+CGDCONT: 3,\"PPP\",\"IP.example\",,0,0\r\n",
    "+CGDCONT: 2,\"",
    ",,0,0",
    // messages
    "AT+CMGS=",
    "AT+CMGW=",
    "AT+CMGR= 3",
    "+CMGS: 13\r\n",
    "+CMGW: 4\r\n",
    "+CMGR: ",
    "+CMGR: \"REC READ\",\"112\",,\"26/02/27,22:00:00+04\"\r\nCome\r\n",
    "+CMGR: \"STO UNSENT\",\"112\",\r\nGo\r\n",
    "REC UNREAD",
    "REC READ",
    "STO UNSENT",
    "STO SENT",
    "+CMGD",
    "+CNMI: 0,1,0,1,0\r\n",
    "AT+CNMI",
    "+CMS ERROR: 500\r\n",
    "\x1A",
    // services
    "+CCFC: 0,7\r\n",
    "+CCFC: 1,1,\"0146290800\",129\r\n",
    "+CCFC: ",
    "AT+CCFC=0,2",
    "+CCWA: 1,1\r\n",
    "+CCWA: 0,7\r\n",
    "+CCUG: 0,0,0\r\n",
    "+CCUG: 1,",
    "AT+CLCK=\"AO\",2",
    "+CLCK: 1,7\r\n",
    "+CLCK: 0,7\r\n",
    "+CME ERROR: 16\r\n",
    // locks
    "+CLCK:(\"PS\",0),(\"SC\",1),(\"FD\",0),(\"PN\",0)\r\n",
    "+CLCK: ",
    "(\"SC\",1)",
    "(\"PS\",1)",
    "AT+CPWD=\"SC\",",
});

// What a person may type at the simulated modem's console.
constexpr auto kLines = std::to_array<std::string_view>({
    "silent on",
    "silent off",
    "echo on",
    "echo off",
    "speed 115200",
    "speed 9600",
    "speed 0",
    "fault add cut 3",
    "fault add delay 1",
    "fault add garble 0.1",
    "fault add drop 0.1",
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
    "state",
    "message 0146290800 Come at once",
    "message 112 OK ERROR \\r\\n+CMGR: \\x1A",
    "broadcast Fog on the road",
    "report",
    "report 70",
    "messages",
    "bar AO 7",
    "bar AI 0",
    "bar unlock",
    "lock PS on",
    "lock PS off",
    "lock SC on",
    "lock PN off",
    "services",
    "phonebook",
    "pin 3 set",
    "pin 0 reset",
    "power on",
    "battery 0",
    "battery 5",
    "voicemail on",
    "voicemail off",
    "cell",
});

// What a person types into a box: numbers, names, codes, and what does harm.
constexpr auto kKeys = std::to_array<std::string_view>({
    "0146290800", "+33612345678", "112",       "1",          "7",        "15",     "0000",
    "1234",       "12345678",     "00000000",  "87654321",   "Alice",    "O'Hara", "Come at once",
    "OK",         "ERROR",        "\b\b",      "2.5",        "-1",       "AT\r\n", "300",
    "32767",      "32768",        "9600",      "19200",      "internet", "3",      "255",
    "96",         "160060C01F",   "Configure", "IP.example",
});

template <std::size_t size>
std::string_view anyOf(const std::array<std::string_view, size>& words, Decisions& decisions) {
  return words[decisions.below(size)];
}

}  // namespace

std::string saying(Decisions& decisions) {
  if (decisions.next() % 4 == 0) return decisions.text(40);
  std::string text;
  for (std::size_t pieces = 1 + decisions.below(4); pieces > 0; --pieces) {
    text += anyOf(kPieces, decisions);
  }
  return text;
}

std::string consoleLine(Decisions& decisions) { return std::string(anyOf(kLines, decisions)); }

std::string typing(Decisions& decisions) {
  if (decisions.next() % 4 == 0) return decisions.text(12);
  return std::string(anyOf(kKeys, decisions));
}

std::vector<std::pair<std::string, std::string>> goodAnswers() {
  const auto ok = [](const std::string& lines) { return "\r\n" + lines + "\r\n\r\nOK\r\n"; };
  return {{"AT+CPIN?", "\r\n+CPIN: READY\r\n"},
          {"AT+CPBS?", ok("+CPBS: \"SM\",8,250")},
          {"AT+CPBR=", ok("+CPBR: 3,\"0146290800\",129,\"Carol\"")},
          {"AT+CMGS=", "\r\n> "},
          {"AT+CMGW=", "\r\n> "},
          {"AT+CMGR=", ok("+CMGR: \"REC READ\",\"112\",,\"26/02/27,22:00:00+04\"\r\nCome")},
          {"AT+CNMI?", ok("+CNMI: 0,1,0,1,0")},
          {"AT+CCFC=", ok("+CCFC: 1,1,\"0146290800\",129")},
          {"AT+CLCK=", ok("+CLCK: 0,7")},
          {"AT+CLCK?", ok("+CLCK:(\"PS\",0),(\"SC\",1),(\"FD\",0),(\"PN\",0)")},
          {"AT+CCWA=1,2", ok("+CCWA: 1,1")},
          {"AT+CCUG?", ok("+CCUG: 0,0,0")},
          {"AT&V", ok("Q:0 V:1 S0:000\r\n+ECHO:0,1 &C:1 &D:1\r\n+IPR:9600 +ICF:3,4 +IFC:2,2")},
          {"AT+VGR?", ok("+VGR: 128")},
          {"AT+VGT?", ok("+VGT: 64")},
          {"AT+ECHO?", ok("+ECHO: 0,1,0,3,10,7")},
          {"AT+SIDET?", ok("+SIDET: 1,2")},
          {"ATS0?", ok("002")},
          {"AT+VTD?", ok("+VTD: 3")},
          {"AT+CBST?", ok("+CBST: 71,0,1")},
          {"AT%C?", ok("2")},
          {"AT\\N?", ok("5")},
          {"AT+FCLASS?", ok("+FCLASS: 2")},
          {"AT+CIND?", ok("+CIND: 5,3,1,0,0,0,0")},
          {"AT+WIOR=", ok("+WIOR: 1")},
          {"AT+STSF?", ok("+STSF: 1,\"160060C01F\",3,1")},
          {"AT+CGDCONT?", ok("+CGDCONT: 1,\"IP\",\"internet\",,0,0\r\n"
                             "+CGDCONT: 3,\"PPP\",\"IP.example\",,0,0")}};
}

}  // namespace gsm
