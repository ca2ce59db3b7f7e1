// A test's person: finds what is to be acted on, looks whether that can be done, and lets the hands do it; matches what
// comes up with what was expected.
#include "support/user.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "platform/controls.h"

namespace {

// What no person could do; it fails the test.
struct Impossible : std::runtime_error {
  using std::runtime_error::runtime_error;
};

Form& Topmost() {
  const std::vector<Form*> open = Hands::OpenForms();
  if (open.empty() || open.back()->Closed()) throw Impossible("No form is open");
  return *open.back();
}

Control& Find(int id) {
  const auto& controls = Hands::ControlsOf(Topmost());
  const auto found = controls.find(id);
  if (found == controls.end()) throw Impossible("The form has no control " + std::to_string(id));
  return *found->second;
}

// The same, for acting: it must be one of these kinds, visible and enabled; the focus moves there.
template <typename... Kinds>
Control& Reach(int id) {
  Control& control = Find(id);
  const Hands::Sight sight = Hands::LookAt(control);
  const bool fits = sizeof...(Kinds) == 0 || (... || (dynamic_cast<Kinds*>(&control) != nullptr));
  const char* why = !fits ? "of another kind" : !sight.Visible ? "hidden" : !sight.Enabled ? "disabled" : nullptr;
  if (why != nullptr) throw Impossible("Control " + std::to_string(id) + " is " + why);
  Hands::MoveTo(control);
  return control;
}

int PositionOf(int id, std::string_view entry) {
  const std::vector<std::string> entries = Hands::LookAt(Find(id)).Entries;
  const auto found = std::find(entries.begin(), entries.end(), entry);
  if (found != entries.end()) return static_cast<int>(found - entries.begin());
  throw Impossible("Control " + std::to_string(id) + " has no entry \"" + std::string(entry) + "\"");
}

void Do(const std::function<void()>& act) {
  try {
    act();
  } catch (const Impossible& why) {
    ADD_FAILURE() << why.what();
  }
  Hands::Settle();
}

template <typename Kind, typename Act, typename... How>
void DoOn(int id, Act act, const How&... how) {
  Do([&] { act(static_cast<Kind&>(Reach<Kind>(id)), how...); });
}

template <typename Act, typename... How>
void DoOnForm(Act act, const How&... how) {
  Do([&] { act(Topmost(), how...); });
}

constexpr const char* kAnswers[] = {"ok", "cancel", "yes", "no"};  // in the order of Answer

std::string WindowOf(int template_id) { return "form " + std::to_string(template_id); }

}  // namespace

Listener*& TheListener() {
  static Listener* listener = nullptr;
  return listener;
}

std::string InWords(const std::string& text, Buttons buttons, Icon icon) {
  constexpr const char* kIcons[] = {"no icon", "information", "exclamation", "critical"};
  constexpr const char* kButtons[] = {"OK", "OK/Cancel", "Yes/No"};
  return kIcons[static_cast<int>(icon)] + std::string(" ") + kButtons[static_cast<int>(buttons)] + ": " + text;
}

std::optional<Answer> AnswerOf(const std::string& word, Buttons buttons) {
  const int first = buttons == Buttons::YesNo ? 2 : 0, last = buttons == Buttons::Ok ? first : first + 1;
  for (int answer = first; answer <= last; ++answer) {
    if (word == kAnswers[answer]) return static_cast<Answer>(answer);
  }
  return std::nullopt;
}

User::User() {
  TheListener() = this;
  Hands::Begin();
}

User::~User() {
  Hands::End();
  TheListener() = nullptr;
  ExpectsNoMore();
}

void User::Types(int id, std::string_view text) {
  Do([&] {
    Control& control = Reach<TextBox, ComboBox>(id);
    const auto* box = dynamic_cast<const TextBox*>(&control);
    if (box != nullptr && box->ReadOnly()) throw Impossible("Control " + std::to_string(id) + " is read-only");
    Hands::Type(control, std::string(text));
  });
}

void User::Clicks(int id) {
  Do([&] { Hands::Click(Reach<Button, OptionButton, Label, Picture>(id)); });
}

void User::Picks(int id, std::string_view entry) {
  DoOn<ListControl>(id, [&](ListControl& list) { Hands::Select(list, PositionOf(id, entry)); });
}

void User::PicksAt(int id, int position) { DoOn<ListControl>(id, Hands::Select, position); }

