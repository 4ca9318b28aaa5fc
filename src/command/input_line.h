// The rules of the command prompt's input line.
//
// The line always begins with ">", and what follows is the command. A text box on top asks these rules: on each typed
// character, when its text has changed, after each key, and when Enter is released.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelvo::command {

inline constexpr std::string_view kPrompt = ">";
inline constexpr int kFirstCaret = 1;  // just behind the prompt

// The character that a typed one enters as: letters in upper case, digits, "@", ",", space and backspace. Empty when it
// is discarded.
std::optional<char> FilterKey(char32_t typed);

// What a changed text becomes. A text that no longer begins with ">" is ">" alone, and the caret goes to kFirstCaret.
std::string_view KeepPrompt(std::string_view text);

// Where a caret at `position` (0 is before the first character) stands after a key.
int KeepCaret(int position);

// The command that Enter sends, without prompt, line breaks and the spaces around it. Empty when there is nothing to
// send; then the keyboard goes back to the picture. Either way the text is kPrompt afterwards.
std::optional<std::string> SubmittedLine(std::string_view text);

}  // namespace kelvo::command
