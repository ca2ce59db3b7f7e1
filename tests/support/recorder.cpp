// Putting into words what a person sees of forms: see recorder.h.
#include "support/recorder.h"

#include <algorithm>

#include "platform/controls.h"
#include "support/hands.h"
#include "support/names.h"
#include "support/page_text.h"

namespace {

using Texts = std::vector<std::string>;

constexpr const char* kIfs[] = {"bold",   "bordered",  "checked",        "chosen", "disabled", "focus",
                                "greyed", "read-only", "with a picture", "hidden", "lit"};
constexpr const char* kMarked = " marked";  // behind the text that it marks; " marked 1-5" for a part of it

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

// "a | b | c"; of many, the first one and the last.
std::string Joined(const Texts& texts, const char* between = " | ") {
  constexpr std::size_t kMany = 10;
  if (texts.size() > kMany) return texts.front() + " ... " + texts.back() + " (" + std::to_string(texts.size()) + ")";
  std::string line;
  for (const std::string& text : texts) line += (line.empty() ? "" : between) + text;
  return line.empty() ? "(none)" : line;
}

// Entries, those without a text counted: "(3)".
std::string Entries(const Texts& texts) {
  Texts parts;
  std::size_t empty = 0;
  for (std::size_t at = 0; at < texts.size(); ++at) {
    empty = texts[at].empty() ? empty + 1 : 0;
    if (empty > 1) parts.pop_back();
    parts.push_back(empty > 0 ? "(" + std::to_string(empty) + ")" : texts[at]);
  }
  return Joined(parts);
}

// The rows of a page that differ: "4: text / 5: text".
std::string PageNews(Texts before, Texts now) {
  before.resize(std::max(before.size(), now.size()));
  now.resize(before.size());
  Texts rows;
  for (std::size_t row = 0; row < now.size(); ++row) {
    if (before[row] != now[row]) rows.push_back(std::to_string(row) + ": " + now[row]);
  }
  return Joined(rows, " / ");
}

// "LetterLabel[A-Z]" for neighbours of a row.
std::string NamesOf(int form, const std::vector<int>& ids) {
  const auto& names = Names::Of(form).Controls;
  const auto name_of = [&](int id) { return names.contains(id) ? names.at(id) : std::to_string(id); };
  std::string line;
  for (std::size_t at = 0; at < ids.size(); ++at) {
    std::string name = name_of(ids[at]);
    const std::string row = name.substr(0, name.find('[') + 1);
    const std::size_t first = at;
    while (!row.empty() && at + 1 < ids.size() && ids[at + 1] == ids[at] + 1 && name_of(ids[at + 1]).starts_with(row)) {
      ++at;
    }
    if (at > first) name.replace(name.size() - 1, 1, "-" + name_of(ids[at]).substr(row.size()));
    line += (line.empty() ? "" : ", ") + name;
  }
  return line;
}

template <typename... Kinds>
bool IsA(const Control& control) {
  return (... || (dynamic_cast<const Kinds*>(&control) != nullptr));
}

template <typename Kind>
bool Holds(const Control& control, bool (Kind::*holds)() const) {
  const auto* kind = dynamic_cast<const Kind*>(&control);
  return kind != nullptr && (kind->*holds)();
}

// What the template says on a label or button. In memory nobody sees it: an empty one stands for that text.
std::string BlankText(const Form& form, const Control& control) {
  const auto& texts = Names::Of(Hands::TemplateOf(form)).Texts;
  const auto found = texts.find(control.Id());
  return !IsA<Label, Button, OptionButton, Frame>(control) || found == texts.end() ? "" : found->second;
}

// What is in a list or on a surface, and what is so of any control.
void SeeInside(const Control& control, const Hands::Sight& sight, std::map<std::string, Texts>& told) {
  if (const Texts ticked = sight.TickedEntries(); !ticked.empty()) told[" ticked"] = {Entries(ticked)};
  if (!sight.Entries.empty()) told[":"] = sight.Entries;
  if (IsA<ListBox, RowList>(control) && sight.Selected >= 0) {
    told[""] = {Quoted(sight.Entries.at(static_cast<std::size_t>(sight.Selected)))};
  }
  if (const auto* surface = dynamic_cast<const Surface*>(&control)) {
    const Page page = Hands::PageOn(*surface);
    told["#"] = RowsOf(page, true);
    if (page.ShowsCaret) told[" caret"] = {std::to_string(page.Caret.Column) + "," + std::to_string(page.Caret.Row)};
    const int across = Hands::BarOn(*surface, Surface::Bar::Across), down = Hands::BarOn(*surface, Surface::Bar::Down);
    if (across >= 0) told[" across"] = {std::to_string(across)};
    if (down >= 0) told[" down"] = {std::to_string(down)};
  }
  const auto* button = dynamic_cast<const Button*>(&control);
  const std::pair<const char*, bool> ifs[] = {
      {"disabled", !sight.Enabled},
      {"bold", sight.Bold},
      {"bordered", Holds(control, &Label::Border)},
      {"lit", button != nullptr && button->BackColor() == BackColor::Marked},
      {"chosen", Holds(control, &OptionButton::Checked)},
      {"read-only", Holds(control, &TextBox::ReadOnly)},
      {"with a picture", IsA<Picture>(control) && !Holds(control, &Picture::Empty)}};
  for (const auto& [word, holds] : ifs) {
    if (holds) told[word];
  }
}

}  // namespace