void User::Ticks(int id, std::string_view entry) {
  DoOn<CheckList>(id, [&](CheckList& list) { Hands::TurnOver(list, PositionOf(id, entry)); });
}

void User::ChoosesMenu(int id) {
  Do([&] {
    if (!Hands::CanChoose(Topmost(), id)) throw Impossible("Menu entry " + std::to_string(id) + " is greyed");
    Hands::Choose(Topmost(), id);
  });
}

void User::MovesTo(int id) {
  Do([&] { Reach<>(id); });
}

void User::ClosesWindow() { DoOnForm(Hands::Close); }

void User::Presses(const KeyPress& key) { DoOnForm(Hands::Press, key); }

void User::PressesControl(char letter) { DoOnForm(Hands::PressControl, letter); }

void User::Drags(int id, Cell from, Cell to, bool shift) { DoOn<Surface>(id, Hands::Drag, from, to, shift); }

void User::DoubleClicks(int id, Cell at) {
  Do([&] { Hands::DoubleClick(Reach<Surface, Picture, RowList>(id), at); });
}

void User::TurnsWheel(int id, int notches, bool shift, bool control) {
  Do([&] {
    const bool is_list = dynamic_cast<ListControl*>(&Find(id)) != nullptr;
    Hands::TurnWheel(is_list ? Find(id) : Reach<Surface>(id), notches, shift, control);
  });
}

void User::PagesBar(int id, Surface::Bar bar, int pages) { DoOn<Surface>(id, Hands::PageBar, bar, pages); }

Hands::Sight User::LooksAt(int id) { return Hands::LookAt(Find(id)); }

std::string User::SeesSelected(int id) {
  const Hands::Sight sight = LooksAt(id);
  return sight.Selected < 0 ? "" : sight.Entries.at(static_cast<std::size_t>(sight.Selected));
}

std::string User::SeesCaption() { return Topmost().Caption(); }
Page User::SeesPage(int id) { return Hands::PageOn(dynamic_cast<Surface&>(Find(id))); }
int User::SeesBar(int id, Surface::Bar bar) { return Hands::BarOn(dynamic_cast<Surface&>(Find(id)), bar); }

void User::Answers(const std::string& text, Answer answer, Icon icon, Buttons buttons) {
  expected_.push_back({InWords(text, buttons, icon), kAnswers[static_cast<int>(answer)], {}});
}

void User::AnswersInput(const std::string& prompt, const std::string& answer) {
  expected_.push_back({"input: " + prompt, answer, {}});
}

void User::UsesForm(int template_id, std::function<void()> acts) {
  expected_.push_back({WindowOf(template_id), "", std::move(acts)});
}

void User::ExpectsNoMore() {
  for (const Expected& each : expected_) ADD_FAILURE() << "Expected, but never came: " << each.What;
  expected_.clear();
}

// Takes the first expectation when it is what came. Otherwise fails the test and gives nothing; the expectation is
// used up all the same, so that one wrong word does not make all that follow fail too.
User::Expected User::Take(const std::string& came) {
  Expected first;
  if (!expected_.empty()) {
    first = expected_.front();
    expected_.pop_front();
  }
  if (first.What == came) return first;
  ADD_FAILURE() << "Expected \"" << first.What << "\", but there came " << came;
  return {};
}

// An unexpected box is closed: by OK, Cancel or No, whichever it has.
Answer User::MessageCame(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) {
  LastCaption = caption;
  const std::string words = InWords(text, buttons, icon), reply = Take(words).Reply;
  if (const auto answer = AnswerOf(reply, buttons)) return *answer;
  if (!reply.empty()) ADD_FAILURE() << "There is no button " << reply << ": " << words;
  return buttons == Buttons::Ok ? Answer::Ok : buttons == Buttons::OkCancel ? Answer::Cancel : Answer::No;
}

std::string User::InputCame(const std::string& prompt, const std::string& caption, const std::string& offered) {
  LastCaption = caption;
  LastOffered = offered;
  return Take("input: " + prompt).Reply;
}

std::string User::FileDialogCame(const std::string& asked) { return Take("file dialog: " + asked).Reply; }

void User::FormCame(Form& form) {
  const Expected item = Take(WindowOf(Hands::TemplateOf(form)));
  if (item.Acts) item.Acts();
  if (!item.What.empty() && !form.Closed()) ADD_FAILURE() << item.What << " was left open";
}
