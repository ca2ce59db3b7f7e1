// Writing reports: the item list against loading the same file, and the hierarchy on families of four shapes, whose
// times should grow with their size.
#include <benchmark/benchmark.h>

#include <random>
#include <string>

#include "document/document.h"
#include "generate.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/headless/machine.h"
#include "reports/hierarchy_report.h"
#include "reports/item_list_report.h"
#include "reports/item_values_report.h"
#include "values/numbers.h"

namespace {

constexpr unsigned kSeed = 1;
constexpr int kQuarter = kLastRecord / 4;
const std::string kReport = "C:\\Report.PRN";

template <class Writer>
void Report(benchmark::State& state, Writer write) {
  for (auto _ : state) {
    Files::Open(kPrintFileHandle, kReport, Files::Mode::Output);
    write();
    Files::Close(kPrintFileHandle);
  }
  const auto size = static_cast<std::int64_t>(Machine::FileBytes(kReport)->size());
  if (size < kQuarter) state.SkipWithError("nothing was written");
  state.SetBytesProcessed(state.iterations() * size);
}

void ItemList(benchmark::State& state) {
  GenerateDocument(kLastRecord, kSeed);
  Report(state, [] { WriteItemListReport(0); });
}
BENCHMARK(ItemList)->Unit(benchmark::kMillisecond);

void ItemValues(benchmark::State& state) {
  GenerateDocument(kLastRecord, kSeed);
  Report(state, [] { WriteItemValuesReport(0, {1, 2, 5, 6}); });
}
BENCHMARK(ItemValues)->Unit(benchmark::kMillisecond);

// The shapes: whom the thing of a number links to, in a document whose first thing is the top.
using Shape = int (*)(int record, std::mt19937& random);

int Chain(int record, std::mt19937& /*random*/) { return record - 1; }
int Star(int record, std::mt19937& /*random*/) { return record == 1 ? 0 : 1; }
int Tree(int record, std::mt19937& /*random*/) { return record / 2; }
int Random(int record, std::mt19937& random) {
  return record == 1 ? 0 : 1 + static_cast<int>(random() % static_cast<unsigned>(record - 1));
}

void Hierarchy(benchmark::State& state, Shape shape) {
  const auto count = static_cast<int>(state.range(0));
  GenerateDocument(count, kSeed);
  std::mt19937 random(kSeed);
  for (int record = 1; record <= count; ++record) {
    ThingRecord& thing = TheDocument.Things.Writable(record);
    thing.XREF1 = static_cast<std::int16_t>(shape(record, random));
    thing.XREF2 = static_cast<std::int16_t>(shape(record, random));
  }
  Report(state, [] { WriteHierarchyReport(1); });
}
BENCHMARK_CAPTURE(Hierarchy, chain, &Chain)->Arg(kQuarter)->Arg(kLastRecord)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Hierarchy, star, &Star)->Arg(kQuarter)->Arg(kLastRecord)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Hierarchy, tree, &Tree)->Arg(kQuarter)->Arg(kLastRecord)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Hierarchy, random, &Random)->Arg(kQuarter)->Arg(kLastRecord)->Unit(benchmark::kMillisecond);

}  // namespace
