#include "platform/qt/qt_serial_device.h"

#include <QSerialPort>
#include <cerrno>
#include <string>
#include <system_error>
#include <thread>

#include "platform/posix/port_access.h"
#include "platform/posix/port_trouble.h"
#include "platform/qt/serial_line.h"
#include "platform/qt/text_codec.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

RuntimeFailure permissionDenied(const std::string& reason) {
  const RuntimeFailure plain = failure::permissionDenied();
  return {plain.number(), plain.description() + ": " + reason};
}

RuntimeFailure noPermission(const fs::path& device) {
  const auto group = helpfulGroup(device);
  if (!group) return permissionDenied("this user may not use " + fromFileName(device));
  return permissionDenied("only members of the group " + *group + " may use " +
                          fromFileName(device));
}

RuntimeFailure refusal(const fs::path& device, int error) {
  switch (error) {
    case EBUSY: return failure::portAlreadyOpen();
    case EACCES:
    case EPERM: return noPermission(device);
    case ENOENT:
    case ENXIO:
    case ENODEV:
    case EIO:
    case ENOTTY: return failure::invalidPortNumber();
    default: break;
  }
  const RuntimeFailure plain = failure::deviceError();
  const std::string reason = std::generic_category().message(error);
  return {plain.number(), plain.description() + ": " + fromFileName(device) + ": " + reason};
}

// The device could be opened a moment ago, and Qt could not open it. What Qt does beyond is to lay
// a lock file.
RuntimeFailure refusalByQt(const fs::path& device, QSerialPort::SerialPortError error,
                           const UucpLocks& locks) {
  if (error == QSerialPort::DeviceNotFoundError) return failure::invalidPortNumber();
  if (error == QSerialPort::UnsupportedOperationError) return failure::invalidPropertyValue();
  if (error != QSerialPort::PermissionError) return failure::deviceError();
  const auto lock = locks.find(device);
  if (lock && !lock->isHeld) {
    return permissionDenied("the lock file " + fromFileName(lock->file) +
                            " is left over from another program and can't be removed");
  }
  return failure::portAlreadyOpen();
}

}  // namespace

QtSerialDevice::QtSerialDevice(const Clock& clock, EventLoop& loop, const PortNames& names,
                               const UucpLocks& locks)
    : clock_(clock), loop_(loop), names_(names), locks_(locks) {}

QtSerialDevice::~QtSerialDevice() = default;

void QtSerialDevice::open(int number, const LineSettings& settings, Handshaking handshaking) {
  close();
  const auto device = names_.device(number);
  if (!device) throw failure::invalidPortNumber();
  if (const PortAccess found = tryAccess(*device, locks_); found.error != 0) {
    throw refusal(*device, found.error);
  }
  // Qt believes the file of any process that lives.
  locks_.removeLeftOver(*device);
  const auto opening = SerialLine::open(*device, settings, handshaking, clock_, loop_, listener_);
  if (!opening.line) throw refusalByQt(*device, opening.error, locks_);
  line_ = opening.line;
}

// The line may have its own actions on the stack, and then lives on until they have returned.
void QtSerialDevice::close() {
  if (line_) line_->close();
  line_.reset();
}

void QtSerialDevice::configure(const LineSettings& settings, Handshaking handshaking) {
  if (!line_) throw failure::deviceError();
  line_->configure(settings, handshaking);
}

void QtSerialDevice::serve(Duration realTime) {
  if (line_) {
    line_->serve(realTime);
  } else {
    std::this_thread::sleep_for(realTime);
  }
}

void QtSerialDevice::readOn() {
  if (line_) line_->readOn();
}

void QtSerialDevice::write(std::string_view bytes) {
  if (!line_) throw failure::deviceError();
  line_->write(bytes);
}

bool QtSerialDevice::isGone() const { return line_ && line_->isGone(); }

}  // namespace gsm
