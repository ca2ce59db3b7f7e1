// Evaluating formulas.
#include <benchmark/benchmark.h>

#include <string>

#include "values/evaluator.h"

namespace {

void PriceTimesQuantity(benchmark::State& state) {
  std::array<FieldValueSlot, kFieldValues> slots;
  slots[0].Text = "PRICE:12.50";
  slots[1].Text = "QTY:3";
  for (auto _ : state) {
    std::string expression = Global::ExpandFieldReferences("[PRICE]*[QTY]", slots);
    benchmark::DoNotOptimize(Global::EvaluateExpression(expression, "DOLLAR", true));
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(PriceTimesQuantity);

}  // namespace
