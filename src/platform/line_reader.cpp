// Finds line ends with memchr, which is what makes reading as fast as memory.
#include "platform/line_reader.h"

#include <cstring>
#include <utility>

namespace {

std::size_t Find(const std::vector<char>& block, char wanted, std::size_t from, std::size_t to) {
  if (from == to) return to;
  const void* found = std::memchr(block.data() + from, wanted, to - from);
  return found == nullptr ? to : static_cast<std::size_t>(static_cast<const char*>(found) - block.data());
}

}  // namespace

LineReader::LineReader(Source source) : source_(std::move(source)), block_(kBlockSize) {}

bool LineReader::AtEnd() {
  while (next_ == end_) {
    if (!Fill()) return true;
  }
  return false;
}

bool LineReader::Read(std::string& line) {
  line.clear();
  if (AtEnd()) return false;
  while (!TakeUpToEnd(line)) {
    if (AtEnd()) break;
  }
  return true;
}

// Reads the next block; the whole of the last one has been taken.
bool LineReader::Fill() {
  next_ = end_ = line_feed_ = 0;
  end_ = source_(block_.data(), block_.size());
  if (end_ == 0) return false;
  if (after_return_ && block_[0] == '\n') next_ = 1;
  after_return_ = false;
  line_feed_ = Find(block_, '\n', next_, end_);
  return true;
}

// Adds bytes up to the next line end in the block, and takes that end; false when the block has none.
// The place of the LF is kept from call to call: a file of lone CRs would otherwise be searched anew
// to the end of the block for each of its lines.
bool LineReader::TakeUpToEnd(std::string& line) {
  if (line_feed_ < next_) line_feed_ = Find(block_, '\n', next_, end_);
  const std::size_t stop = Find(block_, '\r', next_, line_feed_);
  line.append(block_.data() + next_, stop - next_);
  next_ = stop;
  if (stop == end_) return false;
  ++next_;
  if (block_[stop] == '\r') {
    if (next_ == end_) {
      after_return_ = true;
    } else if (block_[next_] == '\n') {
      ++next_;
    }
  }
  return true;
}
