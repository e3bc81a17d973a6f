#include "transform/convert.h"

#include <filesystem>
#include <system_error>

#include "base/file_writer.h"
#include "base/text.h"
#include "las/header_line.h"
#include "las/lines.h"
#include "las/param_writer.h"
#include "transform/line_source.h"
#include "transform/temp_files.h"
#include "transform/wrap.h"

namespace zorvik {

namespace {

namespace fs = std::filesystem;

enum class Section { None, Version, Well, Parameter, Curve, Data, Other };

// Sections are told apart by the first letter of their name, as 1.2 and 2.0 titles may be
// abbreviated to it ("~V", "~A").
Section sectionOfTitle(std::string_view trimmed) {
  if (trimmed.size() < 2) return Section::Other;
  switch (toUpperAscii(trimmed[1])) {
    case 'V':
      return Section::Version;
    case 'W':
      return Section::Well;
    case 'P':
      return Section::Parameter;
    case 'C':
      return Section::Curve;
    case 'A':
      return Section::Data;
    default:
      return Section::Other;
  }
}

bool isComment(std::string_view line) {
  const std::string_view t = trimLeftView(line);
  return !t.empty() && t.front() == '#';
}

std::string mnemonicOf(std::string_view line) {
  return classifyHeaderLine(line) == LineKind::Ok ? trim(fieldMnemonic(line)) : std::string();
}

// What the header tells before the data: the version claimed and whether data is wrapped.
struct HeaderFacts {
  std::string version;
  bool wrapped = false;
};

HeaderFacts readHeaderFacts(const std::string& path) {
  HeaderFacts facts;
  PhysicalLines in;
  if (!in.open(path)) return facts;
  std::string_view line, ending;
  Section section = Section::None;
  while (in.next(line, ending)) {
    if (isTitleLine(line)) {
      section = sectionOfTitle(trimView(line));
      if (section == Section::Data) break;
      continue;
    }
    if (section != Section::Version) continue;
    const std::string mnemonic = mnemonicOf(line);
    if (iequals(mnemonic, "VERS") && facts.version.empty()) facts.version = trim(fieldValue(line));
    if (iequals(mnemonic, "WRAP")) facts.wrapped = iequals(trim(fieldValue(line)), "YES");
  }
  return facts;
}

// Everything of the input but its data values: the header sections as they will be written.
struct Header {
  std::vector<std::string> version;  // ~Version lines after VERS, WRAP and DLM
  std::vector<std::string> well;
  std::vector<std::string> parameter;
  std::vector<std::string> curve;
  std::vector<std::string> wellTail;  // sections a 3.0 file may not hold, kept as comments
  std::vector<std::string> dataComments;
  bool hasParameter = false;
  std::int64_t dataOffset = -1;  // 0-based offset of the line after the data title
  std::int64_t dataLine = 0;     // its 1-based line number
};

std::string asComment(std::string_view line) {
  return isComment(line) ? std::string(line) : "#" + std::string(line);
}

// A 1.2 ~Well line keeps its information after the colon and a label before it; 3.0 wants the
// information as the value. The index lines carry their numbers as values in 1.2 too.
bool movesValue(std::string_view line, std::string& rewritten) {
  if (classifyHeaderLine(line) != LineKind::Ok) return false;
  const std::string mnemonic = trim(fieldMnemonic(line));
  for (std::string_view index : {"STRT", "STOP", "STEP", "NULL"})
    if (iequals(mnemonic, index)) return false;
  const std::string description = trim(fieldDescription(line));
  if (description.empty()) return false;
  const std::string label = trim(fieldValue(line));
  rewritten = " " + mnemonic + "." + trim(fieldUnit(line));
  const std::size_t width = rewritten.size() + description.size();
  rewritten.append(width < 26 ? 26 - width : 1, ' ');
  rewritten += description + " : " + label;
  return true;
}

constexpr std::string_view LOCATION_SET[] = {"X", "Y", "GDAT", "HZCS"};
constexpr std::string_view LATLONG_SET[] = {"LATI", "LONG", "GDAT"};

std::string_view fillInDescription(std::string_view mnemonic) {
  if (mnemonic == "CTRY") return "Country";
  if (mnemonic == "X") return "X or East-West coordinate";
  if (mnemonic == "Y") return "Y or North-South coordinate";
  if (mnemonic == "GDAT") return "Geodetic Datum";
  return "Horizontal Co-ordinate System";
}

std::string emptyLine(std::string_view mnemonic) {
  std::string line = " " + std::string(mnemonic) + ".";
  line.append(line.size() < 26 ? 26 - line.size() : 1, ' ');
  return line + " : " + std::string(fillInDescription(mnemonic));
}

class Converter {
 public:
  Converter(const ConvertRequest& request, ConvertResult& result)
      : request_(request), result_(result) {}

