// Faults: the rare, unexpected failures that end a procedure and reach a driver's handler.
//
// Findings about a LAS file are never faults (checks return them as result texts). A fault carries
// a number and a description, numbered as the command log shows them, e.g.
// "Error: VB Error in main: Subscript out of range. Error #9".
#pragma once

#include <exception>
#include <stdexcept>
#include <string>

namespace zorvik {

inline constexpr int FAULT_SUBSCRIPT = 9;        // "Subscript out of range"
inline constexpr int FAULT_FILE_NOT_FOUND = 53;  // "File not found"
inline constexpr int FAULT_DEVICE_IO = 57;       // "Device I/O error"
inline constexpr int FAULT_PAST_END = 62;        // "Input past end of file"
inline constexpr int FAULT_PERMISSION = 70;      // "Permission denied"
inline constexpr int FAULT_PATH_ACCESS = 75;     // "Path/File access error"
inline constexpr int FAULT_PATH_NOT_FOUND = 76;  // "Path not found"

struct Fault {
  int number = 0;
  std::string description;
};

class FaultError : public std::runtime_error {
 public:
  explicit FaultError(Fault f) : std::runtime_error(f.description), fault_(std::move(f)) {}
  const Fault& fault() const { return fault_; }

 private:
  Fault fault_;
};

// The description of a fault number ("" for 0, "Application-defined or object-defined error"
// for numbers without one of their own).
std::string faultDescription(int number);
Fault makeFault(int number);
// Maps an errno value onto the fault numbering (ENOENT 53, EACCES/EPERM 70, EISDIR 75,
// ENOTDIR 76, EIO 57; others 75).
Fault faultFromErrno(int err);
// The fault a caught exception stands for: its own fault, 9 for out_of_range, 7 for bad_alloc,
// otherwise 51 "Internal error".
Fault faultOf(const std::exception& e);
// The fault of the exception currently being handled (call inside a catch block).
Fault currentFault();

// "Error: VB Error in " + procedure + ": " + description + ". Error #" + number.
std::string handlerMessage(const std::string& procedure, const Fault& fault);

}  // namespace zorvik
