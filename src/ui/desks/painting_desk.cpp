#include "ui/desks/painting_desk.h"

#include <algorithm>
#include <string>

#include "editing/pens.h"
#include "model/pixel_place.h"
#include "optimise/background_colour.h"
#include "optimise/eor_vectors.h"
#include "optimise/packing.h"
#include "ui/desks/zoom_keys.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

Qt::MouseButton QtButton(editing::Button button) {
  return button == editing::Button::kLeft ? Qt::LeftButton : Qt::RightButton;
}

editing::Button PenOf(Qt::MouseButton button) {
  return button == Qt::LeftButton ? editing::Button::kLeft : editing::Button::kRight;
}

char LetterOf(int key) {
  return key > 0 && key < 128 ? static_cast<char>(key) : '\0';
}

}  // namespace

PaintingDesk::PaintingDesk(files::Document& document, const editing::PaintingPorts& ports,
                           const PaintingWindows& windows)
    : document_(document),
      windows_(windows),
      painting_(document.picture, ports),
      keyboard_(windows.zoom),
      messages_(ports.messages),
      status_(ports.status),
      views_(ports.views) {
  ConnectZoom();
  ConnectPens();
  ConnectKeyboard();
  pointer_pause_.setSingleShot(true);
  pointer_pause_.setInterval(kDisplayFrameMilliseconds);
  connect(&pointer_pause_, &QTimer::timeout, this, [this] {
    if (pointer_ != shown_pointer_) ShowPointer();
  });
  connect(&windows_.toolbar, &PaintToolBar::ToolChosen, this, &PaintingDesk::ChooseTool);
  ShowColours();
}

void PaintingDesk::ConnectZoom() {
  connect(&windows_.zoom, &frmZoom::Pressed, this,
          [this](QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
            const auto point = windows_.zoom.Area().VisiblePixelAt(at.x(), at.y());
            if (!point || (button != Qt::LeftButton && button != Qt::RightButton)) return;
            modifiers.testFlag(Qt::AltModifier) ? Pick(*point, button) : Press(*point, button);
          });
  connect(&windows_.zoom, &frmZoom::Moved, this, &PaintingDesk::MoveMouse);
  connect(&windows_.zoom, &frmZoom::Released, this, &PaintingDesk::Release);
  connect(&windows_.full_view, &frmBMPView::ColourAsked, this, &PaintingDesk::Pick);
}

void PaintingDesk::ConnectKeyboard() {
  connect(&keyboard_, &KeyboardHand::Pressed, this, &PaintingDesk::Press);
  connect(&keyboard_, &KeyboardHand::Released, this, &PaintingDesk::Release);
  connect(&keyboard_, &KeyboardHand::ColourAsked, this, &PaintingDesk::Pick);
  connect(&keyboard_, &KeyboardHand::Moved, this, [this](model::PixelPoint at, bool held) {
    PointAt(at);
    TellCursor();  // before what the move may tell
    if (held) painting_.Move(at, true);
    ShowPointer();
    ShowPreview(at);
  });
  connect(&keyboard_, &KeyboardHand::CursorGone, this, [this] { TellCursor({}); });
}

void PaintingDesk::ConnectPens() {
  connect(&windows_.colors, &frmColors::LeftPenChosen, this, &PaintingDesk::SetLeftPen);
  connect(&windows_.colors, &frmColors::RightPenChosen, this, &PaintingDesk::SetRightPen);
  connect(&windows_.colors, &frmColors::BackgroundChosen, this, &PaintingDesk::BackgroundChosen);
  connect(&windows_.pens, &frmPens::LeftPenChosen, this, &PaintingDesk::SetLeftPen);
  connect(&windows_.pens, &frmPens::RightPenChosen, this, &PaintingDesk::SetRightPen);
  connect(&windows_.pens, &frmPens::SwapAsked, this, &PaintingDesk::SwapPens);
}

