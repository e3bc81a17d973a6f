#include "transform/convert.h"

namespace zorvik {

// Not offered yet: every request answers failure, which the window reports to the user.
bool convertToVersion3(const std::string&, const std::string&, LogSectionTitles, char) {
  return false;
}

std::string version3FileName(const std::string& lasFile) {
  // Cut as every derived name is: at the first point of the file's own name, never in a folder.
  const std::size_t slash = lasFile.find_last_of('/');
  const std::size_t dot = lasFile.find('.', slash == std::string::npos ? 0 : slash + 1);
  return lasFile.substr(0, dot == std::string::npos ? lasFile.size() : dot) + "_ver3.las";
}

}  // namespace zorvik
