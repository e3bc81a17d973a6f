#include "transform/repair.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <system_error>

#include "base/file_writer.h"
#include "base/in_place.h"
#include "base/text.h"
#include "checks/data_scan.h"
#include "las/header_line.h"
#include "las/lines.h"
#include "las/param_writer.h"
#include "transform/line_source.h"

namespace zorvik {

namespace {

constexpr std::string_view BOM = "\xEF\xBB\xBF";

constexpr CatalogueRow LINE_ENDS{1, 4};
constexpr CatalogueRow VERSION_SECTION{2, 1};
constexpr CatalogueRow VERS_PRESENT{2, 2};
constexpr CatalogueRow WRAP_PRESENT{2, 3};
constexpr CatalogueRow SECTIONS_PRESENT{3, 1};
constexpr CatalogueRow TITLE_FORMAT{3, 3};
constexpr CatalogueRow HEADER_DESCRIPTION{4, 4};
constexpr CatalogueRow HEADER_LINE_TYPE{4, 5};
constexpr CatalogueRow WELL_REQUIRED{5, 1};
constexpr CatalogueRow VALUES_PRESENT{6, 1};
constexpr CatalogueRow STRT_MATCHES{6, 2};
constexpr CatalogueRow STOP_MATCHES{6, 3};
constexpr CatalogueRow STEP_MATCHES{6, 4};

constexpr CatalogueRow REPAIRABLE[] = {
    LINE_ENDS,    VERSION_SECTION,    VERS_PRESENT,     WRAP_PRESENT,  SECTIONS_PRESENT,
    TITLE_FORMAT, HEADER_DESCRIPTION, HEADER_LINE_TYPE, WELL_REQUIRED, VALUES_PRESENT,
    STRT_MATCHES, STOP_MATCHES,       STEP_MATCHES};

constexpr std::string_view REQUIRED_WELL[] = {"STRT", "STOP", "STEP", "NULL", "COMP",
                                              "WELL", "FLD",  "LOC",  "DATE", "SRVC"};

std::string_view defaultDescription(std::string_view mnemonic) {
  if (mnemonic == "STRT") return "START Depth";
  if (mnemonic == "STOP") return "STOP Depth";
  if (mnemonic == "STEP") return "STEP Value";
  if (mnemonic == "NULL") return "Null Value";
  if (mnemonic == "COMP") return "Company Name";
  if (mnemonic == "WELL") return "Well Name";
  if (mnemonic == "FLD") return "Field Name";
  if (mnemonic == "LOC") return "Location";
  if (mnemonic == "DATE") return "Date";
  return "Service Company";
}

bool hasUnit(std::string_view mnemonic) {
  return mnemonic == "STRT" || mnemonic == "STOP" || mnemonic == "STEP";
}

// " MNEM.UNIT        VALUE : DESCRIPTION", the value right-aligned to the column of the colon.
std::string headerLine(std::string_view mnemonic, std::string_view unit, std::string_view value,
                       std::string_view description) {
  std::string line = " " + std::string(mnemonic) + "." + std::string(unit);
  const std::size_t used = line.size() + value.size();
  line.append(used < 26 ? 26 - used : 1, ' ');
  return line + std::string(value) + " : " + std::string(description);
}

char sectionLetter(std::string_view titleLine) {
  const std::string_view t = trimView(titleLine);
  return t.size() < 2 ? '\0' : toUpperAscii(t[1]);
}

std::string_view leadingField(std::string_view line) {
  const std::string_view t = trimLeftView(line);
  const std::size_t end = t.find_first_of(" \t");
  return t.substr(0, end);
}

// A ~Well line the repairs may rewrite.
struct KnownLine {
  std::int64_t number = 0;
  std::string text;
  std::string value;
};

// What the first reading learns of the file.
struct Facts {
  bool bom = false;
  bool tabs = false;            // anywhere in the file
  bool indentedTitles = false;  // title lines with blanks before the tilde
  std::int64_t firstBadEnding = 0;
  std::int64_t badEndings = 0;
  std::int64_t firstTitle = 0;
  std::int64_t versionTitle = 0;
  std::int64_t versLine = 0;
  bool hasWrap = false;
  std::string wrapValue;
  std::string sniffedVersion;  // the first well-formed VERS value before the data
  std::int64_t wellTitle = 0;
  std::int64_t wellLast = 0;  // last line of ~Well that is not blank (its title when empty)
  std::map<std::string, KnownLine> well;
  int curveLines = 0;
  std::string indexUnit;
  bool hasData = false;
  // Data: field counts of the first lines (to tell the record length) and the index walk.
  std::vector<int> sampleCounts;
  std::vector<std::string> sampleLines;
  int linesPerRecord = 1;
  std::int64_t counted = 0;
  std::string firstIndex;
  std::string lastIndex;
  StepAnswer incrementAnswer = StepAnswer::Unanalysable;
  IncrementResult increment;
};

constexpr std::size_t SAMPLE_LINES = 64;

// Records of k lines repeat their field counts and begin with the index alone.
int recordLength(const std::vector<int>& counts, bool wrapped) {
  if (!wrapped || counts.empty()) return 1;
  for (std::size_t k = 1; k <= counts.size() / 2; ++k) {
    if (counts[0] != 1) break;
    bool repeats = true;
    for (std::size_t i = 0; i + k < counts.size() && repeats; ++i)
      repeats = counts[i] == counts[i + k];
    if (repeats) return static_cast<int>(k);
  }
  return 1;
}

class DataWalk {
 public:
  explicit DataWalk(Facts& facts) : facts_(facts) {}

