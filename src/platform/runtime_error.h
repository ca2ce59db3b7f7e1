// Runtime errors: the one exception that the platform and number conversion throw, with the classic
// BASIC error numbers that the program's messages quote.
#pragma once

#include <exception>
#include <string>
#include <string_view>

// The numbers the program knows by name; any other failure is kInvalidCall.
enum ErrorNumber : int {
  kInvalidCall = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kBadFileNumber = 52,
  kFileNotFound = 53,
  kDeviceIoError = 57,
  kFileAlreadyExists = 58,
  kDiskFull = 61,
  kInputPastEnd = 62,
  kDeviceUnavailable = 68,
  kPermissionDenied = 70,
  kDiskNotReady = 71,
  kPathFileAccess = 75,
  kPathNotFound = 76,
  kInvalidPicture = 481,
  kPrinterError = 482,
  kClipboardTaken = 521,
};

// Thrown by the platform and by number conversion; caught by the routine that words the message.
struct RuntimeError : std::exception {
  explicit RuntimeError(int number);  // takes the description from the table
  int Number;
  std::string Description;
  const char* what() const noexcept override { return Description.c_str(); }
};

// The description of an error number; unknown numbers read as number 5 does.
std::string_view ErrorDescription(int number);

// The error number for a Windows error code (the value of GetLastError), for both platforms.
int ErrorNumberOfSystemCode(unsigned long code);
