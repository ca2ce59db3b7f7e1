// Finds line ends with memchr, which is what makes reading as fast as memory.
#include "platform/line_reader.h"

#include <cstring>
#include <utility>

namespace {

const char* Find(char wanted, const char* from, const char* to) {
  const void* found = std::memchr(from, wanted, static_cast<std::size_t>(to - from));
  return found == nullptr ? to : static_cast<const char*>(found);
}

}  // namespace

LineReader::LineReader(Source source) : source_(std::move(source)), block_(kBlockSize) {}

bool LineReader::AtEnd() {
  while (next_ == end_) {
    if (!Fill()) return true;
  }
  return false;
}

// Most lines are seen where they stand in the block. One that the block ends with is carried out of it, so that
// AtEnd, which may need the next block, leaves it alone.
std::optional<std::string_view> LineReader::Read() {
  if (AtEnd()) return std::nullopt;
  carried_.clear();
  for (;;) {
    const char* const first = next_;
    const char* const stop = FindLineEnd();
    const bool ended = TakeLineEnd(stop);
    const std::string_view piece(first, static_cast<std::size_t>(stop - first));
    if (ended && carried_.empty() && next_ != end_) return piece;
    carried_ += piece;
    if (ended || AtEnd()) return carried_;
  }
}

// Reads the next block; the whole of the last one has been taken.
bool LineReader::Fill() {
  next_ = end_ = line_feed_ = block_.data();
  const std::size_t size = source_(block_.data(), block_.size());
  if (size == 0) return false;
  end_ += size;
  if (after_return_ && *next_ == '\n') ++next_;
  after_return_ = false;
  line_feed_ = Find('\n', next_, end_);
  return true;
}

// Where the next CR or LF of the block stands, or its end when it has none. The place of the LF is kept from call to
// call: a file of lone CRs would otherwise be searched anew to the end of the block for each of its lines.
const char* LineReader::FindLineEnd() {
  if (line_feed_ < next_) line_feed_ = Find('\n', next_, end_);
  return Find('\r', next_, line_feed_);
}

// Takes the bytes up to `stop` and the line end there; false when the block ends there instead.
bool LineReader::TakeLineEnd(const char* stop) {
  next_ = stop;
  if (stop == end_) return false;
  ++next_;
  if (*stop == '\r') {
    if (next_ == end_) {
      after_return_ = true;
    } else if (*next_ == '\n') {
      ++next_;
    }
  }
  return true;
}
