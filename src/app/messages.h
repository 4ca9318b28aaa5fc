// The port to the user: message boxes, and the lines of the command prompt's output list.
#pragma once

#include <string_view>

namespace kelvo::app {

enum class UnsavedAnswer { kSave, kDiscard, kCancel };

// Each call but Note() returns when the user has answered.
class Messages {
 public:
  virtual ~Messages() = default;
  virtual void Inform(std::string_view text) = 0;  // information icon, OK
  // The same with `more` in smaller letters below.
  virtual void InformWithMore(std::string_view text, std::string_view more) = 0;
  // The same with a check box that says `choice`; true when the user ticked it.
  virtual bool InformWithChoice(std::string_view text, std::string_view choice) = 0;
  // A line in the status bar.
  virtual void Note(std::string_view text) = 0;
  virtual void Warn(std::string_view text) = 0;                 // exclamation icon, OK
  virtual void Tell(std::string_view text) = 0;                 // no icon, OK
  virtual bool Ask(std::string_view text) = 0;                  // Yes and No; anything but Yes is no
  virtual UnsavedAnswer AskUnsaved(std::string_view text) = 0;  // Save, Discard and Cancel
};

class PromptOutput {
 public:
  virtual ~PromptOutput() = default;
  // Appends one line to the output list and scrolls to it.
  virtual void CommandPromptList(std::string_view line) = 0;
};

}  // namespace kelvo::app
