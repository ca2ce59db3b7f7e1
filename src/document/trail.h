// The things that were current one after another, and the way back and forward among them.
#pragma once

#include <cstddef>
#include <vector>

class Trail {
 public:
  static constexpr std::size_t kMost = 100;

  // A thing became the current one: the way forward is given up, unless it is the one that the trail stands at.
  void Visit(int record) {
    if (passed_ > 0 && records_[passed_ - 1] == record) return;
    records_.resize(passed_);
    records_.push_back(record);
    if (records_.size() > kMost) records_.erase(records_.begin());
    passed_ = records_.size();
  }

  bool CanGoBack() const { return passed_ > 1; }
  bool CanGoForward() const { return passed_ < records_.size(); }
  // Steps along the trail, when it can; the thing where it stands then.
  int GoBack() { return records_[--passed_ - 1]; }
  int GoForward() { return records_[passed_++]; }

  // Gives each thing the number that `renumber` returns for it; a thing of number 0 is there no more. What then would
  // lead from a thing to itself is one.
  template <class Renumber>
  void Follow(Renumber renumber) {
    std::size_t kept = 0;
    std::size_t passed = 0;
    for (std::size_t at = 0; at < records_.size(); ++at) {
      const int record = renumber(records_[at]);
      if (record != 0 && (kept == 0 || records_[kept - 1] != record)) records_[kept++] = record;
      if (at + 1 == passed_) passed = kept;
    }
    records_.resize(kept);
    passed_ = passed;
  }

  void Clear() { *this = {}; }

 private:
  std::vector<int> records_;
  std::size_t passed_ = 0;  // so many lie behind, with the one it stands at
};
