// Any sequence of editing actions on any picture: the picture stays one, the windows hear of every change, and Undo
// brings back exactly what was there before.
#include <algorithm>
#include <optional>
#include <set>

#include "editing/painting.h"
#include "editing/preferences.h"
#include "input.h"
#include "support/program.h"

namespace kelvo::fuzz {
namespace {

using editing::Button;
using model::PictureImage;

using editing::ToolId;
constexpr int kMostActions = 60, kMostFills = 4;

// What a cell's bytes are on the C64.
struct Cell {
  std::array<std::uint8_t, 8> lines{};
  std::uint8_t screen = 0, colour = 0;
  friend bool operator==(const Cell&, const Cell&) = default;
};

Cell CellOf(const PictureImage& picture, int cell) {
  const auto index = static_cast<std::size_t>(cell);
  Cell bytes{.screen = picture.ScreenMemory[index], .colour = picture.ColourMemory[index]};
  std::copy_n(picture.Bitmap.begin() + model::BaseOfCell(cell) + 1, 8, bytes.lines.begin());
  return bytes;
}

// What Undo puts back.
bool LooksTheSame(const PictureImage& one, const PictureImage& other) {
  return one.Bitmap == other.Bitmap && one.ScreenMemory == other.ScreenMemory && one.ColourMemory == other.ColourMemory;
}

// Which cells the windows were told to draw again.
class HeardChanges final : public model::PictureViews {
 public:
  void PixelChanged(int x, int y) override {
    Require(model::IsInPicture(x, y), "a changed pixel lies in the picture");
    cells.insert(model::LookUpPixel(x, y).cell);
  }
  void CellChanged(int cell) override {
    Require(cell >= 1 && cell <= PictureImage::kCells, "a changed cell is one");
    cells.insert(cell);
  }
  void PictureChanged() override { all = true; }

  std::set<int> cells;
  bool all = false;
};

// A person at work, by the bytes of an input. While the program works or asks something, events may come in between.
class Session final : public app::Messages, public app::StatusLine, public app::ProcessEvents {
 public:
  explicit Session(Input& input) : input_(input) { Fill(); }

  void Run() {
    for (int actions = 0; actions < kMostActions && !input_.IsEmpty(); ++actions) {
      const PictureImage before = picture_;
      views_.cells.clear();
      views_.all = false;
      Act(before);
      CheckPicture(before);
    }
    Undo();
  }

  void Inform(std::string_view) override { MeddleFromInside(); }
  void InformWithMore(std::string_view, std::string_view) override {}
  bool InformWithChoice(std::string_view text, std::string_view) override {
    Inform(text);
    return false;
  }
  void Warn(std::string_view) override {}
  void Tell(std::string_view) override {}
  bool Ask(std::string_view) override { return false; }
  app::UnsavedAnswer AskUnsaved(std::string_view) override { return app::UnsavedAnswer::kCancel; }
  void Process() override {
    if (++processed_ % 64 == 0) MeddleFromInside();
  }

 private:
  // A picture of few different bytes, so that cells are full or share colours often.
  void Fill() {
    const std::array<std::uint8_t, 4> palette{input_.Byte(), input_.Byte(), input_.Byte(), input_.Byte()};
    picture_.BackgroundColour = model::C64Colour::FromByte(input_.Byte());
    const int step = 1 + input_.Below(64);
    const auto fill = [&](auto& bytes) {
      for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = palette[i / static_cast<std::size_t>(step) % 4];
    };
    if (input_.Bit()) fill(picture_.Bitmap);
    if (input_.Bit()) fill(picture_.ScreenMemory);
    if (input_.Bit()) fill(picture_.ColourMemory);
  }

  model::PixelPoint Place() { return {1 + input_.Below(160), 1 + input_.Below(200)}; }
  // The pointer of a drag may be outside.
  model::PixelPoint AnyPlace() { return {input_.Byte() - 40, input_.Byte() - 20}; }

  void Act(const PictureImage& before) {
    switch (input_.Below(12)) {
      case 0:
      case 1:
      case 2:
        return Press(before);
      case 3:
      case 4:
        return painting_.Move(AnyPlace(), input_.Below(8) != 0);
      case 5:
        return painting_.Release();
      case 6:
        return Tick();
      case 7:
        return Undo();
      case 8:
        painting_.Escape();
        return GiveUpShape();
      case 9:
        Tick();
        painting_.ChooseTool(static_cast<ToolId>(input_.Below(7)));
        return GiveUpShape();
      case 10:
        return SetPens();
      default:
        return ChangeAround();
    }
  }

  void SetPens() {
    painting_.PenColours().left = model::C64Colour::FromByte(input_.Byte());
    painting_.PenColours().right = model::C64Colour::FromByte(input_.Byte());
    if (input_.Bit()) painting_.PenColours().Swap();
  }

  void ChangeAround() {
    settings_.Write(editing::k4thColReplaces, input_.Bit() ? "1" : "0");
    settings_.Write(editing::kReplaceLeastUsedColWhenFilling, input_.Bit() ? "1" : "0");
    for (const model::PixelPoint& point : painting_.Preview(AnyPlace())) {
      Require(point.x >= -1000 && point.x <= 1000 && point.y >= -1000 && point.y <= 1000, "a preview stays near");
    }
  }

