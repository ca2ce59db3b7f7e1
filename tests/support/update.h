// Whether this run writes what it sees into the golden files, for a person to review: `filer_tests --update`.
#pragma once

inline bool UpdatesGolden = false;
