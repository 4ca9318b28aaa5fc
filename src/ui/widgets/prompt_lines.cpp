#include "ui/widgets/prompt_lines.h"

#include "command/sample_history.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {

PromptLines::PromptLines() {
  for (const std::string_view line : command::kSampleHistory) CommandPromptList(line);
}

void PromptLines::CommandPromptList(std::string_view line) {
  const int row = rowCount();
  insertRow(row);
  setData(index(row), ToQt(line));
  emit Added(index(row));
}

QVariant PromptLines::data(const QModelIndex& index, int role) const {
  return QStringListModel::data(index, role == Qt::ToolTipRole ? static_cast<int>(Qt::DisplayRole) : role);
}

}  // namespace kelvo::ui
