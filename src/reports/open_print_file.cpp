// Opening a print file: see open_print_file.h.
#include "reports/open_print_file.h"

#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/program.h"
#include "platform/runtime_error.h"
#include "shell/file_form.h"
#include "shell/file_names.h"
#include "shell/messages.h"
#include "shell/start_options.h"

namespace Global {

namespace {

std::string AskForName(const std::string& default_name) {
  FileRequest request;
  request.Mode = FileRequest::Kind::Write;
  request.Folder = PrintFileFolder();
  request.Pattern = "*.PRN";
  request.Name = request.Folder + default_name;
  request.OffersRecent = false;  // saved documents are the last files to be overwritten by a report
  FileForm(request).ShowModal();
  return request.Name;
}

// Files of these types are there to be overwritten.
bool IsOverwrittenUnasked(const std::string& name) {
  const auto point = name.rfind('.');
  const std::string type = point == std::string::npos ? std::string() : UpperCase(name.substr(point + 1));
  return type == "PRN" || type == "TMP";
}

// True when there is no such file, or the user agrees to overwrite it.
bool MayOverwrite(const std::string& full_name) {
  try {
    const Files::OpenFile probe(kPrintFileHandle, full_name, Files::Mode::Input);
  } catch (const RuntimeError& error) {
    if (error.Number == kFileNotFound) return true;
    Say("Can't test for presence of output file" + DueToError(error), Icon::Exclamation);
    return false;
  }
  return AskBeforeLoss(
      "You are about to overwrite an existing file that is neither a print file nor a temporary file (not of type "
      ".PRN or .TMP). Are you wure you want to do that?",
      Buttons::OkCancel);
}

bool OpenForOutput(const std::string& full_name) {
  try {
    Files::Open(kPrintFileHandle, full_name, Files::Mode::Output);
    return true;
  } catch (const RuntimeError& error) {
    Say(error.Number == kPermissionDenied
            ? "I cannot open the print file because of error 70, privilege violation.  This typically occurs if the "
              "file is already in use by the Larkspur report viewer or another program.  Please pick a different "
              "filename and try again."
            : "Failed to open file" + DueToError(error),
        Icon::Exclamation);
    return false;
  }
}

}  // namespace

std::string PrintFileFolder() {
  std::string folder = TheStart.WorkingFolder.empty() ? CurrentFolder() : TheStart.WorkingFolder;
  if (!folder.ends_with('\\')) folder += '\\';
  return folder;
}

std::string OpenPrintFile(const std::string& default_name, const std::string& typed_name) {
  std::string name = typed_name.empty() ? AskForName(default_name) : typed_name;
  if (name.empty()) return {};
  if (name.find('.') == std::string::npos &&
      Ask("You did not specify a filetype as part of the name. Would you like me to add a type of .PRN?",
          Buttons::YesNo)) {
    name += ".PRN";
  }
  std::string full_name = FullFileName(TheStart.WorkingFolder, name);
  const bool opened = (IsOverwrittenUnasked(name) || MayOverwrite(full_name)) && OpenForOutput(full_name);
  return opened ? full_name : std::string();
}

}  // namespace Global
