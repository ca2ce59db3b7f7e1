// Putting into words what a person sees of forms: see recorder.h.
#include "support/recorder.h"

#include <algorithm>
#include <sstream>

#include "platform/controls.h"
#include "support/hands.h"
#include "support/names.h"
#include "support/page_text.h"

namespace {

using Texts = std::vector<std::string>;

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

std::string InLines(const Texts& texts) {
  std::string lines;
  for (const std::string& text : texts) lines += text + "\n";
  return lines;
}

Texts LinesIn(const std::string& lines) {
  Texts texts;
  std::istringstream in(lines);
  for (std::string text; std::getline(in, text);) texts.push_back(text);
  return texts;
}

// "a | b | (3) | c": entries without a text are counted.
std::string Joined(const Texts& texts) {
  std::string line;
  for (std::size_t at = 0; at < texts.size(); ++at) {
    std::size_t empty = 0;
    while (at + empty < texts.size() && texts[at + empty].empty()) ++empty;
    line += (line.empty() ? "" : " | ") + (empty == 0 ? texts[at] : "(" + std::to_string(empty) + ")");
    if (empty != 0) at += empty - 1;
  }
  return line.empty() ? "(none)" : line;
}

// A short list whole, of a long one what is between the places that stayed: ": 12 of 40 + Fork | Spade - Zoo".
std::string ListNews(const Texts& before, const Texts& now) {
  constexpr std::size_t kLong = 100, kMany = 6;
  if (Joined(now).size() <= kLong) return ": " + Joined(now);
  const auto first = std::mismatch(now.begin(), now.end(), before.begin(), before.end());
  auto now_end = now.end();
  auto before_end = before.end();
  while (now_end != first.first && before_end != first.second && now_end[-1] == before_end[-1]) --now_end, --before_end;
  std::string news = ": " + std::to_string(first.first - now.begin() + 1) + " of " + std::to_string(now.size());
  for (const auto& [sign, part] :
       {std::pair(" + ", Texts(first.first, now_end)), std::pair(" - ", Texts(first.second, before_end))}) {
    if (part.size() > kMany)
      news += sign + part.front() + " ... " + part.back();
    else if (!part.empty())
      news += sign + Joined(part);
  }
  return news;
}

// The rows of a page that differ: " 4: text / 5: text"; of many, the first one and the last.
std::string PageNews(const Texts& before, const Texts& now) {
  constexpr std::size_t kMany = 10;
  Texts rows;
  for (std::size_t row = 0; row < std::max(before.size(), now.size()); ++row) {
    const std::string old = row < before.size() ? before[row] : "", text = row < now.size() ? now[row] : "";
    if (old != text) rows.push_back(" " + std::to_string(row) + ": " + text);
  }
  if (rows.size() > kMany) return rows.front() + " ... " + rows.back() + " (" + std::to_string(rows.size()) + " rows)";
  std::string news;
  for (const std::string& row : rows) news += (news.empty() ? "" : " /") + row;
  return news;
}

std::string NameOf(int form, int id) {
  const auto& names = Names::Of(form).Controls;
  const auto found = names.find(id);
  return found == names.end() ? std::to_string(id) : found->second;
}

// "LetterLabel[A-Z]" for neighbours of a row.
std::string NamesOf(int form, const std::vector<int>& ids) {
  std::string line;
  for (std::size_t at = 0; at < ids.size(); ++at) {
    const std::string name = NameOf(form, ids[at]), row = name.substr(0, name.find('[') + 1);
    std::string last;
    while (!row.empty() && at + 1 < ids.size() && ids[at + 1] == ids[at] + 1 &&
           NameOf(form, ids[at + 1]).starts_with(row)) {
      last = "-" + NameOf(form, ids[++at]).substr(row.size());
    }
    line += (line.empty() ? "" : ", ") + (last.empty() ? name : name.substr(0, name.size() - 1) + last);
  }
  return line;
}

// Behind the text that it marks: " marked", or " marked 1-5" for a part of it.
constexpr const char* kMarked = " marked";

std::string MarkIn(const Hands::Sight& sight) {
  const auto [first, last] = sight.Mark;
  const bool whole = first == 0 && last == static_cast<int>(sight.Text.size());
  return whole ? kMarked : kMarked + (" " + std::to_string(first)) + "-" + std::to_string(last);
}

// What the template says on a label or button. In memory nobody sees it: an empty one stands for that text.
std::string BlankText(const Form& form, const Control& control) {
  const bool has_text =
      dynamic_cast<const Label*>(&control) != nullptr || dynamic_cast<const Button*>(&control) != nullptr ||
      dynamic_cast<const OptionButton*>(&control) != nullptr || dynamic_cast<const Frame*>(&control) != nullptr;
  const auto& texts = Names::Of(Hands::TemplateOf(form)).Texts;
  const auto found = texts.find(control.Id());
  return !has_text || found == texts.end() ? "" : found->second;
}

// What is in a list or on a surface.
void SeeInside(const Control& control, const Hands::Sight& sight, std::map<std::string, std::string>& told) {
  Texts ticked;
  for (std::size_t at = 0; at < sight.Ticks.size(); ++at) {
    if (sight.Ticks[at]) ticked.push_back(sight.Entries[at]);
  }
  if (!ticked.empty()) told[" ticked"] = Joined(ticked);
  if (!sight.Entries.empty()) told[":"] = InLines(sight.Entries);
  const bool box =
      dynamic_cast<const ListBox*>(&control) != nullptr || dynamic_cast<const RowList*>(&control) != nullptr;
  if (box && sight.Selected >= 0) told[""] = Quoted(sight.Entries.at(static_cast<std::size_t>(sight.Selected)));
  const auto* surface = dynamic_cast<const Surface*>(&control);
  if (surface == nullptr) return;
  const Page page = Hands::PageOn(*surface);
  told["#"] = InLines(RowsOf(page, true));
  if (page.ShowsCaret) told[" caret"] = std::to_string(page.Caret.Column) + "," + std::to_string(page.Caret.Row);
  const int across = Hands::BarOn(*surface, Surface::Bar::Across), down = Hands::BarOn(*surface, Surface::Bar::Down);
  if (across >= 0) told[" across"] = std::to_string(across);
  if (down >= 0) told[" down"] = std::to_string(down);
}

std::set<std::string> MarksOf(const Control& control, const Hands::Sight& sight) {
  std::set<std::string> marks;
  const auto add = [&marks](bool holds, const char* word) {
    if (holds) marks.insert(word);
  };
  add(!sight.Enabled, "disabled");
  add(sight.Bold, "bold");
  if (const auto* label = dynamic_cast<const Label*>(&control)) add(label->Border(), "bordered");
  if (const auto* button = dynamic_cast<const Button*>(&control))
    add(button->BackColor() == BackColor::Marked, "marked");
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) add(option->Checked(), "chosen");
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) add(box->ReadOnly(), "read-only");
  if (const auto* picture = dynamic_cast<const Picture*>(&control)) add(!picture->Empty(), "with a picture");
  return marks;
}

}  // namespace