  // Follows which presses begin something that Undo takes back.
  void Press(const PictureImage& before) {
    const editing::PointerEvent event{Place(), input_.Bit() ? Button::kLeft : Button::kRight};
    const ToolId tool = painting_.ChosenTool();
    if (tool == ToolId::kFill && ++fills_ > kMostFills) return;
    const auto stroke = painting_.StrokeButton();
    if (stroke && *stroke != event.button) return painting_.Press(event);
    const bool is_shape = tool == ToolId::kLine || tool == ToolId::kContinuousLine || tool == ToolId::kCircle;
    const bool only_takes = tool == ToolId::kMouseCopy && event.button == Button::kRight;
    if (is_shape && points_ == 0) undo_before_shape_ = undo_;
    if (is_shape ? points_ == 0 : !only_takes) undo_ = before;
    if (is_shape) points_ = std::min(points_ + 1, 2);
    painting_.Press(event);
    Require(!undo_ || painting_.UndoData().CanUndo(), "what can be taken back is offered");
  }

  void Tick() {
    painting_.Tick();
    if (points_ != 2) return;
    points_ = painting_.ChosenTool() == ToolId::kContinuousLine ? 1 : 0;
    undo_before_shape_.reset();
  }

  // What was drawn can be taken back; a shape of which nothing is drawn leaves the step before it.
  void GiveUpShape() {
    if (points_ > 0 && undo_before_shape_) undo_ = *undo_before_shape_;
    points_ = 0;
  }

  void Undo() {
    const bool in_stroke = painting_.StrokeButton().has_value();
    Require(painting_.UndoData().CanUndo() == undo_.has_value(), "Undo is offered when there is something");
    const PictureImage before = picture_;
    painting_.Undo();
    if (in_stroke) return Require(picture_ == before, "there is no undo inside a stroke");
    points_ = 0;
    if (undo_) Require(LooksTheSame(picture_, *undo_), "Undo brings back exactly the picture before");
    undo_.reset();
  }

  // Events while an action is at work: all but the end of a stroke are passed over.
  void MeddleFromInside() {
    const PictureImage before = picture_;
    Require(painting_.IsBusy(), "an action that asks is at work");
    painting_.Press({{80, 100}, Button::kRight});
    painting_.Move({90, 90}, true);
    painting_.Tick();
    painting_.Undo();
    painting_.Escape();
    painting_.ChooseTool(static_cast<ToolId>(input_.Below(7)));
    if (input_.Bit()) painting_.Release();
    Require(picture_ == before, "no second action starts inside the first");
  }

  void CheckPicture(const PictureImage& before) const {
    Require(picture_.BackgroundColour == before.BackgroundColour && picture_.LoadAddressLow == before.LoadAddressLow &&
                picture_.LoadAddressHigh == before.LoadAddressHigh,
            "painting leaves background and load address");
    if (LooksTheSame(picture_, before)) return;
    CheckSpareBytes(before);
    for (int cell = 1; cell <= PictureImage::kCells; ++cell) {
      if (CellOf(picture_, cell) == CellOf(before, cell)) continue;
      Require(views_.all || views_.cells.contains(cell), "the windows hear of every change");
      CheckColours(cell);
    }
  }

  void CheckSpareBytes(const PictureImage& before) const {
    const auto same = [](const auto& one, const auto& other, int used) {
      return one[0] == other[0] && std::equal(one.begin() + used + 1, one.end(), other.begin() + used + 1);
    };
    Require(same(picture_.Bitmap, before.Bitmap, PictureImage::kBitmapBytes) &&
                same(picture_.ScreenMemory, before.ScreenMemory, PictureImage::kCells) &&
                same(picture_.ColourMemory, before.ColourMemory, PictureImage::kCells),
            "painting leaves the bytes that nothing displays");
  }

  // The background and three colours of its own, and each pixel shows the colour of its slot.
  void CheckColours(int cell) const {
    const Cell bytes = CellOf(picture_, cell);
    const std::array<int, 4> slots{picture_.BackgroundColour.Number(), bytes.screen >> 4, bytes.screen & 15,
                                   bytes.colour & 15};
    const int left = (cell - 1) % PictureImage::kCellsWide * 4 + 1, top = (cell - 1) / PictureImage::kCellsWide * 8 + 1;
    for (int i = 0; i < 32; ++i) {
      const auto pair = static_cast<std::size_t>(bytes.lines[static_cast<std::size_t>(i / 4)] >> (6 - i % 4 * 2) & 3);
      const int shown = model::GetPixelData(picture_, left + i % 4, top + i / 4).colour.Number();
      Require(shown == slots[pair], "a pixel shows the colour of its slot");
    }
  }

  Input& input_;
  PictureImage picture_;
  HeardChanges views_;
  support::MapSettings settings_;
  support::NoWaitPointer pointer_;
  support::FixedClock clock_;
  app::ErrorLog log_{"/dev/null", clock_};
  editing::Painting painting_{picture_, {views_, settings_, *this, *this, *this, pointer_, log_}};
  std::optional<PictureImage> undo_;                              // what Undo has to bring back
  std::optional<std::optional<PictureImage>> undo_before_shape_;  // none: something of the shape is drawn
  int points_ = 0;                                                // of the shape under way that are set
  int fills_ = 0;
  int processed_ = 0;
};

}  // namespace
}  // namespace kelvo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvo;
  fuzz::Input input(data, size);
  fuzz::Session(input).Run();
  return 0;
}
