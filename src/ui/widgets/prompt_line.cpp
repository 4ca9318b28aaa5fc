#include "ui/widgets/prompt_line.h"

#include <QKeyEvent>
#include <QValidator>
#include <algorithm>

#include "command/input_line.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

// What is typed or pasted, each character as it enters.
QString Filtered(const QString& text) {
  QString filtered;
  for (const QChar typed : text) {
    if (const auto entered = command::FilterKey(typed.unicode())) filtered += QChar(*entered);
  }
  return filtered;
}

// Hears of every change before it shows, whether it comes from keys, a paste, a drop or an input method. A refused one
// leaves text, caret and selection as they were.
class PromptRules final : public QValidator {
 public:
  explicit PromptRules(QLineEdit* line) : QValidator(line), text_(line->text()) {
    connect(line, &QLineEdit::textChanged, this, [this](const QString& text) { text_ = text; });
  }

  State validate(QString& text, int& caret) const override {
    const QString entered = Entered(text, caret);
    if (!entered.isEmpty() && Filtered(entered).isEmpty()) return Invalid;
    const std::string given = FromQt(text);
    const QString kept = ToQt(command::KeepPrompt(given));
    const QString rest = Filtered(kept.mid(command::kFirstCaret));
    const auto behind_caret = kept == text ? text.size() - caret : 0;
    text = ToQt(command::kPrompt) + rest;
    caret = command::KeepCaret(static_cast<int>(text.size() - behind_caret));
    return Acceptable;
  }

 private:
  // What stands before `caret` in the new text and did not in the old one.
  QString Entered(const QString& text, int caret) const {
    const auto end = text.begin() + caret;
    const auto begin = std::mismatch(text_.begin(), text_.end(), text.begin(), end).second;
    return text.mid(begin - text.begin(), end - begin);
  }

  QString text_;
};

}  // namespace

PromptLine::PromptLine(QWidget* parent) : QLineEdit(ToQt(command::kPrompt), parent) {
  setValidator(new PromptRules(this));
}

void PromptLine::Reset() {
  setText(ToQt(command::kPrompt));
  setCursorPosition(command::kFirstCaret);
}

void PromptLine::keyReleaseEvent(QKeyEvent* event) {
  event->accept();  // nothing typed here ever paints or changes pens
  const int steps = command::KeepCaret(cursorPosition()) - cursorPosition();
  if (steps > 0) cursorForward(hasSelectedText(), steps);
  if (event->isAutoRepeat()) return;
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) emit EnterReleased();
  if (event->key() == Qt::Key_Escape) emit EscapeReleased();
}

void PromptLine::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  end(false);
}

}  // namespace kelvo::ui
