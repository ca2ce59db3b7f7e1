// Finding things by words anywhere in them and by a value: pure functions over the document.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

enum class FindPlace { Everything, Names, Notes, Values, Categories };

enum class Comparison { Is, IsNot, LessThan, AtMost, MoreThan, AtLeast, IsEmpty, IsNotEmpty };

// A comparison with the value of a field or the result of a formula. Numbers compare as numbers, converted by the type
// as a value that is typed; text compares as words do. A thing without the value passes IsEmpty only.
struct ValueTest {
  std::string Name;  // the field's keyword or the formula's name; empty: every thing passes
  Comparison How = Comparison::Is;
  std::string Text;  // what to compare with; as long as it is empty, every thing passes but with the last two
  bool operator==(const ValueTest&) const = default;
};

struct FindRequest {
  // Words parted by blanks; what stands between double quotes is one, blanks included. A thing must have all of them,
  // in any order, each in any of the places. Letter case and accents are of no account, and "_" is a blank.
  std::string Words;
  FindPlace Where = FindPlace::Everything;
  ValueTest Value;
  bool operator==(const FindRequest&) const = default;
};

// A thing that was found, and where its first word is; without words, the value that was compared.
struct Hit {
  int Record = 0;
  FindPlace In = FindPlace::Values;
  int Number = -1;  // of the value's slot, from 0, or of the category; -1: what was compared is no field's value
  std::size_t At = 0;
  std::size_t Size = 0;
};

// True when the text to compare with is a number where the test needs one, or when there is nothing to compare.
bool CanBeRead(const ValueTest& test);

// All things that pass, by their numbers; none for a request that asks for nothing or has a number that cannot be read.
std::vector<Hit> FindThings(const FindRequest& request);

// The first hit behind a record, or before it, round the end; 0 when there is none.
int NextHit(const std::vector<Hit>& hits, int record, bool forward);

// Where a hit is ("Note", "Price"), and the words around it.
std::string PlaceOf(const Hit& hit, const FindRequest& request);
std::string WordsAround(const Hit& hit, const FindRequest& request);
