#include "las/line_reader.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

namespace zorvik {
namespace {

std::string writeTemp(const std::string& name, const std::string& bytes) {
  std::string path = ::testing::TempDir() + "line_reader_" + name;
  std::ofstream(path, std::ios::binary) << bytes;
  return path;
}

struct Line {
  std::string text;
  std::int64_t start;
};

std::vector<Line> readAll(const std::string& path) {
  std::vector<Line> lines;
  LineReader reader(path);
  std::string line;
  while (reader.readLine(line)) lines.push_back({line, reader.lineStart()});
  return lines;
}

TEST(LineReader, SplitsAtCrLfAndLoneCrOnly) {
  struct Row {
    const char* name;
    std::string bytes;
    std::vector<Line> lines;
  };
  const Row rows[] = {
      {"empty file", "", {}},
      {"crlf", "ab\r\ncd\r\n", {{"ab", 1}, {"cd", 5}}},
      {"lone cr", "ab\rcd\r", {{"ab", 1}, {"cd", 4}}},
      {"lone lf stays inside", "ab\ncd\r\nef", {{"ab\ncd", 1}, {"ef", 8}}},
      {"no final terminator", "ab\r\ncd", {{"ab", 1}, {"cd", 5}}},
      {"empty lines", "\r\n\r\r\n", {{"", 1}, {"", 3}, {"", 4}}},
      {"lf cr is lf then a lone cr", "a\n\rb", {{"a\n", 1}, {"b", 4}}},
      {"only lf", "a\nb\n", {{"a\nb\n", 1}}},
      {"binary bytes kept", std::string("a\0\xff\r\n", 5), {{std::string("a\0\xff", 3), 1}}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::vector<Line> got = readAll(writeTemp("split", row.bytes));
    ASSERT_EQ(got.size(), row.lines.size());
    for (std::size_t i = 0; i < got.size(); ++i) {
      EXPECT_EQ(got[i].text, row.lines[i].text) << "line " << i;
      EXPECT_EQ(got[i].start, row.lines[i].start) << "line " << i;
    }
  }
}

// Lines that cross the buffer's end, including a CR LF split between two reads and lines longer
// than the buffer, must come back whole and at the right positions.
TEST(LineReader, LinesAcrossBufferBoundaries) {
  const std::size_t B = LineReader::BUFFER_BYTES;
  struct Row {
    const char* name;
    std::vector<std::size_t> lengths;  // line lengths, each followed by the terminator
    const char* terminator;
  };
  const Row rows[] = {
      {"cr in last byte, lf in next read", {B - 2, 5}, "\r\n"},
      {"lone cr in last byte", {B - 1, 5}, "\r"},
      {"crlf ends exactly at buffer end", {B - 2, 3, 4}, "\r\n"},
      {"line longer than the buffer", {10, 3 * B + 7, 10}, "\r\n"},
      {"long line with cr at a buffer end", {B, B - 1, 2}, "\r\n"},
      {"many short lines", std::vector<std::size_t>(40000, 3), "\r\n"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::string bytes;
    std::vector<Line> expected;
    for (std::size_t i = 0; i < row.lengths.size(); ++i) {
      std::string text(row.lengths[i], static_cast<char>('a' + i % 26));
      expected.push_back({text, static_cast<std::int64_t>(bytes.size()) + 1});
      bytes += text + row.terminator;
    }
    std::string path = writeTemp("boundary", bytes);
    std::vector<Line> got = readAll(path);
    ASSERT_EQ(got.size(), expected.size());
    for (std::size_t i = 0; i < got.size(); ++i) {
      EXPECT_EQ(got[i].text, expected[i].text) << "line " << i;
      EXPECT_EQ(got[i].start, expected[i].start) << "line " << i;
    }
    // The view variant sees the same lines.
    LineReader reader(path);
    std::string_view view;
    std::size_t n = 0;
    while (reader.readLine(view)) {
      ASSERT_LT(n, expected.size());
      EXPECT_EQ(view, expected[n].text) << "line " << n;
      ++n;
    }
    EXPECT_EQ(n, expected.size());
  }
}

TEST(LineReader, OverlongLineIsCappedAndSkipped) {
  const std::size_t cap = LineReader::MAX_LINE_BYTES;
  std::string huge(cap + 3 * LineReader::BUFFER_BYTES + 11, 'x');
  huge[0] = 'h';
  std::string path = writeTemp("huge", "first\r\n" + huge + "\r\nlast\r\n");
  LineReader reader(path);
  std::string line;
  ASSERT_TRUE(reader.readLine(line));
  EXPECT_FALSE(reader.lineTruncated());
  ASSERT_TRUE(reader.readLine(line));
  EXPECT_EQ(line.size(), cap);
  EXPECT_EQ(line[0], 'h');
  EXPECT_TRUE(reader.lineTruncated());
  EXPECT_EQ(reader.lineLength(), static_cast<std::int64_t>(huge.size()));
  EXPECT_EQ(reader.lineStart(), 8);
  ASSERT_TRUE(reader.readLine(line));
  EXPECT_EQ(line, "last");
  EXPECT_FALSE(reader.lineTruncated());
  EXPECT_EQ(reader.lineStart(), static_cast<std::int64_t>(7 + huge.size() + 2 + 1));
  EXPECT_FALSE(reader.readLine(line));
}

TEST(LineReader, SeekAndRangeUseOneBasedPositions) {
  std::string path = writeTemp("seek", "~V\r\nVERS. 2.0 : v\r\n~A\r\n1 2\r\n");
  LineReader reader(path);
  ASSERT_TRUE(reader.isOpen());
  EXPECT_EQ(reader.length(), 28);
  std::string line;
  struct Row {
    std::int64_t pos;
    const char* line;
  };
  const Row rows[] = {{5, "VERS. 2.0 : v"}, {1, "~V"}, {24, "1 2"},
                      {-3, "~V"},           {21, "A"}, {23, "\n1 2"}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.pos);
    reader.seek(row.pos);
    ASSERT_TRUE(reader.readLine(line));
    EXPECT_EQ(line, row.line);
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

TEST(LineReader, UnreadableInputsGiveNoLines) {
  std::string line;
  LineReader missing(::testing::TempDir() + "no_such_file.las");
  EXPECT_FALSE(missing.isOpen());
  EXPECT_FALSE(missing.readLine(line));
  EXPECT_TRUE(missing.atEnd());
  LineReader directory(::testing::TempDir());
  EXPECT_FALSE(directory.isOpen());
  EXPECT_EQ(fileLength(::testing::TempDir()), -1);
  EXPECT_EQ(fileLength(::testing::TempDir() + "no_such_file.las"), -1);
  EXPECT_EQ(fileLength(writeTemp("len", "abc\r\n")), 5);
}

}  // namespace
}  // namespace zorvik
