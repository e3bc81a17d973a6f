#include "support/scratch_files.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace zorvik::testing {

std::string scratchFolder() {
  static const std::string folder = [] {
    auto path =
        std::filesystem::temp_directory_path() / ("zorvik-scratch-" + std::to_string(::getpid()));
    std::filesystem::create_directories(path);
    return path.string();
  }();
  return folder;
}

std::string writeScratchFile(const std::string& name, const std::string& bytes) {
  std::string path = (std::filesystem::path(scratchFolder()) / name).string();
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return path;
}

std::string crlfLines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

}  // namespace zorvik::testing
