#pragma once

#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/headless_panel.h"
#include "controls/controls.h"
#include "controls/window.h"
#include "driver/request.h"
#include "platform/headless/modem_replay.h"

namespace gsm::driver {

/// One run of the panel, told what to do by requests and asked what it shows.
class Session {
 public:
  /// Plugs another modem than the scripted one in as that of the world's line, and keeps it alive.
  using OtherModem = std::function<std::shared_ptr<void>(HeadlessPlatform& machine)>;

  /// `otherModem`, if given, is asked at the start.
  explicit Session(OtherModem otherModem = {}) : otherModem_(std::move(otherModem)) {}
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  /// Carries out one line, a request in JSON, and returns the answer in JSON, without a line end.
  /// Never throws: a line that can't be understood has an answer that says why.
  std::string answer(std::string_view line);

 private:
  using Handler = Json (Session::*)(const Request&);
  struct Operation {
    std::string_view name;
    Handler handler;
    bool needsStart;
  };
  static const Operation* operation(std::string_view name);
  Json carryOut(const Json& fields);

  // The run.
  Json start(const Request& request);
  Json run(const Request& request);
  Json settle(const Request& request);

  // The modem and the ports.
  Json reply(const Request& request);
  Json otherwise(const Request& request);
  Json forget(const Request& request);
  Json receive(const Request& request);
  Json event(const Request& request);
  Json replay(const Request& request);
  Json replayState() const;
  Json modem(const Request& request);
  Json ports(const Request& request);

  // The user.
  Json click(const Request& request);
  Json type(const Request& request);
  Json erase(const Request& request);
  Json select(const Request& request);
  Json tab(const Request& request);
  Json move(const Request& request);
  Json close(const Request& request);
  Json minimise(const Request& request);
  Json restore(const Request& request);
  Json maximise(const Request& request);
  Json boxes(const Request& request);
  Json answerBox(const Request& request);

  // Looking.
  Json get(const Request& request);
  Json sent(const Request& request);
  Json shown(const Request& request);
  Json state(const Request& request);

  // The phone book.
  Json rows(const Request& request);
  Json store(const Request& request);
  std::filesystem::path bookFolder(const Request& request) const;

  /// Prepares the world: at once, or at the start of a program that hasn't been started.
  void prepare(std::function<void(HeadlessPanel& world)> preparation);
  /// Queues what the user does. An action that returns false was out of the user's reach.
  void act(const Request& request, std::function<bool()> action);
  Json changeWindow(const Request& request, int state);
  Json progress() const;

  Window& windowNamed(const std::string& name);
  Control& controlNamed(const std::string& name, std::optional<int> index);
  Control& controlOf(const Request& request);
  /// The control of the request as one of `Kind`s; `BadRequest` when it is of another.
  template <class... Kind>
  auto controlAs(const Request& request, const char* deed);

  const OtherModem otherModem_;
  std::ofstream record_;                 // of the line, when "start" names a file for it
  std::shared_ptr<ModemReplay> replay_;  // the line's modem, once a record is played back
  std::unique_ptr<HeadlessPanel> world_;
  std::shared_ptr<void> modem_;   // what otherModem_ has plugged in
  std::filesystem::path folder_;  // the program's own, once it has been started
  std::vector<std::function<void(HeadlessPanel& world)>> preparations_;  // for the start
  int refused_ = 0;
};

}  // namespace gsm::driver