  void line(std::string_view text) {
    if (!started_) {
      const std::string_view t = trimView(text);
      if (t.empty() || t.front() == '#') return;
      facts_.sampleCounts.push_back(countWords(text, " "));
      facts_.sampleLines.emplace_back(text);
      if (facts_.sampleLines.size() == SAMPLE_LINES) start();
      return;
    }
    feed(text);
  }

  void finish() {
    if (!started_) start();
    facts_.incrementAnswer = walk_ ? walk_->finish(facts_.increment) : StepAnswer::Unanalysable;
  }

 private:
  void start() {
    started_ = true;
    facts_.linesPerRecord = recordLength(facts_.sampleCounts, iequals(facts_.wrapValue, "YES"));
    walk_.emplace(facts_.linesPerRecord, ' ');
    for (const std::string& l : facts_.sampleLines) feed(l);
    facts_.sampleLines.clear();
  }

  void feed(std::string_view text) {
    const std::string_view t = trimView(text);
    if (t.empty() || t.front() == '#') return;
    if (facts_.counted++ % facts_.linesPerRecord == 0) {
      facts_.lastIndex.assign(leadingField(text));
      if (facts_.firstIndex.empty()) facts_.firstIndex = facts_.lastIndex;
    }
    if (walk_ && walking_) walking_ = walk_->feed(text);
  }

  Facts& facts_;
  bool started_ = false;
  bool walking_ = true;
  std::optional<IncrementWalk> walk_;
};

bool readFacts(const std::string& path, Facts& facts) {
  PhysicalLines in;
  if (!in.open(path)) return false;
  DataWalk data(facts);
  char section = '\0';
  std::string_view line, ending;
  while (in.next(line, ending)) {
    const std::int64_t n = in.number();
    if (n == 1 && line.substr(0, BOM.size()) == BOM) {
      facts.bom = true;
      line.remove_prefix(BOM.size());
    }
    if (line.find('\t') != std::string_view::npos) facts.tabs = true;
    if (isTitleLine(line) && line.front() != '~') facts.indentedTitles = true;
    if (ending != CRLF && !ending.empty()) {
      if (facts.firstBadEnding == 0) facts.firstBadEnding = n;
      ++facts.badEndings;
    }
    if (section == 'A') {
      if (isTitleLine(line))
        section = '\0';
      else
        data.line(line);
      continue;
    }
    if (isTitleLine(line)) {
      section = sectionLetter(line);
      if (facts.firstTitle == 0) facts.firstTitle = n;
      if (section == 'V' && facts.versionTitle == 0) facts.versionTitle = n;
      if (section == 'W' && facts.wellTitle == 0) facts.wellTitle = facts.wellLast = n;
      if (section == 'A') facts.hasData = true;
      continue;
    }
    const std::string clean = replaceAll(line, "\t", " ");
    const bool wellFormed = classifyHeaderLine(clean) == LineKind::Ok;
    const std::string mnemonic = wellFormed ? toUpper(trim(fieldMnemonic(clean))) : std::string();
    if (mnemonic == "VERS" && facts.sniffedVersion.empty())
      facts.sniffedVersion = trim(fieldValue(clean));
    if (section == 'V') {
      if (mnemonic == "VERS" && facts.versLine == 0) facts.versLine = n;
      if (mnemonic == "WRAP" && !facts.hasWrap) {
        facts.hasWrap = true;
        facts.wrapValue = trim(fieldValue(clean));
      }
    } else if (section == 'W' && n > 0) {
      if (!trimView(line).empty() && facts.wellTitle != 0) facts.wellLast = n;
      if (!mnemonic.empty() && facts.well.count(mnemonic) == 0)
        facts.well[mnemonic] = {n, std::string(line), trim(fieldValue(clean))};
    } else if (section == 'C' && wellFormed) {
      if (++facts.curveLines == 1) facts.indexUnit = trim(fieldUnit(clean));
    }
  }
  if (section == 'A' || facts.hasData) data.finish();
  return !in.failed() && !in.tooLong();
}

std::string stepText(double step) {
  return formatFixed(step, 5);
}

class Repairer {
 public:
  Repairer(const RepairRequest& request, RepairResult& result)
      : request_(request), result_(result) {}

