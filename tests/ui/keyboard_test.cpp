// Painting by keyboard: the same actions by keys and by mouse give the same file, byte for byte.
#include <QSet>
#include <QToolBar>

#include "editing/preferences.h"
#include "main_frame_fixture.h"
#include "support/pictures.h"
#include "ui/widgets/swatch_button.h"

namespace kelvo::ui {
namespace {

using model::PixelPoint;

// A press with a tool, the points that the pointer goes to with the button held, each straight on from the one before,
// and the release.
struct Stroke {
  editing::ToolId tool;
  int left_pen, right_pen;
  Qt::MouseButton button;
  std::vector<PixelPoint> way;
};

// Four in a row with each tool, so that shapes get all of their points.
std::vector<Stroke> SomeStrokes(int count) {
  std::mt19937 random(2611);
  const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
  std::vector<Stroke> strokes;
  for (int number = 0; number < count; ++number) {
    const auto tool = static_cast<editing::ToolId>(number / 4 % 7);
    Stroke stroke{tool, below(16), below(16), below(3) == 0 ? Qt::RightButton : Qt::LeftButton, {}};
    PixelPoint at{below(160) + 1, below(200) + 1};
    for (int steps = below(12); steps >= 0; --steps) {
      stroke.way.push_back(at);
      const int far = (below(2) * 2 - 1) * (below(4) == 0 ? 8 : 1);
      at = below(2) == 0 ? PixelPoint{std::clamp(at.x + far, 1, 160), at.y}
                         : PixelPoint{at.x, std::clamp(at.y + far, 1, 200)};
    }
    strokes.push_back(std::move(stroke));
  }
  return strokes;
}

class KeyboardTest : public MainFrameTest {
 protected:
  KeyboardTest() { Begin(); }

  // A new program on a picture with full, half full and empty cells.
  void Begin() {
    frame.reset();
    Start();
    frame->findChild<QTimer*>("Timer1")->stop();  // the ticks are the test's own
    Open(support::BlotchyPicture(8));
  }
  void Open(const model::PictureImage& picture) {
    support::WriteFile(folder / "p.kvp", files::Encode(picture));
    frame->Files().OpenPicture(folder / "p.kvp");
  }
  frmZoom* Zoom() const { return Find<frmZoom>("frmZoom"); }
  void Type(int letter) { Key(static_cast<Qt::Key>(letter)); }

  void ByMouse(const Stroke& stroke) {
    QTest::mouseClick(Swatch(stroke.left_pen), Qt::LeftButton);
    QTest::mouseClick(Swatch(stroke.right_pen), Qt::RightButton);
    const auto tools = frame->findChild<QToolBar*>("Toolbar1")->actions();
    tools.at(static_cast<int>(stroke.tool))->trigger();
    const PixelPoint begin = stroke.way.front();
    Zoom()->CentreOn((begin.x + 3) / 4, (begin.y + 7) / 8);
    QTest::mousePress(Box("frmZoom"), stroke.button, {}, At(begin.x, begin.y));
    for (const PixelPoint& point : stroke.way) MoveMouse(Box("frmZoom"), At(point.x, point.y), stroke.button);
    QTest::mouseRelease(Box("frmZoom"), stroke.button, {}, At(stroke.way.back().x, stroke.way.back().y));
    frame->Desk().Tick();
  }

  void ByKeys(const Stroke& stroke) {
    constexpr std::string_view kPens = "12345678QWERTYUI", kTools = "DFLKCMB";
    Type(kPens.at(static_cast<std::size_t>(stroke.right_pen)));
    Key(Qt::Key_X);
    Type(kPens.at(static_cast<std::size_t>(stroke.left_pen)));
    Type(kTools.at(static_cast<std::size_t>(stroke.tool)));
    WalkTo(stroke.way.front());
    const auto shift = stroke.button == Qt::RightButton ? Qt::ShiftModifier : Qt::NoModifier;
    QTest::keyPress(Box("frmZoom"), Qt::Key_Space, shift);
    for (const PixelPoint& point : stroke.way) WalkTo(point);
    QTest::keyRelease(Box("frmZoom"), Qt::Key_Space);
    frame->Desk().Tick();
  }
  void WalkTo(PixelPoint to) {
    const auto walk = [this](int from, int goal, Qt::Key less, Qt::Key more, int cell) {
      const int distance = std::abs(goal - from);
      for (int step = 0; step < distance / cell; ++step) Key(goal < from ? less : more, Qt::ShiftModifier);
      for (int step = 0; step < distance % cell; ++step) Key(goal < from ? less : more);
    };
    walk(cursor.x, to.x, Qt::Key_Left, Qt::Key_Right, 4);
    walk(cursor.y, to.y, Qt::Key_Up, Qt::Key_Down, 8);
    cursor = to;
  }
  // Enter, and to the top left corner.
  void ShowCursorInCorner() {
    Key(Qt::Key_Return);
    for (int step = 0; step < 40; ++step) Key(Qt::Key_Left, Qt::ShiftModifier);
    for (int step = 0; step < 25; ++step) Key(Qt::Key_Up, Qt::ShiftModifier);
    cursor = {1, 1};
  }
  app::Bytes Saved() {
    QTest::keyClick(frame.get(), Qt::Key_S, Qt::ControlModifier);
    return support::ReadFile(folder / "p.kvp");
  }

