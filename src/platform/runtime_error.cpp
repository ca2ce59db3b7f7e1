// The table of runtime errors, and which of them a Windows error code becomes. Shared by both platforms,
// so that the program words a failure alike on either.
#include "platform/runtime_error.h"

#include <algorithm>
#include <array>

namespace {

struct Row {
  int Number;
  std::string_view Description;
};

constexpr std::array<Row, 19> kDescriptions = {{
    {kInvalidCall, "Invalid procedure call or argument"},
    {kOverflow, "Overflow"},
    {kOutOfMemory, "Out of memory"},
    {kDivisionByZero, "Division by zero"},
    {kTypeMismatch, "Type mismatch"},
    {kBadFileNumber, "Bad file name or number"},
    {kFileNotFound, "File not found"},
    {kDeviceIoError, "Device I/O error"},
    {kFileAlreadyExists, "File already exists"},
    {kDiskFull, "Disk full"},
    {kInputPastEnd, "Input past end of file"},
    {kDeviceUnavailable, "Device unavailable"},
    {kPermissionDenied, "Permission denied"},
    {kDiskNotReady, "Disk not ready"},
    {kPathFileAccess, "Path/File access error"},
    {kPathNotFound, "Path not found"},
    {kInvalidPicture, "Invalid picture"},
    {kPrinterError, "Printer error"},
    {kClipboardTaken, "Can't open Clipboard"},
}};

struct SystemRow {
  unsigned long Code;
  int Number;
};

// The comments give the names that the system's own headers use.
constexpr std::array<SystemRow, 42> kSystemCodes = {{
    {2, kFileNotFound},          // FILE_NOT_FOUND
    {3, kPathNotFound},          // PATH_NOT_FOUND
    {5, kPathFileAccess},        // ACCESS_DENIED: read-only, a folder, or no rights
    {15, kPathNotFound},         // INVALID_DRIVE
    {18, kFileNotFound},         // NO_MORE_FILES
    {19, kPathFileAccess},       // WRITE_PROTECT
    {20, kDeviceUnavailable},    // BAD_UNIT
    {21, kDiskNotReady},         // NOT_READY
    {23, kDeviceIoError},        // CRC
    {25, kDeviceIoError},        // SEEK
    {26, kDiskNotReady},         // NOT_DOS_DISK
    {27, kDeviceIoError},        // SECTOR_NOT_FOUND
    {29, kDeviceIoError},        // WRITE_FAULT
    {30, kDeviceIoError},        // READ_FAULT
    {31, kDeviceIoError},        // GEN_FAILURE
    {32, kPermissionDenied},     // SHARING_VIOLATION
    {33, kPermissionDenied},     // LOCK_VIOLATION
    {38, kInputPastEnd},         // HANDLE_EOF
    {39, kDiskFull},             // HANDLE_DISK_FULL
    {53, kPathNotFound},         // BAD_NETPATH
    {55, kDeviceUnavailable},    // DEV_NOT_EXIST
    {59, kDeviceIoError},        // UNEXP_NET_ERR
    {64, kDeviceUnavailable},    // NETNAME_DELETED
    {65, kPathFileAccess},       // NETWORK_ACCESS_DENIED
    {67, kPathNotFound},         // BAD_NET_NAME
    {80, kFileAlreadyExists},    // FILE_EXISTS
    {82, kPathFileAccess},       // CANNOT_MAKE
    {112, kDiskFull},            // DISK_FULL
    {121, kDeviceIoError},       // SEM_TIMEOUT: a network drive that went silent
    {123, kBadFileNumber},       // INVALID_NAME
    {161, kPathNotFound},        // BAD_PATHNAME
    {183, kFileAlreadyExists},   // ALREADY_EXISTS
    {206, kBadFileNumber},       // FILENAME_EXCED_RANGE
    {267, kPathNotFound},        // DIRECTORY: a file where a folder should be
    {303, kPathFileAccess},      // DELETE_PENDING
    {1005, kDiskNotReady},       // UNRECOGNIZED_VOLUME
    {1110, kDiskNotReady},       // MEDIA_CHANGED
    {1112, kDiskNotReady},       // NO_MEDIA_IN_DRIVE
    {1117, kDeviceIoError},      // IO_DEVICE
    {1167, kDeviceUnavailable},  // DEVICE_NOT_CONNECTED
    {1224, kPermissionDenied},   // USER_MAPPED_FILE: another program has the bytes mapped
    {1295, kDiskFull},           // DISK_QUOTA_EXCEEDED
}};

}  // namespace

RuntimeError::RuntimeError(int number) : Number(number), Description(ErrorDescription(number)) {}

std::string_view ErrorDescription(int number) {
  const auto* row = std::find_if(kDescriptions.begin(), kDescriptions.end(),
                                 [number](const Row& each) { return each.Number == number; });
  return row == kDescriptions.end() ? kDescriptions.front().Description : row->Description;
}

int ErrorNumberOfSystemCode(unsigned long code) {
  const auto* row = std::find_if(kSystemCodes.begin(), kSystemCodes.end(),
                                 [code](const SystemRow& each) { return each.Code == code; });
  return row == kSystemCodes.end() ? static_cast<int>(kInvalidCall) : row->Number;
}
