// Finding in a document of full size, as at each key in the dialog.
#include <benchmark/benchmark.h>

#include "document/find.h"
#include "generate.h"
#include "values/numbers.h"

namespace {

constexpr unsigned kSeed = 1;

void Find(benchmark::State& state, const FindRequest& request) {
  GenerateDocument(kLastRecord, kSeed);
  std::size_t hits = 0;
  for (auto _ : state) {
    const auto found = FindThings(request);
    hits = found.size();
    benchmark::DoNotOptimize(found.data());
  }
  state.counters["hits"] = static_cast<double>(hits);
}

BENCHMARK_CAPTURE(Find, one_word, {"auction", FindPlace::Everything, {}})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Find, no_hit, {"qqq", FindPlace::Everything, {}})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Find, one_letter, {"q", FindPlace::Everything, {}})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Find, every_thing, {"e", FindPlace::Everything, {}})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Find, three_words, {"red folder \"see folder\"", FindPlace::Everything, {}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Find, value, {"", FindPlace::Everything, {"PRICE", Comparison::MoreThan, "500"}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Find, formula, {"", FindPlace::Everything, {"VALUE", Comparison::MoreThan, "500"}})
    ->Unit(benchmark::kMillisecond);

}  // namespace
