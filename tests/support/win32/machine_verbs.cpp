// Real windows stand on a machine that no story may change.
#include "scenarios/story.h"

const Story::Verbs& MachineVerbs() {
  static const Story::Verbs kNone;
  return kNone;
}
void ResetMachine() {}
