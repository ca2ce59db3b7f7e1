// Building the thing list and the link lists of a document of full size.
#include <benchmark/benchmark.h>

#include <string>

#include "document/document.h"
#include "generate.h"
#include "mainwindow/thing_list.h"
#include "values/numbers.h"

namespace {

constexpr unsigned kSeed = 1;
constexpr int kCategory = 2;

void BuildList(benchmark::State& state, const ThingListView& view) {
  GenerateDocument(kLastRecord, kSeed);
  std::size_t entries = 0;
  for (auto _ : state) {
    const auto list = ListThings(view);
    entries = list.size();
    benchmark::DoNotOptimize(list.data());
  }
  state.counters["entries"] = static_cast<double>(entries);
}

ThingListView NounOrder() {
  ThingListView view;
  view.NounOrder = true;
  return view;
}

ThingListView Letter(const ThingListView& base) {
  ThingListView view = base;
  view.StartingLetter = std::string(1, 'R');
  return view;
}

ThingListView Category() {
  ThingListView view;
  view.SelectedCategory = kCategory;
  return view;
}

BENCHMARK_CAPTURE(BuildList, all, ThingListView())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BuildList, letter, Letter({}))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BuildList, category, Category())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BuildList, noun_order, NounOrder())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BuildList, letter_in_noun_order, Letter(NounOrder()))->Unit(benchmark::kMillisecond);

void BuildLinkLists(benchmark::State& state) {
  GenerateDocument(kLastRecord, kSeed);
  for (auto _ : state) {
    const auto list = ListLinks(false);
    benchmark::DoNotOptimize(list.data());
  }
}
BENCHMARK(BuildLinkLists)->Unit(benchmark::kMillisecond);

}  // namespace
