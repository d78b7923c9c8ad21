#include "platform/headless/modem_script.h"

#include <algorithm>
#include <utility>

namespace gsm {

void ModemScript::add(Rule rule) { rules_.push_back({std::move(rule)}); }

void ModemScript::setOtherwise(Rule rule) { otherwise_ = Running{std::move(rule)}; }

void ModemScript::forget() {
  rules_.clear();
  otherwise_.reset();
}

bool ModemScript::fits(const Rule& rule, std::string_view write) {
  return rule.fit == Rule::Fit::whole ? write == rule.write : write.starts_with(rule.write);
}

void ModemScript::hear(std::string_view bytes, int baud) {
  if (baud != speed_) return;
  const auto newest = std::find_if(rules_.rbegin(), rules_.rend(), [bytes](const Running& running) {
    return fits(running.rule, bytes);
  });
  if (newest != rules_.rend()) {
    answer(*newest, bytes);
  } else if (otherwise_) {
    answer(*otherwise_, bytes);
  }
}

void ModemScript::answer(Running& running, std::string_view write) {
  const auto& replies = running.rule.replies;
  if (replies.empty()) return;
  std::string echo(running.rule.echo ? write : std::string_view{});
  for (const Chunk& chunk : replies[std::min(running.used, replies.size() - 1)]) {
    time_.after(chunk.after,
                [this, bytes = std::exchange(echo, {}) + chunk.text] { line_.arrive(bytes); });
  }
  ++running.used;
}

}  // namespace gsm
