// How an act of the platform fails.
#pragma once

#include <functional>

#include "platform/runtime_error.h"

// The number of the runtime error that it ends with; 0 when there is none.
inline int ErrorOf(const std::function<void()>& act) {
  try {
    act();
    return 0;
  } catch (const RuntimeError& error) {
    return error.Number;
  }
}
