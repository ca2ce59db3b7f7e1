// The hierarchy report: see hierarchy_report.h.
#include "reports/hierarchy_report.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <string>

#include "document/document.h"
#include "document/names.h"
#include "platform/references.h"
#include "reports/print_file.h"

namespace {

constexpr std::size_t kHeadLength = 80;
constexpr std::size_t kChildLength = 70;
constexpr Tab kNameColumn{6};

std::string Cut(const std::string& name, std::size_t bytes) { return name.substr(0, WholeBytes(name, bytes)); }

// The things that a thing links to, 0 for none: each only once, and never one that is not there.
std::array<int, 2> ParentsOf(const ThingRecord& thing) {
  const auto valid = [](int link) { return TheDocument.Things.Holds(link) ? link : 0; };
  return {valid(thing.XREF1), thing.XREF2 == thing.XREF1 ? 0 : valid(thing.XREF2)};
}

void WriteSections(const ChildIndex& children, int top_thing) {
  std::vector<int> parents{0, top_thing};  // of each section
  WriteHierarchySection(children, top_thing, 1);
  for (std::size_t level = 1; level < parents.size(); ++level) {
    for (const int child : children.Of(parents[level])) {
      if (TheDocument.Things[child].HierarchyMark != static_cast<int>(level)) continue;
      const int section = static_cast<int>(parents.size());
      if (!MarkChildren(children, child, section)) continue;
      WriteHierarchySection(children, child, section);
      parents.push_back(child);
    }
  }
}

}  // namespace

ChildIndex::ChildIndex() {
  const int count = TheDocument.Things.Count();
  first_.resize(static_cast<std::size_t>(count) + 2);
  for (int record = 1; record <= count; ++record) {
    for (const int parent : ParentsOf(TheDocument.Things[record])) {
      if (parent != 0) ++first_[static_cast<std::size_t>(parent) + 1];
    }
  }
  std::partial_sum(first_.begin(), first_.end(), first_.begin());
  children_.resize(static_cast<std::size_t>(first_.back()));
  std::vector<int> next = first_;
  for (int record = 1; record <= count; ++record) {
    for (const int parent : ParentsOf(TheDocument.Things[record])) {
      if (parent != 0) children_[static_cast<std::size_t>(next[static_cast<std::size_t>(parent)]++)] = record;
    }
  }
}

std::span<const int> ChildIndex::Of(int parent) const {
  const auto index = static_cast<std::size_t>(parent);
  return {children_.begin() + first_[index], children_.begin() + first_[index + 1]};
}

void WriteHierarchyReport(int top_thing) {
  RecordTable<ThingRecord>& things = TheDocument.Things;
  if (!things.Holds(top_thing)) return;
  PrintFrame("LARKSPUR V1.0 REPORT T=2",
             "Larkspur Heirarchy report for " + JoinUnderscoredWords(Cut(things[top_thing].NAME, kHeadLength)));
  for (int record = 1; record <= things.Count(); ++record) things[record].HierarchyMark = 0;
  const ChildIndex children;
  if (MarkChildren(children, top_thing, 1)) {
    WriteSections(children, top_thing);
  } else {
    PrintLine({"No descendants found."});
  }
}

bool MarkChildren(const ChildIndex& children, int parent, int section) {
  bool found = false;
  for (const int child : children.Of(parent)) {
    std::int16_t& mark = TheDocument.Things[child].HierarchyMark;
    if (mark != 0) continue;
    mark = static_cast<std::int16_t>(section);
    found = true;
  }
  return found;
}

void WriteHierarchySection(const ChildIndex& children, int parent, int section) {
  const ThingRecord& head = TheDocument.Things[parent];
  PrintLine({});
  PrintLine({section, kNameColumn, Cut(JoinUnderscoredWords(head.NAME), kHeadLength),
             head.HierarchyMark > 0 ? " (from #" + std::to_string(head.HierarchyMark) + ")" : std::string()});
  for (const int child : children.Of(parent)) {
    const ThingRecord& thing = TheDocument.Things[child];
    if (thing.HierarchyMark != section) continue;
    PrintLine({kNameColumn, ">> ", Cut(JoinUnderscoredWords(thing.NAME), kChildLength)});
  }
}
