// Text files with numbered handles, and the few file operations beside them. Names are taken as the
// system takes them: absolute, or relative to the current folder. Every failure throws RuntimeError
// with the number that the program's messages quote (53 not found, 70 shared or locked, 75 read-only
// or a folder, 76 no such folder, 61 disk full, ...).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Files {

enum class Mode {
  Input,   // read an existing file; others may read and write it meanwhile
  Output,  // create or empty the file and write; others may read
  Lock,    // open an existing file for writing and let others only read it; never creates, never written through
};

// A number that no open file has, from 1.
int FreeHandle();

// Opens a file under a handle number of the caller's choice (1..255). Error 52 when the number is in use.
void Open(int handle, const std::string& name, Mode mode);
bool IsOpen(int handle);

// True when every byte of an Input file has been read.
bool AtEnd(int handle);

// The next line without its end (CR LF, a lone LF or a lone CR); good until the handle's next line is read or it is
// closed. Error 62 at the end.
std::string_view ReadLine(int handle);

// The bytes of a whole file, which is not held open afterwards; others may read and write it meanwhile. Fails as
// Open does, and with 7 when there is no room for the bytes.
std::string ReadAll(const std::string& name);

// Appends bytes to an Output file as they stand. The bytes may be buffered: Close or Flush reports
// what the disk refuses.
void Write(int handle, std::string_view bytes);

// Writes the text and CR LF.
void WriteLine(int handle, std::string_view text);

// Forces what was written onto the disk itself.
void Flush(int handle);

// Closes the handle in any case, then throws when pending bytes could not be written. Nothing
// happens when the handle is not open.
void Close(int handle);

// Opens a file as Open does and closes it on every way out.
class OpenFile {
 public:
  OpenFile(int handle, const std::string& name, Mode mode);
  ~OpenFile();  // drops what the disk refuses
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  // Forces what was written onto the disk itself and closes the file; throws what the disk refuses.
  void Finish();

 private:
  int handle_;
};

// Closes every handle, dropping failures: for the end of the program.
void CloseAll();

// Deletes a file. Error 53 when there is none.
void Erase(const std::string& name);

// Renames a file; the new name must be free (error 58).
void Rename(const std::string& from, const std::string& to);

// Renames a file in one step over another one, which need not be there: at every instant one of the two stands whole
// under that name. Error 75 when the other one is read-only.
void Replace(const std::string& from, const std::string& to);

// When a file was last written, for comparing with another one's time; 0 when the system does not say.
std::uint64_t ChangedAt(const std::string& name);

// Tells whether a file of that name is there; false also where the system will not say.
bool Exists(const std::string& name);

// The same of a folder.
bool IsFolder(const std::string& name);

}  // namespace Files
