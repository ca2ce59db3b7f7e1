// A print file in memory: its bytes in one piece, where its lines begin, and what its header asks of the viewer.
#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Counts lines and columns, from 0.
using Index = std::ptrdiff_t;

struct Place {
  Index Line = 0;
  Index Column = 0;
  auto operator<=>(const Place&) const = default;  // NOLINT(modernize-use-nullptr): there is no pointer
};

// The first line of a print file: "LARKSPUR V1.0 REPORT T=2,H=2,L=31,G=0".
struct ReportHeader {
  bool IsReport = false;
  Index Titles = 0;    // T: lines behind the header that are titles, empty ones included
  Index Headings = 0;  // H: heading lines below the titles; empty lines before them are not counted
  Index Left = 0;      // L: columns that stay at the left
  bool Grid = false;   // G: lines between rows and columns are drawn
};

// Reads the parameters in any order; what is missing, unknown or no number counts as 0, and so does what is negative.
ReportHeader ParseReportHeader(std::string_view line);

// A character that stands as a reference in a report has this in its column, and itself beside the text.
inline constexpr char kFarCharacter = '\x1A';

// Each character of a line takes one column, and there is a byte for each; tabs were replaced by blanks up to the next
// eighth column.
class ReportText {
 public:
  ReportText() = default;
  explicit ReportText(std::string bytes);

  const ReportHeader& Header() const { return header_; }

  // The lines that are shown: all but the header.
  Index Count() const { return static_cast<Index>(starts_.size()) - first_; }
  std::string_view Line(Index line) const;  // without its end (CR LF, a lone LF or a lone CR)
  Index Widest() const { return widest_; }  // columns of the longest of them

  // How many lines at the top are titles, and how many are titles, headings and the empty lines between them:
  //   (header)     T=2,H=2
  //   line 0       empty        one of the T=2 title lines
  //   line 1       the title    the other one
  //   line 2       empty        leads up to the headings and stays with them
  //   lines 3, 4   headings     the H=2 heading lines; HeadLines() is 5
  Index TitleLines() const { return titles_; }
  Index HeadLines() const { return head_; }

  // The bytes of all lines that are shown, with their ends.
  std::string_view Body() const;
  std::size_t OffsetOf(const Place& place) const;  // within Body()
  Place PlaceOf(std::size_t offset) const;

  // What stands in the columns of a part of Line() or Body(), as the file has it; and as it is shown, where control
  // characters are blanks.
  std::string TextOf(std::string_view part) const { return Kept(part, false); }
  std::string Shown(std::string_view part) const { return Kept(part, true); }
  // The character of a column that holds kFarCharacter; 0 when that is the byte itself.
  char32_t FarCharacter(const char* column) const;

 private:
  struct Far {
    std::size_t Offset;
    char32_t Code;
  };
  std::string Kept(std::string_view part, bool printable) const;
  void LayOut();
  void FindLines();
  void FindHead();
  std::string_view Whole(std::size_t line) const;  // with its end; counted from the first of the file
  std::size_t BodyStart() const { return Count() > 0 ? starts_[static_cast<std::size_t>(first_)] : bytes_.size(); }

  std::string bytes_;
  std::vector<Far> far_;             // in their order
  bool has_references_ = false;      // or what looks like one
  std::vector<std::size_t> starts_;  // of every line of the file
  ReportHeader header_;
  Index first_ = 0;  // 1 when the first line is a header
  Index widest_ = 0;
  Index titles_ = 0;
  Index head_ = 0;
};