  bool allowed(CatalogueRow row) const {
    if (!request_.found) return true;
    return std::find(request_.found->begin(), request_.found->end(), row) != request_.found->end();
  }

  void plan(const Facts& facts) {
    facts_ = &facts;
    planVersion();
    planWell();
    planIndexValues();
  }

  // Writes the repaired file to `destination` (`source` itself: rewritten in place); false, with
  // the reason, on failure. `changed` tells whether anything was repaired; when nothing was, no
  // file is written.
  bool write(const std::string& source, const std::string& destination, bool& changed) {
    changed = false;
    if (!mayChange()) return true;
    bool unreadable = false;
    auto produce = [&](const std::string& from, FileSink& sink) {
      if (!stream(from, sink)) {
        unreadable = true;
        sink.abandon("the file could not be read");
      }
    };
    std::string failure;
    if (destination == source) {
      // The input itself is replaced: locked, and left alone when it may not or must not be.
      const RewriteResult rewrite = rewriteInPlace(source, [&](const std::string& locked) {
        return EditPlan{
            EditPlan::Kind::Write, [&, locked](FileSink& sink) { produce(locked, sink); }, {}};
      });
      if (rewrite.outcome == RewriteOutcome::Refused) failure = rewrite.reason;
    } else {
      // A copy that would come out the same as the input is not written.
      bool unchanged = false;
      WriteOptions options;
      options.beforeRename = [&]() -> std::optional<WriteError> {
        if (changed_) return std::nullopt;
        unchanged = true;
        return WriteError{WriteStep::Changed, 0, "nothing was repaired"};
      };
      const auto error = writeFileSafely(
          destination, [&](FileSink& sink) { produce(source, sink); }, options);
      if (error && !unchanged) failure = describeWriteError(*error);
    }
    if (unreadable) return fail("The file could not be read.");
    if (!failure.empty()) return fail("The repaired file could not be written: " + failure);
    changed = changed_;
    return true;
  }

 private:
  // Whether writing can change anything at all: a file with nothing to repair is not copied.
  bool mayChange() const {
    const Facts& f = *facts_;
    const bool fixEnds = allowed(LINE_ENDS);
    const bool fixTabs = allowed(HEADER_DESCRIPTION) || allowed(HEADER_LINE_TYPE);
    const bool fixTitles = allowed(TITLE_FORMAT) || allowed(SECTIONS_PRESENT);
    return !inserts_.empty() || !replaces_.empty() || (fixEnds && (f.bom || f.badEndings > 0)) ||
           (fixTabs && f.tabs) || (fixTitles && f.indentedTitles);
  }

