// The lines that were printed for the command prompt.
#pragma once

#include <QStringListModel>

#include "app/messages.h"

namespace kelvo::ui {

// Lines are only ever appended, and the last one is shown.
class PromptLines final : public QStringListModel, public app::PromptOutput {
  Q_OBJECT

 public:
  // Begins with the sample lines.
  PromptLines();

  void CommandPromptList(std::string_view line) override;

  // A line that is too long for the window shows whole under the pointer.
  QVariant data(const QModelIndex& index, int role) const override;

 signals:
  void Added(const QModelIndex& last);
};

}  // namespace kelvo::ui
