// Putting into words what a person sees: see recorder.h.
#include "support/recorder.h"

#include <algorithm>
#include <sstream>

#include "document/document.h"
#include "platform/controls.h"
#include "platform/lists.h"
#include "platform/surface.h"
#include "support/files.h"
#include "support/fresh_test.h"
#include "support/hands.h"
#include "support/names.h"
#include "viewer/page_text.h"

namespace {

using Texts = std::vector<std::string>;

constexpr std::size_t kLongList = 100;  // characters

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

// "a | b | (3) | c": entries without a text are counted.
std::string Joined(const Texts& texts) {
  std::string line;
  for (std::size_t at = 0; at < texts.size(); ++at) {
    std::size_t empty = 0;
    while (at + empty < texts.size() && texts[at + empty].empty()) ++empty;
    if (!line.empty()) line += " | ";
    line += empty == 0 ? texts[at] : "(" + std::to_string(empty) + ")";
    if (empty != 0) at += empty - 1;
  }
  return line.empty() ? "(none)" : line;
}

// What came and went, with the places from 1 on: "+ 2 Fork | 4 Spade", "- 5 Zoo"; a short list whole.
Texts Change(const Texts& before, const Texts& now) {
  if (Joined(now).size() <= kLongList) return {": " + Joined(now)};
  Texts came, went;
  std::size_t at = 0;
  for (std::size_t place = 0; place < now.size(); ++place) {
    const auto found = std::find(before.begin() + static_cast<std::ptrdiff_t>(at), before.end(), now[place]);
    if (found == before.end()) {
      came.push_back(std::to_string(place + 1) + " " + now[place]);
      continue;
    }
    for (; before.begin() + static_cast<std::ptrdiff_t>(at) != found; ++at) {
      went.push_back(std::to_string(at + 1) + " " + before[at]);
    }
    ++at;
  }
  for (; at < before.size(); ++at) went.push_back(std::to_string(at + 1) + " " + before[at]);
  Texts lines;
  for (const auto& [sign, which] : {std::pair(" + ", &came), std::pair(" - ", &went)}) {
    constexpr std::size_t kMost = 6;
    const std::size_t more = which->size() > kMost ? which->size() - kMost : 0;
    which->resize(which->size() - more);
    if (!which->empty())
      lines.push_back(sign + Joined(*which) + (more ? " and " + std::to_string(more) + " more" : ""));
  }
  return lines;
}

// The rows of a page that differ: " 4: text / 5: text"; of many, the first ones and the last.
Texts PageChange(const Texts& before, const Texts& now) {
  constexpr std::size_t kWidth = 100, kMost = 10, kFirst = 2;
  Texts rows, lines;
  for (std::size_t row = 0; row < std::max(before.size(), now.size()); ++row) {
    const std::string old = row < before.size() ? before[row] : "", text = row < now.size() ? now[row] : "";
    if (old != text) rows.push_back(" " + std::to_string(row) + ": " + text);
  }
  if (rows.size() > kMost) {
    const std::string last = rows.back() + " (" + std::to_string(rows.size()) + " rows)";
    rows.resize(kFirst);
    rows.push_back(last);
  }
  for (const std::string& row : rows) {
    if (lines.empty() || lines.back().size() + row.size() > kWidth) {
      lines.push_back(row);
    } else {
      lines.back() += " /" + row;
    }
  }
  return lines;
}

// "LetterLabel[A-Z]" for neighbours of a row.
std::string NamesOf(int form, const std::vector<int>& ids) {
  std::string line;
  for (std::size_t at = 0; at < ids.size(); ++at) {
    std::string name = Names::OfControl(form, ids[at]);
    std::size_t last = at;
    while (name.ends_with(']') && last + 1 < ids.size() && ids[last + 1] == ids[last] + 1 &&
           Names::OfControl(form, ids[last + 1]).starts_with(name.substr(0, name.find('[') + 1))) {
      ++last;
    }
    if (last != at) {
      const std::string end = Names::OfControl(form, ids[last]);
      name = name.substr(0, name.size() - 1) + "-" + end.substr(end.find('[') + 1);
    }
    line += (line.empty() ? "" : ", ") + name;
    at = last;
  }
  return line;
}

bool FollowsInRow(int form, int id, const std::vector<int>& next) {
  return next.size() == 1 && next[0] == id + 1 && NamesOf(form, {id, id + 1}).find(',') == std::string::npos;
}

// What a list or surface shows beside its text; gives its entries or rows.
Texts SeeInside(const Control& control, const Hands::Sight& sight, std::map<std::string, std::string>& told) {
  Texts ticked;
  for (std::size_t at = 0; at < sight.Ticks.size(); ++at) {
    if (sight.Ticks[at]) ticked.push_back(sight.Entries[at]);
  }
  if (!ticked.empty()) told[" ticked"] = Joined(ticked);
  const bool box = dynamic_cast<const ListBox*>(&control) != nullptr;
  if (box && sight.Selected >= 0) told[""] = Quoted(sight.Entries.at(static_cast<std::size_t>(sight.Selected)));
  const auto* surface = dynamic_cast<const Surface*>(&control);
  if (surface == nullptr) return sight.Entries;
  const Page page = Hands::PageOn(*surface);
  if (page.ShowsCaret) told[" caret"] = std::to_string(page.Caret.Column) + "," + std::to_string(page.Caret.Row);
  for (const auto& [bar, name] : {std::pair(Surface::Bar::Across, " across"), std::pair(Surface::Bar::Down, " down")}) {
    const int position = Hands::BarOn(*surface, bar);
    if (position >= 0) told[name] = std::to_string(position);
  }
  return RowsOfPage(page);
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

// Behind the text that it marks: " marked", or " marked 1-5" for a part of it.
constexpr const char* kMarked = " marked";

std::string MarkIn(const Hands::Sight& sight) {
  const auto [first, last] = sight.Mark;
  const bool whole = first == 0 && last == static_cast<int>(sight.Text.size());
  return whole ? kMarked : kMarked + (" " + std::to_string(first)) + "-" + std::to_string(last);
}

bool HasTemplateText(const Control& control) {
  return dynamic_cast<const Label*>(&control) != nullptr || dynamic_cast<const Button*>(&control) != nullptr ||
         dynamic_cast<const OptionButton*>(&control) != nullptr || dynamic_cast<const Frame*>(&control) != nullptr;
}

}  // namespace

std::vector<std::string> RowsOfPage(const Page& page) { return RowsOf(page, true); }

Recorder::State Recorder::BlankOf(const Form& form) {
  State state;
  for (const auto& [id, control] : Hands::ControlsOf(form)) {
    const std::string caption = HasTemplateText(*control) ? Names::Caption(Hands::TemplateOf(form), id) : "";
    if (!caption.empty()) state.Controls[id][""] = Quoted(caption);
  }
  return state;
}

Recorder::State Recorder::StateOf(const Form& form, const State& before) {
  State state;
  const int form_id = state.Form = Hands::TemplateOf(form);
  state.Caption = form.Caption().empty() ? Names::Caption(form_id, 0) : form.Caption();
  const bool topmost = !Hands::OpenForms().empty() && Hands::OpenForms().back() == &form;
  for (const auto& [id, control] : Hands::ControlsOf(form)) {
    const Hands::Sight sight = Hands::LookAt(*control);
    auto& told = state.Controls[id];
    if (!sight.Visible) {
      state.Marks.emplace("hidden", id);
      continue;
    }
    // In memory nobody sees what the template says: an empty label stands for its text.
    const std::string blank = HasTemplateText(*control) ? Names::Caption(form_id, id) : "";
    if (!sight.Text.empty() || !blank.empty()) told[""] = Quoted(sight.Text.empty() ? blank : sight.Text);
    const bool marked = topmost && sight.Focused && sight.Mark.first != sight.Mark.second;
    if (marked && !Names::HasLines(form_id, id)) told[""] += MarkIn(sight);
    if (!control->ToolTip().empty()) told[" tip"] = Quoted(control->ToolTip());
    state.Lists[id] = SeeInside(*control, sight, told);
    if (dynamic_cast<const Surface*>(control) != nullptr) state.Pages.insert(id);
    for (const std::string& mark : MarksOf(*control, sight)) state.Marks.emplace(mark, id);
    if (topmost && sight.Focused) state.Marks.emplace("focus", id);
  }
  for (const auto& mark : before.Marks) {
    if (!topmost && mark.first == "focus") state.Marks.insert(mark);  // it waits there
  }
  for (const int item : Names::MenuItems(form_id)) {
    if (!form.MenuEnabled(item)) state.Marks.emplace("greyed", item);
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
  if (!known) say_(Names::OfForm(Hands::TemplateOf(form)) + " opens: " + now.Caption);
  if (known && before.Caption != now.Caption) Pack("caption " + Quoted(now.Caption));
  Tell(before, now);
  forms_[&form] = now;
  if (!known) opened_[Hands::TemplateOf(form)] = now;
}

void Recorder::ForeseeAct(State& before) const {
  if (!before.Controls.contains(foreseen_.Id)) return;
  auto& told = before.Controls.at(foreseen_.Id);
  if (foreseen_.Text) told[""] = Quoted(*foreseen_.Text);
  if (foreseen_.Text && foreseen_.Text->empty()) told.erase("");
  if (foreseen_.Marked && told.contains("") && !told[""].ends_with(kMarked)) told[""] += kMarked;
  std::erase_if(before.Marks, [](const auto& mark) { return mark.first == "focus"; });
  before.Marks.emplace("focus", foreseen_.Id);
}

void Recorder::Tell(const State& before, const State& now) {
  // Controls that say the same are named together.
  std::vector<std::pair<std::string, std::vector<int>>> lines;
  const auto add = [&lines](int id, const std::string& line) {
    for (auto& [text, ids] : lines) {
      if (text == line) return ids.push_back(id);
    }
    lines.emplace_back(line, std::vector<int>{id});
  };
  for (const auto& [id, told] : now.Controls) {
    if (now.Marks.contains({"hidden", id})) continue;
    const Texts old_list = before.Lists.contains(id) ? before.Lists.at(id) : Texts();
    auto old = before.Controls.contains(id) ? before.Controls.at(id) : std::map<std::string, std::string>();
    Texts changes{""};
    const bool only_unmarked = told.contains("") && old[""].starts_with(told.at("") + kMarked);
    const std::string text = told.contains("") ? told.at("") : old[""].empty() ? "" : Quoted("");
    if (old[""] != text && !only_unmarked) changes[0] = " " + text;
    if (old_list != now.Lists.at(id)) {
      const bool page = now.Pages.contains(id);
      for (const std::string& line :
           page ? PageChange(old_list, now.Lists.at(id)) : Change(old_list, now.Lists.at(id))) {
        if (changes.size() > 1 || line[0] != ':') changes.emplace_back();
        changes.back() += line;
      }
    }
    for (const auto& [what, tells] : told) {
      if (!what.empty() && old[what] != tells) changes.push_back(what + " " + tells);
    }
    for (const auto& [what, tells] : old) {
      if (!what.empty() && !told.contains(what)) changes.push_back(what + " no more");
    }
    for (const std::string& line : changes) {
      if (!line.empty()) add(id, line);
    }
  }
  for (std::size_t at = 0; at < lines.size(); ++at) {
    auto& [text, ids] = lines[at];
    while (at + 1 < lines.size() && FollowsInRow(now.Form, ids.back(), lines[at + 1].second) &&
           text.starts_with(" \"")) {
      ids.push_back(lines[at + 1].second[0]);
      text += lines[at + 1].first;
      lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(at) + 1);
    }
    Pack(NamesOf(now.Form, ids) + text);
  }
  TellMarks(before, now);
  Pack("");
}

// Short news share a line; none says what has been gathered.
void Recorder::Pack(const std::string& raw) {
  const std::string news = plain_(raw);
  constexpr std::size_t kWidth = 114;
  if (!packed_.empty() && (news.empty() || packed_.size() + news.size() > kWidth)) say_(std::exchange(packed_, ""));
  if (!news.empty()) packed_ += (packed_.empty() ? "" : "; ") + news;
}

// Its text is marked, which tells that it has the focus.
bool Recorder::IsMarked(const State& state, int id) {
  const auto told = state.Controls.find(id);
  return told != state.Controls.end() && told->second.contains("") &&
         told->second.at("").find(std::string("\"") + kMarked) != std::string::npos;
}

void Recorder::TellMarks(const State& before, const State& now) {
  std::map<std::string, std::pair<std::vector<int>, std::vector<int>>> lines;  // it is so; not any more
  for (const auto& [mark, id] : now.Marks) {
    const bool said = mark == "focus" && IsMarked(now, id) && !IsMarked(before, id);
    if (!before.Marks.contains({mark, id}) && !said) lines[mark].first.push_back(id);
  }
  for (const auto& [mark, id] : before.Marks) {
    if (!now.Marks.contains({mark, id}) && mark != "focus") lines[mark].second.push_back(id);
  }
  for (const auto& [mark, ids] : lines) {
    const bool both = !ids.first.empty() && !ids.second.empty();
    Pack(mark + ": " + NamesOf(now.Form, ids.first) + (both ? ", " : "") +
         (ids.second.empty() ? "" : "not " + NamesOf(now.Form, ids.second)));
  }
}

void Recorder::TellAll(const Form& form, int id) {
  const State state = StateOf(form, {});
  if (!state.Controls.contains(id)) return say_("there is no " + Names::OfControl(state.Form, id));
  const auto& told = state.Controls.at(id);
  for (const auto& [what, text] : told) say_(Names::OfControl(state.Form, id) + what + " " + text);
  for (const std::string& entry : state.Lists.at(id)) say_("| " + entry);
}

void Recorder::LookAround() {
  LookAtFiles();
  for (const std::string& line : Hands::StartedPrograms()) say_("starts " + line);
  const auto open = Hands::OpenForms();
  std::erase_if(forms_, [&](const auto& known) {
    const bool gone = std::find(open.begin(), open.end(), known.first) == open.end();
    if (gone) say_(Names::OfForm(known.second.Form) + " closes");
    return gone;
  });
  if (!open.empty() && !open.back()->Closed()) LookAt(*open.back());
  foreseen_ = {};
}

void Recorder::LookAtFiles() {
  std::map<std::string, std::string> now;
  for (const std::string& folder : folders_) {
    for (const std::string& name : TestFiles::List(folder)) {
      const std::string path = folder.empty() ? name : folder + "\\" + name;
      now[path] = TestFiles::Get(path).value_or(files_[path]);  // nobody can read it
    }
  }
  auto gone = files_;
  for (const auto& [name, bytes] : now) gone.erase(name);
  for (const auto& [name, bytes] : now) {
    const auto old = files_.find(name);
    if (old != files_.end() && old->second == bytes) continue;
    const std::string& same = bytes;
    const auto from = std::find_if(gone.begin(), gone.end(), [&](const auto& each) { return each.second == same; });
    const auto kept = std::find_if(files_.begin(), files_.end(), [&](const auto& each) {
      return each.second == same && now.contains(each.first) && now.at(each.first) != same;
    });
    if (from != gone.end()) {
      say_("file " + from->first + " is now " + name);
      gone.erase(from);
    } else if (kept != files_.end()) {
      say_("file " + name + (old == files_.end() ? " came" : " written") + ", what " + kept->first + " was");
    } else {
      say_("file " + name + (old == files_.end() ? " came" : " written"));
    }
  }
  for (const auto& [name, bytes] : gone) say_("file " + name + " is gone");
  files_ = std::move(now);
}

void Recorder::LookAtDocument() {
  std::map<std::string, std::string> now;
  const Document& document = TheDocument;
  std::string flags;
  for (const auto& [holds, word] :
       {std::pair(document.Modified, " modified"), std::pair(!document.Writable, " read-only"),
        std::pair(document.LockHeld, " locked"), std::pair(document.PendingEdits, " pending"),
        std::pair(document.DocumentOpen, " open")}) {
    if (holds) flags += word;
  }
  now[" document"] = " current " + std::to_string(document.CurrentThing) + flags + " <" + document.FileName + ">";
  if (document.ShownFileName != document.FileName) now[" document"] += " shown <" + document.ShownFileName + ">";
  std::istringstream lines(DescribeDocument());
  for (std::string line; std::getline(lines, line);) {
    if (line.find(' ', line.find(' ') + 1) == std::string::npos) continue;  // an unused category
    const std::size_t number = line.find(' ');
    const std::size_t end = std::min(line.find(' ', number + 1), line.size());
    const std::string key =
        line.substr(0, number) + (end - number == 2 ? "  " : " ") + line.substr(number + 1, end - number - 1);
    now[key] = line.substr(end);
  }
  const auto shown = [](std::string key) {
    key.erase(0, key.find_first_not_of(' '));
    if (const std::size_t wide = key.find("  "); wide != std::string::npos) key.erase(wide, 1);
    return key;
  };
  for (const auto& [key, text] : now) {
    if (!document_.contains(key) || document_.at(key) != text) say_(shown(key) + text);
  }
  std::string gone;
  for (const auto& [key, text] : document_) {
    if (!now.contains(key)) gone += (gone.empty() ? "no " : ", ") + shown(key);
  }
  if (!gone.empty()) say_(gone);
  document_ = std::move(now);
}
