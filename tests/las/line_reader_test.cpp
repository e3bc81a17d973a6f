#include "las/line_reader.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <tuple>
#include <vector>

#include "las/tilde_lines.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::writeScratchFile;

struct Line {
  std::string text;
  std::int64_t start;          // 1-based
  std::int64_t cutLength = 0;  // full length of a line cut at the cap
  bool operator==(const Line&) const = default;
};

void PrintTo(const Line& line, std::ostream* os) {
  *os << line.start << ":[" << line.text.substr(0, 20) << "] cut " << line.cutLength;
}

std::vector<Line> readAll(const std::string& path) {
  std::vector<Line> lines;
  LineReader reader(path);
  std::string line;
  while (reader.readLine(line)) {
    const std::int64_t length = reader.lineLength();
    if (!reader.lineTruncated()) {
      EXPECT_EQ(length, static_cast<std::int64_t>(line.size()));
    }
    lines.push_back({line, reader.lineStart(), reader.lineTruncated() ? length : 0});
  }
  return lines;
}

TEST(LineReader, SplitsAtCrLfAndLoneCrOnly) {
  const std::tuple<const char*, std::string, std::vector<Line>> rows[] = {
      {"empty file", "", {}},
      {"crlf", "ab\r\ncd\r\n", {{"ab", 1}, {"cd", 5}}},
      {"lone cr", "ab\rcd\r", {{"ab", 1}, {"cd", 4}}},
      {"lone lf stays inside", "ab\ncd\r\nef", {{"ab\ncd", 1}, {"ef", 8}}},
      {"empty lines", "\r\n\r\r\n", {{"", 1}, {"", 3}, {"", 4}}},
      {"lf cr is lf then a lone cr", "a\n\rb", {{"a\n", 1}, {"b", 4}}},
      {"binary bytes kept", std::string("a\0\xff\r\n", 5), {{std::string("a\0\xff", 3), 1}}},
  };
  for (const auto& [name, bytes, lines] : rows) {
    SCOPED_TRACE(name);
    EXPECT_EQ(readAll(writeScratchFile("split.las", bytes)), lines);
  }
}

// Lines that cross the buffer's end, including a CR LF split between two reads and lines longer
// than the buffer, must come back whole and at the right positions; a line over the cap comes
// back as its head, with its full length, and the reader goes on after it.
TEST(LineReader, LinesAcrossBufferBoundaries) {
  const std::size_t B = LineReader::BUFFER_BYTES;
  const std::size_t cap = LineReader::MAX_LINE_BYTES;
  // Line lengths, each line followed by the terminator.
  const std::tuple<const char*, std::vector<std::size_t>, const char*> rows[] = {
      {"cr in last byte, lf in next read", {B - 2, 5}, "\r\n"},
      {"lone cr in last byte", {B - 1, 5}, "\r"},
      {"crlf ends exactly at buffer end", {B - 2, 3, 4}, "\r\n"},
      {"line longer than the buffer", {10, 3 * B + 7, 10}, "\r\n"},
      {"long line with cr at a buffer end", {B, B - 1, 2}, "\r\n"},
      {"line over the cap", {5, cap + 3 * B + 11, 4}, "\r\n"},
      {"many short lines", std::vector<std::size_t>(40000, 3), "\r\n"},
  };
  for (const auto& [name, lengths, terminator] : rows) {
    SCOPED_TRACE(name);
    std::string bytes;
    std::vector<Line> expected;
    for (std::size_t i = 0; i < lengths.size(); ++i) {
      std::string text(lengths[i], static_cast<char>('a' + i % 26));
      text.back() = '.';  // a lost or kept tail shows
      const auto length = static_cast<std::int64_t>(text.size());
      expected.push_back({text.substr(0, cap), static_cast<std::int64_t>(bytes.size()) + 1,
                          text.size() > cap ? length : 0});
      bytes += text + terminator;
    }
    EXPECT_EQ(readAll(writeScratchFile("boundary.las", bytes)), expected);
  }
}

TEST(LineReader, SeekAndRangeUseOneBasedPositions) {
  LineReader reader(writeScratchFile("seek.las", "~V\r\nVERS. 2.0 : v\r\n~A\r\n1 2\r\n"));
  EXPECT_EQ(reader.length(), 28);
  std::string line;
  const std::pair<std::int64_t, const char*> rows[] = {
      {5, "VERS. 2.0 : v"}, {1, "~V"}, {24, "1 2"}, {-3, "~V"}, {21, "A"}, {23, "\n1 2"}};
  for (const auto& [pos, expected] : rows) {
    SCOPED_TRACE(pos);
    reader.seek(pos);
    ASSERT_TRUE(reader.readLine(line));
    EXPECT_EQ(line, expected);
  }
  reader.seek(29);
  EXPECT_TRUE(reader.atEnd());
  EXPECT_FALSE(reader.readLine(line));

  std::string range;
  reader.readRange(5, 4, range);
  EXPECT_EQ(range, "VERS");
  ASSERT_TRUE(reader.readLine(line));  // reading goes on after the range
  EXPECT_EQ(line, ". 2.0 : v");
  EXPECT_EQ(reader.position(), 20);
  reader.readRange(24, 100, range);
  EXPECT_EQ(range, "1 2\r\n");
  reader.readRange(40, 5, range);
  EXPECT_EQ(range, "");
}

