#include "transform/output_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace zorvik {

namespace {

namespace fs = std::filesystem;

class ReplacingFile final : public OutputSink {
 public:
  explicit ReplacingFile(std::string destination) : destination_(std::move(destination)) {
    std::string pattern = destination_ + ".zorvik-XXXXXX";
    fd_ = ::mkstemp(pattern.data());
    if (fd_ < 0) {
      fail();
      return;
    }
    temp_ = pattern;
    buffer_.reserve(BUFFER_BYTES);
  }

  ~ReplacingFile() override {
    if (fd_ >= 0) ::close(fd_);
    if (!temp_.empty() && !committed_) ::unlink(temp_.c_str());
  }

  bool write(std::string_view bytes) override {
    if (!error_.empty()) return false;
    buffer_.append(bytes);
    if (buffer_.size() >= BUFFER_BYTES) flush();
    return error_.empty();
  }

  bool commit() override {
    if (!error_.empty() || committed_) return false;
    flush();
    if (error_.empty() && ::fsync(fd_) != 0) fail();
    keepPermissions();
    if (::close(fd_) != 0 && error_.empty()) fail();
    fd_ = -1;
    if (error_.empty() && std::rename(temp_.c_str(), destination_.c_str()) != 0) fail();
    committed_ = error_.empty();
    return committed_;
  }

  std::string error() const override { return error_; }

 private:
  static constexpr std::size_t BUFFER_BYTES = 1 << 20;

  void fail() {
    if (error_.empty()) error_ = std::strerror(errno != 0 ? errno : EIO);
  }

  void flush() {
    std::size_t done = 0;
    while (error_.empty() && done < buffer_.size()) {
      const ssize_t n = ::write(fd_, buffer_.data() + done, buffer_.size() - done);
      if (n < 0 && errno == EINTR) continue;
      if (n <= 0) {
        fail();
        break;
      }
      done += static_cast<std::size_t>(n);
    }
    buffer_.clear();
  }

  // A new file gets the usual permissions of a file the user creates; a replaced one keeps its own.
  void keepPermissions() {
    struct stat st {};
    mode_t mode = 0;
    if (::stat(destination_.c_str(), &st) == 0) {
      mode = st.st_mode & 07777;
    } else {
      const mode_t mask = ::umask(0);
      ::umask(mask);
      mode = 0666 & ~mask;
    }
    if (error_.empty() && ::fchmod(fd_, mode) != 0) fail();
  }

  std::string destination_;
  std::string temp_;
  std::string buffer_;
  std::string error_;
  int fd_ = -1;
  bool committed_ = false;
};

}  // namespace

std::unique_ptr<OutputSink> openReplacing(const std::string& destination) {
  return std::make_unique<ReplacingFile>(destination);
}

}  // namespace zorvik
