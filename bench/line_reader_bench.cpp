// Throughput of the line reader next to a plain fread scan of the same file.
//
//   ZORVIK_BENCH_LAS=/path/big.las build-bench/bench/bench_line_reader
//
// The file is any large LAS file, e.g. one written by bench/make_las.py with --mb 200. The raw
// scan reads 64 KiB blocks and counts the CRs in them with memchr: the least any line splitter
// must do.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "las/line_reader.h"

namespace {

std::string benchFile() {
  const char* path = std::getenv("ZORVIK_BENCH_LAS");
  return path ? path : "";
}

void rawFreadScan(benchmark::State& state) {
  std::string path = benchFile();
  std::vector<char> buffer(zorvik::LineReader::BUFFER_BYTES);
  std::int64_t bytes = 0;
  for (auto _ : state) {
    std::FILE* f = std::fopen(path.c_str(), "rb");
    if (f == nullptr) {
      state.SkipWithError("set ZORVIK_BENCH_LAS to a readable file");
      return;
    }
    std::setvbuf(f, nullptr, _IONBF, 0);
    std::size_t crs = 0;
    std::size_t n;
    while ((n = std::fread(buffer.data(), 1, buffer.size(), f)) > 0) {
      const char* p = buffer.data();
      const char* end = p + n;
      while ((p = static_cast<const char*>(std::memchr(p, '\r', end - p))) != nullptr) {
        ++crs;
        ++p;
      }
      bytes += static_cast<std::int64_t>(n);
    }
    std::fclose(f);
    benchmark::DoNotOptimize(crs);
  }
  state.SetBytesProcessed(bytes);
}

// Reads every line of the file through the reader; `Line` picks the zero-copy view or the
// string that the reader fills.
template <typename Line>
void lineReaderScan(benchmark::State& state) {
  std::int64_t bytes = 0;
  for (auto _ : state) {
    zorvik::LineReader reader;
    if (!reader.open(benchFile())) {
      state.SkipWithError("set ZORVIK_BENCH_LAS to a readable file");
      return;
    }
    Line line;
    std::size_t total = 0;
    while (reader.readLine(line)) total += line.size();
    benchmark::DoNotOptimize(total);
    bytes += reader.length();
  }
  state.SetBytesProcessed(bytes);
}

void lineReaderView(benchmark::State& state) {
  lineReaderScan<std::string_view>(state);
}
void lineReaderString(benchmark::State& state) {
  lineReaderScan<std::string>(state);
}

}  // namespace

BENCHMARK(rawFreadScan)->Unit(benchmark::kMillisecond)->MinTime(2.0)->UseRealTime();
BENCHMARK(lineReaderView)->Unit(benchmark::kMillisecond)->MinTime(2.0)->UseRealTime();
BENCHMARK(lineReaderString)->Unit(benchmark::kMillisecond)->MinTime(2.0)->UseRealTime();

BENCHMARK_MAIN();
