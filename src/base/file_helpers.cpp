#include "base/file_helpers.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "base/file_writer.h"
#include "base/text.h"

namespace zorvik {

namespace {

bool hasHiddenName(const std::string& name) {
  std::size_t slash = name.find_last_of('/');
  std::size_t first = slash == std::string::npos ? 0 : slash + 1;
  return first < name.size() && name[first] == '.';
}

}  // namespace

int fileAttributes(const std::string& name) {
  if (name.empty()) return -1;
  struct stat info {};
  if (::stat(name.c_str(), &info) != 0) return -1;
  int attributes = ATTR_NORMAL;
  if (S_ISDIR(info.st_mode))
    attributes |= ATTR_DIRECTORY;
  else if (S_ISREG(info.st_mode))
    attributes |= ATTR_ARCHIVE;
  else
    attributes |= ATTR_SYSTEM;
  if ((info.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) attributes |= ATTR_READONLY;
  if (hasHiddenName(name)) attributes |= ATTR_HIDDEN;
  return attributes;
}

bool fileExists(const std::string& name) {
  int attributes = fileAttributes(name);
  if (attributes < 0) return false;
  return (attributes & (ATTR_HIDDEN | ATTR_SYSTEM | ATTR_DIRECTORY)) == 0;
}

bool logFileWritable(const std::string& name) {
  if (name.empty()) return false;
  // Looks without opening anything for output: opening a pipe would wait for a reader, and
  // truncating would destroy an existing file (or a link's target) before the report is ready.
  std::string target = resolveDestination(name);
  if (target.empty()) return false;
  struct stat info {};
  if (::stat(target.c_str(), &info) == 0) {
    if (!S_ISREG(info.st_mode) || ::access(target.c_str(), W_OK) != 0) return false;
  } else if (errno != ENOENT) {
    return false;
  }
  std::size_t slash = target.find_last_of('/');
  std::string folder = slash == std::string::npos ? "."
                       : slash == 0               ? "/"
                                                  : target.substr(0, slash);
  if (::stat(folder.c_str(), &info) != 0 || !S_ISDIR(info.st_mode) ||
      ::access(folder.c_str(), W_OK | X_OK) != 0)
    return false;
  // A hidden name never counted as a file that exists, so it never passed.
  return !hasHiddenName(name);
}

std::string changeExtension(const std::string& name, const std::string& extension) {
  if (trimView(name).empty()) return name;
  std::string separator = trimView(extension).empty() ? "" : ".";
  // Only the file's own name has an extension: a point in a folder name must not cut there, or
  // a derived name would land (and replace a file) above the LAS file's folder.
  std::size_t slash = name.find_last_of('/');
  std::size_t point = name.find('.', slash == std::string::npos ? 0 : slash + 1);
  if (point == std::string::npos) return name + separator + extension;
  return name.substr(0, point) + separator + extension;
}

}  // namespace zorvik