Recorder::State Recorder::BlankOf(const Form& form) {
  State state;
  for (const auto& [id, control] : Hands::ControlsOf(form)) {
    if (!BlankText(form, *control).empty()) state.Controls[id][""] = {Quoted(BlankText(form, *control))};
  }
  return state;
}

Recorder::State Recorder::StateOf(const Form& form, const State& before) {
  const auto& names = Names::Of(Hands::TemplateOf(form));
  State state{Hands::TemplateOf(form), form.Caption().empty() ? names.Caption : form.Caption(), {}};
  const bool topmost = Hands::OpenForms().back() == &form;
  for (const auto& [id, control] : Hands::ControlsOf(form)) {
    const Hands::Sight sight = Hands::LookAt(*control);
    Aspects& told = state.Controls[id];
    if (!sight.Visible) {
      told["hidden"];
      continue;
    }
    std::string text = sight.Text.empty() ? BlankText(form, *control) : sight.Text;
    if (!text.empty()) text = Quoted(text);
    const auto [first, last] = sight.Mark;
    if (topmost && sight.Focused && first != last && !names.Lines.contains(id)) {
      const bool whole = first == 0 && last == static_cast<int>(sight.Text.size());
      text += kMarked + (whole ? "" : " " + std::to_string(first) + "-" + std::to_string(last));
    }
    if (!text.empty()) told[""] = {text};
    if (!control->ToolTip().empty()) told[" tip"] = {Quoted(control->ToolTip())};
    SeeInside(*control, sight, told);
    // While another form is on top, it waits where it was.
    const auto old = before.Controls.find(id);
    if (topmost ? sight.Focused : old != before.Controls.end() && old->second.contains("focus")) told["focus"];
  }
  for (const int item : names.MenuItems) {
    Aspects& told = state.Controls[item];
    const std::string text = form.MenuText(item);  // of those that the program words itself
    if (!text.empty()) told[""] = {Quoted(text.substr(0, text.find('\t')))};
    if (!form.MenuEnabled(item)) told["greyed"];
    if (form.MenuChecked(item)) told["checked"];
  }
  return state;
}

