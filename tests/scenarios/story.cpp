// Telling a story: its acts one by one, what comes up meanwhile, and what is seen after each.
#include "scenarios/story.h"

#include "platform/program.h"
#include "support/hands.h"
#include "support/names.h"
#include "support/rows.h"

namespace {

const bool kRegistered =
    RegisterStories("Stories", "scenarios", [](const Tale& above, const Tale& tale) { return new Story(above, tale); });

// What is another thing on each machine, as stories have it.
std::vector<std::pair<std::string, std::string>> Stand() {
  return {{TestFiles::Folder(), "{folder}"}, {"Version " FILER_VERSION, "Version {version}"}, {"\r\n", "{n}"}};
}

// As stories have it: what is the machine's own by its name, what is no plain character as {E9}.
std::string Plain(const std::string& line) {
  std::string text = line, plain;
  for (const auto& [real, name] : Stand()) text = Replaced(text, real, name);
  for (const char each : text) {
    constexpr const char* kDigits = "0123456789ABCDEF";
    const auto code = static_cast<unsigned char>(each);
    const bool printed = code >= ' ' && code < 0x7F;
    plain += printed ? std::string(1, each) : std::string("{") + kDigits[code / 16] + kDigits[code % 16] + "}";
  }
  plain.erase(plain.find_last_not_of(' ') + 1);
  return plain;
}

std::string Expanded(std::string text) {
  for (const auto& [real, name] : Stand()) text = Replaced(text, name, real);
  for (std::size_t at = text.find('{'); at != std::string::npos; at = text.find('{', at + 1)) {
    if (text.find('}', at) == at + 3)
      text.replace(at, 4, 1, static_cast<char>(std::stoi(text.substr(at + 1, 2), nullptr, 16)));
  }
  return text;
}

// A click on these closes a form.
bool Leaves(const std::string& part) { return part == "OKButton" || part == "CancelButton"; }

}  // namespace

std::deque<std::string> Story::PartsOf(const std::string& act) {
  std::deque<std::string> parts(1);
  bool quoted = false;
  for (std::size_t at = 0; at < act.size(); ++at) {
    if (act[at] == '"') quoted = !quoted;
    if (!quoted && act.compare(at, 2, ", ") == 0) {
      parts.emplace_back();
      ++at;
    } else {
      parts.back() += act[at];
    }
  }
  return parts;
}

Story::Story(const Tale& above, const Tale& tale)
    : Sees([this](const std::string& line) { Say(line); }, Plain), above_(above), tale_(tale) {}

void Story::SetUp() {
  FreshTest::SetUp();
  ResetMachine();
}

void Story::TearDown() {
  form_.reset();
  ResetMachine();
  FreshTest::TearDown();
}

void Story::TestBody() {
  const bool in_memory = above_.Says("only in memory") || tale_.Says("only in memory");
  if (in_memory && MachineVerbs().empty()) GTEST_SKIP() << "only in memory";
  acts_ = above_.Acts();
  untold_ = acts_.size();
  for (StoryLine* act : tale_.Acts()) acts_.push_back(act);
  while (next_ < acts_.size()) {
    try {
      Step();
    } catch (const ProgramEnded&) {
      Leave();
      Sees.LookAtFiles();
      Say("the program ends");
    } catch (const std::exception& error) {
      Fail(std::string("thrown: ") + error.what());
    }
    for (const std::string& part : parts_) Fail("Never came to use: " + part);
    parts_.clear();
  }
  tale_.Compare();
}

void Story::Step() {
  now_ = acts_[next_++];
  const auto [word, rest] = Halves(now_->Text, ' ');
  const bool given = GivenVerbs().contains(word), quietly = word == "quietly";
  quiet_ = given || quietly || next_ <= untold_;
  parts_ = given ? std::deque{now_->Text} : PartsOf(quietly ? rest : now_->Text);
  DoPart();
}

void Story::DoPart() {
  part_ = parts_.front();
  parts_.pop_front();
  const bool leaves = Leaves(part_);
  const std::size_t open = Hands::OpenForms().size();
  Do(Expanded(part_));
  if (leaves && Hands::OpenForms().size() >= open && !Hands::OpenForms().back()->Closed()) Sees.Note("stays");
  Sees.LookAround();
}

void Story::Do(const std::string& act) {
  const auto [word, rest] = Halves(act, ' ');
  for (const Verbs* verbs : {&GivenVerbs(), &PersonVerbs(), &MachineVerbs()}) {
    const auto verb = verbs->find(word);
    if (verb != verbs->end()) return verb->second(*this, rest);
  }
  const int id = Names::ControlOf(word);
  if (id == 0) return Fail("There is no act or control " + word);
  Use(id, rest.empty() ? std::nullopt : std::optional(Unquoted(rest)));
}

// What is no control of the window is an entry of its menu.
void Story::Use(int id, const std::optional<std::string>& text) {
  if (Hands::OpenForms().empty()) return Fail("No window is open");
  const auto& controls = Hands::ControlsOf(*Hands::OpenForms().back());
  const auto found = controls.find(id);
  if (found == controls.end()) return user.ChoosesMenu(id);
  Sees.Foresee(*found->second, text);
  text ? user.Enters(id, *text) : user.Clicks(id);
}

std::string Story::Unquoted(const std::string& text) {
  return text.size() >= 2 && text.starts_with('"') && text.ends_with('"') ? text.substr(1, text.size() - 2) : text;
}

void Story::Say(const std::string& line) {
  if (!quiet_) now_->Now.push_back(Plain(line));
}

void Story::Fail(const std::string& why) {
  ADD_FAILURE_AT(tale_.File->Path.c_str(), now_->Number) << now_->Text << ": " << why;
}

void Story::Leave() {
  if (form_) Sees.Forget(*form_);
  form_.reset();
  StartFresh();
}

void Story::BoxCame(const std::string& words) {
  Sees.LookAtFiles();
  Say(words);
}

std::string Story::ReplyTo(const std::string& words) {
  if (parts_.empty()) {
    Fail("nobody said what to answer to: " + words);
    return "cancel";
  }
  const std::string reply = parts_.front();
  parts_.pop_front();
  return Expanded(reply);
}

void Story::FormCame(Form& form) {
  const auto open = Hands::OpenForms();
  if (open.size() > 1 && Sees.Knows(*open[open.size() - 2])) Sees.LookAt(*open[open.size() - 2]);
  Sees.LookAround();
  while (!form.Closed() && (!parts_.empty() || next_ < acts_.size())) parts_.empty() ? Step() : DoPart();
  const std::string name = Names::Of(Hands::TemplateOf(form)).Name;
  if (!form.Closed()) Fail(name + " was left open");
  if (!Leaves(part_) && Sees.Knows(form)) Say(name + " closes");
  Sees.Forget(form);
}
