// The input line of the command prompt: a text box over the rules of command/input_line.
#pragma once

#include <QLineEdit>

namespace kelvo::ui {

class PromptLine : public QLineEdit {
  Q_OBJECT

 public:
  explicit PromptLine(QWidget* parent);

  // The prompt alone, with the caret behind it.
  void Reset();

 signals:
  void EnterReleased();
  void EscapeReleased();

 protected:
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
};

}  // namespace kelvo::ui
