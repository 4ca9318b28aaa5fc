// The main window: start, menus, the two picture windows, and the end.
#include <QMdiSubWindow>
#include <QSet>

#include "main_frame_fixture.h"
#include "model/palette.h"
#include "model/pixel_colour.h"

namespace kelvo::ui {
namespace {

using model::C64Colour;

int CheckedOf(QMenu* menu) {
  int checked = -1;
  for (int i = 0; i < menu->actions().size(); ++i) {
    if (!menu->actions()[i]->isChecked()) continue;
    EXPECT_EQ(checked, -1) << "more than one entry is checked";
    checked = i;
  }
  return checked;
}

QColor PixelOf(QWidget* box, int x, int y) {
  return box->grab().toImage().pixelColor(x, y);
}

TEST_F(MainFrameTest, FirstStartMakesFoldersAndShowsDefaults) {
  std::filesystem::create_directories(folders.System());
  support::WriteFile(folders.Snapshot(), {1});
  Start();
  EXPECT_TRUE(std::filesystem::is_directory(folders.Gfx()));
  EXPECT_FALSE(std::filesystem::exists(folders.Snapshot()));
  EXPECT_EQ(frame->windowTitle(), "Kelvo v1.2 by the Kelvo developers [unnamed.kvp]");
  EXPECT_EQ(Panel("pnlFile"), "[unnamed]");
  EXPECT_EQ(Panel("pnlBlockFill"), "BF=OFF");
  EXPECT_EQ(Panel("pnlAnimation"), "ANIM=OFF");
  EXPECT_EQ(Find("frmZoom")->windowTitle(), " Zoom (4:1)");
  EXPECT_TRUE(Action("mnuZoom_4X")->isChecked());
  EXPECT_EQ(CheckedOf(Menu("mnuGrid")), 9);
  EXPECT_FALSE(Action("mnuReload")->isEnabled());
  EXPECT_TRUE(Action("mnuSave")->isEnabled());
}

TEST_F(MainFrameTest, NonsenseInTheSettingsReadsAsDefaults) {
  settings.Write(app::kMagnification, "7");
  settings.Write(app::kGridColor, "99");
  settings.values["Recent/Recent1"] = app::TextFromPath(folder.Path());
  Start();
  EXPECT_EQ(frame->Zoom().Area().Magnification(), 4);
  EXPECT_EQ(frame->Zoom().GridColor().Number(), 9);
  AnswerNext(QMessageBox::Ok);
  frame->Files().OpenRecent(app::TextFromPath(folder.Path()));
  EXPECT_TRUE(box_text.contains("folder"));
  EXPECT_FALSE(frame->HasFile());
}

TEST_F(MainFrameTest, AnOpenedPictureShowsInBothWindows) {
  Start();
  ASSERT_TRUE(frame->Files().OpenPicture(WriteKoala("castle.koa")));
  EXPECT_TRUE(frame->windowTitle().endsWith(" [castle.koa]"));
  EXPECT_EQ(Panel("pnlFile"), "castle.koa");
  EXPECT_TRUE(Action("mnuReload")->isEnabled());
  const auto expected =
      QColor::fromRgb(model::SurfaceColour(model::GetPixelData(frame->Document().picture, 10, 20).colour));
  EXPECT_EQ(PixelOf(Box("frmBMPView"), 18, 19), expected);
  EXPECT_EQ(PixelOf(Box("frmBMPView"), 19, 19), expected);
  EXPECT_EQ(PixelOf(Box("frmZoom"), 8 + 9 * 8 + 4, 8 + 19 * 4 + 2), expected);
  EXPECT_EQ(CheckedOf(Menu("mnuBG")), frame->Document().picture.BackgroundColour.Number());

  emit Menu("mnuRecent")->aboutToShow();
  EXPECT_EQ(Menu("mnuRecent")->actions().size(), 1);
  EXPECT_TRUE(Menu("mnuRecent")->actions()[0]->text().endsWith("castle.koa"));
}

TEST_F(MainFrameTest, AClickInTheFullViewMovesTheZoomArea) {
  Start();
  QWidget* box = Box("frmBMPView");
  QTest::mouseMove(box, {160, 100});
  QTest::mouseClick(box, Qt::LeftButton, {}, {160, 100});
  EXPECT_EQ(Find("frmBMPView")->windowTitle(), " Full view (1:1) x=161, y=101, col=21, row=13");
  EXPECT_EQ(frame->Zoom().Area().ZoomOriginX(), 88);
  EXPECT_EQ(frame->Zoom().Area().ZoomOriginY(), 24);
  Action("mnuZoom_8X")->trigger();
  EXPECT_EQ(frame->Zoom().Area().ZoomOriginX(), 0);
  EXPECT_EQ(Find("frmZoom")->windowTitle(), " Zoom (8:1)");
  EXPECT_FALSE(Action("mnuZoom_4X")->isChecked());
}

TEST_F(MainFrameTest, BackgroundAndGridColoursAreChosenFromTheirMenus) {
  Start();
  Menu("mnuBG")->actions()[5]->trigger();
  Menu("mnuBG")->actions()[5]->trigger();
  EXPECT_EQ(CheckedOf(Menu("mnuBG")), 5);
  const QColor green = QColor::fromRgb(model::SurfaceColour(C64Colour::FromByte(5)));
  EXPECT_EQ(PixelOf(Box("frmBMPView"), 5, 5), green);
  EXPECT_EQ(PixelOf(Box("frmZoom"), 12, 12), green);
  Menu("mnuGrid")->actions()[1]->trigger();
  EXPECT_EQ(PixelOf(Box("frmZoom"), 8, 12), QColor(Qt::white));
  Menu("mnuZB")->actions()[1]->trigger();
  EXPECT_EQ(PixelOf(Box("frmZoom"), 0, 0), QColor(Qt::white));
  EXPECT_EQ(CheckedOf(Menu("mnuZB")), 1);
}

TEST_F(MainFrameTest, AChildWindowIsHiddenByItsCloseBoxAndComesBackWhole) {
  Start();
  for (const auto& [form, entry] : {std::pair{"frmBMPView", "mnuView_0"}, {"frmZoom", "mnuView_4"}}) {
    auto* child = qobject_cast<QMdiSubWindow*>(Find(form)->parentWidget());
    child->close();
    EXPECT_FALSE(child->isVisible());
    EXPECT_FALSE(Action(entry)->isChecked());
    Action(entry)->trigger();
    EXPECT_TRUE(Box(form)->isVisible());
    EXPECT_TRUE(Action(entry)->isChecked());
  }
}

TEST_F(MainFrameTest, ClosingAsksAboutUnsavedWorkAndKeepsTheSettings) {
  Start();
  Action("mnuZoom_8X")->trigger();
  Menu("mnuGrid")->actions()[3]->trigger();
  Menu("mnuBG")->actions()[7]->trigger();
  AnswerNext(QMessageBox::Cancel);
  EXPECT_FALSE(frame->close());
  AnswerNext(QMessageBox::Discard);
  EXPECT_TRUE(frame->close());
  EXPECT_EQ(settings.values["Settings/Magnification"], "8");
  EXPECT_EQ(settings.values["Settings/GridColor"], "3");
}

TEST_F(MainFrameTest, MnemonicsAreUniqueInEachMenu) {
  Start();
  for (const QMenu* menu : frame->findChildren<QMenu*>()) {
    if (menu->objectName().isEmpty()) continue;
    QSet<QChar> used;
    for (const QAction* action : menu->actions()) {
      const QString text = action->text();
      const auto mark = text.indexOf('&');
      if (mark < 0 || text.mid(mark, 2) == "&&") continue;
      const QChar key = text[mark + 1].toLower();
      EXPECT_FALSE(used.contains(key)) << FromQt(menu->objectName() + ": " + text);
      used.insert(key);
    }
  }
}

}  // namespace
}  // namespace kelvo::ui
