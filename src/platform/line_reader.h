// Lines out of blocks of bytes: the part of reading text files that both platforms share, so that its
// care for block edges runs under the sanitizers too.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class LineReader {
 public:
  // Puts up to `size` bytes of the file into `block` and returns how many; 0 at the end of the file.
  using Source = std::function<std::size_t(char* block, std::size_t size)>;

  static constexpr std::size_t kBlockSize = 65536;

  explicit LineReader(Source source);

  // True when every byte has been taken, the LF behind a line's CR included.
  bool AtEnd();

  // As Files::ReadLine; nothing at the end.
  std::optional<std::string_view> Read();

 private:
  bool Fill();
  const char* FindLineEnd();
  bool TakeLineEnd(const char* stop);

  Source source_;
  std::vector<char> block_;
  std::string carried_;              // a line that is not whole within the block
  const char* next_ = nullptr;       // the first byte not yet taken
  const char* end_ = nullptr;        // behind the last byte of the block
  const char* line_feed_ = nullptr;  // the first LF at or behind next_, or end_ when the block has none
  bool after_return_ = false;        // the last block ended in a CR: an LF opening the next one belongs to it
};
