// Lines out of blocks of bytes: the part of reading text files that both platforms share, so that its
// care for block edges runs under the sanitizers too.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

class LineReader {
 public:
  // Puts up to `size` bytes of the file into `block` and returns how many; 0 at the end of the file.
  using Source = std::function<std::size_t(char* block, std::size_t size)>;

  static constexpr std::size_t kBlockSize = 65536;

  explicit LineReader(Source source);

  // True when every byte has been taken, the LF behind a line's CR included.
  bool AtEnd();

  // As Files::ReadLine; returns false at the end.
  bool Read(std::string& line);

 private:
  bool Fill();
  bool TakeUpToEnd(std::string& line);

  Source source_;
  std::vector<char> block_;
  std::size_t next_ = 0;       // the first byte not yet taken
  std::size_t end_ = 0;        // behind the last byte of the block
  std::size_t line_feed_ = 0;  // the first LF at or behind next_, or end_ when the block has none
  bool after_return_ = false;  // the last block ended in a CR: an LF opening the next one belongs to it
};
