// Telling a story: its acts one by one, what comes up meanwhile, and what is seen after each.
#include "scenarios/story.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "document/document.h"
#include "platform/controls.h"
#include "platform/program.h"
#include "platform/runtime_error.h"
#include "shell/messages.h"
#include "support/hands.h"
#include "support/names.h"

namespace {

bool updating = false;

void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
}

// What is another thing on each machine, as stories have it.
std::vector<std::pair<std::string, std::string>> Stand() {
  return {{TestFiles::Folder(), "{folder}"}, {"Version " FILER_VERSION, "Version {version}"}, {"\r\n", "{n}"}};
}

// As stories have it: what is the machine's own by its name, what is no plain character as {E9}.
std::string Plain(const std::string& line) {
  std::string text = line, plain;
  for (const auto& [real, name] : Stand()) ReplaceAll(text, real, name);
  for (const char each : text) {
    constexpr const char* kDigits = "0123456789ABCDEF";
    const auto code = static_cast<unsigned char>(each);
    const bool printed = code >= ' ' && code < 0x7F;
    plain += printed ? std::string(1, each) : std::string("{") + kDigits[code / 16] + kDigits[code % 16] + "}";
  }
  plain.erase(plain.find_last_not_of(' ') + 1);
  return plain;
}

// The first word, and what stands behind it.
std::pair<std::string, std::string> Parted(const std::string& text) {
  const std::size_t end = std::min(text.find(' '), text.size());
  return {text.substr(0, end), text.substr(std::min(end + 1, text.size()))};
}

// A click on these closes a form.
bool Leaves(const Act& act) { return act.Text.ends_with("click OKButton") || act.Text.ends_with("click CancelButton"); }

}  // namespace

Story::Story(std::shared_ptr<StoryFile> file, std::size_t number)
    : Sees([this](const std::string& line) { Say(line); }, Plain), file_(std::move(file)), number_(number) {}
Story::~Story() = default;

void Story::SetUp() {
  FreshTest::SetUp();
  ResetMachine();
  TheListener() = this;
}

void Story::TearDown() {
  form_.reset();
  ResetMachine();
  FreshTest::TearDown();
}

void Story::TestBody() {
  Tale& tale = file_->Tales[number_];
  if (tale.InMemoryOnly && MachineVerbs().empty()) GTEST_SKIP() << "only in memory";
  std::vector<Act> before = file_->Tales[0].Acts;
  for (Act& act : before) acts_.push_back(&act);
  untold_ = acts_.size();
  for (Act& act : tale.Acts) {
    act.Now.clear();
    acts_.push_back(&act);
  }
  Run();
  if (!updating) return ExpectAsWritten(*file_, tale);
  for (Act& act : tale.Acts) act.Seen = act.Now;
  file_->Write();
}

void Story::Run() {
  while (next_ < acts_.size()) {
    try {
      Step();
    } catch (const ProgramEnded&) {
      Leave();
      Sees.LookAtFiles();
      Say("the program ends");
    } catch (const RuntimeError& error) {
      Say("thrown:" + Global::DueToError(error));
    } catch (const std::exception& error) {
      Fail(std::string("thrown: ") + error.what());
    }
  }
  replies_.insert(replies_.end(), given_.begin(), given_.end());
  CheckReplies();
}

// Answers that the act before had no use for.
void Story::CheckReplies() {
  for (const Reply& reply : replies_) {
    ADD_FAILURE_AT(file_->Path.c_str(), reply.Line) << "Never came to use: " << reply.Kind << " " << reply.Text;
  }
  replies_.clear();
}

void Story::Step() {
  if (next_ == untold_) {
    Quiet = true;
    Sees.LookAtDocument();
    Quiet = false;
  }
  now_ = acts_[next_++];
  const testing::ScopedTrace trace(file_->Path.c_str(), now_->Line, now_->Text);
  if (TakeReply(now_->Text)) return;
  CheckReplies();
  replies_.swap(given_);
  const bool leaves = Leaves(*now_);
  const std::size_t open = Hands::OpenForms().size();
  Do(Expanded(now_->Text));
  const bool stays = leaves && Hands::OpenForms().size() >= open && !Hands::OpenForms().back()->Closed();
  if (stays) Sees.Note("stays");
  Sees.LookAround();
}

bool Story::TakeReply(const std::string& text) {
  const auto [word, rest] = Parted(text);
  Reply reply{word, Unquoted(Expanded(rest)), now_->Line};
  constexpr const char* kKinds[] = {"ok", "cancel", "yes", "no", "answers", "chooses"};
  if (std::find(std::begin(kKinds), std::end(kKinds), reply.Kind) == std::end(kKinds)) return false;
  given_.push_back(std::move(reply));
  return true;
}

void Story::Do(const std::string& text) {
  static const auto kVerbs = [] {
    auto verbs = PersonVerbs();
    verbs.merge(CallVerbs());
    verbs.merge(MachineVerbs());
    return verbs;
  }();
  const auto [word, rest] = Parted(text);
  const auto verb = kVerbs.find(word);
  if (verb == kVerbs.end() && rest.starts_with("times ")) {
    for (int left = std::stoi(word); left > 0; --left) Do(Parted(rest).second);
    return;
  }
  if (verb == kVerbs.end()) return Fail("There is no act \"" + word + "\"");
  const auto& [traits, act] = verb->second;
  Said said{*this, user, rest, 0, ""};
  if ((traits & kControl) != 0) {
    const auto [name, behind] = Parted(rest);
    said.Id = Names::ControlOf(name);
    said.Text = Unquoted(behind);
    if (said.Id == 0) return Fail("There is no name " + name);
    if ((traits & kFocus) != 0) Foresee(said, traits);
  }
  if ((traits & kUntold) == 0) return act(said);
  const bool quiet = std::exchange(Quiet, true);
  act(said);
  Sees.LookAround();  // what was given beforehand is no news
  Sees.LookAtDocument();
  Quiet = quiet;
}

