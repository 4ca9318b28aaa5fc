// An animation made, walked through and played on the real main window.
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>

#include "anim/anim_settings.h"
#include "main_frame_fixture.h"

namespace kelvo::ui {
namespace {

namespace fs = std::filesystem;

class AnimationTest : public MainFrameTest {
 protected:
  AnimationTest() {
    fs::create_directories(folder / "frames");
    settings.Write(anim::kFolder, app::TextFromPath(folder / "frames") + "/");
    Start();
  }
  void SwitchOn() {
    AnswerNext(QMessageBox::Yes);
    Action("mnuAnimMode")->trigger();
  }
  void Press(const char* button) { QTest::mouseClick(Find(button), Qt::LeftButton); }
  void Next(bool creates) {
    if (creates) AnswerNext(QMessageBox::Yes);
    Press("cmdStd_1");
  }
  void Background(int colour) { Menu("mnuBG")->actions()[colour]->trigger(); }
  QString Number() const { return Find<QLineEdit>("txtFrame")->text(); }
};

TEST_F(AnimationTest, FramesAreMadeVisitedAndSavedWhenLeft) {
  Background(3);
  SwitchOn();
  EXPECT_TRUE(box_text.endsWith("Do you want to create anim0001.kvp based on your loaded kvp?"));
  ASSERT_TRUE(Action("mnuAnimMode")->isChecked());
  EXPECT_EQ(Number(), "1");
  for (int frame_number = 2; frame_number <= 20; ++frame_number) {
    Background(frame_number % 15);
    Next(true);
  }
  EXPECT_EQ(Number(), "20");
  EXPECT_TRUE(fs::exists(folder / "frames" / "anim0020.kvp"));
  EXPECT_EQ(Find<QLabel>("lblCount")->text(), "of 20 frames");
  Background(15);
  Press("cmdStd_3");
  EXPECT_EQ(Number(), "1");
  Press("cmdStd_2");  // back to where we came from
  EXPECT_EQ(Number(), "20");
  EXPECT_EQ(frame->Document().picture.BackgroundColour.Number(), 15);
  Press("cmdStd_0");
  EXPECT_EQ(Number(), "19");
  Find<QLineEdit>("txtFrame")->setText("2");
  QTest::keyClick(Find("txtFrame"), Qt::Key_Return);
  EXPECT_EQ(Number(), "2");
  Find("frmAnim")->close();
  EXPECT_FALSE(Action("mnuAnimMode")->isChecked());
}

TEST_F(AnimationTest, PlayShowsFramesAndLeavesThePictureAlone) {
  SwitchOn();
  Next(true);
  Background(4);
  Press("cmdStd_3");
  const model::PictureImage before = frame->Document().picture;
  Find<QSpinBox>("spnRate")->setValue(25);
  Press("cmdPlay");
  QSet<QRgb> seen;
  for (int look = 0; look < 30 && seen.size() < 2; ++look) {
    QTest::qWait(20);
    seen.insert(Box("frmBMPView")->grab().toImage().pixel(100, 180));
  }
  EXPECT_GE(seen.size(), 2);
  Press("cmdPlay");
  EXPECT_EQ(frame->Document().picture, before);
  EXPECT_EQ(settings.values["AnimProperties/PlayRate"], "25");
  Find<QCheckBox>("chkOnionSkin")->setChecked(true);
  Press("cmdStd_1");
  const QColor plain = QColor::fromRgb(0x8A, 0x46, 0xAE);  // background 4 alone
  EXPECT_NE(Box("frmZoom")->grab().toImage().pixelColor(20, 20), plain);
}

TEST_F(AnimationTest, WhatIsMissingLeavesTheModeOff) {
  settings.Write(anim::kFolder, "");
  AnswerNext(QMessageBox::Ok);
  Action("mnuAnimMode")->trigger();
  EXPECT_EQ(box_text, "Animation folder must be specified");
  settings.Write(anim::kFolder, "/gone/");
  AnswerNext(QMessageBox::No);
  Action("mnuAnimMode")->trigger();
  EXPECT_FALSE(Action("mnuAnimMode")->isChecked());
  QTimer::singleShot(0, [] {
    QWidget* dialog = QApplication::activeModalWidget();
    dialog->findChild<QLineEdit*>("AnimPrefix")->setText("  walk ");
    dialog->findChild<QPushButton*>("cmdStd")->click();
  });
  Action("mnuAnimProperties")->trigger();
  EXPECT_EQ(settings.values["AnimProperties/AnimPrefix"], "walk");
}

}  // namespace
}  // namespace kelvo::ui
