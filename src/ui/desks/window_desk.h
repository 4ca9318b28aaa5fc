// The child windows of the main window: which there are, which are shown, where they stand and how large they are.
#pragma once

#include <QMainWindow>
#include <QMdiArea>
#include <array>
#include <optional>

#include "ui/desks/floating_windows.h"
#include "ui/desks/large_zoom.h"
#include "ui/widgets/child_window.h"
#include "ui/widgets/status_panels.h"
#include "ui/windows/frm_bmp_view.h"
#include "ui/windows/frm_zoom.h"
#include "ui/windows/window_layout.h"

namespace kelvo::ui {

enum class ChildWindowId { kFullView, kColors, kPens, kCharData, kPrompt, kZoom, kHistory, kFrames };
inline constexpr std::size_t kChildWindows = 8;

class WindowDesk : public QObject {
  Q_OBJECT

 public:
  // All of it outlives the desk but the area, which belongs to `frame`.
  WindowDesk(QMainWindow& frame, QMdiArea& area, frmZoom& zoom, frmBMPView& full_view, StatusPanels& panels,
             app::SettingsStore& settings);

  void Add(ChildWindowId id, QWidget* form);

  // Before the main window is shown: its size on this display, windows as they are arranged, then as they were kept.
  void Begin();
  void Keep();

  // Puts every window back to its place, for the size there is; `floating` is one that stands over the main window.
  void Arrange(QWidget* floating);
  const FloatingWindows& Floating() const { return floating_; }

  void Toggle(ChildWindowId id);
  // Shows a window that is hidden; the keyboard stays where it is.
  void ShowBehind(ChildWindowId id);
  bool IsShown(ChildWindowId id) const { return !Child(id).isHidden(); }
  void GiveFocusToPicture();
  bool IsInSideWindow(const QWidget* widget) const;  // one that Escape leaves

  // Gives the zoom window all room beside the others, which go to the right, or all back the places that they had.
  void ToggleLargeZoom();
  bool IsZoomLarge() const { return large_zoom_.IsLarge(); }

  void SetFullViewScale(int scale);  // 1..kLargestFullView
  void TogglePal();

 signals:
  void Changed();  // which windows are shown, or how

 private:
  ChildWindow& Child(ChildWindowId id) const { return *children_[static_cast<std::size_t>(id)]; }
  QPoint Scrolled() const;
  QSize RoomOf(QSize frame) const;
  QSize Chrome() const;
  ZoomSizes SizesOfZoom() const;
  std::vector<QSize> ColumnSizes() const;
  void ShareWidth();
  int ScrollBarWidth() const;
  QSize FirstSize() const;
  void ArrangeIn(QSize room, int below);
  void HideHistoryAt(QRect place, int top_of_char_data);
  void HideFramesOver(QRect zoom);
  void ShareRoomWithFrames();
  void RestoreChildren(QSize room);
  void ShowFullView(int scale, bool is_pal);
  void BringAllIntoReach();

  QMainWindow& frame_;
  QMdiArea& area_;
  frmZoom& zoom_;
  frmBMPView& full_view_;
  StatusPanels& panels_;
  app::SettingsStore& settings_;
  LargeZoom large_zoom_;
  FloatingWindows floating_;
  std::array<ChildWindow*, kChildWindows> children_{};
};

}  // namespace kelvo::ui
