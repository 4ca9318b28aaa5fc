// An animation made, walked through and played on the real main window.
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QMdiSubWindow>
#include <QScreen>

#include "anim/anim_settings.h"
#include "main_frame_fixture.h"

namespace kelvo::ui {
namespace {

class AnimationTest : public MainFrameTest {
 protected:
  AnimationTest() {
    create_directories(frames);
    Start();
  }
  void Press(const char* button) { QTest::mouseClick(Find(button), Qt::LeftButton); }
  void Background(int colour) { Menu("mnuBG")->actions()[colour]->trigger(); }
  QString Number() const { return Find<QLineEdit>("txtFrame")->text(); }

  std::filesystem::path frames = folder / "frames";
};

TEST_F(AnimationTest, FramesAreMadeVisitedSavedWhenLeftAndPlayed) {
  AnswerNext(QMessageBox::Ok);
  Action("mnuAnimMode")->trigger();
  EXPECT_EQ(box_text, "Animation folder must be specified");
  InNextDialog([this](QDialog& dialog) {
    InNextDialog<QFileDialog>([this](QFileDialog& chooser) {
      chooser.setDirectory(ToQt(app::TextFromPath(frames)));
      static_cast<QDialog&>(chooser).accept();
    });
    dialog.findChild<QAbstractButton*>("browseFolder")->click();
    const QString path = dialog.findChild<QLineEdit*>("Folder")->text();
    EXPECT_TRUE(path.endsWith(QString("frames") + QDir::separator())) << FromQt(path);
    FillIn(dialog, {{"AnimPrefix", "  walk "}});
  });
  Action("mnuAnimProperties")->trigger();
  AnswerNext(QMessageBox::Yes);
  Action("mnuAnimMode")->trigger();
  EXPECT_TRUE(Action("mnuAnimMode")->isChecked());
  EXPECT_EQ(Panel("pnlAnimation"), "ANIM=ON");
  for (int made = 2; made <= 3; ++made) {
    AnswerNext(QMessageBox::Yes);
    Press("cmdStd_1");
  }
  EXPECT_EQ(Find<QLabel>("lblCount")->text(), "of 3 frames");
  Background(4);
  for (const auto& [button, number] : {std::pair{"cmdStd_3", "1"}, {"cmdStd_2", "3"}, {"cmdStd_0", "2"}}) {
    Press(button);
    EXPECT_EQ(Number(), number) << button;
  }

  const model::PictureImage before = frame->Document().picture;
  const QImage look = Box("frmBMPView")->grab().toImage();
  Find<QSpinBox>("spnRate")->setValue(25);
  Press("cmdPlay");
  const auto shows_two = [](QWidget* view, QPoint at) {
    QSet<QRgb> seen;
    return QTest::qWaitFor([&] { return (seen << view->grab().toImage().pixel(at)).size() == 2; });
  };
  EXPECT_TRUE(shows_two(Box("frmBMPView"), {100, 180}));
  Press("cmdPlayWindow");
  Find("frmPlayer")->resize(700, 300);
  EXPECT_TRUE(shows_two(Find("frmPlayer"), {350, 290}));
  EXPECT_EQ(Find("frmPlayer")->grab().toImage().pixelColor(90, 150), QColor(Qt::black));  // beside the picture
  QTest::keyClick(Find("frmPlayer"), Qt::Key_Escape);
  EXPECT_EQ(Find<QAbstractButton>("cmdPlay")->text(), "&Stop");
  Press("cmdPlay");
  EXPECT_EQ(frame->Document().picture, before);
  EXPECT_EQ(Box("frmBMPView")->grab().toImage(), look);
  for (const auto& [typed, shown] : {std::pair{"", "2"}, {"3", "3"}}) {
    Find<QLineEdit>("txtFrame")->setText(typed);
    QTest::keyClick(Find("txtFrame"), Qt::Key_Return);
    EXPECT_EQ(Number(), shown);
  }
  EXPECT_EQ(frame->Document().picture.BackgroundColour.Number(), 4);
  const QImage plain = Box("frmZoom")->grab().toImage();
  Find<QCheckBox>("chkOnionSkin")->setChecked(true);
  const QImage through = Box("frmZoom")->grab().toImage();
  EXPECT_NE(through, plain);
  Menu("mnuOnionStrength")->actions()[2]->trigger();
  EXPECT_NE(Box("frmZoom")->grab().toImage(), through);
  Menu("mnuOnionFrames")->actions()[1]->trigger();  // behind the last frame there is none
  EXPECT_EQ(Box("frmZoom")->grab().toImage(), plain);
  Menu("mnuOnionFrames")->actions()[2]->trigger();
  Menu("mnuOnionStrength")->actions()[0]->trigger();
  EXPECT_EQ(Box("frmZoom")->grab().toImage(), through);
  Find<QCheckBox>("chkOnionSkin")->setChecked(false);
  Action("mnuChangedCells")->trigger();
  EXPECT_NE(Box("frmZoom")->grab().toImage(), plain);
  Action("mnuChangedCells")->trigger();
  EXPECT_EQ(Box("frmZoom")->grab().toImage(), plain);
  Menu("mnuPlay")->actions()[0]->trigger();
  Press("cmdPlay");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Find<QAbstractButton>("cmdPlay")->text() == "&Play"; }));
  for (int request = 0; request < 2; ++request) QApplication::postEvent(Find("frmAnim"), new QCloseEvent);
  QApplication::processEvents();
  EXPECT_EQ(Panel("pnlAnimation"), "ANIM=OFF");
  EXPECT_EQ(Box("frmZoom")->grab().toImage(), plain);
}

TEST_F(AnimationTest, TheFrameWindowFollowsKeysFilesAndPlaces) {
  settings.Write(anim::kFolder, app::TextFromPath(frames) + "/");
  AnswerNext(QMessageBox::Yes);
  Action("mnuAnimMode")->trigger();
  EXPECT_TRUE(frame->screen()->geometry().contains(Find("frmAnim")->geometry()));
  for (const auto* child : frame->findChildren<QMdiSubWindow*>()) {
    const QRect place(child->mapToGlobal(QPoint()), child->size());
    EXPECT_FALSE(place.intersects(Find("frmAnim")->geometry())) << FromQt(child->objectName());
  }
  Find("frmAnim")->move(frame->pos() + QPoint(300, 200));
  const QPoint place = Find("frmAnim")->pos();
  Find("frmAnim")->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  Action("mnuAnimMode")->trigger();
  EXPECT_EQ(Find("frmAnim")->pos(), place);
  Action("mnuArrange")->trigger();
  EXPECT_NE(Find("frmAnim")->pos(), place);

  Find("frmAnim")->activateWindow();
  Find("cmdStd_1")->setFocus();
  QTest::keyClick(Find("cmdStd_1"), Qt::Key_F);
  QTest::keyClick(Find("cmdStd_1"), Qt::Key_3);
  EXPECT_EQ(Panel("pnlTool"), "FILL");
  Find("txtFrame")->setFocus();
  QTest::keyClick(Find("txtFrame"), Qt::Key_Escape);
  EXPECT_TRUE(QTest::qWaitForWindowActive(frame.get()) && PictureHasFocus());

  frame->Files().New();
  EXPECT_EQ(Number(), "");
  remove_all(frames);
  Press("cmdPlay");
  EXPECT_EQ(Panel("pnlWord"), "THERE ARE NO FRAMES");
  Find("frmAnim")->setGeometry(70, 90, 0, 0);
  frame->close();
  EXPECT_EQ(settings.values["Settings/frmAnimLeftPos"], "70");
}

}  // namespace
}  // namespace kelvo::ui
