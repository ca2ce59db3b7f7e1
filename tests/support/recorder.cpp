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
using Aspects = std::map<std::string, std::string>;

constexpr const char* kIfs[] = {"bold",   "bordered",  "checked",        "chosen", "disabled", "focus",
                                "greyed", "read-only", "with a picture", "hidden", "lit"};
constexpr const char* kMarked = " marked";  // behind the text that it marks; " marked 1-5" for a part of it

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
  constexpr int kMany = 10;
  std::string line;
  int parts = 0;
  for (std::size_t at = 0; at < texts.size(); ++at, ++parts) {
    std::size_t empty = 0;
    while (at + empty < texts.size() && texts[at + empty].empty()) ++empty;
    line += (line.empty() ? "" : " | ") + (empty == 0 ? texts[at] : "(" + std::to_string(empty) + ")");
    if (empty != 0) at += empty - 1;
  }
  if (parts > kMany) return texts.front() + " ... " + texts.back() + " (" + std::to_string(texts.size()) + ")";
  return line.empty() ? "(none)" : line;
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

template <typename... Kinds>
bool IsA(const Control& control) {
  return (... || (dynamic_cast<const Kinds*>(&control) != nullptr));
}

// What the template says on a label or button. In memory nobody sees it: an empty one stands for that text.
std::string BlankText(const Form& form, const Control& control) {
  const auto& texts = Names::Of(Hands::TemplateOf(form)).Texts;
  const auto found = texts.find(control.Id());
  return !IsA<Label, Button, OptionButton, Frame>(control) || found == texts.end() ? "" : found->second;
}

// What is in a list or on a surface.
void SeeInside(const Control& control, const Hands::Sight& sight, Aspects& told) {
  Texts ticked;
  for (std::size_t at = 0; at < sight.Ticks.size(); ++at) {
    if (sight.Ticks[at]) ticked.push_back(sight.Entries[at]);
  }
  if (!ticked.empty()) told[" ticked"] = Joined(ticked);
  if (!sight.Entries.empty()) told[":"] = InLines(sight.Entries);
  if ((IsA<ListBox, RowList>(control)) && sight.Selected >= 0) {
    told[""] = Quoted(sight.Entries.at(static_cast<std::size_t>(sight.Selected)));
  }
  const auto* surface = dynamic_cast<const Surface*>(&control);
  if (surface == nullptr) return;
  const Page page = Hands::PageOn(*surface);
  told["#"] = InLines(RowsOf(page, true));
  if (page.ShowsCaret) told[" caret"] = std::to_string(page.Caret.Column) + "," + std::to_string(page.Caret.Row);
  for (const auto& [bar, word] : {std::pair(Surface::Bar::Across, " across"), std::pair(Surface::Bar::Down, " down")}) {
    if (const int at = Hands::BarOn(*surface, bar); at >= 0) told[word] = std::to_string(at);
  }
}

// What is so of it.
void SeeIfs(const Control& control, const Hands::Sight& sight, Aspects& told) {
  const auto* label = dynamic_cast<const Label*>(&control);
  const auto* button = dynamic_cast<const Button*>(&control);
  const auto* option = dynamic_cast<const OptionButton*>(&control);
  const auto* box = dynamic_cast<const TextBox*>(&control);
  const auto* picture = dynamic_cast<const Picture*>(&control);
  const std::pair<const char*, bool> all[] = {{"disabled", !sight.Enabled},
                                              {"bold", sight.Bold},
                                              {"bordered", label != nullptr && label->Border()},
                                              {"lit", button != nullptr && button->BackColor() == BackColor::Marked},
                                              {"chosen", option != nullptr && option->Checked()},
                                              {"read-only", box != nullptr && box->ReadOnly()},
                                              {"with a picture", picture != nullptr && !picture->Empty()}};
  for (const auto& [word, holds] : all) {
    if (holds) told[word];
  }
}

// What is new of a control, piece by piece; that a text is marked no longer is no news.
Texts NewsOf(Aspects before, Aspects now) {
  Texts news;
  for (const auto& [what, text] : Aspects(before)) now[what];
  for (const auto& [what, text] : now) {
    const std::string old = before[what];
    if (old == text || old.starts_with(text + kMarked)) continue;
    if (what.empty()) {
      news.push_back(" " + (text.empty() ? Quoted("") : text));
    } else if (what == ":") {
      if (news.empty() || !news.back().starts_with(" \"")) news.emplace_back();
      news.back() += ": " + Joined(LinesIn(text));
    } else {
      news.push_back(what == "#" ? PageNews(LinesIn(old), LinesIn(text))
                                 : what + " " + (text.empty() ? "no more" : text));
    }
  }
  return news;
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
    const std::string text = sight.Text.empty() ? BlankText(form, *control) : sight.Text;
    if (!text.empty()) told[""] = Quoted(text);
    const auto [first, last] = sight.Mark;
    if (topmost && sight.Focused && first != last && !names.Lines.contains(id)) {
      const bool whole = first == 0 && last == static_cast<int>(sight.Text.size());
      told[""] += kMarked + (whole ? "" : " " + std::to_string(first) + "-" + std::to_string(last));
    }
    if (!control->ToolTip().empty()) told[" tip"] = Quoted(control->ToolTip());
    SeeInside(*control, sight, told);
    SeeIfs(*control, sight, told);
    // While another form is on top, it waits where it was.
    const auto old = before.Controls.find(id);
    if (topmost ? sight.Focused : old != before.Controls.end() && old->second.contains("focus")) told["focus"];
  }
  for (const int item : names.MenuItems) {
    const std::string text = form.MenuText(item);  // of those that the program words itself
    if (!text.empty()) state.Controls[item][""] = Quoted(text.substr(0, text.find('\t')));
    if (!form.MenuEnabled(item)) state.Controls[item]["greyed"];
    if (form.MenuChecked(item)) state.Controls[item]["checked"];
  }
  return state;
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
  foreseen_.emplace(control.Id(), Aspects{{"focus", ""}});
  if (IsA<CheckList>(control)) return;
  const std::string shown = text.value_or(sight.Text);
  if (text || IsA<TextBox, ComboBox>(control)) {
    foreseen_->second[""] = shown.empty() ? "" : Quoted(shown) + (picked || !text ? kMarked : "");
  }
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
  for (const auto& [id, told] : now.Controls) {
    const auto old = before.Controls.find(id);
    if (told.contains("hidden")) continue;
    for (const std::string& news : NewsOf(old == before.Controls.end() ? Aspects() : old->second, told)) add(id, news);
  }
  for (const auto& [news, ids] : lines) Note(NamesOf(now.Form, ids) + news);
  for (const char* what : kIfs) TellIf(what, before, now);
}

// Of which controls it is so now, and of which not any more.
void Recorder::TellIf(const std::string& what, const State& before, const State& now) {
  const auto news = [&](const State& here, const State& there) {
    std::vector<int> ids;
    for (const auto& [id, told] : here.Controls) {
      const auto other = there.Controls.find(id);
      if (told.contains(what) && (other == there.Controls.end() || !other->second.contains(what))) ids.push_back(id);
    }
    return NamesOf(now.Form, ids);
  };
  const std::string come = news(now, before), gone = what == "focus" ? "" : news(before, now);
  if (come.empty() && gone.empty()) return;
  Note(what + ": " + come + (come.empty() || gone.empty() ? "" : ", ") + (gone.empty() ? "" : "not " + gone));
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
