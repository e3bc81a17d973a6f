// Replays fuzz inputs without libFuzzer: each argument is a file or a folder of files (a folder
// that does not exist holds none), every file is handed to the target once. A crash, a sanitizer
// report or a hang fails the test that runs it; so does replaying nothing at all.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "fuzz/fuzz_target.h"

namespace fs = std::filesystem;

namespace {

int replayFile(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    std::fprintf(stderr, "cannot read %s\n", path.c_str());
    return 1;
  }
  const std::vector<char> bytes{std::istreambuf_iterator<char>(in), {}};
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  int failures = 0;
  int replayed = 0;
  for (int i = 1; i < argc; ++i) {
    const fs::path arg = argv[i];
    std::vector<fs::path> files;
    if (!fs::exists(arg)) continue;
    if (fs::is_directory(arg)) {
      for (const auto& entry : fs::directory_iterator(arg))
        if (entry.is_regular_file() && entry.path().filename().string().front() != '.')
          files.push_back(entry.path());
    } else {
      files.push_back(arg);
    }
    for (const fs::path& file : files) {
      failures += replayFile(file);
      ++replayed;
    }
  }
  std::printf("replayed %d inputs\n", replayed);
  return failures == 0 && replayed > 0 ? 0 : 1;
}
