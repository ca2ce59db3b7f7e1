// Telling a story: its acts one by one, what comes up meanwhile, and what is seen after each.
#include "scenarios/story.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "platform/program.h"
#include "support/hands.h"
#include "support/names.h"
#include "support/rows.h"

namespace {

// Each story is a test case "Stories/file.title".
const bool kRegistered = [] {
  for (const auto& entry : std::filesystem::directory_iterator(FILER_SOURCE_DIR "/tests/scenarios")) {
    if (entry.path().extension() != ".txt") continue;
    const auto file = std::make_shared<StoryFile>(entry.path().generic_string());
    const std::string suite = "Stories/" + entry.path().stem().string();
    for (std::size_t tale = 1; tale < file->Tales.size(); ++tale) {
      const StoryLine& title = file->Tales[tale].front();
      std::string name = title.Text.substr(3);
      std::ranges::replace_if(
          name, [](unsigned char each) { return std::isalnum(each) == 0; }, '_');
      testing::RegisterTest(suite.c_str(), name.c_str(), nullptr, nullptr, file->Path.c_str(), title.Number,
                            [=]() -> testing::Test* { return new Story(file, tale); });
    }
  }
  return true;
}();

// What is another thing on each machine, as stories have it.
std::vector<std::pair<std::string, std::string>> Stand() {
  return {{TestFiles::Folder(), "{folder}"}, {"Version " FILER_VERSION, "Version {version}"}, {"\r\n", "{n}"}};
}

// As stories have it: what is the machine's own by its name, what is no plain character as {E9}.
std::string Plain(const std::string& line) {
  std::string text = line, plain;
  for (const auto& [real, name] : Stand()) text = Replaced(text, real, name);
  for (const char each : text) {
    char code[5] = {each};
    if (each < ' ' || each > '~') std::snprintf(code, sizeof code, "{%02X}", static_cast<unsigned char>(each));
    plain += code;
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

}  // namespace

std::deque<std::string> Story::PartsOf(const std::string& act) {
  std::deque<std::string> parts;
  for (const std::string& part : Parts(act, ", ")) {
    if (!parts.empty() && std::ranges::count(parts.back(), '"') % 2 != 0) {
      parts.back() += ", " + part;  // a comma within quotes
    } else {
      parts.push_back(part);
    }
  }
  return parts;
}

std::string Story::Unquoted(const std::string& text) {
  return text.size() >= 2 && text.starts_with('"') && text.ends_with('"') ? text.substr(1, text.size() - 2) : text;
}

Story::Story(std::shared_ptr<StoryFile> file, std::size_t tale)
    : Sees([this](const std::string& news) { Note(news); }), file_(std::move(file)), tale_(tale) {}

void Story::TestBody() {
  ResetMachine();
  for (Tale* tale : {&file_->Tales[0], &file_->Tales[tale_]}) {
    for (StoryLine& line : *tale) {
      if (line.IsAct()) acts_.push_back(&line);
    }
  }
  for (bool goes_on = true; goes_on;) {
    try {
      goes_on = GoesOn();
    } catch (const ProgramEnded&) {
      Leave();
      Sees.LookAtFiles();
      Say("the program ends");
    } catch (const std::exception& error) {
      Fail(std::string("thrown: ") + error.what());
    }
  }
  form_.reset();
  ResetMachine();
  if (!IsSkipped()) file_->Compare(tale_);
}

void Story::OnlyInMemory() {
  if (!MachineVerbs().empty()) return;
  acts_.clear();
  GTEST_SKIP() << "only in memory";
}

// Does what comes next, and tells what is seen then. False when nothing comes.
bool Story::GoesOn() {
  if (parts_.empty()) {
    if (acts_.empty()) return false;
    now_ = acts_.front();
    acts_.pop_front();
    const auto [word, rest] = Halves(now_->Text, ' ');
    const bool given = GivenVerbs().contains(word), quietly = word == "quietly";
    quiet_ = given || quietly || now_->Number < file_->Tales[tale_].front().Number;
    parts_ = given ? std::deque{now_->Text} : PartsOf(quietly ? rest : now_->Text);
  }
  const std::string part = parts_.front();
  parts_.pop_front();
  packs_ = false;
  Do(Expanded(part));
  Sees.LookAround();
  return true;
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

void Story::Say(const std::string& line) {
  packs_ = false;
  Note(line);
  packs_ = false;
}

void Story::Note(const std::string& news) {
  if (quiet_) return;
  constexpr std::size_t kWidth = 114;
  const std::string text = Plain(news);
  auto& lines = now_->Now;
  packs_ = packs_ && lines.back().size() + text.size() <= kWidth;
  if (!packs_) lines.emplace_back();
  lines.back() += (packs_ ? "; " : "") + text;
  packs_ = true;
}

void Story::Fail(const std::string& why) {
  ADD_FAILURE_AT(file_->Path.c_str(), now_->Number) << now_->Text << ": " << why;
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
  Sees.LookAround();
  while (!form.Closed() && GoesOn()) continue;
  if (!form.Closed()) Fail(Names::Of(Hands::TemplateOf(form)).Name + " was left open");
}
