#include "transform/convert.h"

namespace zorvik {

// Not offered yet: every request answers failure, which the window reports to the user.
bool convertToVersion3(const std::string&, const std::string&, LogSectionTitles, char) {
  return false;
}

std::string version3FileName(const std::string& lasFile) {
  // Only a point in the file's own name starts an extension, never one in a folder name.
  const std::size_t slash = lasFile.find_last_of('/');
  const std::size_t nameStart = slash == std::string::npos ? 0 : slash + 1;
  const std::size_t dot = lasFile.find_last_of('.');
  const std::size_t stem = (dot == std::string::npos || dot < nameStart) ? lasFile.size() : dot;
  return lasFile.substr(0, stem) + "_ver3.las";
}

}  // namespace zorvik
