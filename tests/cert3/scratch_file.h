// Small files written for one test and removed when it ends.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

namespace zorvik::testing {

class ScratchFile {
 public:
  // Writes `bytes` as they are to a fresh file named after the running test and `suffix`.
  explicit ScratchFile(const std::string& bytes, const std::string& suffix = ".las") {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string(info->test_suite_name()) + "_" + info->name();
    for (char& c : name)
      if (c == '/') c = '_';
    path_ =
        (std::filesystem::temp_directory_path() / ("zorvik-" + std::to_string(getpid()) + "-" +
                                                   name + "-" + std::to_string(next()) + suffix))
            .string();
    std::ofstream out(path_, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }
  ~ScratchFile() { std::remove(path_.c_str()); }
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;

  const std::string& path() const { return path_; }

 private:
  static int next() {
    static int counter = 0;
    return ++counter;
  }
  std::string path_;
};

// Joins lines, each ended by CR LF.
inline std::string crlfLines(std::initializer_list<std::string> lines) {
  std::string out;
  for (const std::string& l : lines) out += l + "\r\n";
  return out;
}

}  // namespace zorvik::testing
