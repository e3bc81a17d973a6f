// Whole batch certification of arbitrary bytes: the file is written as a LAS file that the
// settings store remembers, and start-up certifies it from a command line with /W, as a user's
// batch run would. Everything it writes stays in a folder of its own, removed at exit.
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "base/command_log.h"
#include "fuzz/fuzz_target.h"
#include "run/startup.h"

namespace fs = std::filesystem;

namespace {

class Sandbox {
 public:
  Sandbox() {
    std::string pattern = (fs::temp_directory_path() / "zorvik-fuzz-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    folder_ = pattern;
    las_ = (folder_ / "in.las").string();
    log_ = (folder_ / "out.log").string();
    fs::create_directories(folder_ / "config" / "Zorvik");
    std::ofstream(folder_ / "config" / "Zorvik" / "Zorvik.conf")
        << "[Startup]\nlasFile=" << las_ << "\nwriteLog=0\ndoWrap=0\n";
    setenv("XDG_CONFIG_HOME", (folder_ / "config").c_str(), 1);
    zorvik::setProgramFolder(folder_.string());
  }
  ~Sandbox() {
    std::error_code ec;
    fs::remove_all(folder_, ec);
  }
  Sandbox(const Sandbox&) = delete;
  Sandbox& operator=(const Sandbox&) = delete;

  void certify(const std::uint8_t* data, std::size_t size) const {
    {
      std::ofstream out(las_, std::ios::binary | std::ios::trunc);
      out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    std::string program = "zorvik", las = las_, log = log_, wrap = "/W";
    char* argv[] = {program.data(), las.data(), log.data(), wrap.data(), nullptr};
    zorvik::startUp(4, argv, nullptr);
    // The command log only grows; start each input afresh.
    std::error_code ec;
    fs::remove(folder_ / "command.log", ec);
  }

 private:
  fs::path folder_;
  std::string las_;
  std::string log_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Sandbox sandbox;
  sandbox.certify(data, size);
  return 0;
}
