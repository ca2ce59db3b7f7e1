// The hierarchy report: all descendants of one thing, generation by generation. A thing's children are those that link
// to it.
#pragma once

#include <span>
#include <vector>

// The children of each thing in document order, found in one pass over the links. It holds as long as no thing is
// added, deleted or linked anew.
class ChildIndex {
 public:
  ChildIndex();
  std::span<const int> Of(int parent) const;

 private:
  std::vector<int> children_;
  std::vector<int> first_;  // where the children of each thing begin, and where the last one's end
};

// Writes the report on a thing's descendants into the open print file: nothing at all when there is no such thing.
// Throws what the disk refuses.
void WriteHierarchyReport(int top_thing);

// Marks every child of the thing that has no mark yet with the number of a section; true when there was one.
bool MarkChildren(const ChildIndex& children, int parent, int section);

// Writes one section: the parent, where it is listed itself, and the children that are marked with the section.
void WriteHierarchySection(const ChildIndex& children, int parent, int section);
