// Connects painting with the windows it happens in: zoom window, toolbar, colours, pens and char data.
#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>

#include "editing/painting.h"
#include "files/document.h"
#include "ui/desks/keyboard_hand.h"
#include "ui/ports/display_frame.h"
#include "ui/widgets/paint_tool_bar.h"
#include "ui/windows/frm_bmp_view.h"
#include "ui/windows/frm_char_data.h"
#include "ui/windows/frm_colors.h"
#include "ui/windows/frm_pens.h"
#include "ui/windows/frm_zoom.h"

namespace kelvo::ui {

struct PaintingWindows {
  frmBMPView& full_view;
  frmZoom& zoom;
  frmColors& colors;
  frmPens& pens;
  frmCharData& char_data;
  PaintToolBar& toolbar;
};

class PaintingDesk : public QObject {
  Q_OBJECT

 public:
  PaintingDesk(files::Document& document, const editing::PaintingPorts& ports, const PaintingWindows& windows);

  const editing::Painting& Painting() const { return painting_; }
  void ChooseTool(editing::ToolId tool);
  void SwapPens();
  void Undo();
  void TakeCells(const model::PictureImage& picture, const std::string& undo_caption);
  void Tick();

  // A key was released in the main window or a child window of it. True when it meant something.
  bool HandleKeyUp(int key, Qt::KeyboardModifiers modifiers);

  // The window went to the background: a stroke under way ends. A message box that the stroke itself called up is no
  // such case: the button may still be held when it closes.
  void LoseFocus() {
    if (!painting_.IsBusy()) painting_.Release();
  }

  // The whole-picture passes, with the progress bar of the full view.
  void OptimizeBackgroundColor();
  void OptimizeForEORVector();
  void OptimizeForPacking();

  // Another picture is in memory.
  void PictureReplaced();
  // Everything that shows pens, background or the cell under the pointer is shown anew.
  void ShowColours();

 signals:
  // The prompt, the undo step or the tool may have changed.
  void StateChanged();
  void PointerAt(const QString& text);
  void BackgroundChosen(model::C64Colour colour);

 private:
  void ConnectZoom();
  void ConnectPens();
  void ConnectKeyboard();
  void Press(model::PixelPoint at, Qt::MouseButton button);
  void MoveMouse(QPoint at, Qt::MouseButtons buttons);
  void Release(Qt::MouseButton button);
  void Pick(model::PixelPoint at, Qt::MouseButton button);
  void Escape();
  void PointAt(model::PixelPoint at);
  void ShowPointer();
  void TellCursor();
  void TellCursor(const QString& text);
  void ShowPreview(model::PixelPoint pointer);
  void SetLeftPen(model::C64Colour colour);
  void SetRightPen(model::C64Colour colour);
  bool MoveZoomArea(int key, Qt::KeyboardModifiers modifiers);
  void ActionDone();
  void ShowCellOfPass(int cell);

  files::Document& document_;
  PaintingWindows windows_;
  editing::Painting painting_;
  KeyboardHand keyboard_;
  QString told_;               // of its cursor
  model::PixelPoint pointer_;  // where the pointer was last over the picture
  model::PixelPoint shown_pointer_;
  app::Messages& messages_;
  app::StatusLine& status_;
  model::PictureViews& views_;
  QTimer pointer_pause_;  // runs for a display frame after the pointer was shown
  DisplayFrame pass_;     // since a whole-picture pass showed a cell
};

}  // namespace kelvo::ui