Recorder::State Recorder::BlankOf(const Form& form) {
  State state;
  for (const auto& [id, control] : Hands::ControlsOf(form)) {
    if (!BlankText(form, *control).empty()) state.Controls[id][""] = Quoted(BlankText(form, *control));
  }
  return state;
}

Recorder::State Recorder::StateOf(const Form& form, const State& before) {
  State state;
  state.Form = Hands::TemplateOf(form);
  state.Caption = form.Caption().empty() ? Names::Of(state.Form).Caption : form.Caption();
  const bool topmost = Hands::OpenForms().back() == &form;
  for (const auto& [id, control] : Hands::ControlsOf(form)) {
    const Hands::Sight sight = Hands::LookAt(*control);
    Aspects& told = state.Controls[id];
    if (!sight.Visible) {
      state.Marks.emplace("hidden", id);
      continue;
    }
    const std::string text = sight.Text.empty() ? BlankText(form, *control) : sight.Text;
    if (!text.empty()) told[""] = Quoted(text);
    const bool marked = topmost && sight.Focused && sight.Mark.first != sight.Mark.second;
    if (marked && !Names::Of(state.Form).Lines.contains(id)) told[""] += MarkIn(sight);
    if (!control->ToolTip().empty()) told[" tip"] = Quoted(control->ToolTip());
    SeeInside(*control, sight, told);
    for (const std::string& mark : MarksOf(*control, sight)) state.Marks.emplace(mark, id);
    if (topmost && sight.Focused) state.Marks.emplace("focus", id);
  }
  for (const auto& mark : before.Marks) {
    if (!topmost && mark.first == "focus") state.Marks.insert(mark);  // it waits there
  }
  for (const int item : Names::Of(state.Form).MenuItems) {
    // What an entry says that the program words itself, an act asks for.
    if (!form.MenuEnabled(item) && form.MenuText(item).empty()) state.Marks.emplace("greyed", item);
    if (form.MenuChecked(item)) state.Marks.emplace("checked", item);
  }
  return state;
}

void Recorder::LookAt(const Form& form) {
  const bool known = Knows(form);
  const auto opened = opened_.find(Hands::TemplateOf(form));
  State before = known ? forms_.at(&form) : opened == opened_.end() ? BlankOf(form) : opened->second;
  if (known) ForeseeAct(before);
  const State now = StateOf(form, before);
  if (!known) say_(Names::Of(now.Form).Name + " opens: " + now.Caption);
  if (known && before.Caption != now.Caption) Note("caption " + Quoted(now.Caption));
  Tell(before, now);
  forms_[&form] = now;
  if (!known) opened_[now.Form] = now;
}

