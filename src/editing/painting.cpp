#include "editing/painting.h"

namespace kelvo::editing {

// Marks one event as being at work for as long as it lives.
class Painting::BusyScope {
 public:
  explicit BusyScope(bool& busy) : busy_(busy) { busy_ = true; }
  ~BusyScope() { busy_ = false; }
  BusyScope(const BusyScope&) = delete;
  BusyScope& operator=(const BusyScope&) = delete;

 private:
  bool& busy_;
};

Painting::Painting(model::PictureImage& picture, const PaintingPorts& ports)
    : undo_(picture, ports.views),
      plotter_(picture, ports.views, ports.settings, ports.messages, ports.status),
      fill_(picture, ports.views, ports.events) {
  const ToolParts parts{picture, ports, pens_, undo_, plotter_, fill_, buffer_};
  for (const ToolRow& row : ToolTable()) tools_.push_back(row.make(parts));
}

Painting::~Painting() = default;

void Painting::ChooseTool(ToolId tool) {
  Tick();  // a shape whose last point is set is drawn before the tool changes
  if (busy_) return;
  stroke_.reset();
  Active().Cancel();
  tool_ = tool;
}

void Painting::Press(const PointerEvent& event) {
  if (busy_ || (stroke_ && stroke_->button != event.button)) return;
  stroke_.reset();  // a button that goes down again had been released where nobody saw it
  const BusyScope busy(busy_);
  if (Active().Press(event) == PressResult::kStroke) stroke_ = event;
}

void Painting::Move(model::PixelPoint at, bool held) {
  if (busy_ || !stroke_) return;
  if (!held) return Release();
  if (stroke_->at == at) return;
  const BusyScope busy(busy_);
  const model::PixelPoint from = stroke_->at;
  stroke_->at = at;
  const PointerEvent to = *stroke_;  // a message box may end the stroke before the drag is done
  Active().Drag(from, to);
}

bool Painting::Tick() {
  if (busy_) return false;
  const BusyScope busy(busy_);
  return Active().Tick();
}

bool Painting::CancelShape() {
  return !busy_ && Active().Cancel();
}

void Painting::Escape() {
  if (!CancelShape()) ChooseTool(ToolId::kDraw);
}

void Painting::Undo() {
  if (busy_ || stroke_) return;
  undo_.Undo();
  Active().Cancel();
}

void Painting::TakeCells(const model::PictureImage& picture, std::string_view undo_caption) {
  if (busy_ || stroke_) return;
  Active().Cancel();
  undo_.Replace(picture, undo_caption);
}

void Painting::Forget() {
  stroke_.reset();
  Active().Cancel();
  undo_.Forget();
}

std::optional<Button> Painting::StrokeButton() const {
  return stroke_ ? std::optional(stroke_->button) : std::nullopt;
}

}  // namespace kelvo::editing
