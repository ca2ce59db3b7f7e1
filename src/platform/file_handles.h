// The numbers under which the program opens its files, so that no two meet.
#pragma once

enum FileHandle : int {
  kDataFileHandle = 1,
  kPrintFileHandle = 2,
  kLockHandle = 3,
  kSettingsHandle = 4,
  kRescueHandle = 5,
  kProbeHandle = 6,
};
