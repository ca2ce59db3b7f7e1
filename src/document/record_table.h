// A table of records numbered from 1, which grows by steps and never shrinks. A deque keeps the records where
// they are while it grows.
#pragma once

#include <cassert>
#include <cstddef>
#include <deque>

template <class Record>
class RecordTable {
 public:
  explicit RecordTable(int upper_bound) : records_(static_cast<std::size_t>(upper_bound)) {}

  // Record numbers 1..UpperBound() have room; 1..Count() are in use.
  int UpperBound() const { return static_cast<int>(records_.size()); }
  int Count() const { return count_; }
  void SetCount(int count) {
    assert(count >= 0 && count <= UpperBound());
    count_ = count;
  }

  // True for the number of a record in use: the test that every link needs before it is followed.
  bool Holds(int record) const { return record >= 1 && record <= count_; }

  Record& operator[](int record) { return records_[Index(record)]; }
  const Record& operator[](int record) const { return records_[Index(record)]; }

  // Makes room for the record, and `step` more behind it, when its number is beyond the upper bound.
  void GrowFor(int record, int step) {
    if (record > UpperBound()) records_.resize(static_cast<std::size_t>(record + step));
  }

 private:
  std::size_t Index(int record) const {
    assert(record >= 1 && record <= UpperBound());
    return static_cast<std::size_t>(record - 1);
  }

  std::deque<Record> records_;
  int count_ = 0;
};

// The step by which loading and inserting let the tables grow.
inline constexpr int kLoadStep = 49;
