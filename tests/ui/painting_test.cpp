// Painting with real mouse buttons and keys on the real main window, against what the core gives for the same actions.

#include "editing/preferences.h"
#include "main_frame_fixture.h"
#include "support/pictures.h"

namespace kelvo::ui {
namespace {

class PaintingWindowTest : public MainFrameTest {
 protected:
  PaintingWindowTest() { Start(); }

  // The mouse goes through the window, so that Qt's own grabbing and blocking takes part.
  QPoint InWindow(int x, int y) const { return Box("frmZoom")->mapTo(frame.get(), At(x, y)); }
  void Press(int x, int y) { QTest::mousePress(frame->windowHandle(), Qt::LeftButton, {}, InWindow(x, y)); }
  void MoveTo(int x, int y) { QTest::mouseMove(frame->windowHandle(), InWindow(x, y)); }
  void Release() { QTest::mouseRelease(frame->windowHandle(), Qt::LeftButton); }
  // Three own colours in the first cell, and a pen of a fourth.
  void FillFirstCell() {
    for (int pen = 1; pen <= 3; ++pen) {
      Key(static_cast<Qt::Key>(Qt::Key_1 + pen));
      Click(pen, 1);
    }
    Key(Qt::Key_5);
  }
  void Click(int x, int y, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(frame->windowHandle(), button, {}, InWindow(x, y));
  }
  // By the keyboard, so that the mouse may be held.
  void CloseNextBox(bool let_go) {
    InNextDialog<QMessageBox>([this, let_go](QMessageBox& box) {
      box_text = box.text();
      if (let_go) Release();
      QTest::keyClick(&box, Qt::Key_Return);
    });
  }
  bool IsToldSoon(const char* prompt) const {
    return QTest::qWaitFor([&] { return Panel("pnlTool") == prompt; });
  }
  QString Bytes() const { return Find<QLabel>("lblBytes")->text(); }
  int Colour(int x, int y) const { return support::ColourAt(Picture(), x, y); }
};

TEST_F(PaintingWindowTest, ToolsPaintWithTheMouseAndAreUndone) {
  Key(Qt::Key_6);  // green
  Press(3, 3);
  MoveTo(40, 30);
  Release();
  EXPECT_EQ(Colour(3, 3), 5);
  EXPECT_EQ(Colour(40, 30), 5);
  EXPECT_EQ(Action("mnuUndo")->text(), "&Undo draw");
  MoveTo(60, 60);
  EXPECT_EQ(Colour(60, 60), 0);

  Action("tool_line")->trigger();
  EXPECT_EQ(Panel("pnlTool"), "SET STARTING POINT");
  Click(1, 50);
  EXPECT_TRUE(IsToldSoon("SET ENDING POINT"));
  const QImage before = Box("frmZoom")->grab().toImage();
  MoveTo(11, 55);  // a preview, which is never written
  EXPECT_NE(Box("frmZoom")->grab().toImage(), before);
  EXPECT_EQ(Colour(5, 52), 0);
  Click(11, 50);
  EXPECT_TRUE(IsToldSoon("SET STARTING POINT"));
  EXPECT_EQ(Colour(10, 50), 5);
  Action("mnuUndo")->trigger();
  EXPECT_EQ(Colour(10, 50), 0);
  EXPECT_FALSE(Action("mnuUndo")->isEnabled());
  for (int press = 0; press < 2; ++press) Key(Qt::Key_Escape);
  EXPECT_EQ(Panel("pnlTool"), "DRAW");

  Press(10, 10);
  frame->Desk().LoseFocus();  // ends the stroke
  MoveTo(20, 10);
  Release();
  EXPECT_EQ(Colour(15, 10), 0);
  EXPECT_TRUE(Action("mnuUndo")->isEnabled());
  Action("mnuNew")->trigger();
  EXPECT_FALSE(Action("mnuUndo")->isEnabled());
}

// Nothing waits for the pointer to move again.
TEST_F(PaintingWindowTest, WhatIsDrawnIsShownAtOnce) {
  frame->findChild<QTimer*>("Timer1")->stop();
  // The prompt is the same before and after the tick that draws: both points fall into one, or the line goes on.
  for (const auto& [tool, ticks] : {std::pair{"tool_line", 0}, {"tool_continuous_line", 1}}) {
    SCOPED_TRACE(tool);
    Action(tool)->trigger();
    Click(1, 1);
    for (int tick = 0; tick < ticks; ++tick) frame->Desk().Tick();
    Click(4, 4);
    const QString before = Bytes();
    frame->Desk().Tick();
    EXPECT_NE(Bytes(), before);
    const QImage shown = Box("frmZoom")->grab().toImage();
    for (const int x : {5, 4}) MoveTo(x, 4);
    EXPECT_EQ(Box("frmZoom")->grab().toImage(), shown);
    Key(Qt::Key_3);
  }
  for (const auto& [tool, told] : {std::pair{"tool_block_fill", "BF=ON"}, {"tool_draw", "BF=OFF"}}) {
    Action(tool)->trigger();
    EXPECT_EQ(Panel("pnlBlockFill"), told);
  }
  Action("tool_block_fill")->trigger();
  Click(9, 1);
  QTest::mouseClick(Swatch(2), Qt::LeftButton, Qt::ShiftModifier);
  Action("mnuOptimizeBackgroundColor")->trigger();
  EXPECT_TRUE(Bytes().startsWith("00000000 $00"));
}

TEST_F(PaintingWindowTest, EscapeInAnotherWindowLeavesAShapeAlone) {
  Action("tool_line")->trigger();
  Click(1, 1);
  ASSERT_TRUE(IsToldSoon("SET ENDING POINT"));
  for (const char* form : {"frmCharData", "frmColors", "frmPens"}) {
    QWidget* window = Find(form)->parentWidget();
    QTest::mouseClick(window, Qt::LeftButton, {}, {60, 8});  // its title
    EXPECT_FALSE(PictureHasFocus()) << form;
    QTest::keyClick(frame->focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(PictureHasFocus()) << form;
    EXPECT_EQ(Panel("pnlTool"), "SET ENDING POINT") << form;
  }
  // These go when the key is pressed, before it is let go.
  for (const auto& [entry, form] : {std::pair{"mnuKeys", "frmKeys"}, {"mnuCodenetGUI", "frmCodenetGUI"}}) {
    Action(entry)->trigger();
    const QPointer<QWidget> window = Find(form);
    QTest::keyPress(window, Qt::Key_Escape);
    EXPECT_FALSE(window && window->isVisible()) << form;
    QTest::keyRelease(Box("frmZoom"), Qt::Key_Escape);
    EXPECT_EQ(Panel("pnlTool"), "SET ENDING POINT") << form;
  }
}

TEST_F(PaintingWindowTest, AFullCellIsRefusedWhereThePreferenceSaysSo) {
  FillFirstCell();
  Prefer("4thColReplaces", false);
  Press(5, 1);
  CloseNextBox(false);
  MoveTo(4, 1);
  EXPECT_EQ(box_text, "Not possible - all colors used");
  MoveTo(7, 1);  // the stroke outlives the box
  EXPECT_EQ(Colour(7, 1), 4);
  CloseNextBox(true);
  MoveTo(4, 1);
  Action("mnuUndo")->trigger();  // the stroke ended with its button
  EXPECT_EQ(Colour(7, 1), 0);
}

TEST_F(PaintingWindowTest, ARefusalFlashesAndCanDoWithoutItsBox) {
  settings.Write(editing::k4thColReplaces, "0");
  FillFirstCell();
  MoveTo(4, 1);
  const auto shown = [this] { return Box("frmZoom")->grab().toImage(); };
  const QImage calm = shown();
  InNextDialog<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.checkBox()->text(), "Tell it in the status bar from now on");
    box.checkBox()->click();
    QTest::keyClick(&box, Qt::Key_Return);
  });
  for (int press = 0; press < 2; ++press) {
    Click(4, 1);
    EXPECT_TRUE(press == 0 || shown() != calm);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == calm; }));
  }
}

