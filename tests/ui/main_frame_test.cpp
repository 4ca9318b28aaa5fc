// The main window: start, menus, the picture in its windows, pixel for pixel, and the end.
#include <QAccessible>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QSet>
#include <cmath>

#include "main_frame_fixture.h"
#include "model/palette.h"
#include "ui/ports/qt_file_dialogs.h"
#include "ui/widgets/surface_view.h"

namespace kelvo::ui {
namespace {

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
  EXPECT_TRUE(frame->windowTitle().endsWith(" [unnamed.kvp]"));
  EXPECT_EQ(Panel("pnlFile"), "[unnamed]");
  EXPECT_EQ(Find("frmZoom")->windowTitle(), " Zoom (4:1)");
  EXPECT_EQ(CheckedOf(Menu("mnuGrid")), 9);
  EXPECT_FALSE(Action("mnuReload")->isEnabled());
}

TEST_F(MainFrameTest, ADroppedPictureIsShownAndItsLookOutlivesThePasses) {
  Start();
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(ToQt(WriteKoala("castle.koa")))});
  QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(frame.get(), &enter);
  QDropEvent drop({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(frame.get(), &drop);
  EXPECT_TRUE(frame->windowTitle().endsWith(" [castle.koa]"));
  EXPECT_EQ(Panel("pnlFile"), "castle.koa");
  EXPECT_TRUE(Action("mnuReload")->isEnabled());
  const auto colour = model::GetPixelData(frame->Document().picture, 10, 20).colour;
  const auto expected = QColor::fromRgb(model::SurfaceColour(colour));
  EXPECT_EQ(PixelOf(Box("frmBMPView"), 19, 19), expected);
  EXPECT_EQ(PixelOf(Box("frmZoom"), 8 + 9 * 8 + 4, 8 + 19 * 4 + 2), expected);
  EXPECT_EQ(CheckedOf(Menu("mnuBG")), frame->Document().picture.BackgroundColour.Number());
  emit Menu("mnuRecent")->aboutToShow();
  EXPECT_TRUE(Menu("mnuRecent")->actions().at(0)->text().endsWith("castle.koa"));

  const model::PictureImage opened = frame->Document().picture;
  const QImage look = Box("frmBMPView")->grab().toImage();
  Action("mnuOptimizeBackgroundColor")->trigger();
  EXPECT_NE(frame->Document().picture, opened);
  EXPECT_EQ(Box("frmBMPView")->grab().toImage(), look);
  AnswerNext(QMessageBox::Ok);
  Action("mnuOptimizeForEORVector")->trigger();
  EXPECT_TRUE(box_text.endsWith("Do you want to continue?"));
}

TEST_F(MainFrameTest, ColoursOfItsMenusAreShownAndKeptWhenItCloses) {
  Start();
  for (int time = 0; time < 2; ++time) Menu("mnuBG")->actions()[5]->trigger();
  EXPECT_EQ(CheckedOf(Menu("mnuBG")), 5);
  const auto green = QColor::fromRgb(model::SurfaceColour(model::C64Colour::FromByte(5)));
  EXPECT_EQ(PixelOf(Box("frmBMPView"), 5, 5), green);
  EXPECT_EQ(PixelOf(Box("frmZoom"), 12, 12), green);
  for (const char* menu : {"mnuGrid", "mnuZB"}) Menu(menu)->actions()[1]->trigger();
  EXPECT_EQ(PixelOf(Box("frmZoom"), 8, 12), QColor(Qt::white));
  EXPECT_EQ(PixelOf(Box("frmZoom"), 0, 0), QColor(Qt::white));
  Menu("mnuZB")->actions()[0]->trigger();
  EXPECT_EQ(CheckedOf(Menu("mnuZB")), 0);
  const QColor first = PixelOf(Box("frmZoom"), 2, 2);
  EXPECT_TRUE(QTest::qWaitFor([&] { return PixelOf(Box("frmZoom"), 2, 2) != first; })) << "it does not flash";

  Action("mnuZoom_8X")->trigger();
  AnswerNext(QMessageBox::Cancel);
  EXPECT_FALSE(frame->close());
  AnswerNext(QMessageBox::Discard);
  EXPECT_TRUE(frame->close());
  EXPECT_EQ(settings.values["Settings/Magnification"], "8");
  EXPECT_EQ(settings.values["Settings/GridColor"], "1");
}

TEST_F(MainFrameTest, EverythingThatCanBeUsedHasANameAndAKeyOfItsOwn) {
  Start();
  for (QAction* action : Menu("mnuViewMenu")->actions()) {
    if (action->isCheckable() && !action->isChecked()) action->trigger();
  }
  for (QWidget* widget : frame->findChildren<QWidget*>()) {
    if (!widget->isVisible() || (widget->focusPolicy() & Qt::TabFocus) == 0) continue;
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
    ASSERT_NE(accessible, nullptr);
    EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty())
        << FromQt(widget->objectName() + " in " + widget->parentWidget()->objectName());
  }
  for (const QMenu* menu : frame->findChildren<QMenu*>()) {
    QSet<QChar> used;
    for (const QAction* action : menu->actions()) {
      const QString text = action->text();
      SCOPED_TRACE(FromQt(menu->objectName() + ": " + action->objectName() + " " + text));
      if (action->objectName().startsWith("mnu") && action->menu() == nullptr) {
        EXPECT_FALSE(text.isEmpty());
        EXPECT_FALSE(action->statusTip().isEmpty());
      }
      const auto mark = text.indexOf('&');
      if (menu->objectName().isEmpty() || mark < 0 || text.mid(mark, 2) == "&&") continue;
      const QChar key = text[mark + 1].toLower();
      EXPECT_FALSE(used.contains(key));
      used.insert(key);
    }
  }
}

TEST(SurfaceView, AUnitTakesWholePixelsOfTheDisplayAtEveryScale) {
  for (const double device : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
    for (const int unit : {1, 2, 4}) {
      const double pixels = SurfaceView::ScaleOn(device, unit) * unit * device;
      EXPECT_DOUBLE_EQ(pixels, std::floor(device * unit)) << device << ' ' << unit;
    }
  }
}

}  // namespace
}  // namespace kelvo::ui