// What is new of a control, piece by piece; that a text is marked no longer is no news.
Texts Recorder::NewsOf(const Aspects& before, const Aspects& now) {
  Aspects all = now;
  all.insert(before.begin(), before.end());
  Texts news;
  for (const auto& [what, either] : all) {
    const Texts old = before.contains(what) ? before.at(what) : Texts(), is = now.contains(what) ? either : Texts();
    const std::string text = is.empty() ? "" : is.front();
    if (old == is || (what.empty() && !old.empty() && old.front().starts_with(text + kMarked))) continue;
    if (what == ":") {
      if (news.empty() || !news.back().starts_with(" \"")) news.emplace_back();
      news.back() += ": " + Entries(is);
    } else if (what == "#") {
      news.push_back(" " + PageNews(old, is));
    } else {
      news.push_back(what + " " + (!is.empty() ? text : what.empty() ? Quoted("") : "no more"));
    }
  }
  return news;
}

void Recorder::LookAt(const Form& form) {
  const bool known = Knows(form);
  const auto opened = opened_.find(Hands::TemplateOf(form));
  State before = known ? forms_.at(&form) : opened == opened_.end() ? BlankOf(form) : opened->second;
  if (known && foreseen_ && before.Controls.contains(foreseen_->first)) {
    for (auto& [id, told] : before.Controls) told.erase("focus");
    for (const auto& [what, text] : foreseen_->second) before.Controls[foreseen_->first][what] = text;
  }
  const State now = StateOf(form, before);
  if (!known) Note(Names::Of(now.Form).Name + " opens: " + now.Caption);
  if (known && before.Caption != now.Caption) Note("caption " + Quoted(now.Caption));
  Tell(before, now);
  forms_[&form] = now;
  if (!known) opened_[now.Form] = now;
}

// Labels and pictures take no focus. What is picked is marked, and so is what comes to a box that gets the focus.
void Recorder::Foresee(const Control& control, const std::optional<std::string>& text) {
  if (IsA<Label, Picture>(control)) return;
  const Hands::Sight sight = Hands::LookAt(control);
  const bool picked = text && std::count(sight.Entries.begin(), sight.Entries.end(), *text) != 0;
  foreseen_.emplace(control.Id(), Aspects{{"focus", {}}});
  if (IsA<CheckList>(control) || (!text && !IsA<TextBox, ComboBox>(control))) return;
  const std::string shown = text.value_or(sight.Text);
  foreseen_->second[""] = shown.empty() ? Texts() : Texts{Quoted(shown) + (picked || !text ? kMarked : "")};
}

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
  std::map<std::string, std::vector<int>> come, gone;  // what is so now, and what no more
  for (const auto& [id, told] : now.Controls) {
    const auto old = before.Controls.find(id);
    const Aspects were = old == before.Controls.end() ? Aspects() : old->second;
    for (const char* what : kIfs) {
      if (told.contains(what) != were.contains(what)) (told.contains(what) ? come : gone)[what].push_back(id);
    }
    if (!told.contains("hidden")) {
      for (const std::string& news : NewsOf(were, told)) add(id, news);
    }
  }
  for (const auto& [news, ids] : lines) Note(NamesOf(now.Form, ids) + news);
  gone.erase("focus");
  for (const std::string what : kIfs) {
    const std::string are = NamesOf(now.Form, come[what]), are_not = NamesOf(now.Form, gone[what]);
    if ((are + are_not).empty()) continue;
    Note(what + ": " + are + (are.empty() || are_not.empty() ? "" : ", ") + (are_not.empty() ? "" : "not " + are_not));
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
  LookAtLocks();
  for (const std::string& news : Hands::MachineNews()) Note(news);
  LookAtDocument();
  const auto open = Hands::OpenForms();
  std::erase_if(forms_, [&](const auto& known) {
    const bool gone = std::find(open.begin(), open.end(), known.first) == open.end();
    if (gone) Note(Names::Of(known.second.Form).Name + " closes");
    return gone;
  });
  if (!open.empty() && !open.back()->Closed()) LookAt(*open.back());
  Note("");
  foreseen_.reset();
}
