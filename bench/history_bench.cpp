// Deleting a thing of a document of full size, taking that back, and doing it again; and what a step keeps.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include "document/history.h"
#include "document/things.h"
#include "generate.h"
#include "values/numbers.h"

namespace {

constexpr unsigned kSeed = 1;

void UndoAndRedoADeletion(benchmark::State& state) {
  GenerateDocument(kLastRecord, kSeed);
  TheHistory.Clear();
  DeleteThing(1);
  for (auto _ : state) {
    TheHistory.Undo();
    TheHistory.Redo();
  }
  state.counters["things"] = TheDocument.Things.Count();
}
BENCHMARK(UndoAndRedoADeletion)->Unit(benchmark::kMillisecond);

// In bytes a step, of things without texts.
void StepOfOneThing(benchmark::State& state) {
  TheDocument = {};
  TheHistory.Clear();
  AddThing("A");
  const auto before = mallinfo2().uordblks;
  std::size_t steps = 0;
  for (auto _ : state) {
    Tick(1, 1, ++steps % 2 == 1);
    if (steps == History::kMostSteps / 2)
      state.counters["bytes"] = static_cast<double>((mallinfo2().uordblks - before) / steps);
  }
}
BENCHMARK(StepOfOneThing)->Iterations(History::kMostSteps);

}  // namespace
