#include "transform/wrap.h"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <vector>

#include "base/in_place.h"
#include "base/text.h"
#include "checks/run_observer.h"
#include "las/header_line.h"
#include "las/line_reader.h"
#include "las/lines.h"
#include "las/param_writer.h"
#include "las/sections.h"

namespace zorvik {

namespace {

void reportUnwrapFailure(RunObserver* observer, const std::string& systemText) {
  if (observer != nullptr)
    observer->showCritical(
        "Un-expected Error",
        "An unknown error has occured while converting the file. The file "
        "conversion is likely incomplete. The system error message was: \r\n\r\n" +
            systemText);
}

// Reads the header (everything up to and including the data title line) and gives it back with
// the WRAP value of the ~Version section set to NO. `dataStart` receives the position of the first
// line after the data title (the file length + 1 when there is none).
bool readHeaderUnwrapped(LineReader& in, std::string& header, std::int64_t& dataStart) {
  std::int64_t wrapStart = 0;
  std::int64_t wrapLength = 0;
  std::string wrapLine;
  bool inVersion = false;
  dataStart = in.length() + 1;
  std::string association;
  std::string_view line;
  while (in.readLine(line)) {
    std::string_view t = trimView(line);
    if (isTitleLine(t)) {
      // "~A" covers both "~ASCII" and the bare "~A" of 1.2 files.
      if (istartsWith(t, "~A")) {
        dataStart = in.position();
        break;
      }
      std::string name = parseTitleLine(t, association);
      inVersion = iequals(name, "Version") || iequals(name, "V");
      continue;
    }
    std::size_t d = t.find('.');
    if (inVersion && wrapStart == 0 && d != std::string_view::npos &&
        iequals(trimView(t.substr(0, d)), "WRAP")) {
      wrapStart = in.lineStart();
      wrapLength = in.lineLength();
      wrapLine.assign(line);
    }
  }
  in.readRange(1, dataStart - 1, header);
  std::string edited;
  if (wrapStart > 0 && replaceLineValue(wrapLine, "NO", edited))
    header.replace(static_cast<std::size_t>(wrapStart - 1), static_cast<std::size_t>(wrapLength),
                   edited);
  return true;
}

void writeUnwrapped(const std::string& source, int linesPerRecord, RunObserver* observer,
                    FileSink& out) {
  LineReader in(source);
  if (!in.isOpen()) return out.abandon("the file could not be read", errno);

  std::string header;
  std::int64_t dataStart = 0;
  readHeaderUnwrapped(in, header, dataStart);
  out.write(header);

  in.seek(dataStart);
  std::string record;
  int taken = 0;
  std::int64_t tailStart = 0;
  int lastPercent = -1;
  std::string_view line;
  while (in.readLine(line)) {
    std::string_view t = trimLeftView(line);
    if (isTitleLine(t)) {
      tailStart = in.lineStart();  // a section after the data is copied as it stands
      break;
    }
    if (t.empty() || t[0] == '#') continue;
    if (taken == 0) {
      record.assign(line);
      if (record.size() < 13) record.resize(13, ' ');  // the index column keeps a fixed width
    } else {
      if (line[0] != ' ') record += ' ';
      record.append(line);
    }
    if (++taken == linesPerRecord) {
      out.write(trimView(record));
      out.write("\r\n");
      taken = 0;
      int percent = in.length() > 0 ? static_cast<int>(in.position() * 100 / in.length()) : 100;
      if (percent != lastPercent && observer != nullptr) {
        lastPercent = percent;
        observer->setProgress(percent, std::string());
        observer->processEvents();
      }
    }
  }
  // A record cut short by the end of the data keeps what it has rather than losing it.
  if (taken > 0) {
    out.write(trimView(record));
    out.write("\r\n");
  }
  if (tailStart > 0) {
    std::string chunk;
    for (std::int64_t pos = tailStart; pos <= in.length(); pos += 1 << 20) {
      in.readRange(pos, 1 << 20, chunk);
      out.write(chunk);
    }
  }
}

}  // namespace

bool unwrapFile(const std::string& source, const std::string& destination, RunObserver* observer) {
  if (fileLength(source) < 0) return false;
  // Only 1.2 and 2.0 files wrap their data.
  Dialect dialect;
  dialect.version = 2.0f;
  SectionIndex sections;
  const LasFile file(source);
  locateStandardSections(file, dialect, sections);
  int linesPerRecord = 0;
  int bufferLength = 0;
  int channels = 0;
  if (analyseWrap(file, dialect, sections, observer, linesPerRecord, bufferLength, channels, 0) !=
      WrapLayout::Wrapped)
    return true;

  std::error_code ec;
  bool inPlace = source == destination || std::filesystem::equivalent(source, destination, ec);
  auto produce = [&](FileSink& sink) { writeUnwrapped(source, linesPerRecord, observer, sink); };
  std::string failure;
  try {
    if (inPlace) {
      // The input itself is replaced: locked, and left alone when it may not or must not be.
      RewriteResult result = rewriteInPlace(source, [&](const std::string&) {
        return EditPlan{EditPlan::Kind::Write, produce, {}};
      });
      if (result.outcome == RewriteOutcome::Refused) failure = result.reason;
    } else if (auto error = writeFileSafely(destination, produce)) {
      failure = describeWriteError(*error);
    }
  } catch (const std::exception& e) {
    failure = e.what();
  }
  if (!failure.empty()) {
    reportUnwrapFailure(observer, failure);
    return false;
  }
  return true;
}

}  // namespace zorvik