// A range read before anything is buffered is read on its own; reading goes on after it.
TEST(LineReader, ARangeReadFirstLeavesTheReaderAfterIt) {
  const std::string path = writeScratchFile("range.las", "~V\r\nVERS. 2.0 : v\r\n~A\r\n1 2\r\n");
  struct Row {
    std::int64_t pos, count;
    const char* range;
    const char* next;  // the line read after the range; nullptr: none
  };
  const Row rows[] = {{5, 4, "VERS", ". 2.0 : v"},
                      {1, 4, "~V\r\n", "VERS. 2.0 : v"},
                      {24, 100, "1 2\r\n", nullptr},
                      {40, 5, "", nullptr}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.pos);
    LineReader reader(path);
    std::string range = "stale", line;
    reader.readRange(row.pos, row.count, range);
    EXPECT_EQ(range, row.range);
    EXPECT_EQ(reader.readLine(line), row.next != nullptr);
    if (row.next != nullptr) {
      EXPECT_EQ(line, row.next);
    }
    reader.seek(1);  // and the whole file is still there
    ASSERT_TRUE(reader.readLine(line));
    EXPECT_EQ(line, "~V");
  }
}

// The tilde search finds the lines a line-by-line reading finds holding a tilde, with the
// position of the line after each, whatever block boundary or line end falls between.
TEST(TildeLines, FindsWhatReadingEveryLineFinds) {
  constexpr std::size_t kBlock = 256 * 1024;
  const std::string fill(kBlock - 7, 'x');
  const std::vector<std::string> contents = {
      "~V\r\nVERS. 2.0 : v\r\n  ~W\r\nA ~ inside\r\n~A\r\n1 2\r\n",
      "~V\rlone CR ends\r~W\nLF stays inside ~\r\n",
      fill + "\r\n~Across the block boundary\r\n1\r\n",  // the title spans the boundary
      fill + "12345\r\n~A\r\n",                          // the CR LF spans it
      fill + "1234\r\r\n~A",                             // a CR ends the block, no end at all
      "no tilde anywhere\r\n",
  };
  for (const std::string& content : contents) {
    SCOPED_TRACE(content.size());
    const std::string path = writeScratchFile("tilde.las", content);
    using Seen = std::vector<std::tuple<std::string, std::int64_t, std::int64_t>>;
    Seen expected;
    LineReader reader(path);
    std::string line;
    while (reader.readLine(line))
      if (line.find('~') != std::string::npos)
        expected.emplace_back(line, reader.lineStart(), reader.position());
    Seen found;
    LasFile file(path);
    EXPECT_TRUE(
        forEachTildeLine(file, [&](std::string_view text, std::int64_t start, std::int64_t next) {
          found.emplace_back(std::string(text), start, next);
        }));
    EXPECT_EQ(found, expected);
  }
  EXPECT_FALSE(forEachTildeLine(LasFile(), [](std::string_view, std::int64_t, std::int64_t) {}));
}

// Tilde lines kept by one search serve the next one only while the file is the one they were
// found in, unchanged; too many are not kept, and every search still sees them all.
TEST(TildeLines, KeptLinesServeOnlyTheSameUnchangedFile) {
  using Found = std::vector<std::pair<std::string, std::int64_t>>;
  const auto search = [](const LasFile& file, TildeLines& known) {
    Found found;
    forEachTildeLine(file, &known, [&](std::string_view text, std::int64_t, std::int64_t next) {
      found.emplace_back(std::string(text), next);
    });
    return found;
  };
  const std::string path = writeScratchFile("kept.las", "~V\r\nA\r\n~W\r\n");
  TildeLines known;
  const Found first = search(LasFile(path), known);
  EXPECT_EQ(first, (Found{{"~V", 5}, {"~W", 12}}));
  LasFile same(path);
  EXPECT_EQ(search(same, known), first);
  writeScratchFile("kept.las", "~V\r\nA\r\n~W\r\n~X\r\n");  // another file at the path
  EXPECT_EQ(search(LasFile(path), known).size(), 3u);

  std::string many;
  for (int i = 0; i < 400000; ++i) many += "~Section" + std::to_string(i) + "\r\n";
  const std::string big = writeScratchFile("many.las", many);
  EXPECT_EQ(search(LasFile(big), known).size(), 400000u);
  EXPECT_EQ(search(LasFile(big), known).size(), 400000u);
}

TEST(LineReader, UnreadableInputsGiveNoLines) {
  for (const std::string& path :
       {testing::scratchFolder() + "/missing.las", testing::scratchFolder()}) {
    SCOPED_TRACE(path);
    LineReader reader(path);
    std::string line;
    EXPECT_FALSE(reader.isOpen());
    EXPECT_FALSE(reader.readLine(line));
    EXPECT_TRUE(reader.atEnd());
    EXPECT_EQ(fileLength(path), -1);
  }
}

}  // namespace
}  // namespace zorvik
