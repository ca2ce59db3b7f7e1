// Putting into words what a person sees of forms: see recorder.h.
#include "support/recorder.h"

#include <algorithm>

#include "platform/controls.h"
#include "support/hands.h"
#include "support/names.h"
#include "support/page_text.h"
#include "support/rows.h"

namespace {

using Texts = std::vector<std::string>;
using Aspects = std::map<std::string, std::string>;

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

// The rows of a page that differ: "4: text / 5: text".
std::string RowNews(Texts before, Texts now) {
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

template <typename Map>
typename Map::mapped_type At(const Map& map, int id) {
  const auto found = map.find(id);
  return found == map.end() ? typename Map::mapped_type() : found->second;
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

void See(Aspects& told, bool is_so, const std::string& what, const std::string& how = "") {
  if (is_so) told[what] = what + (how.empty() ? "" : " " + how);
}

void SeePage(Aspects& told, const Surface& surface) {
  const Page page = Hands::PageOn(surface);
  const auto pair = [](int one, const char* between, int other) {
    return std::to_string(one) + between + std::to_string(other);
  };
  const int across = Hands::BarOn(surface, Surface::Bar::Across), down = Hands::BarOn(surface, Surface::Bar::Down);
  See(told, page.ShowsCaret, "caret", pair(page.Caret.Column, ",", page.Caret.Row));
  See(told, across >= 0, "across", std::to_string(across));
  See(told, down >= 0, "down", std::to_string(down));
  See(told, !page.Rules.empty(), "lines", RulesOf(page));
  See(told, page.HeadRows + page.LeftColumns > 0, "still",
      pair(page.HeadRows, " and ", page.LeftColumns) + " from " + std::to_string(page.LeftFrom));
  for (const std::string& row : RowsOf(page)) told["rows"] += row + "\n";
}

// What is told of any control but its text.
void SeeControl(Aspects& told, const Control& control, const Hands::Sight& sight) {
  for (const std::string& entry : sight.Entries) told[":"] += (entry.empty() ? "-" : entry) + "\n";
  const auto* button = dynamic_cast<const Button*>(&control);
  See(told, !sight.Ticked.empty(), "ticked", Joined(sight.Ticked, " | "));
  See(told, !control.ToolTip().empty(), "tip", Quoted(control.ToolTip()));
  See(told, !sight.Enabled, "disabled");
  See(told, sight.Bold, "bold");
  See(told, Holds(control, &Label::Border), "bordered");
  See(told, button != nullptr && button->BackColor() == BackColor::Marked, "lit");
  See(told, Holds(control, &OptionButton::Checked), "chosen");
  See(told, Holds(control, &TextBox::ReadOnly), "read-only");
  See(told, IsA<Picture>(control) && !Holds(control, &Picture::Empty), "with a picture");
  if (const auto* surface = dynamic_cast<const Surface*>(&control)) SeePage(told, *surface);
}

}  // namespace

// In memory nobody sees what the template says: an empty text stands for that.
Recorder::State Recorder::StateOf(const Form& form, const State& before) {
  const auto& names = Names::Of(Hands::TemplateOf(form));
  State state{Hands::TemplateOf(form), form.Caption().empty() ? names.Caption : form.Caption(), {}};
  const bool topmost = Hands::OpenForms().back() == &form;
  for (const auto& [id, control] : Hands::ControlsOf(form)) {
    const Hands::Sight sight = Hands::LookAt(*control);
    const Aspects old = At(before.Controls, id);
    Aspects& told = state.Controls[id];
    See(told, !sight.Visible, "hidden");
    if (!sight.Visible) continue;
    const bool picked = IsA<ListBox, RowList>(*control) && sight.Selected >= 0;
    const std::string text = picked ? sight.Entries.at(static_cast<std::size_t>(sight.Selected)) : sight.Text;
    if (!text.empty() && text != At(names.Texts, id)) told[""] = Quoted(text);
    SeeControl(told, *control, sight);
    // While another form is on top, the focus waits where it was.
    See(told, topmost ? sight.Focused : old.contains("focus"), "focus");
    const auto [first, last] = sight.Mark;
    const bool whole = first == 0 && last == static_cast<int>(sight.Text.size());
    See(told, topmost && sight.Focused && first != last && !names.Lines.contains(id), "marked",
        whole ? "" : std::to_string(first) + "-" + std::to_string(last));
  }
  for (const int item : names.MenuItems) {
    Aspects& told = state.Controls[item];
    const std::string text = form.MenuText(item);  // of those that the program words itself
    if (!text.empty()) told[""] = Quoted(text.substr(0, text.find('\t')));
    See(told, !form.MenuEnabled(item), "greyed");
    See(told, form.MenuChecked(item), "checked");
  }
  for (int item = Names::ControlOf("RecentItem"); !form.MenuText(item).empty(); ++item) {
    state.Controls[item][""] = Quoted(form.MenuText(item));
  }
  return state;
}

// What is new of a control whose template has that text, piece by piece. Where the focus went tells what it left.
Texts Recorder::NewsOf(Aspects before, Aspects now, const std::string& blank) {
  Texts news;
  const bool hidden = now.contains("hidden");  // nothing else is seen then
  for (const auto& [what, old] : before) now[what];
  const auto texts = [](const std::string& lines) { return Parts(lines.substr(0, lines.rfind('\n')), "\n"); };
  for (const auto& [what, is] : now) {
    const std::string& old = before[what];
    if (old == is || (hidden && what != "hidden")) continue;
    if (is.empty() && (what == "focus" || what == "marked")) continue;
    if (what == ":") {
      news.push_back(": " + (is.empty() ? "(none)" : Joined(texts(is), " | ")));
    } else if (what == "rows") {
      news.push_back(" " + RowNews(texts(old), texts(is)));
    } else {
      news.push_back(" " + (!is.empty() ? is : what.empty() ? Quoted(blank) : what + " no more"));
    }
  }
  return news;
}

void Recorder::LookAt(const Form& form) {
  const bool known = forms_.contains(&form);
  const State before = known ? forms_[&form] : opened_[Hands::TemplateOf(form)], now = StateOf(form, before);
  if (!known) {
    note_(Names::Of(now.Form).Name + " opens: " + now.Caption);
    opened_[now.Form] = now;
  } else if (before.Caption != now.Caption) {
    note_("caption " + Quoted(now.Caption));
  }
  Tell(before, now);
  forms_[&form] = now;
}

// Labels and pictures take no focus. What is picked is marked, and so is what stands in a box that gets the focus.
void Recorder::Foresee(const Control& control, const std::optional<std::string>& text) {
  if (IsA<Label, Picture>(control)) return;
  auto& controls = forms_[Hands::OpenForms().back()].Controls;
  for (auto& [id, told] : controls) told.erase("focus");
  Aspects& told = controls[control.Id()];
  told["focus"] = "focus";
  const auto entries = Hands::LookAt(control).Entries;
  if (!text || std::find(entries.begin(), entries.end(), *text) != entries.end()) told["marked"] = "marked";
  if (text && !IsA<CheckList>(control)) told[""] = text->empty() ? "" : Quoted(*text);
}

void Recorder::Tell(const State& before, const State& now) {
  // Controls that say the same are named together; so are the texts of neighbours in a row.
  std::vector<std::pair<std::string, std::vector<int>>> lines;
  const auto add = [&](int id, const std::string& news) {
    const auto is_text = [](const std::string& each) { return each.starts_with(" \""); };
    const auto joins = [&](const auto& line) {
      const int last = line.second.back();
      return line.first == news || (is_text(line.first) && is_text(news) && last == id - 1 &&
                                    NamesOf(now.Form, {last, id}).find(',') == std::string::npos);
    };
    const auto found = std::find_if(lines.begin(), lines.end(), joins);
    if (found == lines.end()) return lines.emplace_back(news, std::vector{id}), void();
    if (found->first != news) found->first += news;
    found->second.push_back(id);
  };
  for (const auto& [id, told] : now.Controls) {
    const std::string blank = At(Names::Of(now.Form).Texts, id);
    for (const std::string& news : NewsOf(At(before.Controls, id), told, blank)) add(id, news);
  }
  // What is told of the same ones follows behind one name.
  for (auto line = lines.begin(); line != lines.end();) {
    const auto first = line;
    std::string news = NamesOf(now.Form, first->second);
    for (; line != lines.end() && line->second == first->second; ++line) {
      news += (line == first || line->first.starts_with(':') ? "" : ",") + line->first;
    }
    note_(news);
  }
}

void Recorder::LookAround() {
  LookAtFiles();
  LookAtLocks();
  for (const std::string& news : Hands::MachineNews()) note_(news);
  LookAtDocument();
  const auto open = Hands::OpenForms();
  std::erase_if(forms_, [&](const auto& known) {
    const auto found = std::find(open.begin(), open.end(), known.first);
    const bool gone = found == open.end() || (*found)->Closed();
    if (gone) note_(Names::Of(known.second.Form).Name + " closes");
    return gone;
  });
  for (const Form* form : open) {
    if (!form->Closed()) LookAt(*form);
  }
}