void PaintingDesk::Press(model::PixelPoint at, Qt::MouseButton button) {
  PointAt(at);
  painting_.Press({at, PenOf(button)});
  ActionDone();
}

void PaintingDesk::Release(Qt::MouseButton button) {
  const auto stroke = painting_.StrokeButton();
  if (stroke && QtButton(*stroke) == button) painting_.Release();
  ActionDone();
}

void PaintingDesk::Pick(model::PixelPoint at, Qt::MouseButton button) {
  const model::C64Colour colour = model::GetPixelData(document_.picture, at.x, at.y).colour;
  PenOf(button) == editing::Button::kLeft ? SetLeftPen(colour) : SetRightPen(colour);
}

void PaintingDesk::SwapPens() {
  painting_.PenColours().Swap();
  ShowColours();
}

void PaintingDesk::MoveMouse(QPoint at, Qt::MouseButtons buttons) {
  windows_.full_view.ShowPlainCaption();
  const model::PixelPoint point = windows_.zoom.Area().PixelAt(at.x(), at.y());
  const auto stroke = painting_.StrokeButton();
  if (stroke) painting_.Move(point, buttons.testFlag(QtButton(*stroke)));
  if (model::IsInPicture(point.x, point.y)) PointAt(point);
  ShowPreview(point);
}

void PaintingDesk::ShowPreview(model::PixelPoint pointer) {
  windows_.zoom.ShowPreview(painting_.Preview(pointer), painting_.PenColours().left);
}

// A hand moves the pointer up to a thousand times a second; what shows it follows once a display frame.
void PaintingDesk::PointAt(model::PixelPoint at) {
  pointer_ = at;
  keyboard_.SetStart(at);
  if (pointer_pause_.isActive()) return;
  ShowPointer();
  pointer_pause_.start();
}

void PaintingDesk::ShowPointer() {
  shown_pointer_ = pointer_;
  const model::PixelPlace place = model::LookUpPixel(pointer_.x, pointer_.y);
  windows_.char_data.Show(place);
  windows_.colors.ShowCell(model::ColoursOfCell(document_.picture, place.cell));
  emit PointerAt(QString("x=%1 y=%2 col=%3 row=%4").arg(pointer_.x).arg(pointer_.y).arg(place.column).arg(place.row));
  TellCursor();
}

void PaintingDesk::TellCursor() {
  if (!keyboard_.IsShown()) return;
  const model::PixelPoint at = keyboard_.At();
  const model::C64Colour colour = model::GetPixelData(document_.picture, at.x, at.y).colour;
  TellCursor(QString("x=%1 y=%2 %3").arg(at.x).arg(at.y).arg(PlainColourName(colour)));
}

// Nothing: it was put away.
void PaintingDesk::TellCursor(const QString& text) {
  if (text == told_) return;
  told_ = text;
  windows_.zoom.TellCursor(text);
  status_.Tell(FromQt(text));
}

void PaintingDesk::ActionDone() {
  windows_.toolbar.ShowTool(painting_.ChosenTool());
  windows_.toolbar.ShowCopy(painting_.CopyBuffer(), document_.picture.BackgroundColour);
  ShowPreview(pointer_);
  ShowPointer();
  emit StateChanged();
}

void PaintingDesk::ChooseTool(editing::ToolId tool) {
  painting_.ChooseTool(tool);
  ActionDone();
}

void PaintingDesk::Undo() {
  painting_.Undo();
  ActionDone();
}

void PaintingDesk::TakeCells(const model::PictureImage& picture, const std::string& undo_caption) {
  painting_.TakeCells(picture, undo_caption);
  ActionDone();
}

void PaintingDesk::Tick() {
  const auto prompt = painting_.Prompt();
  if (painting_.Tick() || painting_.Prompt() != prompt) ActionDone();
}

