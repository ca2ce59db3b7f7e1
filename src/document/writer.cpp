// The writer of the Filer data file: see writer.h.
#include "document/writer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <vector>

#include "document/document.h"
#include "platform/files.h"
#include "platform/text.h"

namespace {

constexpr std::size_t kNotePiece = 70;  // characters of a note on one line, before escaping
constexpr std::string_view kContinuationIndent = "     ";

// Which characters may have to be escaped: a table, as every character of the document passes here.
constexpr std::array<bool, 256> MakeEscaped() {
  std::array<bool, 256> escaped{};
  for (const char character : {'~', ';', '+', '\r', '\n'}) escaped[static_cast<unsigned char>(character)] = true;
  return escaped;
}

constexpr auto kEscaped = MakeEscaped();

constexpr std::size_t kLongestEscape = 2;

// Writes the escaped text at `out`, where there is room for kLongestEscape times its length, and returns its end.
// Line breaks are escaped as one whether they are CR LF, CR or LF.
char* Escape(std::string_view text, char* out) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char character = text[at];
    if (!kEscaped[static_cast<unsigned char>(character)]) {
      *out++ = character;
      continue;
    }
    const bool last = at + 1 == text.size();
    if (character == '~') {
      *out++ = '?';
    } else if (character == '+') {
      if (last) *out++ = '~';
      *out++ = '+';
    } else {
      *out++ = '~';
      *out++ = character == ';' ? ';' : '/';
      if (character == '\r' && !last && text[at + 1] == '\n') ++at;
    }
  }
  return out;
}

// Builds the text line by line and hands it to the file in large pieces.
class LineWriter {
 public:
  explicit LineWriter(int handle) : handle_(handle) {}

  LineWriter& Plain(std::string_view text) {
    char* out = RoomFor(text.size());
    end_ = std::copy(text.begin(), text.end(), out);
    return *this;
  }
  LineWriter& Plain(int number) {
    constexpr std::size_t kLongest = 12;
    char* out = RoomFor(kLongest);
    end_ = std::to_chars(out, out + kLongest, number).ptr;
    return *this;
  }
  LineWriter& Escaped(std::string_view text) {
    end_ = Escape(text, RoomFor(text.size() * kLongestEscape));
    return *this;
  }
  void EndLine() { Plain("\r\n"); }
  // The last value of a line. Blanks at a line's end are lost in reading; behind a "+" they would hide from the escape
  // that the next line is joined to it.
  void EndLine(std::string_view text) {
    const std::string_view kept = TrimRight(text);
    Escaped(kept.ends_with('+') ? kept : text).EndLine();
  }
  void Line(std::string_view text) { Plain(text).EndLine(); }
  void Deliver() {
    Files::Write(handle_, std::string_view(text_.data(), static_cast<std::size_t>(end_ - text_.data())));
    end_ = text_.data();
  }

 private:
  static constexpr std::size_t kPiece = 262144;

  char* RoomFor(std::size_t size) {
    if (size > static_cast<std::size_t>(text_.data() + text_.size() - end_)) {
      Deliver();
      if (size > text_.size()) {
        text_.resize(size);
        end_ = text_.data();
      }
    }
    return end_;
  }

  int handle_;
  std::vector<char> text_ = std::vector<char>(kPiece);
  char* end_ = text_.data();  // behind what is still to be delivered
};

void WriteCategories(LineWriter& out) {
  const CategoryNameTable& names = TheDocument.CategoryNames;
  const int highest = names.Highest();
  if (highest == 0) return;
  out.Line("");
  out.Line("[CATEGORIES]");
  for (int number = 1; number <= highest; ++number) {
    out.Plain("*").Plain(number).Plain("; NAME=").EndLine(names[number]);
  }
}

void WriteFields(LineWriter& out) {
  const auto& fields = TheDocument.Fields;
  if (fields.Count() == 0) return;
  out.Line("");
  out.Line("[FIELDS]");
  for (int number = 1; number <= fields.Count(); ++number) {
    const FieldDefinition& field = fields[number];
    out.Line("");
    out.Plain("*").Plain(number).Plain("; NAME=").Escaped(field.Keyword);
    out.Plain("; TITLE=").EndLine(field.Title);
    if (!field.Type.empty()) out.Plain("FIELDTYPE=").Plain(field.Type).EndLine();
  }
}