  PixelPoint cursor;
};

// Where full cells take a colour over, and where they refuse it.
TEST_F(KeyboardTest, PaintsTheSameFileAsTheMouse) {
  settings.Write(editing::kTellRefusalsInStatusBar, "1");
  const auto strokes = SomeStrokes(280);
  for (const char* replaces : {"1", "0"}) {
    settings.Write(editing::k4thColReplaces, replaces);
    Begin();
    const app::Bytes before = support::ReadFile(folder / "p.kvp");
    for (const Stroke& stroke : strokes) ByMouse(stroke);
    const app::Bytes by_mouse = Saved();
    Begin();
    ShowCursorInCorner();
    for (const Stroke& stroke : strokes) ByKeys(stroke);
    EXPECT_TRUE(Saved() == by_mouse) << replaces;
    EXPECT_FALSE(by_mouse == before) << replaces;
  }
}

TEST_F(KeyboardTest, TheCursorIsSeenAndToldAndTheViewFollowsIt) {
  QWidget* box = Box("frmZoom");
  QTest::mouseClick(Zoom()->parentWidget(), Qt::LeftButton, {}, {60, 8});  // its title, which then has the keyboard
  QTest::keyClick(frame->focusWidget(), Qt::Key_Return);
  EXPECT_NE(box->accessibleName(), "Zoom picture");
  Key(Qt::Key_Return);
  ShowCursorInCorner();
  const QImage in_corner = box->grab().toImage();
  QSet<QString> told;
  for (int step = 0; step < 39; ++step) {
    Key(Qt::Key_Right, Qt::ShiftModifier);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    told.insert(box->accessibleName());
  }
  EXPECT_EQ(told.size(), 39);
  const QString colour = PlainColourName(model::GetPixelData(Picture(), 157, 200).colour);
  EXPECT_EQ(box->accessibleName(), "Zoom picture, x=157 y=200 " + colour);
  EXPECT_EQ(ZoomOrigin(), QPoint(160, 56));
  EXPECT_NE(box->grab().toImage(), in_corner);
  Key(Qt::Key_P, Qt::ShiftModifier);
  const editing::Pens& pens = frame->Desk().Painting().PenColours();
  EXPECT_EQ(PlainColourName(pens.right), colour);
  EXPECT_NE(pens.left, pens.right);
  Key(Qt::Key_Return);
  EXPECT_EQ(box->accessibleName(), "Zoom picture");
  const model::PictureImage before = Picture();
  Key(Qt::Key_Space);
  Key(Qt::Key_Up);
  EXPECT_EQ(ZoomOrigin(), QPoint(160, 48));
  EXPECT_EQ(Picture(), before);
}

TEST_F(KeyboardTest, EscapeTakesAShapeBackThenTheCursorThenTheTool) {
  Key(Qt::Key_Enter);
  Type(Qt::Key_L);
  Key(Qt::Key_Space);
  frame->Desk().Tick();
  for (const auto& [prompt, arrows_move_it] :
       {std::pair{"SET ENDING POINT", true}, {"SET STARTING POINT", true}, {"SET STARTING POINT", false}}) {
    EXPECT_EQ(Panel("pnlTool"), prompt);
    EXPECT_EQ(Box("frmZoom")->accessibleName() != "Zoom picture", arrows_move_it);
    Key(Qt::Key_Escape);
  }
  EXPECT_EQ(Panel("pnlTool"), "DRAW");
}

TEST_F(KeyboardTest, ARepeatingSpaceIsOnePressAndABoxDoesNotHoldIt) {
  model::PictureImage picture;
  support::SetCell(picture, 2, support::kAllSlots, 1, 2, 3);
  Open(picture);
  settings.Write(editing::k4thColReplaces, "0");
  ShowCursorInCorner();
  Type(Qt::Key_6);
  QTest::keyPress(Box("frmZoom"), Qt::Key_Space);
  const QString bytes = Find<QLabel>("lblBytes")->text();
  Key(Qt::Key_Right);
  EXPECT_NE(Find<QLabel>("lblBytes")->text(), bytes);
  QKeyEvent again(QEvent::KeyPress, Qt::Key_Space, {}, " ", true);
  QApplication::sendEvent(Box("frmZoom"), &again);
  InNextDialog<QMessageBox>([](QMessageBox& box) {
    QTest::keyRelease(&box, Qt::Key_Space);  // held until now
    QTest::keyClick(&box, Qt::Key_Return);
  });
  for (int step = 0; step < 10; ++step) Key(Qt::Key_Right);  // into the full cell: the stroke ends with its box
  EXPECT_EQ(support::ColourAt(Picture(), 4, 1), 5);
  EXPECT_EQ(support::ColourAt(Picture(), 9, 1), 0);
  frame->Desk().Undo();  // all of it was one stroke
  EXPECT_EQ(support::ColourAt(Picture(), 1, 1), 0);
}

}  // namespace
}  // namespace kelvo::ui
