// Real windows stand on a machine that no story may change.
#include "scenarios/story.h"

std::map<std::string, Story::Verb> MachineVerbs() { return {}; }
void ResetMachine() {}
