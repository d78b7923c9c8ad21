#pragma once

#include <new>
#include <stdexcept>
#include <string>

namespace gsm {

/// What goes wrong while a handler runs: the one exception that handlers throw and trap.
///
/// It carries the run-time's own number and text. Some handlers tell failures apart by the text
/// alone, so the texts below are part of the program's behaviour.
class RuntimeFailure : public std::runtime_error {
 public:
  RuntimeFailure(int number, const std::string& description)
      : std::runtime_error(description), number_(number) {}

  int number() const { return number_; }
  std::string description() const { return what(); }

 private:
  int number_;
};

/// Want of memory, in the way in which it reaches a handler's trap.
class OutOfMemory : public RuntimeFailure, public std::bad_alloc {
 public:
  OutOfMemory();
  const char* what() const noexcept override { return RuntimeFailure::what(); }
};

/// From now on `new` fails with `OutOfMemory` where there is no memory, for the whole program, so
/// that the handler that wants too much fails like any other. Asking for it again does nothing.
void makeWantOfMemoryAFailure();

/// The failures that the run-time knows, ready to be thrown.
namespace failure {

RuntimeFailure invalidArgument();       // 5
RuntimeFailure overflow();              // 6
OutOfMemory outOfMemory();              // 7
RuntimeFailure typeMismatch();          // 13
RuntimeFailure badFileNumber();         // 52
RuntimeFailure fileNotFound();          // 53
RuntimeFailure fileAlreadyOpen();       // 55
RuntimeFailure deviceError();           // 57
RuntimeFailure diskFull();              // 61
RuntimeFailure inputPastEnd();          // 62
RuntimeFailure permissionDenied();      // 70
RuntimeFailure fileAccessError();       // 75
RuntimeFailure objectNotSet();          // 91
RuntimeFailure invalidPropertyValue();  // 380
RuntimeFailure noSuchProperty();        // 438
RuntimeFailure invalidWhileOpen();      // 8000
RuntimeFailure invalidPortNumber();     // 8002
RuntimeFailure portAlreadyOpen();       // 8005
RuntimeFailure invalidUnlessOpen();     // 8018

}  // namespace failure
}  // namespace gsm
