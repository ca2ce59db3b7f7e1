// Boxes, in memory: the stage answers them. One that comes up without a stage is a test's mistake.
#include "platform/message.h"

#include <cstdio>
#include <cstdlib>

#include "platform/headless/internals.h"

namespace {

[[noreturn]] void NobodyThere(const std::string& what) {
  std::fprintf(stderr, "nobody is there to answer \"%s\"\n", what.c_str());
  std::abort();
}

}  // namespace

Stage& CurrentStage() {
  static Stage stage;
  return stage;
}

Answer MsgBox(std::string_view text, std::string_view caption, Buttons buttons, Icon icon,
              DefaultButton default_button) {
  Stage& stage = CurrentStage();
  if (!stage.Message) NobodyThere(std::string(text));
  stage.Default = default_button;
  const Answer answer = stage.Message(std::string(text), std::string(caption), buttons, icon);
  ActivateTopmost();
  return answer;
}

std::string InputBox(std::string_view prompt, std::string_view caption, std::string_view offered) {
  const Stage& stage = CurrentStage();
  if (!stage.Input) NobodyThere(std::string(prompt));
  std::string answer = stage.Input(std::string(prompt), std::string(caption), std::string(offered));
  ActivateTopmost();
  return answer;
}

std::string StageChooseFile(const FileChoice& choice) {
  const Stage& stage = CurrentStage();
  if (!stage.File) NobodyThere(choice.Caption);
  std::string name = stage.File(choice);
  ActivateTopmost();
  return name;
}