  bool readHeader(const std::string& source, bool version12) {
    PhysicalLines in;
    if (!in.open(source)) return fail("The file could not be read.");
    Section section = Section::None;
    bool afterData = false;
    std::string_view line, ending;
    while (in.next(line, ending)) {
      if (isTitleLine(line)) {
        const Section next = sectionOfTitle(trimView(line));
        if (afterData || next == Section::Other) {
          note(ChangeKind::Moved, in.number(), "section kept as comments at the end of ~Well", line,
               asComment(line));
          header_.wellTail.push_back(asComment(line));
          section = Section::Other;
          continue;
        }
        section = next;
        renameTitle(section, line, in.number());
        if (section == Section::Parameter) header_.hasParameter = true;
        if (section == Section::Data) {
          header_.dataOffset = in.offsetAfter();
          header_.dataLine = in.number() + 1;
        }
        continue;
      }
      switch (section) {
        case Section::None:
          if (!trimView(line).empty()) header_.version.push_back(asComment(line));
          break;
        case Section::Version:
          versionLine(line, in.number());
          break;
        case Section::Well:
          wellLine(line, in.number(), version12);
          break;
        case Section::Parameter:
          header_.parameter.emplace_back(line);
          break;
        case Section::Curve:
          header_.curve.emplace_back(line);
          break;
        case Section::Data:
          if (isComment(line)) {
            note(ChangeKind::Moved, in.number(), "comment moved before the data title", line, "");
            header_.dataComments.emplace_back(line);
          } else if (isTitleLine(line)) {
            afterData = true;
          }
          break;
        case Section::Other:
          header_.wellTail.push_back(asComment(line));
          break;
      }
    }
    if (in.tooLong() || in.failed()) return fail("The file could not be read.");
    if (header_.dataOffset < 0) return fail("The file has no ~ASCII section.");
    addFillIns();
    return true;
  }

  bool write(const std::string& source) {
    bool unreadable = false;
    const auto error = writeFileSafely(result_.output, [&](FileSink& out) {
      if (!produce(source, out)) {
        unreadable = true;
        out.abandon("the file could not be read");
      }
    });
    if (unreadable) return fail("The file could not be read.");
    if (error)
      return fail("The converted file could not be written: " + describeWriteError(*error));
    return true;
  }

 private:
  // Streams the converted file into `out`; false when the input could not be read.
  bool produce(const std::string& source, FileSink& out) {
    auto put = [&](std::string_view text) {
      out.write(text);
      out.write(CRLF);
    };

    put("~Version Information");
    put(" VERS.                  3.0 : CWLS LOG ASCII STANDARD - VERSION 3.0");
    put(" WRAP.                   NO : One line per depth step");
    std::string dlm = " DLM .";
    const std::string_view word = delimiterWord(request_.delimiter);
    dlm.append(26 - dlm.size() - word.size(), ' ');
    put(dlm + std::string(word) + " : Data item delimiter");
    for (const std::string& l : header_.version) put(l);
    put("~Well Information");
    for (const std::string& l : header_.well) put(l);
    for (const std::string& l : header_.wellTail) put(l);
    const bool log = request_.titles == LogSectionTitles::LogPrefixed;
    if (header_.hasParameter) {
      put(log ? "~Log_Parameter" : "~Parameter");
      for (const std::string& l : header_.parameter) put(l);
    }
    put(log ? "~Log_Definition" : "~Curve");
    for (const std::string& l : header_.curve) put(l);
    for (const std::string& l : header_.dataComments) put(l);
    put(log ? "~Log_Data | Log_Definition" : "~ASCII");

    return writeData(source, out);
  }