// Labels and pictures take no focus.
void Story::Foresee(const Said& said, unsigned traits) {
  const auto& controls = Hands::ControlsOf(*Hands::OpenForms().back());
  const auto found = controls.find(said.Id);
  if (found == controls.end() || dynamic_cast<const Label*>(found->second) != nullptr ||
      dynamic_cast<const Picture*>(found->second) != nullptr) {
    return;
  }
  Sees.Foresee({said.Id, (traits & kShows) != 0 ? std::optional(said.Text) : std::nullopt, (traits & kMarks) != 0});
}

std::string Story::Given() const {
  std::string text;
  for (const std::string& line : now_->Given) text += Expanded(line) + "\r\n";
  return text;
}

std::string Story::Expanded(std::string text) {
  for (const auto& [real, name] : Stand()) ReplaceAll(text, name, real);
  for (std::size_t at = text.find('{'); at != std::string::npos; at = text.find('{', at + 1)) {
    if (text.find('}', at) == at + 3)
      text.replace(at, 4, 1, static_cast<char>(std::stoi(text.substr(at + 1, 2), nullptr, 16)));
  }
  return text;
}

std::string Story::Unquoted(const std::string& text) {
  return text.size() >= 2 && text.starts_with('"') && text.ends_with('"') ? text.substr(1, text.size() - 2) : text;
}

void Story::Say(const std::string& line) {
  if (!Quiet && now_ != nullptr) now_->Now.push_back(Plain(line));
}

void Story::Fail(const std::string& why) {
  ADD_FAILURE_AT(file_->Path.c_str(), now_ == nullptr ? 0 : now_->Line)
      << (now_ == nullptr ? "" : now_->Text) << ": " << why;
}

void Story::Leave() {
  if (form_) Sees.Forget(*form_);
  form_.reset();
  StartFresh();
}

std::optional<Story::Reply> Story::Take(std::initializer_list<const char*> kinds, const std::string& question) {
  const auto fits = [&](const char* kind) { return !replies_.empty() && replies_.front().Kind == kind; };
  if (std::none_of(kinds.begin(), kinds.end(), fits)) {
    Fail("nobody said what to answer to: " + question);
    return std::nullopt;
  }
  const Reply reply = replies_.front();
  replies_.pop_front();
  return reply;
}

Answer Story::MessageCame(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) {
  Sees.LookAtFiles();
  std::string line = NameOf(icon) + " " + NameOf(buttons) + ": " + text;
  if (caption != Global::ProgramTitle) line += " [" + caption + "]";
  if (buttons == Buttons::Ok) {
    Say(line);
    return Answer::Ok;
  }
  const bool yes_no = buttons == Buttons::YesNo;
  const auto reply = yes_no ? Take({"yes", "no"}, line) : Take({"ok", "cancel"}, line);
  const bool agreed = reply && (reply->Kind == "yes" || reply->Kind == "ok");
  Say(line + (agreed ? yes_no ? " -> yes" : "" : yes_no ? " -> no" : " -> cancel"));
  if (yes_no) return agreed ? Answer::Yes : Answer::No;
  return agreed ? Answer::Ok : Answer::Cancel;
}

std::string Story::InputCame(const std::string& prompt, const std::string& caption, const std::string& offered) {
  std::string line = "input: " + prompt;
  if (!offered.empty()) line += " offers \"" + offered + "\"";
  if (caption != Global::ProgramTitle) line += " [" + caption + "]";
  Say(line);
  const auto reply = Take({"answers", "cancel"}, line);
  return reply ? reply->Text : "";
}

std::string Story::FileDialogCame(const std::string& /*caption*/, const std::string& asked) {
  Say("file dialog: " + asked);
  const auto reply = Take({"chooses", "cancel"}, asked);
  return reply ? reply->Text : "";
}

void Story::FormCame(Form& form) {
  const auto open = Hands::OpenForms();
  if (open.size() > 1 && Sees.Knows(*open[open.size() - 2])) Sees.LookAt(*open[open.size() - 2]);
  Sees.LookAround();
  while (!form.Closed() && next_ < acts_.size()) Step();
  const std::string name = Names::Of(Hands::TemplateOf(form)).Name;
  if (!form.Closed()) Fail(name + " was left open");
  if (!Leaves(*now_) && Sees.Knows(form)) Say(name + " closes");
  Sees.Forget(form);
}

void RegisterStories(bool update) {
  updating = update;
  std::vector<std::string> paths;
  for (const auto& entry : std::filesystem::directory_iterator(std::string(FILER_SOURCE_DIR "/tests/scenarios"))) {
    if (entry.path().extension() == ".txt") paths.push_back(entry.path().generic_string());
  }
  std::sort(paths.begin(), paths.end());
  for (const std::string& path : paths) {
    const auto file = std::make_shared<StoryFile>(path);
    for (std::size_t number = 1; number < file->Tales.size(); ++number) {
      std::string name = file->Tales[number].Title;
      std::replace_if(
          name.begin(), name.end(), [](char each) { return std::isalnum(static_cast<unsigned char>(each)) == 0; }, '_');
      testing::RegisterTest(("Stories/" + file->Name).c_str(), name.c_str(), nullptr, nullptr, path.c_str(),
                            file->Tales[number].Line, [file, number]() -> Story* { return new Story(file, number); });
    }
  }
}
