#include "run/file_helpers.h"

#include <sys/stat.h>

#include <cstdio>

#include "las/text.h"

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
  std::FILE* file = std::fopen(name.c_str(), "wb");
  if (file == nullptr) return false;
  static const char kLine[] = "Test for good file spec\r\n";
  bool written = std::fwrite(kLine, 1, sizeof kLine - 1, file) == sizeof kLine - 1;
  if (std::fclose(file) != 0) written = false;
  if (!written || !fileExists(name)) return false;
  return std::remove(name.c_str()) == 0;
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