  bool fail(std::string why) {
    result_.error = std::move(why);
    return false;
  }

  void note(ChangeKind kind, std::int64_t line, std::string what, std::string_view before,
            std::string_view after) {
    result_.changes.push_back(
        {kind, line, {}, std::move(what), std::string(before), std::string(after)});
  }

  void renameTitle(Section section, std::string_view line, std::int64_t number) {
    const bool log = request_.titles == LogSectionTitles::LogPrefixed;
    std::string_view title;
    switch (section) {
      case Section::Version:
        title = "~Version Information";
        break;
      case Section::Well:
        title = "~Well Information";
        break;
      case Section::Parameter:
        title = log ? "~Log_Parameter" : "~Parameter";
        break;
      case Section::Curve:
        title = log ? "~Log_Definition" : "~Curve";
        break;
      default:
        title = log ? "~Log_Data | Log_Definition" : "~ASCII";
        break;
    }
    if (line != title) note(ChangeKind::Changed, number, "section title", line, title);
  }

  void versionLine(std::string_view line, std::int64_t number) {
    const std::string mnemonic = mnemonicOf(line);
    if (iequals(mnemonic, "VERS") || iequals(mnemonic, "WRAP") || iequals(mnemonic, "DLM")) {
      note(ChangeKind::Changed, number, mnemonic + " written for 3.0", line, "");
      return;
    }
    header_.version.emplace_back(line);
  }

  void wellLine(std::string_view line, std::int64_t number, bool version12) {
    const std::string mnemonic = toUpper(mnemonicOf(line));
    if (!mnemonic.empty()) wellMnemonics_.push_back(mnemonic);
    std::string written(line);
    if (version12 && movesValue(line, written))
      note(ChangeKind::Changed, number, "1.2 value moved to the value field", line, written);
    if (mnemonic == "CTRY") twoLetterCountry(written, number);
    header_.well.push_back(std::move(written));
  }

  // 3.0 names the country by its two-letter internet code; the three-letter names of the two
  // countries whose mnemonic sets the checks know are mapped, any other code is left as written.
  void twoLetterCountry(std::string& line, std::int64_t number) {
    const std::string value = toUpper(trim(fieldValue(line)));
    const std::string_view code = value == "USA" ? "US" : value == "CAN" ? "CA" : "";
    std::string rewritten;
    if (code.empty() || !replaceLineValue(line, code, rewritten)) return;
    note(ChangeKind::Changed, number, "country written as its two-letter code", line, rewritten);
    line = std::move(rewritten);
  }

  bool hasWell(std::string_view mnemonic) const {
    for (const std::string& m : wellMnemonics_)
      if (m == mnemonic) return true;
    return false;
  }

  template <std::size_t N>
  bool complete(const std::string_view (&set)[N]) const {
    for (std::string_view m : set)
      if (!hasWell(m)) return false;
    return true;
  }

  void addFillIns() {
    std::vector<std::string_view> wanted;
    if (!hasWell("CTRY")) wanted.push_back("CTRY");
    if (!complete(LOCATION_SET) && !complete(LATLONG_SET))
      for (std::string_view m : LOCATION_SET)
        if (!hasWell(m)) wanted.push_back(m);
    for (std::string_view m : wanted) {
      header_.well.push_back(emptyLine(m));
      note(ChangeKind::FillIn, 0, "~Well line added with an empty value", "", header_.well.back());
    }
  }

