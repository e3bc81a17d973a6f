#include "transform/temp_files.h"

#include <filesystem>
#include <system_error>

#include "base/command_log.h"

namespace zorvik {

void removeTemporaryFiles() {
  const std::filesystem::path folder(programFolder());
  for (const char* name : {WRAP_TEMP_FILE, CONVERT_TEMP_FILE}) {
    std::error_code ignored;
    std::filesystem::remove(folder / name, ignored);
  }
}

}  // namespace zorvik