  // Streams the file with the planned edits and the per-line repairs into `out`; false when the
  // file could not be read.
  bool stream(const std::string& source, FileSink& out) {
    PhysicalLines in;
    if (!in.open(source)) return false;
    std::string text;
    std::string_view line, ending;
    char section = '\0';
    const bool fixEnds = allowed(LINE_ENDS);
    const bool fixTabs = allowed(HEADER_DESCRIPTION) || allowed(HEADER_LINE_TYPE);
    const bool fixTitles = allowed(TITLE_FORMAT) || allowed(SECTIONS_PRESENT);
    struct {
      std::int64_t first = 0;
      std::int64_t lines = 0;
    } dataTabs;
    emitInserted(0, out);
    while (in.next(line, ending)) {
      const std::int64_t n = in.number();
      text.assign(line);
      if (n == 1 && text.rfind(BOM, 0) == 0 && fixEnds) {
        text.erase(0, BOM.size());
        record(ChangeKind::Changed, n, LINE_ENDS, "byte-order mark removed", "", "");
      }
      if (isTitleLine(text)) {
        section = sectionLetter(text);
        if (fixTitles && text.front() != '~') {
          const std::string fixed(trimLeftView(text));
          record(ChangeKind::Changed, n, TITLE_FORMAT, "blanks before the tilde removed", text,
                 fixed);
          text = fixed;
        }
      } else if (section == 'A' && fixTabs && text.find('\t') != std::string::npos) {
        // Data lines are listed together: a tab-delimited file has millions of them.
        std::replace(text.begin(), text.end(), '\t', ' ');
        if (dataTabs.lines++ == 0) dataTabs.first = n;
        changed_ = true;
      } else if (fixTabs && text.find('\t') != std::string::npos) {
        const CatalogueRow row =
            classifyHeaderLine(text) == LineKind::Ok ? HEADER_DESCRIPTION : HEADER_LINE_TYPE;
        const std::string fixed = replaceAll(text, "\t", " ");
        record(ChangeKind::Changed, n, row, "tabs made blanks", text, fixed);
        text = fixed;
      }
      if (auto r = replaces_.find(n); r != replaces_.end()) {
        record(ChangeKind::Changed, n, r->second.row, r->second.what, text, r->second.text);
        text = r->second.text;
      }
      std::string_view end = ending;
      if (fixEnds && !ending.empty() && ending != CRLF) end = CRLF;
      out.write(text);
      out.write(end);
      emitInserted(n, out);
    }
    if (in.failed() || in.tooLong()) return false;
    if (dataTabs.lines > 0)
      record(ChangeKind::Changed, dataTabs.first, HEADER_LINE_TYPE,
             "tabs between data values made blanks on " + toText(dataTabs.lines) +
                 " data line(s) from here",
             "", "");
    if (fixEnds && facts_->badEndings > 0)
      record(ChangeKind::Changed, facts_->firstBadEnding, LINE_ENDS,
             "line ends made CR LF on " + toText(facts_->badEndings) + " line(s) from here", "",
             "");
    return true;
  }

  struct Replacement {
    CatalogueRow row;
    std::string what;
    std::string text;
  };

  bool fail(std::string why) {
    result_.error = std::move(why);
    return false;
  }

  void record(ChangeKind kind, std::int64_t line, CatalogueRow row, std::string what,
              std::string_view before, std::string_view after) {
    if (kind != ChangeKind::NotRepaired) changed_ = true;
    result_.changes.push_back(
        {kind, line, row, std::move(what), std::string(before), std::string(after)});
  }

  void notRepaired(CatalogueRow row, std::string what) {
    notRepaired_.push_back({ChangeKind::NotRepaired, 0, row, std::move(what), "", ""});
  }

  void insert(std::int64_t after, CatalogueRow row, std::string what, std::string line) {
    inserts_[after].push_back({row, std::move(what), std::move(line)});
  }

  void emitInserted(std::int64_t after, FileSink& out) {
    auto it = inserts_.find(after);
    if (it == inserts_.end()) return;
    for (const Replacement& r : it->second) {
      record(ChangeKind::Added, after, r.row, r.what, "", r.text);
      out.write(r.text);
      out.write(CRLF);
    }
  }

