// What the status bar shows: one elastic panel for words, and panels of fixed widths for what is the case.
#pragma once

#include <QStatusBar>
#include <QTimer>
#include <array>

#include "app/messages.h"

namespace kelvo::ui {

class ElidedLabel;
class UnsavedMark;

enum class StatusPanel { kBuilding, kFile, kTool, kBlockFill, kAnimation, kPointer, kZoom };

// The elastic panel shows the hint of the menu entry or button under the pointer (the status bar's message); without
// one what was told last: a result for a while, a warning for longer and in other colours.
class StatusPanels final : public QWidget, public app::StatusLine {
  Q_OBJECT

 public:
  // Fills `bar`, to which the panels belong.
  explicit StatusPanels(QStatusBar* bar);

  void Tell(std::string_view text) override;
  void Warn(std::string_view text) override;

  // Makes room for as many rows as the panels take in a main window of `width`.
  void FitInto(int width);

  void Show(StatusPanel panel, const QString& text);
  void SetBuilding(bool is_building);  // the panel of a build is to be seen while one is at work
  void ShowUnsaved(bool is_unsaved);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowWord(std::string_view text, bool is_warning, int milliseconds);
  void ShowHintOrWord();

  ElidedLabel* words_;
  std::array<ElidedLabel*, 7> panels_{};
  UnsavedMark* unsaved_;
  QString hint_, word_;
  bool is_warning_ = false;
  QTimer word_ends_;
};

}  // namespace kelvo::ui
