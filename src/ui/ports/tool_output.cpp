#include "ui/ports/tool_output.h"

#include <QStringList>

namespace kelvo::ui {
namespace {

constexpr qsizetype kMostBytes = 4096;
constexpr int kLongestLine = 200;

}  // namespace

void ToolOutput::Add(const QByteArray& part) {
  for (const char c : part) {
    if (c == '\r' || c == '\n') {
      End(c);
      continue;
    }
    if (is_told_) line_.clear();
    is_told_ = false;
    if (line_.size() < kMostBytes) line_ += c;
  }
}

// CR LF is one end.
void ToolOutput::End(char end) {
  if (!is_told_) told_(QString::fromUtf8(line_));
  is_told_ = end == '\r';
  if (is_told_) return;
  lines_ += (line_ + '\n').left(kMostBytes - lines_.size());
  line_.clear();
}

QString ToolOutput::TellingLine() const {
  const QStringList lines = QString::fromUtf8(lines_ + line_).split('\n');
  const QStringList errors = lines.filter("error", Qt::CaseInsensitive);
  for (const QString& line : errors + lines) {
    if (!line.trimmed().isEmpty()) return line.trimmed().left(kLongestLine);
  }
  return {};
}

}  // namespace kelvo::ui
