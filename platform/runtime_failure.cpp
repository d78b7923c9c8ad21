#include "platform/runtime_failure.h"

namespace gsm {
namespace {

// Made beforehand: when it is wanted there is no memory for its text.
const OutOfMemory& madeBeforehand() {
  static const OutOfMemory made;
  return made;
}

}  // namespace

OutOfMemory::OutOfMemory() : RuntimeFailure(7, "Out of memory") {}

void makeWantOfMemoryAFailure() {
  madeBeforehand();
  std::set_new_handler([] { throw madeBeforehand(); });
}

}  // namespace gsm

namespace gsm::failure {

RuntimeFailure invalidArgument() { return {5, "Invalid procedure call or argument"}; }
RuntimeFailure overflow() { return {6, "Overflow"}; }
OutOfMemory outOfMemory() { return madeBeforehand(); }
RuntimeFailure typeMismatch() { return {13, "Type mismatch"}; }
RuntimeFailure badFileNumber() { return {52, "Bad file name or number"}; }
RuntimeFailure fileNotFound() { return {53, "File not found"}; }
RuntimeFailure fileAlreadyOpen() { return {55, "File already open"}; }
RuntimeFailure deviceError() { return {57, "Device I/O error"}; }
RuntimeFailure diskFull() { return {61, "Disk full"}; }
RuntimeFailure inputPastEnd() { return {62, "Input past end of file"}; }
RuntimeFailure permissionDenied() { return {70, "Permission denied"}; }
RuntimeFailure fileAccessError() { return {75, "Path/File access error"}; }
RuntimeFailure objectNotSet() { return {91, "Object variable or With block variable not set"}; }
RuntimeFailure invalidPropertyValue() { return {380, "Invalid property value"}; }
RuntimeFailure noSuchProperty() { return {438, "Object doesn't support this property or method"}; }
RuntimeFailure invalidWhileOpen() { return {8000, "Operation not valid while the port is opened"}; }
RuntimeFailure invalidPortNumber() { return {8002, "Invalid Port Number"}; }
RuntimeFailure portAlreadyOpen() { return {8005, "Port already open"}; }
RuntimeFailure invalidUnlessOpen() { return {8018, "Operation valid only when the port is open"}; }

}  // namespace gsm::failure
