#include "base/fault.h"

#include <cerrno>
#include <new>

#include "base/text.h"

namespace zorvik {

std::string faultDescription(int number) {
  switch (number) {
    case 0:
      return "";
    case 5:
      return "Invalid procedure call or argument";
    case 6:
      return "Overflow";
    case 7:
      return "Out of memory";
    case 9:
      return "Subscript out of range";
    case 13:
      return "Type mismatch";
    case 51:
      return "Internal error";
    case 52:
      return "Bad file name or number";
    case 53:
      return "File not found";
    case 54:
      return "Bad file mode";
    case 55:
      return "File already open";
    case 57:
      return "Device I/O error";
    case 58:
      return "File already exists";
    case 61:
      return "Disk full";
    case 62:
      return "Input past end of file";
    case 67:
      return "Too many files";
    case 68:
      return "Device unavailable";
    case 70:
      return "Permission denied";
    case 71:
      return "Disk not ready";
    case 75:
      return "Path/File access error";
    case 76:
      return "Path not found";
    default:
      return "Application-defined or object-defined error";
  }
}

Fault makeFault(int number) {
  return Fault{number, faultDescription(number)};
}

Fault faultFromErrno(int err) {
  switch (err) {
    case ENOENT:
      return makeFault(53);
    case EACCES:
    case EPERM:
    case EROFS:
      return makeFault(70);
    case EISDIR:
      return makeFault(75);
    case ENOTDIR:
      return makeFault(76);
    case EIO:
      return makeFault(57);
    case ENOSPC:
      return makeFault(61);
    case EMFILE:
    case ENFILE:
      return makeFault(67);
    default:
      return makeFault(75);
  }
}

Fault faultOf(const std::exception& e) {
  if (auto* f = dynamic_cast<const FaultError*>(&e)) return f->fault();
  if (dynamic_cast<const std::out_of_range*>(&e)) return makeFault(9);
  if (dynamic_cast<const std::bad_alloc*>(&e)) return makeFault(7);
  return makeFault(51);
}

Fault currentFault() {
  try {
    throw;
  } catch (const std::exception& e) {
    return faultOf(e);
  } catch (...) {
    return makeFault(51);
  }
}

std::string handlerMessage(const std::string& procedure, const Fault& fault) {
  return "Error: VB Error in " + procedure + ": " + fault.description + ". Error #" +
         toText(fault.number);
}

}  // namespace zorvik
