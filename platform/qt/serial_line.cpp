#include "platform/qt/serial_line.h"

#include <sys/ioctl.h>
#include <termios.h>

#include <QFile>
#include <chrono>
#include <thread>
#include <utility>

#include "platform/runtime_failure.h"

namespace gsm {
namespace {

using namespace std::chrono_literals;

// A pulse of a modem line shows at the next look through its count; nobody waits for it.
constexpr Duration kNextLookAtLines = 100ms;
constexpr Duration kNextLookAtDevice = 1s;

QSerialPort::Parity qtParity(Parity parity) {
  switch (parity) {
    case Parity::none: return QSerialPort::NoParity;
    case Parity::even: return QSerialPort::EvenParity;
    case Parity::odd: return QSerialPort::OddParity;
    case Parity::mark: return QSerialPort::MarkParity;
    case Parity::space: return QSerialPort::SpaceParity;
  }
  return QSerialPort::NoParity;
}

// The chip's way to one and a half stop bits is two of them with characters of five bits.
QSerialPort::StopBits qtStopBits(StopBits bits) {
  return bits == StopBits::one ? QSerialPort::OneStop : QSerialPort::TwoStop;
}

bool isPossible(const LineSettings& settings) {
  if (settings.dataBits < 5) return false;
  return settings.stopBits != StopBits::oneAndHalf || settings.dataBits == 5;
}

bool usesRts(Handshaking handshaking) {
  return handshaking == Handshaking::rts || handshaking == Handshaking::both;
}

QSerialPort::FlowControl qtFlowControl(Handshaking handshaking) {
  if (usesRts(handshaking)) return QSerialPort::HardwareControl;
  return handshaking == Handshaking::xonXoff ? QSerialPort::SoftwareControl
                                             : QSerialPort::NoFlowControl;
}

// Qt knows one kind of flow control at a time.
void addSoftwareControl(int descriptor) {
  termios attributes{};
  if (::tcgetattr(descriptor, &attributes) != 0) return;
  attributes.c_iflag |= IXON | IXOFF;
  ::tcsetattr(descriptor, TCSANOW, &attributes);
}

}  // namespace

SerialLine::Opening SerialLine::open(const std::filesystem::path& device,
                                     const LineSettings& settings, Handshaking handshaking,
                                     const Clock& clock, EventLoop& loop,
                                     Listener* const& listener) {
  if (!isPossible(settings)) throw failure::invalidPropertyValue();
  const std::shared_ptr<SerialLine> line(new SerialLine(clock, loop, listener));
  if (!line->begin(device, settings, handshaking)) return {nullptr, line->port_.error()};
  line->connectSignals();
  line->watch();
  return {line, QSerialPort::NoError};
}

SerialLine::~SerialLine() { close(); }

bool SerialLine::begin(const std::filesystem::path& device, const LineSettings& settings,
                       Handshaking handshaking) {
  port_.setPortName(QFile::decodeName(device.c_str()));
  // Before the opening: an open pseudo-terminal refuses to have its framing changed.
  apply(settings, handshaking);
  // Else Qt would go on reading for a listener that has no room.
  port_.setReadBufferSize(ChunkGatherer::kFull);
  if (!port_.open(QIODevice::ReadWrite)) return false;
  settings_ = settings;
  chunk_.setLine(settings);
  handshaking_ = handshaking;
  lineState_ = readLineState(port_.handle());
  if (!lineState_) {
    // Whoever serves a pseudo-terminal may keep this end of it open too, and then a killed program
    // would leave it exclusive for ever. The lock file keeps other programs away.
    ::ioctl(port_.handle(), TIOCNXCL);
  }
  finishHandshaking(handshaking);
  ::tcflush(port_.handle(), TCIFLUSH);
  return true;
}

void SerialLine::connectSignals() {
  QObject::connect(&port_, &QSerialPort::readyRead,
                   [this] { loop_.post(guarded([](SerialLine& line) { line.drain(); })); });
  QObject::connect(&port_, &QSerialPort::bytesWritten, [this] {
    const auto waiting = static_cast<std::size_t>(port_.bytesToWrite());
    loop_.post(guarded([waiting](SerialLine& line) {
      if (line.listener_ != nullptr) line.listener_->bytesLeft(waiting);
    }));
  });
  QObject::connect(&port_, &QSerialPort::errorOccurred, [this](auto error) {
    if (error == QSerialPort::NoError || error == QSerialPort::TimeoutError) return;
    loop_.post(guarded([](SerialLine& line) { line.letGoIfDead(); }));
  });
}

void SerialLine::watch() {
  watching_ = loop_.every(lineState_ ? kNextLookAtLines : kNextLookAtDevice,
                          guarded([](SerialLine& line) { line.look(); }));
}

std::function<void()> SerialLine::guarded(std::function<void(SerialLine&)> action) {
  return [self = weak_from_this(), action = std::move(action)] {
    // The line lives until the action returns, even when the action ends in its closing.
    if (const auto line = self.lock(); line && line->watching_) action(*line);
  };
}

bool SerialLine::isAlive() const {
  termios attributes{};
  return port_.isOpen() && ::tcgetattr(port_.handle(), &attributes) == 0;
}

void SerialLine::letGoIfDead() {
  if (!port_.isOpen() || isAlive()) return;
  gather();
  port_.close();
  chunkEnds_.reset();
  tell(chunk_.take());
}

bool SerialLine::mayRead() const {
  return port_.isOpen() && (listener_ == nullptr || listener_->hasRoom());
}

void SerialLine::gather() {
  const QByteArray bytes = port_.readAll();
  if (bytes.isEmpty()) return;
  chunk_.add({bytes.data(), static_cast<std::size_t>(bytes.size())}, clock_.now());
}

void SerialLine::drain() {
  if (!mayRead()) return;
  gather();
  tellOfChunk();
}

void SerialLine::tellOfChunk() {
  const auto end = chunk_.end();
  if (!end) return;
  if (const Duration rest = *end - clock_.now(); rest > Duration::zero()) {
    if (chunkEnds_) return;
    chunkEnds_ = loop_.every(rest, guarded([](SerialLine& line) {
                               line.chunkEnds_.reset();
                               // The machine may have been busy with other things while more came
                               // in.
                               line.drain();
                               line.tellOfChunk();
                             }));
    return;
  }
  chunkEnds_.reset();
  tell(chunk_.take());
}

void SerialLine::tell(std::string_view bytes) {
  if (!bytes.empty() && listener_ != nullptr) listener_->bytesArrived(bytes);
}

void SerialLine::readOn() {
  loop_.post(guarded([](SerialLine& line) { line.drain(); }));
}

void SerialLine::look() {
  letGoIfDead();
  if (!lineState_ || !port_.isOpen()) return;
  const LineState before = *lineState_;
  const auto now = readLineState(port_.handle());
  if (!now) return;
  lineState_ = *now;
  for (const CommEvent event : eventsBetween(before, *now)) {
    // Handlers of the event before may have closed the line, or gone on to another listener.
    if (watching_ && listener_ != nullptr) listener_->lineEvent(event);
  }
}

void SerialLine::configure(const LineSettings& settings, Handshaking handshaking) {
  if (!isAlive()) throw failure::deviceError();
  if (!isPossible(settings) || !apply(settings, handshaking)) {
    apply(settings_, handshaking_);
    throw failure::invalidPropertyValue();
  }
  settings_ = settings;
  chunk_.setLine(settings);
  handshaking_ = handshaking;
  finishHandshaking(handshaking);
}

// Whether the line took all of it. A pseudo-terminal has no framing that could be wrong.
bool SerialLine::apply(const LineSettings& settings, Handshaking handshaking) {
  const bool speed = port_.setBaudRate(settings.baud);
  const bool framing = port_.setDataBits(static_cast<QSerialPort::DataBits>(settings.dataBits)) &&
                       port_.setParity(qtParity(settings.parity)) &&
                       port_.setStopBits(qtStopBits(settings.stopBits));
  const bool flow = port_.setFlowControl(qtFlowControl(handshaking));
  return speed && ((framing && flow) || (port_.isOpen() && !lineState_));
}

void SerialLine::finishHandshaking(Handshaking handshaking) {
  if (handshaking == Handshaking::both) addSoftwareControl(port_.handle());
  if (lineState_) raiseReadyLines(port_.handle(), !usesRts(handshaking));
}

void SerialLine::write(std::string_view bytes) {
  const auto size = static_cast<qint64>(bytes.size());
  if (!isAlive() || port_.write(bytes.data(), size) != size) throw failure::deviceError();
}

void SerialLine::serve(Duration realTime) {
  const auto end = std::chrono::steady_clock::now() + realTime;
  if (port_.isOpen() && port_.bytesToWrite() > 0) {
    port_.waitForBytesWritten(
        static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(realTime).count()));
  }
  std::this_thread::sleep_until(end);
}

void SerialLine::close() {
  watching_.reset();
  chunkEnds_.reset();
  if (!port_.isOpen()) return;
  // Else a line that the other end holds up would hold the closing up too.
  ::tcflush(port_.handle(), TCOFLUSH);
  port_.close();
}

}  // namespace gsm
