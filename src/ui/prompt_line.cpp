#include "ui/prompt_line.h"

#include <QKeyEvent>

#include "command/input_line.h"
#include "ui/qt_text.h"

namespace kelvo::ui {
namespace {

// What is typed or pasted behind the prompt, each character as it enters.
QString Filtered(const QString& text) {
  QString filtered = text.left(command::kFirstCaret);
  for (const QChar typed : text.mid(command::kFirstCaret)) {
    if (const auto entered = command::FilterKey(typed.unicode())) filtered += QChar(*entered);
  }
  return filtered;
}

}  // namespace

PromptLine::PromptLine(QWidget* parent) : QLineEdit(ToQt(command::kPrompt), parent) {
  connect(this, &QLineEdit::textChanged, this, &PromptLine::KeepRules);
}

void PromptLine::Reset() {
  setText(ToQt(command::kPrompt));
  setCursorPosition(command::kFirstCaret);
}

void PromptLine::KeepRules(const QString& text) {
  const std::string given = FromQt(text);
  const QString kept = Filtered(ToQt(command::KeepPrompt(given)));
  if (kept == text) return;
  const int caret = kept.size() > command::kFirstCaret ? cursorPosition() - static_cast<int>(text.size() - kept.size())
                                                       : command::kFirstCaret;
  setText(kept);
  setCursorPosition(command::KeepCaret(caret));
}

void PromptLine::keyReleaseEvent(QKeyEvent* event) {
  event->accept();  // nothing typed here ever paints or changes pens
  setCursorPosition(command::KeepCaret(cursorPosition()));
  if (event->isAutoRepeat()) return;
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) emit EnterReleased();
  if (event->key() == Qt::Key_Escape) emit EscapeReleased();
}

void PromptLine::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  end(false);
}

}  // namespace kelvo::ui