void WriteFormulas(LineWriter& out) {
  const auto& formulas = TheDocument.Formulas;
  if (formulas.Count() == 0) return;
  out.Line("");
  out.Line("[FORMULAS]");
  for (int number = 1; number <= formulas.Count(); ++number) {
    const FormulaDefinition& formula = formulas[number];
    out.Line("");
    out.Plain("*").Plain(number).Plain("; NAME=").Escaped(formula.Name);
    out.Plain("; TITLE=").EndLine(formula.Title);
    if (!formula.Type.empty()) out.Plain(" FIELDTYPE=").Escaped(formula.Type);
    if (!formula.Format.empty()) out.Plain("; FORMAT=");
    out.EndLine(formula.Format);
    out.Plain(" FORMULA=").EndLine(formula.Formula);
  }
}

// Where the first line of a long note ends: behind the last blank of its first 70 characters, and
// behind the blanks that follow the cut, which would be trimmed away at the head of the next line.
std::size_t NotePieceLength(std::string_view note) {
  const auto blank = note.rfind(' ', kNotePiece - 1);
  const std::size_t cut = blank == std::string_view::npos ? kNotePiece : blank + 1;
  const auto next = note.find_first_not_of(' ', cut);
  return next == std::string_view::npos ? note.size() : next;
}

void WriteNote(LineWriter& out, std::string_view note) {
  out.Plain("NOTE=");
  while (note.size() >= kNotePiece) {
    const std::size_t length = NotePieceLength(note);
    out.Escaped(note.substr(0, length));
    note.remove_prefix(length);
    if (note.empty()) break;
    out.Plain("+").EndLine();
    out.Plain(kContinuationIndent);
  }
  out.EndLine(note);
}

void WriteLinks(LineWriter& out, const ThingRecord& thing) {
  if (thing.XREF1 <= 0 && thing.XREF2 <= 0) return;
  if (thing.XREF1 > 0) out.Plain("XREF1=").Plain(thing.XREF1);
  if (thing.XREF1 > 0 && thing.XREF2 > 0) out.Plain("; ");
  if (thing.XREF2 > 0) out.Plain("XREF2=").Plain(thing.XREF2);
  out.EndLine();
}

void WriteThing(LineWriter& out, int number) {
  const ThingRecord& thing = TheDocument.Things[number];
  out.Line("");
  out.Plain("*").Plain(number).Plain("; NAME=").EndLine(thing.NAME);
  if (!thing.NOTE.empty()) WriteNote(out, thing.NOTE);
  if (!thing.PICFILENAME.empty()) out.Plain("PICFILENAME=").EndLine(thing.PICFILENAME);
  WriteLinks(out, thing);
  if (thing.CATBITMAP != 0) out.Plain("CATBITMAP=").Plain(thing.CATBITMAP).EndLine();
  for (const FieldValueSlot& slot : thing.Values) {
    if (slot.Text.empty()) continue;
    const std::string_view keyword = slot.Keyword();
    if (keyword.empty()) continue;
    const std::string_view value = std::string_view(slot.Text).substr(keyword.size() + 1);  // behind the ":" found
    out.Plain("%").Escaped(keyword).Plain("=").EndLine(value);
  }
}

}  // namespace

std::string EscapeValue(std::string_view text) {
  std::string escaped(text.size() * kLongestEscape, '\0');
  escaped.resize(static_cast<std::size_t>(Escape(text, escaped.data()) - escaped.data()));
  return escaped;
}

void SaveFilerFile(int handle) {
  LineWriter out(handle);
  out.Line("LARKSPUR V5.0 FILER DATA");
  out.Line("'Larkspur Handy Reference Data File");
  WriteCategories(out);
  WriteFields(out);
  WriteFormulas(out);
  const int count = TheDocument.Things.Count();
  if (count > 0) {
    out.Line("");
    out.Line("[THINGS]");
    for (int number = 1; number <= count; ++number) WriteThing(out, number);
  }
  out.Line("");
  out.Line("[END]");
  out.Line("DONE=YES");
  out.Deliver();
}