  void planVersion() {
    const Facts& f = *facts_;
    const std::string version = f.sniffedVersion.empty() ? "2.0" : f.sniffedVersion;
    const std::string wrap = recordLength(f.sampleCounts, true) > 1 ? "YES" : "NO";
    const std::string versLine =
        headerLine("VERS", "", version, "CWLS LOG ASCII STANDARD - VERSION " + version);
    const std::string wrapLine =
        headerLine("WRAP", "", wrap,
                   wrap == "YES" ? "Multiple lines per depth step" : "One line per depth step");
    if (f.versionTitle == 0) {
      if (!allowed(VERSION_SECTION)) return;
      const std::int64_t at = f.firstTitle > 0 ? f.firstTitle - 1 : 0;
      insert(at, VERSION_SECTION, "~Version section added", "~Version Information");
      insert(at, VERSION_SECTION, "~Version line added", versLine);
      insert(at, VERSION_SECTION, "~Version line added", wrapLine);
      return;
    }
    if (f.versLine == 0 && allowed(VERS_PRESENT))
      insert(f.versionTitle, VERS_PRESENT, "~Version line added", versLine);
    if (!f.hasWrap && allowed(WRAP_PRESENT))
      insert(f.versLine > 0 ? f.versLine : f.versionTitle, WRAP_PRESENT, "~Version line added",
             wrapLine);
  }

  void planWell() {
    const Facts& f = *facts_;
    if (!allowed(WELL_REQUIRED)) return;
    std::vector<std::string_view> missing;
    for (std::string_view m : REQUIRED_WELL)
      if (f.well.count(std::string(m)) == 0) missing.push_back(m);
    if (missing.empty()) return;
    if (f.wellTitle == 0) {
      notRepaired(WELL_REQUIRED, "the file has no ~Well section to add the missing lines to");
      return;
    }
    std::string unit = f.indexUnit;
    bool unitsAsked = false;
    for (std::string_view m : missing) {
      std::string value;
      if (m == "STRT") value = f.firstIndex;
      if (m == "STOP") value = f.lastIndex;
      if (m == "STEP")
        value = f.incrementAnswer == StepAnswer::Constant ? stepText(f.increment.increment) : "0";
      if (m == "NULL") value = "-999.25";
      if (hasUnit(m)) {
        if (f.counted == 0) {
          notRepaired(WELL_REQUIRED, std::string(m) + " not added: the data has no index values");
          continue;
        }
        if (unit.empty() && !unitsAsked) {
          unitsAsked = true;
          if (request_.askIndexUnits) unit = trim(request_.askIndexUnits(INDEX_UNITS_PROMPT));
        }
        if (unit.empty()) {
          notRepaired(WELL_REQUIRED, std::string(m) + " not added: the index units are unknown");
          continue;
        }
      }
      insert(f.wellLast, WELL_REQUIRED, "~Well line added",
             headerLine(m, hasUnit(m) ? unit : "", value, defaultDescription(m)));
    }
  }

  void replaceValue(const KnownLine& line, CatalogueRow row, const std::string& value) {
    std::string rewritten;
    if (!replaceLineValue(replaceAll(line.text, "\t", " "), value, rewritten)) {
      notRepaired(row, "the line could not be rewritten: " + line.text);
      return;
    }
    replaces_[line.number] = {row, "value set from the data", rewritten};
  }

  void planIndexValues() {
    const Facts& f = *facts_;
    if (f.counted == 0) return;
    double first = 0, last = 0;
    const bool ends = parseNumber(f.firstIndex, first) && parseNumber(f.lastIndex, last);
    auto known = [&](const char* m) -> const KnownLine* {
      auto it = f.well.find(m);
      return it == f.well.end() ? nullptr : &it->second;
    };
    const KnownLine* strt = known("STRT");
    const KnownLine* stop = known("STOP");
    const KnownLine* step = known("STEP");
    const KnownLine* null = known("NULL");
    const bool constant = f.incrementAnswer == StepAnswer::Constant;
    const std::string dataStep = constant ? stepText(f.increment.increment) : "0";

    if (allowed(VALUES_PRESENT)) {
      if (strt && strt->value.empty() && ends)
        replaceValue(*strt, VALUES_PRESENT, formatFixed(first));
      if (stop && stop->value.empty() && ends)
        replaceValue(*stop, VALUES_PRESENT, formatFixed(last));
      if (step && step->value.empty()) replaceValue(*step, VALUES_PRESENT, dataStep);
      if (null && null->value.empty()) replaceValue(*null, VALUES_PRESENT, "-999.25");
    }
    double value = 0;
    if (strt && ends && allowed(STRT_MATCHES) && parseNumber(strt->value, value) &&
        formatFixed(value) != formatFixed(first))
      replaceValue(*strt, STRT_MATCHES, formatFixed(first));
    double nullValue = 0;
    const bool stopIsNull = stop && null && parseNumber(null->value, nullValue) &&
                            parseNumber(stop->value, value) && value == nullValue;
    if (stop && ends && allowed(STOP_MATCHES) && !stopIsNull && parseNumber(stop->value, value) &&
        formatFixed(value) != formatFixed(last))
      replaceValue(*stop, STOP_MATCHES, formatFixed(last));
    if (step && allowed(STEP_MATCHES) && parseNumber(step->value, value) &&
        (f.incrementAnswer == StepAnswer::Constant || f.incrementAnswer == StepAnswer::Varies)) {
      const bool wrong = constant ? formatFixed(value) != dataStep
                                  : value != 0 && !withinRounding(step->value, value);
      if (wrong) replaceValue(*step, STEP_MATCHES, dataStep);
    }
  }

