#include "platform/headless/headless_line.h"

#include <algorithm>
#include <utility>

#include "platform/runtime_failure.h"

namespace gsm {
namespace {

constexpr int kBitsPerByte = 10;  // with start and stop bit

}  // namespace

void HeadlessLine::open(int number, const LineSettings& settings, Handshaking) {
  const HeadlessPorts::Port* port = ports_.find(number);
  if (port == nullptr) throw failure::invalidPortNumber();
  if (port->held) throw failure::portAlreadyOpen();
  if (!port->fails.empty()) throw RuntimeFailure(failure::deviceError().number(), port->fails);
  openPort_ = number;
  settings_ = settings;
  ++openings_;
  waiting_ = 0;
  sentAt_ = time_.now();
}

void HeadlessLine::close() { openPort_.reset(); }

void HeadlessLine::write(std::string_view bytes) {
  if (!openPort_ || !ports_.find(*openPort_)) throw failure::deviceError();
  writes_.push_back({time_.now(), std::string(bytes)});
  if (bytes.empty()) return;

  const double lineTime = static_cast<double>(bytes.size() * kBitsPerByte) / settings_.baud;
  sentAt_ = std::max(sentAt_, time_.now()) + fromSeconds(lineTime);
  waiting_ += bytes.size();
  time_.after(sentAt_ - time_.now(),
              [this, size = bytes.size(), opening = openings_] { leave(size, opening); });

  if (modem_ != nullptr && modemPort_ == openPort_) modem_->hear(bytes, settings_.baud);
}

void HeadlessLine::leave(std::size_t bytes, int opening) {
  if (!openPort_ || opening != openings_) return;
  waiting_ -= bytes;
  if (listener_ != nullptr) listener_->bytesLeft(waiting_);
}

void HeadlessLine::arrive(std::string_view bytes) {
  if (bytes.empty() || !openPort_ || openPort_ != modemPort_) return;
  if (watcher_) watcher_(bytes);
  if (listener_ != nullptr) listener_->bytesArrived(bytes);
}

std::vector<HeadlessLine::Write> HeadlessLine::takeWrites() { return std::exchange(writes_, {}); }

}  // namespace gsm
