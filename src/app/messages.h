// The ports to the user: message boxes, the status bar, and the lines of the command prompt's output list.
#pragma once

#include <string_view>

namespace kelvo::app {

enum class UnsavedAnswer { kSave, kDiscard, kCancel };

// Each call returns when the user has answered.
class Messages {
 public:
  virtual ~Messages() = default;
  virtual void Inform(std::string_view text) = 0;  // information icon, OK
  // The same with `more` in smaller letters below.
  virtual void InformWithMore(std::string_view text, std::string_view more) = 0;
  // The same with a check box that says `choice`; true when the user ticked it.
  virtual bool InformWithChoice(std::string_view text, std::string_view choice) = 0;
  virtual void Warn(std::string_view text) = 0;                 // exclamation icon, OK
  virtual void Tell(std::string_view text) = 0;                 // no icon, OK
  virtual bool Ask(std::string_view text) = 0;                  // Yes and No; anything but Yes is no
  virtual UnsavedAnswer AskUnsaved(std::string_view text) = 0;  // Save, Discard and Cancel
};

// The status bar's elastic panel: words that wait for no answer. The next one takes their place.
class StatusLine {
 public:
  virtual ~StatusLine() = default;
  virtual void Tell(std::string_view text) = 0;  // what came of something
  virtual void Warn(std::string_view text) = 0;  // what should be noticed
};

class PromptOutput {
 public:
  virtual ~PromptOutput() = default;
  // Appends one line to the output list and scrolls to it.
  virtual void CommandPromptList(std::string_view line) = 0;
};

}  // namespace kelvo::app
