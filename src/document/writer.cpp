// The writer of the Filer data file: see writer.h.
#include "document/writer.h"

#include <array>

#include "document/document.h"
#include "platform/files.h"

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

bool IsEscaped(char character) { return kEscaped[static_cast<unsigned char>(character)]; }

// Line breaks are escaped as one whether they are CR LF, CR or LF. Most texts need no escaping: they are
// copied in pieces.
void AppendEscaped(std::string& out, std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    std::size_t next = at;
    while (next < text.size() && !IsEscaped(text[next])) ++next;
    out += text.substr(at, next - at);
    if (next == text.size()) return;
    at = next + 1;
    const char character = text[next];
    if (character == '~') {
      out += '?';
    } else if (character == ';') {
      out += "~;";
    } else if (character == '+') {
      out += at == text.size() ? "~+" : "+";
    } else {
      out += "~/";
      if (character == '\r' && at < text.size() && text[at] == '\n') ++at;
    }
  }
}

// Builds the text line by line and hands it to the file in large pieces.
class LineWriter {
 public:
  explicit LineWriter(int handle) : handle_(handle) {}

  LineWriter& Plain(std::string_view text) {
    text_ += text;
    return *this;
  }
  LineWriter& Plain(int number) { return Plain(std::to_string(number)); }
  LineWriter& Escaped(std::string_view text) {
    AppendEscaped(text_, text);
    return *this;
  }
  void EndLine() {
    text_ += "\r\n";
    if (text_.size() >= kPiece) Deliver();
  }
  void Line(std::string_view text) { Plain(text).EndLine(); }
  void Deliver() {
    Files::Write(handle_, text_);
    text_.clear();
  }

 private:
  static constexpr std::size_t kPiece = 65536;
  int handle_;
  std::string text_;
};

void WriteCategories(LineWriter& out) {
  const CategoryNameTable& names = TheDocument.CategoryNames;
  const int highest = names.Highest();
  if (highest == 0) return;
  out.Line("");
  out.Line("[CATEGORIES]");
  for (int number = 1; number <= highest; ++number) {
    out.Plain("*").Plain(number).Plain("; NAME=").Escaped(names[number]).EndLine();
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
    out.Plain("; TITLE=").Escaped(field.Title).EndLine();
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
    out.Plain("; TITLE=").Escaped(formula.Title).EndLine();
    if (!formula.Type.empty()) out.Plain(" FIELDTYPE=").Escaped(formula.Type);
    if (!formula.Format.empty()) out.Plain("; FORMAT=").Escaped(formula.Format);
    out.EndLine();
    out.Plain(" FORMULA=").Escaped(formula.Formula).EndLine();
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
  out.Escaped(note).EndLine();
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
  out.Plain("*").Plain(number).Plain("; NAME=").Escaped(thing.NAME).EndLine();
  if (!thing.NOTE.empty()) WriteNote(out, thing.NOTE);
  if (!thing.PICFILENAME.empty()) out.Plain("PICFILENAME=").Escaped(thing.PICFILENAME).EndLine();
  WriteLinks(out, thing);
  if (thing.CATBITMAP != 0) out.Plain("CATBITMAP=").Plain(thing.CATBITMAP).EndLine();
  for (const FieldValueSlot& slot : thing.Values) {
    if (slot.Keyword().empty()) continue;
    out.Plain("%").Escaped(slot.Keyword()).Plain("=").Escaped(slot.Value()).EndLine();
  }
}

}  // namespace

std::string EscapeValue(std::string_view text) {
  std::string escaped;
  AppendEscaped(escaped, text);
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
