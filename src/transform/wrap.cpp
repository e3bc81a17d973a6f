#include "transform/wrap.h"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <vector>

#include "base/in_place.h"
#include "base/text.h"
#include "checks/run_state.h"
#include "checks/window_ops.h"
#include "las/header_line.h"
#include "las/line_reader.h"
#include "las/sections.h"
#include "transform/param_writer.h"

namespace zorvik {

namespace {

struct SampledLine {
  int fields = 0;
  int length = 0;  // right-trimmed
};

// Field counts of lines first..first+count-1 written one after another ("1", "5", "5" -> "155").
std::string countPattern(const std::vector<SampledLine>& lines, std::size_t first,
                         std::size_t count) {
  std::string pattern;
  for (std::size_t i = first; i < first + count && i < lines.size(); ++i)
    pattern += toText(lines[i].fields);
  return pattern;
}

// Lets the window repaint and take an Escape press; true when the user asked to cancel.
bool serviceWindow() {
  RunState& state = runState();
  if (state.window == nullptr) return false;
  state.window->processEvents();
  return state.escapePressed;
}

std::int64_t dataSectionStart(const std::string& fileName) {
  std::string found;
  for (const std::string& name :
       {runState().dataSectionName, std::string("Log_Data"), std::string("A")}) {
    if (name.empty()) continue;
    if (std::int64_t pos = findSection(fileName, name, found); pos > 0) return pos;
  }
  return 0;
}

int curveLineCount(const std::string& fileName) {
  const std::string& curve = runState().curveSectionName;
  if (curve.empty()) return 0;
  ParamTable table;
  parseSectionTable(fileName, table, curve);
  return table.lastEntry();
}

void reportUnwrapFailure(const std::string& systemText) {
  if (WindowOps* window = runState().window)
    window->showCritical("Un-expected Error",
                         "An unknown error has occured while converting the file. The file "
                         "conversion is likely incomplete. The system error message was: \r\n\r\n" +
                             systemText);
}

}  // namespace

int analyseWrap(const std::string& fileName, int& linesPerRecord, int& bufferLength, int& channels,
                int sampleHint) {
  linesPerRecord = bufferLength = channels = 0;
  std::int64_t start = dataSectionStart(fileName);
  LineReader file;
  if (start <= 0 || !file.open(fileName) || start >= file.length()) return WRAP_UNDETERMINED;
  const std::string& delimiter =
      runState().dataDelimiter.empty() ? std::string(" ") : runState().dataDelimiter;

  // About three fifths of the channel count: enough lines for two records of any usual layout.
  int count = sampleHint > 0 ? sampleHint : curveLineCount(fileName);
  std::size_t sampleSize = static_cast<std::size_t>(std::floor(count / 5.0 * 3.0));

  std::vector<SampledLine> lines;
  file.seek(start);
  std::string_view line;
  while (lines.size() <= sampleSize && file.readLine(line)) {
    if (trimView(line).empty()) continue;
    lines.push_back({countWords(line, delimiter), static_cast<int>(trimRightView(line).size())});
    if (serviceWindow()) return WRAP_CANCELLED;
  }
  if (lines.empty()) return WRAP_UNDETERMINED;

  bool uniform = true;
  for (const SampledLine& l : lines) uniform = uniform && l.fields == lines[0].fields;
  if (uniform) {
    linesPerRecord = 1;
    bufferLength = lines[0].length + 2;
    channels = lines[0].fields;
    return WRAP_UNWRAPPED;
  }

  // A record of k lines repeats when the field counts of lines 1..k match those of k+1..2k and
  // its first line starts with a single field (the index alone); the test on the pattern's first
  // character is deliberately loose.
  std::size_t lastK = lines.size() / 2 + 1;
  for (std::size_t k = 1; k <= lastK; ++k) {
    std::string a = countPattern(lines, 0, k);
    if (a.empty() || a[0] != '1' || a != countPattern(lines, k, k)) continue;
    linesPerRecord = static_cast<int>(k);
    for (std::size_t i = 0; i < k && i < lines.size(); ++i) {
      bufferLength += lines[i].length + 2;
      channels += lines[i].fields;
    }
    return WRAP_WRAPPED;
  }
  return WRAP_UNDETERMINED;
}

namespace {

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
    if (!t.empty() && t[0] == '~') {
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

void writeUnwrapped(const std::string& source, int linesPerRecord, FileSink& out) {
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
    if (!t.empty() && t[0] == '~') {
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
      if (percent != lastPercent && runState().window != nullptr) {
        lastPercent = percent;
        runState().window->setProgress(percent, std::string());
        runState().window->processEvents();
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

bool unwrapFile(const std::string& source, const std::string& destination) {
  if (fileLength(source) < 0) return false;
  locateStandardSections(source);  // the wrap analysis reads the section index of this file
  int linesPerRecord = 0;
  int bufferLength = 0;
  int channels = 0;
  if (analyseWrap(source, linesPerRecord, bufferLength, channels, 0) != WRAP_WRAPPED) return true;

  std::error_code ec;
  bool inPlace = source == destination || std::filesystem::equivalent(source, destination, ec);
  auto produce = [&](FileSink& sink) { writeUnwrapped(source, linesPerRecord, sink); };
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
    reportUnwrapFailure(failure);
    return false;
  }
  return true;
}

}  // namespace zorvik
