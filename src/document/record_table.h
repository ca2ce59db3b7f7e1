// A table of records numbered from 1, which grows by steps and never shrinks. The records stay where they are while
// it grows; they stand in rows, since a large document has many and each would cost its own piece of memory.
#pragma once

#include <cassert>
#include <cstddef>
#include <memory>
#include <vector>

template <class Record>
class RecordTable {
 public:
  explicit RecordTable(int upper_bound) { GrowFor(upper_bound, 0); }

  // Record numbers 1..UpperBound() have room; 1..Count() are in use.
  int UpperBound() const { return upper_bound_; }
  int Count() const { return count_; }
  void SetCount(int count) {
    assert(count >= 0 && count <= UpperBound());
    count_ = count;
  }

  // True for the number of a record in use: the test that every link needs before it is followed.
  bool Holds(int record) const { return record >= 1 && record <= count_; }

  const Record& operator[](int record) const { return At(record); }
  // A record to be written: for the reader and the history. Whatever else changes the document takes a Step.
  Record& Writable(int record) { return At(record); }

  // Makes room for the record, and `step` more behind it, when its number is beyond the upper bound.
  void GrowFor(int record, int step) {
    if (record <= upper_bound_) return;
    upper_bound_ = record + step;
    const std::size_t rows = Index(upper_bound_) / kRow + 1;
    while (rows_.size() < rows) rows_.push_back(std::make_unique_for_overwrite<Record[]>(kRow));
  }

 private:
  std::size_t Index(int record) const {
    assert(record >= 1 && record <= UpperBound());
    return static_cast<std::size_t>(record - 1);
  }

  Record& At(int record) const {
    const std::size_t index = Index(record);
    return rows_[index / kRow][index % kRow];
  }

  static constexpr std::size_t kRow = 64;

  std::vector<std::unique_ptr<Record[]>> rows_;
  int upper_bound_ = 0;
  int count_ = 0;
};

// The step by which loading and inserting let the tables grow.
inline constexpr int kLoadStep = 49;
