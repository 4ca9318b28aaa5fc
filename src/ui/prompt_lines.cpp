#include "ui/prompt_lines.h"

#include "ui/qt_text.h"

namespace kelvo::ui {

void PromptLines::CommandPromptList(std::string_view line) {
  const int row = rowCount();
  insertRow(row);
  setData(index(row), ToQt(line));
}

}  // namespace kelvo::ui
