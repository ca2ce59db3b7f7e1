// The document: the one collection of things that the program keeps, with its fields, formulas,
// categories and state. Everything reads it directly; what changes it while it is shown takes a Step of history.h.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "document/field_slots.h"
#include "document/record_table.h"
#include "document/trail.h"

inline constexpr int kCategories = 32;

struct ThingRecord {
  std::string NAME;         // in the stored form of NormaliseName
  std::string NOTE;         // one paragraph
  std::string PICFILENAME;  // the photo's path, empty for none
  std::int16_t XREF1 = 0;   // linked things' record numbers, 0 for none; a damaged file may give any number
  std::int16_t XREF2 = 0;
  std::int32_t CATBITMAP = 0;              // category k is bit k - 1: category 32 is the sign bit
  mutable std::int16_t HierarchyMark = 0;  // working mark of the hierarchy report, never saved
  FieldSlots Values;
  bool operator==(const ThingRecord&) const = default;
};

struct FieldDefinition {
  std::string Keyword;  // upper case letters
  std::string Title;
  std::string Type;  // a type keyword; empty for a text field
  bool operator==(const FieldDefinition&) const = default;
};

struct FormulaDefinition {
  std::string Name;
  std::string Title;
  std::string Type;
  std::string Format;  // a display template; empty for the type's own
  std::string Formula;
  bool operator==(const FormulaDefinition&) const = default;
};

// The 32 category names, numbered from 1; an empty name is an unused category.
class CategoryNameTable {
 public:
  const std::string& operator[](int number) const { return names_[Index(number)]; }
  std::string& Writable(int number) { return names_[Index(number)]; }  // as a table's
  void Clear() { names_.fill({}); }
  int Highest() const;  // the highest number with a name, 0 for none

 private:
  static std::size_t Index(int number);
  std::array<std::string, kCategories> names_;
};

// The bit of category 1..32 in CATBITMAP; 0 for category 0, which stands for all.
std::int32_t CategoryBit(int category);

// True for a thing in any category of the mask, and for every thing with mask 0.
bool IsInCategories(const ThingRecord& thing, std::int32_t category_mask);

struct Document {
  RecordTable<ThingRecord> Things{200};
  RecordTable<FieldDefinition> Fields{30};
  RecordTable<FormulaDefinition> Formulas{20};
  CategoryNameTable CategoryNames;

  std::string FileName;       // the name to save to; empty for a new document
  std::string ShownFileName;  // the same name, as shown
  int CurrentThing = 0;       // record number of the thing shown, 0 for none
  Trail Visited;              // the things that were the current one
  bool Modified = false;      // kept by the history: set by every change, cleared by a save
  bool Writable = true;       // the file may be written in place
  bool LockHeld = false;      // other programs are kept from writing the file
  bool PendingEdits = false;  // the window holds typed text that the thing has not got yet
  bool DocumentOpen = false;  // a file was loaded to its end
};

// The one document of the process.
extern Document TheDocument;

// Clears the document for a new one: releases the lock, forgets names, flags, things, fields and
// categories. Formulas stay as they are until a file that defines some is loaded.
void MakeNew();
