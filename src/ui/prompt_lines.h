// The lines that were printed for the command prompt.
#pragma once

#include <QStringListModel>

#include "app/messages.h"

namespace kelvo::ui {

// Lines are only ever appended.
class PromptLines final : public QStringListModel, public app::PromptOutput {
  Q_OBJECT

 public:
  using QStringListModel::QStringListModel;
  void CommandPromptList(std::string_view line) override;
};

}  // namespace kelvo::ui
