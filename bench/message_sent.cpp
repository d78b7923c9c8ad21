// message-sent [MESSAGES]: how long it takes in real time from the click on "Send", with a message
// of 160 characters in the box, to the words that it is sent; and how much of that is beyond what
// is demanded: the number's and the prompt's time on the line, the two seconds that the routing
// waits behind the prompt, and the six that the modem is given for the text.

#include <QApplication>
#include <QLabel>

#include "bench/desktop_bench.h"
#include "sms/form8.h"
#include "ui/views/look.h"

namespace gsm {
namespace {

using namespace std::chrono_literals;
using Clock = DesktopBench::Clock;
using Milliseconds = DesktopBench::Milliseconds;

constexpr const char* kNumber = "0146290800";
constexpr const char* kWords = "Message Sent SuccessFully At ";

// "AT+CMGS=", the number and a carriage return, then the prompt; between them the modem's own time,
// and that in which it puts a line together.
constexpr int kBytes = 19 + 4;
constexpr Milliseconds kPrompted = kBytes * 10 * 1000ms / 9600.0 + 50ms + 16ms;
constexpr Milliseconds kDemanded = kPrompted + 2s + 6s;

class SendBench : public DesktopBench {
 public:
  SendBench() {
    exchange("AT+CMGF=1");
    act([this] {
      panel_.form8.Show();
      panel_.form8.Text1.Text = kNumber;
      panel_.form8.Text2.Text = std::string(Form8::kMessageLength, 'x');
    });
  }

  Milliseconds send() {
    const auto& words = dynamic_cast<QLabel&>(*screen_.widget(panel_.form8.Label4));
    Clock::time_point shown;
    const auto begin = Clock::now();
    act([&] {
      panel_.form8.Command1.userClick();
      shown = Clock::now();
    });
    if (!words.text().startsWith(kWords)) fail("the message isn't sent");
    return shown - begin;
  }
};

}  // namespace
}  // namespace gsm

int main(int count, char** arguments) {
  const QApplication application(count, arguments);
  gsm::dressApplication();
  const int messages = count > 1 ? std::atoi(arguments[1]) : 5;
  gsm::SendBench bench;
  std::vector<gsm::Milliseconds> times;
  while (static_cast<int>(times.size()) < messages) times.push_back(bench.send());
  gsm::tellAll("from the click to the words", times, gsm::kDemanded);
}
