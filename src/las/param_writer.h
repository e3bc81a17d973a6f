// Rewrites the value of one header line of a LAS file on disk.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "base/in_place.h"

namespace zorvik {

// Replaces the value field of the first line with mnemonic `mnemonic` (ignoring case) in section
// `sectionName` by `newValue`, keeping every other byte of the file, as a safe in-place rewrite
// (see rewriteParameterInPlace). True also when the value already reads `newValue`. False (file
// unchanged) when the file cannot be read or rewritten, or the section or the mnemonic is missing.
bool writeParameterValue(const std::string& fileName, std::string_view sectionName,
                         std::string_view mnemonic, std::string_view newValue);

// The outcome of an in-place rewrite of one header value, with the value it replaced.
struct ParameterRewrite {
  RewriteResult result;
  std::string oldValue;  // trimmed, as found in the file
};

// Rewrites in place (locked, and refused for read-only, multiply linked or changing files) the
// value of `mnemonic` in the first of `sectionNames` that has it. When `expectedOld` is given and
// the file no longer holds it, the rewrite is refused; when the file already holds `newValue`
// (another run repaired it first) there is nothing to do.
ParameterRewrite rewriteParameterInPlace(const std::string& fileName,
                                         std::initializer_list<std::string_view> sectionNames,
                                         std::string_view mnemonic,
                                         std::optional<std::string_view> expectedOld,
                                         std::string_view newValue);

// --- Pieces shared with the other rewriting routines. ---

// `line` with its value field replaced by `newValue`. The blanks around the value absorb the
// change of length so that the colon keeps its column where room allows: a value written flush
// against the colon's blank stays right-aligned, any other stays left-aligned. False when the
// line is not a well-formed header line (out left empty).
bool replaceLineValue(std::string_view line, std::string_view newValue, std::string& out);

// Finds the first line with mnemonic `mnemonic` in section `sectionName` of the file by reading
// its lines (no section index needed). Gives back its 1-based start, its length without line end
// and its text; false when there is none.
bool findParameterLine(const std::string& fileName, std::string_view sectionName,
                       std::string_view mnemonic, std::int64_t& start, std::int64_t& length,
                       std::string& line);

// Writes `target` as the bytes of `source` with the `length` bytes at 1-based `start` replaced by
// `replacement`, through the safe file writer. `source` may be `target`. False (target untouched)
// on any read or write failure.
bool copyWithReplacement(const std::string& source, const std::string& target, std::int64_t start,
                         std::int64_t length, std::string_view replacement);

}  // namespace zorvik
