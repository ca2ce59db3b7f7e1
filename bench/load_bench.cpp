// Loading and saving a document of full size, against the least that any loader of such a file must do.
#include <benchmark/benchmark.h>

#include <string>
#include <string_view>
#include <vector>

#include "document/document.h"
#include "document/reader.h"
#include "document/writer.h"
#include "generate.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/headless/machine.h"
#include "values/numbers.h"

namespace {

constexpr unsigned kSeed = 1;
const std::string kFile = "C:\\Large.FIL";
const std::string kCopy = "C:\\Copy.FIL";

std::size_t PutLargeFile() {
  GenerateDocument(kLastRecord, kSeed);
  const std::string bytes = DocumentAsFilerFile();
  Machine::PutFile(kFile, bytes);
  return bytes.size();
}

void Load(benchmark::State& state) {
  const auto size = static_cast<std::int64_t>(PutLargeFile());
  for (auto _ : state) {
    MakeNew();
    if (!LoadFilerFile(kFile)) state.SkipWithError("not loaded");
  }
  MakeNew();
  state.SetBytesProcessed(state.iterations() * size);
}
BENCHMARK(Load)->Unit(benchmark::kMillisecond);

// As after the program's start: no record has ever held a text.
void LoadIntoNewTables(benchmark::State& state) {
  const auto size = static_cast<std::int64_t>(PutLargeFile());
  for (auto _ : state) {
    state.PauseTiming();
    MakeNew();
    TheDocument = {};
    state.ResumeTiming();
    if (!LoadFilerFile(kFile)) state.SkipWithError("not loaded");
  }
  MakeNew();
  state.SetBytesProcessed(state.iterations() * size);
}
BENCHMARK(LoadIntoNewTables)->Unit(benchmark::kMillisecond);

// The floor: read the file, cut it into lines, copy every value.
void CopyEveryValue(benchmark::State& state) {
  const auto size = static_cast<std::int64_t>(PutLargeFile());
  for (auto _ : state) {
    std::vector<std::string> values;
    Files::Open(kDataFileHandle, kFile, Files::Mode::Input);
    while (!Files::AtEnd(kDataFileHandle)) {
      const std::string_view line = Files::ReadLine(kDataFileHandle);
      if (line.empty()) continue;
      const auto equals = line.find('=');
      values.emplace_back(equals == std::string_view::npos ? line : line.substr(equals + 1));
    }
    Files::Close(kDataFileHandle);
    benchmark::DoNotOptimize(values.data());
  }
  state.SetBytesProcessed(state.iterations() * size);
}
BENCHMARK(CopyEveryValue)->Unit(benchmark::kMillisecond);

void Save(benchmark::State& state) {
  const auto size = static_cast<std::int64_t>(PutLargeFile());
  for (auto _ : state) {
    Files::Open(kDataFileHandle, kCopy, Files::Mode::Output);
    SaveFilerFile(kDataFileHandle);
    Files::Close(kDataFileHandle);
  }
  if (Machine::FileBytes(kCopy) != Machine::FileBytes(kFile)) state.SkipWithError("the copy differs");
  state.SetBytesProcessed(state.iterations() * size);
}
BENCHMARK(Save)->Unit(benchmark::kMillisecond);

}  // namespace
