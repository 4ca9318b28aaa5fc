// The error log, and the one way in which a procedure guards itself.
#pragma once

#include <exception>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "app/clock.h"

namespace kelvo::app {

// Appends one line an error to a text file. A log that cannot be written is silently left alone.
class ErrorLog {
 public:
  ErrorLog(std::filesystem::path file, const Clock& clock) : file_(std::move(file)), clock_(clock) {}

  // One line: date and time, a space, the message (its line breaks as spaces).
  void Write(std::string_view message) const;

 private:
  std::filesystem::path file_;
  const Clock& clock_;
};

// Runs `work`. An error is logged as the procedure's tag ("MDIFormMenu_DrawPicture") with its text, and handed to
// `on_error`. True when it went well.
template <typename Work, typename OnError>
bool Guarded(const ErrorLog& log, std::string_view tag, Work&& work, OnError&& on_error) {
  try {
    work();
    return true;
  } catch (const std::exception& error) {
    log.Write(std::string(tag) + ": " + error.what());
    on_error(error);
    return false;
  }
}

template <typename Work>
bool Guarded(const ErrorLog& log, std::string_view tag, Work&& work) {
  return Guarded(log, tag, std::forward<Work>(work), [](const std::exception&) {});
}

}  // namespace kelvo::app