void Recorder::ForeseeAct(State& before) const {
  if (!before.Controls.contains(foreseen_.Id)) return;
  Aspects& told = before.Controls.at(foreseen_.Id);
  if (foreseen_.Text) told[""] = Quoted(*foreseen_.Text);
  if (foreseen_.Text && foreseen_.Text->empty()) told.erase("");
  if (foreseen_.Marked && told.contains("") && !told[""].ends_with(kMarked)) told[""] += kMarked;
  std::erase_if(before.Marks, [](const auto& mark) { return mark.first == "focus"; });
  before.Marks.emplace("focus", foreseen_.Id);
}

namespace {

// What is new of a control, piece by piece; that a text is marked no longer is no news.
Texts NewsOf(std::map<std::string, std::string> before, std::map<std::string, std::string> now) {
  Texts news;
  for (const auto* aspects : {&before, &now}) {
    for (const auto& [what, text] : std::map(*aspects)) {
      before[what];
      now[what];
    }
  }
  for (const auto& [what, text] : now) {
    const std::string& old = before.at(what);
    if (old == text || old.starts_with(text + kMarked)) continue;
    if (what.empty()) {
      news.push_back(" " + (text.empty() ? Quoted("") : text));
    } else if (what == ":") {
      const bool joins = !news.empty() && news.back().starts_with(" \"");
      if (!joins) news.emplace_back();
      news.back() += ListNews(LinesIn(old), LinesIn(text));
    } else {
      news.push_back(what == "#" ? PageNews(LinesIn(old), LinesIn(text))
                                 : what + " " + (text.empty() ? "no more" : text));
    }
  }
  return news;
}

}  // namespace

void Recorder::Tell(const State& before, const State& now) {
  // Controls that say the same are named together; so are the texts of neighbours in a row.
  std::vector<std::pair<std::string, std::vector<int>>> lines;
  const auto add = [&](int id, const std::string& news) {
    const auto same = std::find_if(lines.begin(), lines.end(), [&](const auto& line) { return line.first == news; });
    if (same != lines.end()) return same->second.push_back(id);
    const bool is_text = news.starts_with(" \"") && !lines.empty() && lines.back().first.starts_with(" \"");
    if (!is_text || NamesOf(now.Form, {lines.back().second.back(), id}).find(',') != std::string::npos) {
      return lines.emplace_back(news, std::vector{id}), void();
    }
    lines.back().first += news;
    lines.back().second.push_back(id);
  };
  for (const auto& [id, told] : now.Controls) {
    if (now.Marks.contains({"hidden", id})) continue;
    const auto old = before.Controls.find(id);
    for (const std::string& news : NewsOf(old == before.Controls.end() ? Aspects() : old->second, told)) add(id, news);
  }
  for (const auto& [news, ids] : lines) Note(NamesOf(now.Form, ids) + news);
  TellMarks(before, now);
  Note("");
}

void Recorder::TellMarks(const State& before, const State& now) {
  std::map<std::string, std::pair<std::vector<int>, std::vector<int>>> lines;  // it is so; not any more
  for (const auto& [mark, id] : now.Marks) {
    if (!before.Marks.contains({mark, id})) lines[mark].first.push_back(id);
  }
  for (const auto& [mark, id] : before.Marks) {
    if (!now.Marks.contains({mark, id}) && mark != "focus") lines[mark].second.push_back(id);
  }
  for (const auto& [mark, ids] : lines) {
    const std::string gone = ids.second.empty() ? "" : "not " + NamesOf(now.Form, ids.second);
    Note(mark + ": " + NamesOf(now.Form, ids.first) + (ids.first.empty() || gone.empty() ? "" : ", ") + gone);
  }
}

void Recorder::Note(const std::string& raw) {
  const std::string news = plain_(raw);
  constexpr std::size_t kWidth = 114;
  if (!packed_.empty() && (news.empty() || packed_.size() + news.size() > kWidth)) say_(std::exchange(packed_, ""));
  if (!news.empty()) packed_ += (packed_.empty() ? "" : "; ") + news;
}

void Recorder::LookAround() {
  LookAtFiles();
  for (const std::string& line : Hands::StartedPrograms()) say_("starts " + line);
  const auto open = Hands::OpenForms();
  std::erase_if(forms_, [&](const auto& known) {
    const bool gone = std::find(open.begin(), open.end(), known.first) == open.end();
    if (gone) say_(Names::Of(known.second.Form).Name + " closes");
    return gone;
  });
  if (!open.empty() && !open.back()->Closed()) LookAt(*open.back());
  Note("");
  foreseen_ = {};
}
