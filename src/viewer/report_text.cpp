// Reading a print file: see report_text.h.
#include "viewer/report_text.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "platform/references.h"

namespace {

constexpr std::string_view kSignature = "LARKSPUR V";
constexpr std::string_view kReport = " REPORT";
constexpr std::size_t kTabWidth = 8;
constexpr Index kLargestParameter = 32767;

std::string_view WithoutEnd(std::string_view line) {
  if (line.ends_with('\n')) line.remove_suffix(1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

Index NumberIn(std::string_view text) {
  Index number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (result.ec == std::errc::result_out_of_range) return text.starts_with('-') ? 0 : kLargestParameter;
  return std::clamp<Index>(number, 0, kLargestParameter);
}

void TakeParameter(ReportHeader& header, char name, Index value) {
  if (name == 'T') header.Titles = value;
  if (name == 'H') header.Headings = value;
  if (name == 'L') header.Left = value;
  if (name == 'G') header.Grid = value == 1;
}

}  // namespace

ReportHeader ParseReportHeader(std::string_view line) {
  ReportHeader header;
  if (!line.starts_with(kSignature)) return header;
  const std::size_t version_end = line.find(' ', kSignature.size());
  if (version_end == std::string_view::npos || !line.substr(version_end).starts_with(kReport)) return header;
  line.remove_prefix(version_end + kReport.size());
  header.IsReport = line.empty() || line.front() == ' ';
  while (header.IsReport && !line.empty()) {
    const std::size_t end = std::min(line.find_first_of(" ,"), line.size());
    const std::string_view parameter = line.substr(0, end);
    if (parameter.size() > 2 && parameter[1] == '=') {
      TakeParameter(header, static_cast<char>(parameter[0] & ~0x20), NumberIn(parameter.substr(2)));
    }
    line.remove_prefix(std::min(end + 1, line.size()));
  }
  return header;
}

ReportText::ReportText(std::string bytes) : bytes_(std::move(bytes)) {
  has_references_ = bytes_.find("&#") != std::string::npos;
  if (has_references_ || bytes_.find('\t') != std::string::npos) LayOut();
  FindLines();
  if (!starts_.empty()) header_ = ParseReportHeader(WithoutEnd(Whole(0)));
  if (header_.IsReport) first_ = 1;
  if (Count() > 0) widest_ = std::max(widest_, static_cast<Index>(Line(0).size()));
  FindHead();
}

// Gives tabs and references their columns.
void ReportText::LayOut() {
  std::string laid;
  laid.reserve(bytes_.size() + bytes_.size() / 4);
  std::size_t column = 0;
  for (std::size_t at = 0; at < bytes_.size();) {
    const char each = bytes_[at];
    const ShownCharacter shown = CharacterAt(bytes_, at);
    at += shown.Bytes;
    const std::size_t width = each == '\t' ? kTabWidth - column % kTabWidth : 1;
    const bool is_far = shown.Bytes > 1 && shown.Code != '&';
    if (is_far) far_.push_back({laid.size(), shown.Code});
    laid.append(width, each == '\t' ? ' ' : is_far ? kFarCharacter : each);
    column = each == '\n' || each == '\r' ? 0 : column + width;
  }
  bytes_ = std::move(laid);
}

char32_t ReportText::FarCharacter(const char* column) const {
  const auto offset = static_cast<std::size_t>(column - bytes_.data());
  const auto found = std::lower_bound(far_.begin(), far_.end(), offset,
                                      [](const Far& each, std::size_t wanted) { return each.Offset < wanted; });
  return found != far_.end() && found->Offset == offset ? found->Code : 0;
}

std::string ReportText::Kept(std::string_view part, bool printable) const {
  const auto is_blank = [printable](char each) {
    return printable && (static_cast<unsigned char>(each) < ' ' || each == 127);
  };
  if (!has_references_) {
    std::string kept(part);
    std::replace_if(kept.begin(), kept.end(), is_blank, ' ');
    return kept;
  }
  std::u16string wide;
  for (const char& each : part) {
    const char32_t far_character = each == kFarCharacter ? FarCharacter(&each) : 0;
    if (far_character != 0) {
      AppendCharacter(wide, far_character);
    } else {
      wide += is_blank(each) ? u' ' : SystemPage().CharacterOf(each);
    }
  }
  return Narrow(wide);
}

// Searches for either end of line on its own, since that is what the library does fastest. The first line may turn out
// to be a header, and is not measured.
void ReportText::FindLines() {
  const std::string_view bytes = bytes_;
  std::size_t line_feed = 0;
  for (std::size_t start = 0; start < bytes.size();) {
    starts_.push_back(start);
    if (line_feed <= start) line_feed = std::min(bytes.find('\n', start), bytes.size());
    const std::size_t length = line_feed - start;
    const std::size_t to_return = std::min(bytes.substr(start, length).find('\r'), length);
    if (start > 0) widest_ = std::max(widest_, static_cast<Index>(to_return));
    const bool alone = to_return + 1 < length;  // an end of its own, not one before a line feed
    const std::size_t end = alone ? start + to_return : line_feed;
    start = end + 1;
  }
}

void ReportText::FindHead() {
  titles_ = std::min(header_.Titles, Count());
  head_ = titles_;
  if (header_.Headings == 0) return;
  while (head_ < Count() && Line(head_).find_first_not_of(' ') == std::string_view::npos) ++head_;
  head_ = std::min(head_ + header_.Headings, Count());
}

std::string_view ReportText::Whole(std::size_t line) const {
  const std::size_t end = line + 1 < starts_.size() ? starts_[line + 1] : bytes_.size();
  return std::string_view(bytes_).substr(starts_[line], end - starts_[line]);
}

std::string_view ReportText::Line(Index line) const {
  return WithoutEnd(Whole(static_cast<std::size_t>(line + first_)));
}

std::string_view ReportText::Body() const { return std::string_view(bytes_).substr(BodyStart()); }

std::size_t ReportText::OffsetOf(const Place& place) const {
  if (place.Line >= Count()) return bytes_.size() - BodyStart();
  const auto column =
      static_cast<std::size_t>(std::min<Index>(place.Column, static_cast<Index>(Line(place.Line).size())));
  return starts_[static_cast<std::size_t>(place.Line + first_)] - BodyStart() + column;
}

Place ReportText::PlaceOf(std::size_t offset) const {
  if (Count() == 0) return {};
  const auto after = std::upper_bound(starts_.begin() + first_, starts_.end(), offset + BodyStart());
  const Index line = after - starts_.begin() - first_ - 1;
  return {line, static_cast<Index>(offset + BodyStart() - *(after - 1))};
}