bool PaintingDesk::HandleKeyUp(int key, Qt::KeyboardModifiers modifiers) {
  if (key == Qt::Key_Escape) {
    Escape();
    return true;
  }
  if (MoveZoomArea(key, modifiers)) return true;
  if (modifiers & ~(Qt::ShiftModifier | Qt::KeypadModifier)) return false;
  const char letter = LetterOf(key);
  if (const auto colour = editing::PenForKey(letter)) {
    SetLeftPen(*colour);
    return true;
  }
  const auto tools = editing::ToolTable();
  const auto tool = std::find_if(tools.begin(), tools.end(), [letter](const auto& row) { return row.key == letter; });
  if (tool == tools.end()) return false;
  ChooseTool(tool->id);
  return true;
}

// An unfinished shape goes first, then the keyboard's cursor, then the tool.
void PaintingDesk::Escape() {
  const bool took_shape_back = painting_.CancelShape();
  if (!took_shape_back && keyboard_.IsShown()) return keyboard_.PutAway();
  if (!took_shape_back) painting_.Escape();
  ActionDone();
}

bool PaintingDesk::MoveZoomArea(int key, Qt::KeyboardModifiers modifiers) {
  const auto* row = std::find_if(kZoomKeys.begin(), kZoomKeys.end(), [key](const ZoomKey& r) { return r.key == key; });
  if (row == kZoomKeys.end()) return false;
  const bool far = modifiers.testFlag(Qt::ControlModifier);
  windows_.zoom.Move(row->move, far ? model::ZoomStep::kScreen : model::ZoomStep::kCell);
  return true;
}

void PaintingDesk::SetLeftPen(model::C64Colour colour) {
  painting_.PenColours().left = colour;
  ShowColours();
}

void PaintingDesk::SetRightPen(model::C64Colour colour) {
  painting_.PenColours().right = colour;
  ShowColours();
}

// A pass comes to a thousand cells within a display frame: the window is moved along only where one can see it.
void PaintingDesk::ShowCellOfPass(int cell) {
  const bool is_last = cell == model::PictureImage::kCells;
  if (!pass_.IsOver() && !is_last) return;
  windows_.colors.ShowCell(model::ColoursOfCell(document_.picture, cell));
  pass_.Restart();
}

void PaintingDesk::OptimizeBackgroundColor() {
  views_.ActionBegins("Optimize background color");
  const optimise::Optimized done = optimise::OptimizeBackgroundColor(document_.picture, windows_.full_view.Progress(),
                                                                     [this](int cell) { ShowCellOfPass(cell); });
  windows_.char_data.Show(model::LookUpPixel(pointer_.x, pointer_.y));
  views_.PictureChanged();
  status_.Tell("Optimized: " + std::to_string(done.pixels) + " pixels in " + std::to_string(done.cells) + " cells");
}

void PaintingDesk::OptimizeForEORVector() {
  optimise::OptimizeForEORVector(messages_, windows_.full_view.Progress(), [this](int cell) { ShowCellOfPass(cell); });
}

void PaintingDesk::OptimizeForPacking() {
  views_.ActionBegins("Optimize for packing");
  const model::PictureImage before = document_.picture;
  optimise::OptimizeForPacking(document_.picture, windows_.full_view.Progress());
  windows_.char_data.Show(model::LookUpPixel(pointer_.x, pointer_.y));
  views_.PictureChanged();
  status_.Tell(document_.picture == before ? "It packs best as it is"
                                           : "The colors stand where the picture packs best");
}

void PaintingDesk::PictureReplaced() {
  painting_.Forget();
  ShowColours();
}

void PaintingDesk::ShowColours() {
  const editing::Pens& pens = painting_.PenColours();
  windows_.pens.ShowPens(pens.left, pens.right);
  windows_.colors.PaintColor(pens.left);
  windows_.colors.RightColor(pens.right);
  windows_.colors.BGColor(document_.picture.BackgroundColour);
  ActionDone();
}

}  // namespace kelvo::ui