TEST_F(PaintingWindowTest, PensAndBackgroundAreChosenInTheColoursWindow) {
  QTest::mouseClick(Swatch(7), Qt::LeftButton);
  QTest::mouseClick(Swatch(8), Qt::RightButton);
  Click(1, 1);
  Click(2, 1, Qt::RightButton);
  EXPECT_EQ(Colour(1, 1), 7);
  EXPECT_EQ(Colour(2, 1), 8);
  EXPECT_TRUE(Swatch(7)->accessibleName().startsWith("left pen"));
  QTest::mouseClick(Swatch(6), Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_EQ(Picture().BackgroundColour.Number(), 6);
  QTest::mouseClick(Find("cmdSwap"), Qt::LeftButton);
  Click(3, 1);
  EXPECT_EQ(Colour(3, 1), 8);
  QTest::mouseClick(Swatch(12), Qt::RightButton);
  EXPECT_TRUE(Swatch(12)->hasFocus());
  for (const Qt::Key arrow : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Left}) {
    QTest::keyClick(frame->focusWidget(), arrow);
  }
  EXPECT_TRUE(Swatch(12)->hasFocus());
  EXPECT_EQ(ZoomOrigin(), QPoint(0, 0));
  QTest::keyClick(Swatch(12), Qt::Key_Space);
  Click(1, 9);
  EXPECT_EQ(Colour(1, 9), 12);
  // A shortcut's key is no pen when its Ctrl is let go first.
  QTest::keyPress(Box("frmZoom"), Qt::Key_8, Qt::ControlModifier);
  QTest::keyRelease(Box("frmZoom"), Qt::Key_8, Qt::NoModifier);
  EXPECT_TRUE(Swatch(12)->accessibleName().startsWith("left pen"));
  Key(Qt::Key_8);
  EXPECT_TRUE(Swatch(7)->accessibleName().startsWith("left pen"));
}

