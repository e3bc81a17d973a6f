// Plain data of the section model.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "las/tilde_lines.h"

namespace zorvik {

enum class SectionRole { Header, Data, Definition, Parameter, Other };

// One entry of the section index. Sections are numbered 1..n in file order; section number n is
// element n - 1 of the index.
struct SectionEntry {
  std::string name;             // first word of the title after "~"
  std::string association;      // first word after "|"; " " for a bare "|"; "" without one
  std::int64_t start = 0;       // 1-based position of the line after the title line
  std::int64_t titleStart = 0;  // 1-based position of the title line itself
  int arrayIndex = -1;          // n of a trailing "[n]", -1 without brackets
  SectionRole role = SectionRole::Other;
};

// A 3.0 section set sharing one name prefix ("Log" for Log_Parameter/Log_Definition/Log_Data).
// The section numbers are 1-based, 0 when the set has no section of that role.
struct SectionGroup {
  std::string prefix;
  int data = 0;
  int definition = 0;
  int parameter = 0;
};

// Where the sections of one name stand in the index: element numbers (0-based) of the first and
// the last of them.
struct NamePlaces {
  int first = -1;
  int last = -1;
};

// The sections of one file, in file order, with the 3.0 groups and the names the run found for
// the standard data, definition and parameter sections ("" when none).
struct SectionIndex {
  std::vector<SectionEntry> entries;
  std::vector<SectionGroup> groups;
  std::string dataName;
  std::string curveName;
  std::string paramName;
  bool standardFound = false;
  // Every name of `entries`, upper-cased, with its places: a lookup by name is one hash instead of
  // a scan of the sections, so files of many thousands of sections stay linear. Rebuilt with the
  // entries; `namesCover` is the number of entries it was built for (entries set by other means
  // are looked up by a scan).
  std::unordered_map<std::string, NamePlaces> names;
  std::size_t namesCover = 0;
  // Set once the index has been read from the file: whether with 3.0's rules for names. A run
  // that has its index already, read under the same rules, does not read the file again for it.
  std::optional<bool> readAsV3;
  // The file's tilde lines as the index read them, for the title-line check to read again.
  TildeLines tildeLines;
};

}  // namespace zorvik
