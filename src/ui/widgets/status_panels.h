// The status bar's panels, of fixed widths.
#pragma once

#include <QLabel>
#include <QStatusBar>
#include <array>

namespace kelvo::ui {

enum class StatusPanel { kFile, kTool, kBlockFill, kAnimation, kPointer };

class StatusPanels {
 public:
  explicit StatusPanels(QStatusBar* bar);

  void Show(StatusPanel panel, const QString& text);

 private:
  std::array<QLabel*, 5> panels_{};
};

}  // namespace kelvo::ui