TEST_F(PaintingWindowTest, AltTakesTheColourUnderThePointerAndXSwapsThePens) {
  for (const auto& [key, y] : {std::pair{Qt::Key_6, 1}, {Qt::Key_8, 2}}) {
    Key(key);
    Click(9, y);
  }
  const model::PictureImage before = Picture();
  const auto alt_click = [](QWidget* box, Qt::MouseButton button, QPoint at) {
    QTest::mousePress(box, button, Qt::AltModifier, at);
    MoveMouse(box, at + QPoint(40, 90), button);
    QTest::mouseRelease(box, button, Qt::AltModifier, at + QPoint(40, 90));
  };
  const auto pens = [&pens = frame->Desk().Painting().PenColours()] {
    return std::pair(pens.left.Number(), pens.right.Number());
  };
  alt_click(Box("frmZoom"), Qt::LeftButton, At(9, 1));
  alt_click(Box("frmZoom"), Qt::RightButton, At(9, 2));
  EXPECT_EQ(pens(), std::pair(5, 7));
  Key(Qt::Key_X);
  EXPECT_EQ(pens(), std::pair(7, 5));
  alt_click(Box("frmBMPView"), Qt::RightButton, {17, 1});
  alt_click(Box("frmBMPView"), Qt::LeftButton, {17, 0});
  EXPECT_EQ(pens(), std::pair(5, 7));
  EXPECT_EQ(Picture(), before);
  EXPECT_EQ(ZoomOrigin(), QPoint(0, 0));  // the full view was not dragged
}

TEST_F(PaintingWindowTest, ABackgroundIsTriedAndCellUseIsShown) {
  Key(Qt::Key_8);
  for (int x = 1; x <= 4; ++x) Click(x, 1);
  const QImage plain = Box("frmBMPView")->grab().toImage(), zoomed = Box("frmZoom")->grab().toImage();
  Action("mnuCellUse")->trigger();
  EXPECT_NE(Box("frmBMPView")->grab().toImage(), plain);
  EXPECT_NE(Box("frmZoom")->grab().toImage(), zoomed);
  EXPECT_TRUE(Swatch(7)->accessibleName().endsWith(", in 1 cell"));
  Click(5, 1);
  EXPECT_TRUE(Swatch(7)->accessibleName().endsWith(", in 2 cells"));
  Click(5, 1, Qt::RightButton);
  Action("mnuCellUse")->trigger();
  EXPECT_EQ(Box("frmBMPView")->grab().toImage(), plain);
  EXPECT_FALSE(Swatch(7)->accessibleName().contains("cells"));

  InNextDialog([](QDialog& dialog) {
    const auto number = [&dialog](const char* label) { return dialog.findChild<QLabel*>(label)->text(); };
    EXPECT_EQ(number("lblClash_7"), "1");
    dialog.findChild<QAbstractButton*>("cmdTry_7")->click();
    EXPECT_EQ(number("lblGain_7"), "as it is");
    EXPECT_EQ(number("lblClash_0"), "0");
    dialog.reject();
  });
  Action("mnuWhatIf")->trigger();
  EXPECT_EQ(Colour(100, 100), 7);
}

}  // namespace
}  // namespace kelvo::ui