  // A varying increment that differs from STEP by no more than STEP's last written digit is a
  // rounding note, not a STEP to replace.
  bool withinRounding(std::string_view stepText, double step) const {
    const std::string_view digits = trimView(stepText);
    const std::size_t point = digits.find('.');
    double tolerance = 1;
    if (point != std::string_view::npos) {
      std::size_t decimals = digits.size() - point - 1;
      while (decimals > 0 && digits[point + decimals] == '0') --decimals;
      if (decimals > 0) tolerance = std::pow(10.0, -static_cast<double>(decimals));
    }
    return std::fabs(step - facts_->increment.increment) <= tolerance;
  }

 public:
  void finish() {
    // Found rows no repair covers are the user's to put right.
    if (request_.found)
      for (CatalogueRow row : *request_.found)
        if (!isRepairableRow(row)) notRepaired(row, "left to the user");
    result_.changes.insert(result_.changes.end(), notRepaired_.begin(), notRepaired_.end());
  }

 private:
  const RepairRequest& request_;
  RepairResult& result_;
  const Facts* facts_ = nullptr;
  std::map<std::int64_t, std::vector<Replacement>> inserts_;
  std::map<std::int64_t, Replacement> replaces_;
  std::vector<Change> notRepaired_;
  bool changed_ = false;
};

}  // namespace

std::vector<CatalogueRow> failingRows(const CheckTable& table) {
  std::vector<CatalogueRow> rows;
  for (int group = 1; group <= table.lastGroup(); ++group)
    for (int row = 1; row <= table.lastRow(); ++row) {
      if (table.result(row, group).failed()) rows.push_back({group, row});
    }
  return rows;
}

bool isRepairableRow(CatalogueRow row) {
  return std::find(std::begin(REPAIRABLE), std::end(REPAIRABLE), row) != std::end(REPAIRABLE);
}

RepairResult repairFile(const RepairRequest& request) {
  RepairResult result;
  std::error_code ec;
  if (!std::filesystem::is_regular_file(request.file, ec)) {
    result.error = "The file does not exist.";
    return result;
  }
  Facts facts;
  if (!readFacts(request.file, facts)) {
    result.error = "The file could not be read.";
    return result;
  }
  Repairer repairer(request, result);
  repairer.plan(facts);
  bool changed = false;
  const std::string destination = request.output.empty() ? request.file : request.output;
  if (!repairer.write(request.file, destination, changed)) {
    // Whatever was listed was not done.
    result.changes.clear();
    return result;
  }
  repairer.finish();
  result.outcome = changed ? RepairOutcome::Repaired : RepairOutcome::NothingRepaired;
  return result;
}

RepairResult repairInRounds(RepairRequest request, const CertifyForRepair& certify, int maxRounds) {
  RepairResult all;
  all.outcome = RepairOutcome::NothingRepaired;
  if (!request.found) request.found = certify();
  std::vector<Change> left;
  for (int round = 0; round < maxRounds && request.found; ++round) {
    RepairResult result = repairFile(request);
    if (result.outcome == RepairOutcome::Failed) {
      all.outcome = RepairOutcome::Failed;
      all.error = result.error;
      return all;
    }
    left.clear();
    for (Change& c : result.changes)
      (c.kind == ChangeKind::NotRepaired ? left : all.changes).push_back(std::move(c));
    if (result.outcome != RepairOutcome::Repaired) break;
    all.outcome = RepairOutcome::Repaired;
    request.found = certify();
  }
  all.changes.insert(all.changes.end(), left.begin(), left.end());
  return all;
}

}  // namespace zorvik
