// Where repaired and converted files are written: a temporary file in the destination's folder,
// flushed to disk and renamed over the destination at the end, keeping the destination's
// permissions. Until `commit` succeeds the destination is untouched; a sink dropped without a
// commit removes its temporary file.
//
// All writing of the rewriting routines goes through `openReplacing`, so that one place decides
// how a file is replaced; tests hand the routines a factory of sinks that fail on purpose.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace zorvik {

class OutputSink {
 public:
  virtual ~OutputSink() = default;
  // Buffered; false once any write has failed (later writes are ignored).
  virtual bool write(std::string_view bytes) = 0;
  // Flushes, syncs and puts the file in place. False (destination untouched) on any failure.
  virtual bool commit() = 0;
  // The system's words for the first failure, empty when there was none.
  virtual std::string error() const = 0;
};

using SinkFactory = std::function<std::unique_ptr<OutputSink>(const std::string& destination)>;

// A sink that replaces `destination` on commit. Never null; a sink whose temporary file could not
// be created fails every write.
std::unique_ptr<OutputSink> openReplacing(const std::string& destination);

}  // namespace zorvik
