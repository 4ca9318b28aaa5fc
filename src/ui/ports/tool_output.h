// What a tool prints.
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

namespace kelvo::ui {

// Takes a tool's output as it comes, line by line. As on a terminal a line that ends with a carriage return is replaced
// by the next one, which is how tools show how far they are.
class ToolOutput {
 public:
  // `told` gets each line at its end, also one that will be replaced.
  explicit ToolOutput(std::function<void(const QString& line)> told = [](const QString&) {}) : told_(std::move(told)) {}

  void Add(const QByteArray& part);

  // The line that tells most about a failure, of those that were not replaced: the first that speaks of an error, else
  // the first that says anything; empty when none does. Only the beginning of a long output counts.
  QString TellingLine() const;

 private:
  void End(char end);

  std::function<void(const QString& line)> told_;
  QByteArray lines_, line_;  // those that stay, and the one that is being printed
  bool is_told_ = false;     // the latter: it may yet be replaced
};

}  // namespace kelvo::ui