  bool writeData(const std::string& source, FileSink& out) {
    PhysicalLines in;
    if (!in.open(source) || !in.seek(header_.dataOffset, header_.dataLine)) return false;
    const char delimiter = delimiterChar(request_.delimiter);
    std::string record;
    std::string_view line, ending;
    while (in.next(line, ending)) {
      if (isTitleLine(line)) break;
      if (isComment(line)) continue;
      record.clear();
      std::size_t i = 0;
      while (i < line.size()) {
        while (i < line.size() && (line[i] == ' ' || line[i] == '\t')) ++i;
        if (i == line.size()) break;
        std::size_t end = i;
        while (end < line.size() && line[end] != ' ' && line[end] != '\t') ++end;
        const std::string_view value = line.substr(i, end - i);
        if (!record.empty()) record += delimiter;
        // Values split on blanks hold none; only the comma or tab of the delimiter needs quotes.
        if (value.find(delimiter) != std::string_view::npos)
          record.append("\"").append(value).append("\"");
        else
          record.append(value);
        i = end;
      }
      if (record.empty()) continue;  // a blank line holds no record
      record.append(CRLF);
      out.write(record);
      if (out.failure()) break;
    }
    return !in.tooLong() && !in.failed();
  }

  const ConvertRequest& request_;
  ConvertResult& result_;
  Header header_;
  std::vector<std::string> wellMnemonics_;
};

// Removes the unwrapped copy however the conversion ends.
struct TemporaryCopy {
  std::string path;
  ~TemporaryCopy() {
    std::error_code ignored;
    if (!path.empty()) fs::remove(path, ignored);
  }
};

}  // namespace

std::string_view delimiterWord(DataDelimiter delimiter) {
  switch (delimiter) {
    case DataDelimiter::Comma:
      return "COMMA";
    case DataDelimiter::Tab:
      return "TAB";
    default:
      return "SPACE";
  }
}

char delimiterChar(DataDelimiter delimiter) {
  switch (delimiter) {
    case DataDelimiter::Comma:
      return ',';
    case DataDelimiter::Tab:
      return '\t';
    default:
      return ' ';
  }
}

ConvertResult convertFile(const ConvertRequest& request) {
  ConvertResult result;
  result.output = request.output.empty() ? version3FileName(request.input) : request.output;
  std::error_code ec;
  if (!fs::is_regular_file(request.input, ec)) {
    result.error = "The file does not exist.";
    return result;
  }
  if (fs::exists(result.output, ec) && fs::equivalent(request.input, result.output, ec)) {
    result.error = "The converted file must not replace the input.";
    return result;
  }
  const HeaderFacts facts = readHeaderFacts(request.input);
  if (facts.version.rfind("3", 0) == 0) {
    result.error = "The file is already version 3.0.";
    return result;
  }

  TemporaryCopy unwrapped;
  std::string source = request.input;
  if (facts.wrapped) {
    const fs::path folder = request.workFolder.empty()
                                ? fs::absolute(result.output, ec).parent_path()
                                : fs::path(request.workFolder);
    unwrapped.path = (folder / CONVERT_TEMP_FILE).string();
    if (!unwrapFile(request.input, unwrapped.path)) {
      result.error = "The wrapped data could not be unwrapped.";
      return result;
    }
    // unwrapFile leaves data it cannot take for wrapped alone and writes nothing.
    if (fs::exists(unwrapped.path, ec)) {
      source = unwrapped.path;
      result.changes.push_back(
          {ChangeKind::Changed, 0, {}, "wrapped records joined onto one line each", "", ""});
    }
  }

  Converter converter(request, result);
  const bool version12 = facts.version.rfind("1.2", 0) == 0;
  if (converter.readHeader(source, version12) && converter.write(source))
    result.outcome = ConvertOutcome::Written;
  return result;
}

std::string version3FileName(const std::string& lasFile) {
  // Cut as every derived name is: at the first point of the file's own name, never in a folder.
  const std::size_t slash = lasFile.find_last_of('/');
  const std::size_t dot = lasFile.find('.', slash == std::string::npos ? 0 : slash + 1);
  return lasFile.substr(0, dot == std::string::npos ? lasFile.size() : dot) + "_ver3.las";
}

}  // namespace zorvik
