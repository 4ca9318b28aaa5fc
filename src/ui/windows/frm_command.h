// The command prompt: a history of replies above a line for the next command.
#pragma once

#include <QListView>
#include <QWidget>

#include "ui/widgets/prompt_line.h"
#include "ui/widgets/prompt_lines.h"

namespace kelvo::ui {

class frmCommand : public QWidget {
  Q_OBJECT

 public:
  frmCommand(PromptLines& lines, QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void CommandSubmitted(const QString& line);
  void FocusGivenBack();

 protected:
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  void Submit();

  QListView* lstHistory_;
  PromptLine* txtCommand_;
};

}  // namespace kelvo::ui
