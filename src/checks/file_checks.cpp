#include "checks/file_checks.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <string_view>

#include "base/file_helpers.h"
#include "base/text.h"
#include "checks/run_context.h"

namespace zorvik {

namespace {

constexpr std::int64_t kSampleSize = 4096;

// Reads `count` bytes from the 0-based `offset`; false (with `fault` set) when that fails.
bool readSample(const LasFile& file, std::int64_t offset, std::int64_t count, std::string& out,
                Fault& fault) {
  out.assign(static_cast<std::size_t>(count), '\0');
  std::size_t got = 0;
  while (got < out.size()) {
    std::int64_t n =
        file.readAt(offset + static_cast<std::int64_t>(got), out.data() + got, out.size() - got);
    if (n < 0) {
      fault = faultFromErrno(errno);
      return false;
    }
    if (n == 0) {
      // The file shrank under us.
      fault = makeFault(FAULT_PAST_END);
      return false;
    }
    got += static_cast<std::size_t>(n);
  }
  return true;
}

// The neighbours of the first `separator` in `sample` must not continue a line end: a CR just
// before it (CR CR LF) or an LF just after it (CR LF LF, LF LF) is not acceptable. A sample
// without the separator has nothing acceptable in it.
bool neighboursAcceptable(std::string_view sample, std::string_view separator) {
  std::size_t at = sample.find(separator);
  if (at == std::string_view::npos) return false;
  bool crBefore = at > 0 && sample[at - 1] == '\r';
  std::size_t next = at + separator.size();
  bool lfAfter = next < sample.size() && sample[next] == '\n';
  return !crBefore && !lfAfter;
}

bool isFileFault(int number) {
  switch (number) {
    case 53:
    case 54:
    case 55:
    case 57:
    case 68:
    case 70:
    case 71:
    case 75:
    case 76:
      return true;
    default:
      return false;
  }
}

std::string accessFailure(const Fault& fault) {
  if (fault.number == 0) return "Unexpected unknown error";
  std::string words =
      isFileFault(fault.number) ? "File Accessibility Error : " : "Unexpected Error : ";
  return words + fault.description + " " + toText(fault.number);
}

std::int64_t lengthOf(const std::string& fileName) {
  struct stat info {};
  if (::stat(fileName.c_str(), &info) != 0) return -1;
  return static_cast<std::int64_t>(info.st_size);
}

}  // namespace

LineEnds judgeLineEnds(const LasFile& file, Fault& fault) {
  fault = Fault{};
  if (!file.isOpen()) {
    fault = faultFromErrno(file.openError());
    return LineEnds::Undecided;
  }
  std::int64_t length = lengthOf(file.path());
  std::string head, tail;
  bool read = length >= 0 && readSample(file, 0, std::min(length, kSampleSize), head, fault);
  // The tail leaves out the very last byte, so a file's final CR LF is judged by its CR alone.
  // A file of exactly 4096 bytes has its tail read from the first byte.
  if (read && length >= kSampleSize) {
    std::int64_t from = length == kSampleSize ? 0 : length - kSampleSize - 1;
    read = readSample(file, from, kSampleSize, tail, fault);
  } else {
    tail = head;
  }
  if (!read) {
    if (fault.number == 0) fault = makeFault(FAULT_DEVICE_IO);
    return LineEnds::Undecided;
  }

  if (head.find('\0') != std::string::npos) return LineEnds::NulByte;
  if (head.find("\r\n") != std::string::npos) {
    // Only the head need hold a CR LF: a tail inside one long last line has no line end to judge.
    bool tailOk = tail.find("\r\n") == std::string::npos || neighboursAcceptable(tail, "\r\n");
    if (neighboursAcceptable(head, "\r\n") && tailOk) return LineEnds::CrLf;
  }
  if (neighboursAcceptable(head, "\n")) return LineEnds::LineFeed;
  return LineEnds::Undecided;
}

RunStatus fileLevelChecks(RunContext& run, Slots& results) {
  const std::string& fileName = run.lasFile;
  results = Slots{};

  if (fileExists(fileName)) {
    // Every regular file carries the archive attribute here, so the proof-of-writing open that
    // attribute-less files would get is never needed.
    if (lengthOf(fileName) < 1) {
      results[FILE_SIZE] = RowResult::saying("File exists but has zero bytes");
      return RunStatus::Stopped;
    }
  } else if (fileAttributes(fileName) > 0) {
    results[FILE_ACCESS] = RowResult::saying("File exists, but has Hidden Attribute");
    return RunStatus::Stopped;
  } else {
    results[FILE_EXISTS] = RowResult::saying("File does not exist or is not accessible");
    return RunStatus::Stopped;
  }

  Fault fault;
  switch (judgeLineEnds(run.source(), fault)) {
    case LineEnds::Undecided:
      results[FILE_ACCESS] = RowResult::saying(accessFailure(fault));
      return RunStatus::Stopped;
    case LineEnds::NulByte:
      // The report shows this row's failure as a lone blank, without words.
      results[FILE_ASCII] = RowResult::saying(" ");
      break;
    case LineEnds::LineFeed:
      results[FILE_TERMINATION] = RowResult::saying("Unix Line Feed (ASCII 10) terminated ");
      break;
    case LineEnds::CrLf:
      break;
  }

  if (fileName.size() >= 5) {
    if (!iendsWith(fileName, ".las"))
      results[FILE_EXTENSION] = RowResult::saying("File extension is not .LAS ");
  } else {
    results[FILE_EXTENSION] =
        RowResult::saying("File name is illegal and/or extension is not .LAS");
  }

  for (int row = FILE_EXISTS; row <= FILE_EXTENSION; ++row)
    if (!results[row].passed()) return RunStatus::Stopped;
  return RunStatus::Completed;
}

}  // namespace zorvik
