#include "checks/catalogue.h"

#include <string_view>

#include "base/text.h"
#include "checks/run_context.h"

namespace zorvik {

namespace {

// One line of a catalogue: row 0 is the group heading, rows 1..15 the numbered checks.
// "<data>" stands for the current 3.0 data section title and "<ctry>" for the country code:
// both are only known once a file has been read, so they are filled in at layout time.
struct CatalogueLine {
  int group;
  int row;
  std::string_view title;
};

constexpr CatalogueLine kCatalogue3[] = {
    {1, 0, "File Naming, Availability, Termination and Size"},
    {1, 1, "File exists"},
    {1, 2, "File has more than 0 bytes"},
    {1, 3, "File can be accessed"},
    {1, 4, "File is correctly PC Windows (CR LF) terminated"},
    {1, 5, "File has pure ASCII structure"},
    {1, 6, "File extension is .LAS"},
    {1, 7, "Correct tilde (~) Section Title line formatting"},
    {2, 0, "~Version VERS, WRAP, DLM present and correct Values"},
    {2, 1, "~Version section present"},
    {2, 2, "VERS Parameter present in ~Version section"},
    {2, 3, "WRAP Parameter present in ~Version section"},
    {2, 4, "DLM Parameter present in ~Version section"},
    {2, 5, "VERS Value is 3.0"},
    {2, 6, "WRAP Value is NO"},
    {2, 7, "DLM Value is SPACE COMMA or TAB"},
    {2, 8, "VERS WRAP and DLM are first parameters in ~Version section"},
    {2, 9, "Only one VERS, WRAP and DLM mnemonic in ~Version section"},
    {3, 0, "Section Title Check"},
    {3, 1, "Minimum required ~ (tilde) sections present"},
    {3, 2, "Section titles use recognized names"},
    {3, 3, "~Version and ~Well are the first and second sections"},
    {3, 4, "No duplicate section titles"},
    {3, 5, "Data Column Data section titles uses a correct delimiter ( | bar))"},
    {3, 6, "Column Data section title contains matching Associated Column Definition title"},
    {3, 7, "Associated Column Definition section title contains \"_Definition\" suffix"},
    {3, 8, "The associated Column Definition section exists in file"},
    {3, 9, "Column Definition section has matching Column Data section in file"},
    {3, 10,
     "Parameter Data or Column Definition section titles have no association delimiter and/or "
     "associated section title"},
    {3, 11, "All data section sets have sections in correct order (_Para  _Def  _Data)"},
    {3, 12, "~Version/~Well/~Curve/~Parameter/~Ascii section titles do have [ ] indexes"},
    {3, 13, "Multiple identical section titles each have index [ ] suffixes"},
    {3, 14, "Section title indexes [ ] sequential starting with one [1]"},
    {4, 0, "Line Structure Syntax Check"},
    {4, 1, "Legal Mnemonic"},
    {4, 2, "Legal UNIT"},
    {4, 3, "Legal VALUE"},
    {4, 4, "Legal DESCRIPTION"},
    {4, 5, "Correct use of association delimiter | and association formatting"},
    {4, 6, "Correct use of formats and format delimiters {}"},
    {4, 7, "Legal {} FORMAT"},
    {4, 8, "Legal ASSOCIATED Mnemonics"},
    {4, 9, "Column Data section contains no Parameter Data lines"},
    {4, 10, "Legal line type for section type"},
    {4, 11, "Log Data section(s) contains data lines"},
    {5, 0, "~Well Section Mnemonics and Content Checks"},
    {5, 1, "Well section contains required mnemonics"},
    {5, 2, "CTRY Parameter Data line present"},
    {5, 3, "CTRY 2 char. Internet country code Value exactly 2 characters"},
    {5, 4, "CTRY 2 char. Internet country code Value two letters"},
    {5, 5, "CTRY (<ctry>) based required mnemonics present"},
    {5, 6, "Either X/Y/GDAT/HZCS or LATI/LONG/GDAT location parameters present"},
    {6, 0, "<data> Section STRT/STOP/STEP Checks"},
    {6, 1, "STRT/STOP/STEP have Value(s) present"},
    {6, 2, "STRT Value matches <data> section first index"},
    {6, 3, "STOP Value matches <data> section last index"},
    {6, 4, "STEP Value matches <data> section index increment"},
    {6, 5, "Index channel format has sufficient decimal places to carry STEP precision"},
    {6, 6, "Possible STEP Rounding error"},
    {6, 7, "Units on STRT/STOP/STEP and <data> section first indexes match"},
    {7, 0, "Column Data Section Checks"},
    {7, 1, "Column Data section channel count matches Column Definition line count"},
    {7, 2, "Delimited channel count consistent for all lines of Column Data section"},
    {7, 3, "Stated Column Definition Format matches data items in Column Data section"},
    {8, 0, "Association Mnemonics Checks"},
    {8, 1, "Referenced Association mnemonic(s) found"},
    {8, 2, "No Circular Association References"},
    {9, 0, "Array Channel Checks"},
    {9, 1, "Channels indicated as Array channels have [n] appended to channel names"},
    {9, 2, "Array channels have sequential indexes from [1] to [n]"},
    {9, 3, "Array channels are grouped together"},
    {9, 4, "Array channel spacing indexes in {} format field consistent for all"},
    {9, 5, "Array channels of a group have same units"},
};

constexpr CatalogueLine kCatalogue2[] = {
    {1, 0, "File Naming, Availability, Termination and Size"},
    {1, 1, "File exists"},
    {1, 2, "File has more than 0 bytes"},
    {1, 3, "File can be accessed. Locked by any other program??"},
    {1, 4, "File is correctly PC Windows (CR LF) terminated"},
    {1, 5, "File has pure ASCII structure"},
    {1, 6, "File extension is .LAS"},
    {2, 0, "~Version section VERS and WRAP Checks"},
    {2, 1, "~Version section present"},
    {2, 2, "VERS parameter present in ~Version section"},
    {2, 3, "WRAP parameter present in ~Version section"},
    {2, 4, "VERS Value is 1.2, 2 or 3"},
    {2, 5, "WRAP Value is YES or NO"},
    {2, 6, "Only one VERS and WRAP mnemonic in ~Version section"},
    {3, 0, "Section Title Checks"},
    {3, 1, "Minimum required ~ (tilde) sections present"},
    {3, 2, "No duplicate section titles"},
    {3, 3, "Correct tilde (~) section title line formatting"},
    {4, 0, "Line Structure and Syntax Checks"},
    {4, 1, "Legal MNEMONIC"},
    {4, 2, "Legal UNIT"},
    {4, 3, "Legal VALUE"},
    {4, 4, "Legal DESCRIPTION"},
    {4, 5, "Legal line type for section"},
    {4, 6, "ASCII section contains only data lines"},
    {4, 7, "ASCII section structure matches WRAP value"},
    {5, 0, "~Well Section Mnemonics and Content Checks"},
    {5, 1, "Well Section STRT/STOP/STEP/NULL and key Wellsite mnemonics present"},
    {5, 2, "Well section contains required Country specific mnemonics"},
    {6, 0, "~Well Section STRT/STOP/STEP Checks"},
    {6, 1, "STRT/STOP/STEP/NULL have Value(s) present"},
    {6, 2, "STRT Value matches ~ASCII section first index"},
    {6, 3, "STOP Value matches ~ASCII section last index"},
    {6, 4, "STEP Value matches ~ASCII section index increment"},
    {6, 5, "Index channel format has sufficient decimal places to carry STEP precision"},
    {6, 6, "Possible STEP Rounding error"},
    {6, 7, "Units on STRT/STOP/STEP and ~C index channel match"},
    {7, 0, "~ASCII Section Checks"},
    {7, 1, "~ASCII channel count matches ~Curve section channel count"},
    {7, 2, "Space delimited channel count consistent for all lines of ~Ascii section"},
    {7, 3, "ASCII section is final ~ section"},
};

// Line-length rules are only judged when wrap checks were asked for; otherwise the check is not
// listed at all.
constexpr CatalogueLine kWrapLengthCheck = {
    7, 4, "~ASCII line length conforms to WRAP line length requirements (256 NO, 80 YES)"};

// Row 0 of a catalogue line is the group heading.
void place(CheckTable& table, const CatalogueLine& line, const std::string& title) {
  table.at(line.row, line.row == 0 ? COL_HEADING : COL_TITLE, line.group) = title;
}

}  // namespace

void layOutCatalogue(RunContext& run) {
  for (const CatalogueLine& line : kCatalogue3) {
    std::string title = replaceAll(line.title, "<data>", run.dataSectionTitle);
    place(run.table3, line, replaceAll(title, "<ctry>", run.countryCode));
  }
  for (const CatalogueLine& line : kCatalogue2) place(run.table2, line, std::string(line.title));
  place(run.table2, kWrapLengthCheck, run.doWrap ? std::string(kWrapLengthCheck.title) : "");
}

void storeGroupResults(CheckTable& table, int group, const Slots& slots) {
  for (int row = 1; row <= 15; ++row) table.result(row, group) = slots[row];
}

bool anyFailure(const CheckTable& table) {
  for (int group = 1; group <= table.lastGroup(); ++group)
    for (int row = 1; row <= table.lastRow(); ++row)
      if (!table.result(row, group).passed()) return true;
  return false;
}

}  // namespace zorvik
