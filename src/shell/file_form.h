// The file-name dialogs: FileForm, a name box with the recent files and a Browse button, and OpenForm, the
// system's own file dialog.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"
#include "resource.h"
#include "shell/shell_ids.h"

// What a file-name dialog is asked, and what it answers.
struct FileRequest {
  enum class Kind { Read, Write };
  Kind Mode = Kind::Read;           // choose an existing file, or a name to write
  std::string Folder;               // where names without a folder belong; empty = current folder
  std::string Pattern;              // "*.FIL"
  std::string Name;                 // in: the name offered; out: the full name chosen, empty when cancelled
  bool OverwriteConfirmed = false;  // out: the user has agreed to overwrite the chosen file
  bool OffersRecent = true;         // FileForm offers the recently saved files
  // Read: whether FileForm is to let a full name through that no file has; empty: none.
  std::function<bool(const std::string& name)> MayBeMissing;
};

// Takes what was typed for the request's answer, with its folder; to be read, a file must be there and open, or be one
// that may be missing. False, after a message, when it does not.
bool TakeName(FileRequest& request, std::string_view typed);

class FileForm : public Form {
 public:
  explicit FileForm(FileRequest& request);

 private:
  ComboBox NameBox{*this, IDC_NameBox};
  Button BrowseButton{*this, IDC_BrowseButton};
  Button OKButton{*this, IDC_OKButton};
  Button CancelButton{*this, IDC_CancelButton};

  void Form_Load() override;
  void NameBox_Change();
  void NameBox_Click();
  void BrowseButton_Click();
  void OKButton_Click();
  void CancelButton_Click();

  void MarkName();

  FileRequest& request_;
  std::string offered_;
};

// Lets the user browse for a file, where the name is, in the working folder or in the folder used last. In Write mode
// asks before a file that exists is chosen.
class OpenForm {
 public:
  explicit OpenForm(FileRequest& request) : request_(request) {}
  void ShowModal();

 private:
  FileRequest& request_;
};
