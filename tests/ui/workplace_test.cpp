// The workplace: child windows and their places, moving about in the picture, the whole screen, screenshots.
#include <QFileDialog>
#include <QImageReader>
#include <QMdiSubWindow>
#include <QScreen>
#include <QStatusTipEvent>
#include <QTextBrowser>
#include <QWheelEvent>

#include "editing/painting.h"
#include "editing/tool_table.h"
#include "main_frame_fixture.h"
#include "model/palette.h"
#include "ui/menu_table.h"
#include "ui/ports/qt_file_dialogs.h"
#include "ui/widgets/icons.h"
#include "ui/windows/screenshot.h"
#include "ui/windows/window_layout.h"

namespace kelvo::ui {
namespace {

class WorkplaceTest : public MainFrameTest {
 protected:
  WorkplaceTest() { Start(); }

  QMdiSubWindow* Child(const char* form) const { return qobject_cast<QMdiSubWindow*>(Find(form)->parentWidget()); }
  void Wheel(QPoint at, int steps, Qt::KeyboardModifiers modifiers = {}) {
    QWidget* box = Box("frmZoom");
    QWheelEvent event(at, box->mapToGlobal(at), {}, {0, steps * -120}, Qt::NoButton, modifiers, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(box, &event);
  }
};

TEST_F(WorkplaceTest, CheckMarksFollowTheWindows) {
  constexpr std::pair<const char*, const char*> kShowEntries[] = {
      {"mnuView_0", "frmBMPView"}, {"mnuView_1", "frmColors"}, {"mnuView_2", "frmCharData"},
      {"mnuView_3", "frmCommand"}, {"mnuView_4", "frmZoom"},   {"mnuPens", "frmPens"}};
  for (const auto& [entry, form] : kShowEntries) {
    SCOPED_TRACE(entry);
    for (int turn = 0; turn < 2; ++turn) {
      EXPECT_EQ(Action(entry)->isChecked(), Child(form)->isVisible());
      Action(entry)->trigger();
    }
    Child(form)->close();
    EXPECT_FALSE(Action(entry)->isChecked());
    Action(entry)->trigger();
    EXPECT_TRUE(Find(form)->isVisible());
  }
}

TEST_F(WorkplaceTest, KeysWheelDragAndClickMoveTheZoomArea) {
  const std::tuple<Qt::Key, Qt::KeyboardModifiers, QPoint> presses[] = {
      {Qt::Key_Left, {}, {0, 0}},
      {Qt::Key_Right, {}, {8, 0}},
      {Qt::Key_Down, {}, {8, 8}},
      {Qt::Key_Right, Qt::ControlModifier, {88, 8}},
      {Qt::Key_Down, Qt::ControlModifier, {88, 56}},
      {Qt::Key_End, {}, {160, 56}},
      {Qt::Key_Home, {}, {0, 56}},
      {Qt::Key_PageUp, {}, {0, 0}},
      {Qt::Key_PageDown, {}, {0, 56}},
      {Qt::Key_Up, {}, {0, 48}},
      {Qt::Key_Up, Qt::ControlModifier, {0, 0}},
  };
  for (const auto& [key, modifiers, origin] : presses) {
    QTest::keyClick(Box("frmZoom"), key, modifiers);
    EXPECT_EQ(ZoomOrigin(), origin) << key;
  }
  Wheel({300, 300}, 2);
  EXPECT_EQ(ZoomOrigin(), QPoint(0, 16));
  Wheel({300, 300}, 3, Qt::ShiftModifier);
  EXPECT_EQ(ZoomOrigin(), QPoint(24, 16));
  const QPoint at(500, 400);
  const auto pixel_there = [&] { return frame->Zoom().Area().PixelAt(at.x(), at.y()); };
  const model::PixelPoint before = pixel_there();
  Wheel(at, -1, Qt::ControlModifier);
  EXPECT_TRUE(Action("mnuZoom_8X")->isChecked());
  EXPECT_LE(std::abs(pixel_there().x - before.x), 4);
  EXPECT_LE(std::abs(pixel_there().y - before.y), 8);
  Wheel(at, 1, Qt::ControlModifier);
  EXPECT_TRUE(Action("mnuZoom_4X")->isChecked());

  const QPoint origin = ZoomOrigin();
  QTest::mousePress(Box("frmZoom"), Qt::MiddleButton, {}, {300, 300});
  MoveMouse(Box("frmZoom"), {200, 230}, Qt::MiddleButton);
  EXPECT_EQ(ZoomOrigin() - origin, QPoint(24, 16));

  QWidget* full_view = Box("frmBMPView");
  QTest::mouseMove(full_view, {160, 100});
  QTest::mouseClick(full_view, Qt::LeftButton, {}, {160, 100});
  EXPECT_EQ(ZoomOrigin(), QPoint(88, 24));
  EXPECT_EQ(Find("frmBMPView")->windowTitle(), " Full view (1:1) x=161, y=101, col=21, row=13");
  MoveMouse(Box("frmZoom"), {8 + 4, 8 + 2}, Qt::NoButton);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Panel("pnlPointer") == "x=45 y=25 col=12 row=4"; }));
  EXPECT_EQ(Find("frmBMPView")->windowTitle(), " Full view (1:1)");
  EXPECT_EQ(Find<QLabel>("lblBits_1")->foregroundRole(), QPalette::Link);
  Action("mnuZoom_8X")->trigger();
  EXPECT_EQ(Find("frmZoom")->windowTitle(), " Zoom (8:1)");
  EXPECT_FALSE(Action("mnuZoom_4X")->isChecked());
  EXPECT_EQ(Picture(), model::PictureImage());
}

TEST_F(WorkplaceTest, AHiddenZoomWindowComesBackAsThePictureIs) {
  Action("mnuView_4")->trigger();
  frame->SetBackgroundColour(5);
  Action("mnuView_4")->trigger();
  EXPECT_EQ(Box("frmZoom")->grab().toImage().pixel(At(20, 20)), model::SurfaceColour(model::C64Colour::FromByte(5)));
}

TEST_F(WorkplaceTest, ACaptionIsPaintedAnewWithItsTitle) {
  const QMdiSubWindow& zoom = *Child("frmZoom");
  const auto caption = [&] {
    QApplication::processEvents();
    const QRect place(zoom.mapTo(frame.get(), QPoint()), QSize(zoom.width(), Find("frmZoom")->y()));
    return frame->screen()->grabWindow(frame->winId(), place.x(), place.y(), place.width(), place.height()).toImage();
  };
  const QImage before = caption();
  Find("frmZoom")->setWindowTitle(" Another");
  EXPECT_NE(caption(), before);
}

TEST_F(WorkplaceTest, TheColumnKeepsItsWidthWhateverColoursItNames) {
  for (int colour = 0; colour < model::C64Colour::kCount; ++colour) {
    frame->SetBackgroundColour(colour);
    QApplication::processEvents();
    EXPECT_EQ(Child("frmCharData")->width(), Child("frmColors")->width()) << colour;
  }
}

TEST_F(WorkplaceTest, AnEnlargedZoomWindowShowsMoreAndPaintsUnderThePointer) {
  frame->resize(1270, 900);
  QTest::qWait(50);
  Action("mnuZoomLarge")->trigger();
  const model::ZoomArea& area = frame->Zoom().Area();
  EXPECT_TRUE(Action("mnuZoomLarge")->isChecked());
  EXPECT_GT(area.VisibleWidth(), 200);
  EXPECT_GT(area.VisibleHeight(), 160);                             // of letters that differ
  const int x = area.VisibleWidth() / 2, y = area.VisibleHeight();  // the last pixel that is shown
  const model::Rect box = area.PixelRect(x, y);
  QTest::mouseClick(Box("frmZoom"), Qt::LeftButton, {}, {box.x + 1, box.y + 1});
  EXPECT_EQ(model::GetPixelData(frame->Document().picture, x, y).colour.Number(), 1);
  EXPECT_EQ(Box("frmZoom")->grab().toImage().pixel(box.x + 4, box.y + 2), 0xFFFFFFFFU);
  Action("mnuZoomLarge")->trigger();
  EXPECT_EQ(QSize(area.VisibleWidth(), area.VisibleHeight()), QSize(160, 144));
}

TEST_F(WorkplaceTest, AMagnifiedFullViewStaysSharpAndPointsAtTheRightPixel) {
  frame->Files().OpenPicture(WriteKoala("p.koa"));
  QWidget* box = Box("frmBMPView");
  const auto colours = model::kSurfaceColours;
  for (const int scale : {1, 2, 3}) {
    Action(("mnuFullViewScale_" + std::to_string(scale - 1)).c_str())->trigger();
    for (const double squeeze : {1.0, 0.936}) {
      const QImage shown = box->grab().toImage();
      EXPECT_NEAR(shown.height(), 202 * scale / squeeze, 1);
      for (const QPoint at : {QPoint(31, 7), QPoint(160, 100), QPoint(319, 199)}) {
        const QPoint middle(at.x() * scale + scale / 2, static_cast<int>((at.y() + 0.5) * shown.height() / 202.0));
        const auto pixel = model::GetPixelData(Picture(), at.x() / 2 + 1, at.y() + 1);
        EXPECT_EQ(shown.pixel(middle), model::SurfaceColour(pixel.colour));
        MoveMouse(box, middle, Qt::NoButton);
        const QString title = QString(" Full view (%1:1) x=%2, y=%3,").arg(scale).arg(at.x() + 1).arg(at.y() + 1);
        EXPECT_TRUE(Find("frmBMPView")->windowTitle().startsWith(title));
      }
      for (int place = 0; place < shown.width() * shown.height(); ++place) {
        const QRgb mark = shown.pixel(place % shown.width(), place / shown.width());
        ASSERT_TRUE(std::count(colours.begin(), colours.end(), mark) > 0) << place;
      }
      Action("mnuFullViewPal")->trigger();
    }
  }
}

TEST_F(WorkplaceTest, TheStatusBarTellsHintsResultsAndUnsavedWork) {
  frame->Files().SaveTo(folder / "pic.kvp");
  EXPECT_TRUE(Panel("pnlWord").endsWith("pic.kvp, 10050 bytes"));
  const auto is_unsaved = [this] { return Find("mrkUnsaved")->accessibleName() == "Unsaved work"; };
  EXPECT_FALSE(is_unsaved());
  frame->SetBackgroundColour(5);
  EXPECT_TRUE(QTest::qWaitFor(is_unsaved));
  frame->Files().New();
  EXPECT_EQ(Panel("pnlWord"), "Unsaved work was kept in BACKUP as pic.kvp_2602030907_unsaved.kvp");
  for (const MenuEntry& entry : MenuEntries()) {  // the longest hint too
    if (entry.name == nullptr || entry.text == nullptr) continue;
    QStatusTipEvent hint(entry.tip);
    QApplication::sendEvent(frame.get(), &hint);
    EXPECT_EQ(Panel("pnlWord"), entry.tip);
  }
  QStatusTipEvent none("");
  QApplication::sendEvent(frame.get(), &none);
  EXPECT_TRUE(Panel("pnlWord").startsWith("Unsaved work was kept"));
}

TEST_F(WorkplaceTest, AKeyThatAMenuTookDoesNothingInTheWindow) {
  QMenu* menu = Menu("mnuViewMenu");
  menu->popup({});
  QTest::keyPress(menu, Qt::Key_F);
  EXPECT_FALSE(Action("mnuView_0")->isChecked());
  QTest::keyRelease(Box("frmZoom"), Qt::Key_F);
  EXPECT_EQ(frame->Desk().Painting().ChosenTool(), editing::ToolId::kDraw);
  menu->popup({});
  menu->setActiveAction(Action("mnuView_3"));
  QTest::keyPress(menu, Qt::Key_Return);
  auto* line = Find<QLineEdit>("txtCommand");
  line->setFocus();
  QTest::keyRelease(line, Qt::Key_Return);
  EXPECT_TRUE(line->hasFocus());
}

TEST_F(WorkplaceTest, FullscreenClosesOnAKeyPressOrClick) {
  for (const bool by_key : {true, false}) {
    Action("mnuFullscreenView")->trigger();
    QPointer<QWidget> view = Find("frmFullscreen");
    ASSERT_TRUE(view);
    EXPECT_EQ(view->size(), view->screen()->size());
    QTest::simulateEvent(view, true, Qt::Key_F10, {}, {}, true);  // the key that opened it is held, and let go
    QTest::keyRelease(view, Qt::Key_F10);
    EXPECT_TRUE(view->isVisible());
    by_key ? QTest::keyClick(view, Qt::Key_Space) : QTest::mouseClick(view, Qt::LeftButton);
    EXPECT_TRUE(view.isNull() || !view->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

TEST_F(WorkplaceTest, PlacesAreRememberedAndNonsenseIsNot) {
  Child("frmColors")->move(120, 90);
  Action("mnuView_2")->trigger();
  frame->close();
  settings.values["Settings/frmPens_framePlace"] = "90000,5,1";
  settings.values["Settings/frmZoom_framePlace"] = "1,two";
  settings.values["Settings/MDIFormMenuPlace"] = "-5000,-5000,300,300,0";
  Start();
  EXPECT_EQ(Child("frmColors")->pos(), QPoint(120, 90));
  EXPECT_FALSE(Action("mnuView_2")->isChecked());
  EXPECT_LT(Child("frmPens")->x(), 2000);
  EXPECT_EQ(Child("frmZoom")->pos(), QPoint(kWindowGap, kWindowGap));
  EXPECT_GE(frame->x(), -100);
  Action("mnuHistory")->trigger();
  Action("mnuArrange")->trigger();
  EXPECT_NE(Child("frmColors")->pos(), QPoint(120, 90));
  EXPECT_TRUE(Action("mnuView_2")->isChecked());
  EXPECT_FALSE(Action("mnuHistory")->isChecked());
  EXPECT_EQ(Child("frmHistory")->geometry(), Child("frmCharData")->geometry() | Child("frmCommand")->geometry());
}

TEST_F(WorkplaceTest, ScreenshotsAreSmallAndHaveTheFormatAndSizeChosen) {
  frame->Files().OpenPicture(WriteKoala("p.koa"));
  const QImage picture = Box("frmBMPView")->grab().toImage().convertToFormat(QImage::Format_RGB32);
  const QString name = ToQt(app::TextFromPath(folder / "castle.v2"));
  // The ending typed last counts; its format's name, and the most bytes that it may take.
  for (const auto& [ending, format, most_bytes] :
       {std::tuple{"png", "png", 33'000}, {"jpg", "jpeg", 3'000'000}, {"bmp", "bmp", 1'100'000}}) {
    SCOPED_TRACE(format);
    const QString path = WithImageEnding(WithImageEnding(name, ending), "png");
    SaveScreenshot(picture, path, 4);
    EXPECT_LT(QFileInfo(path).size(), most_bytes);
    QImageReader reader(name + '.' + ending);
    EXPECT_EQ(reader.format(), format);
    const QImage saved = reader.read().convertToFormat(picture.format());
    EXPECT_EQ(saved.size(), picture.size() * 4);
    EXPECT_TRUE(path.endsWith("jpg") || saved == picture.scaled(saved.size()));
  }
  EXPECT_THROW(SaveScreenshot(picture, "/gone/shot.png", 1), std::runtime_error);
}

TEST_F(WorkplaceTest, HelpShowsEveryKeyAndTheGuide) {
  Action("mnuKeys")->trigger();
  const QString page = Find<QTextBrowser>("frmKeys")->toPlainText();
  for (const MenuEntry& entry : MenuEntries()) {
    EXPECT_TRUE(*entry.key == 0 || page.contains(QString(entry.tip))) << entry.name;
  }
  for (const editing::ToolRow& tool : editing::ToolTable()) EXPECT_TRUE(page.contains(ToQt(tool.caption)));
  EXPECT_EQ(page.count("Left pen: "), 16);
  for (int time = 0; time < 2; ++time) Action("mnuGuide")->trigger();
  EXPECT_EQ(frame->findChildren<QTextBrowser*>("frmGuide").size(), 1);
  auto* guide = Find<QTextBrowser>("frmGuide");
  EXPECT_TRUE(guide->toPlainText().startsWith("A tour of Kelvo"));
  EXPECT_FALSE(guide->loadResource(QTextDocument::ImageResource, QUrl("images/kelvo.png")).value<QImage>().isNull());
}

TEST_F(WorkplaceTest, EveryIconIsThereForMenusAndToolBars) {
  QStringList names{"kelvo", "swap"};
  for (const editing::ToolRow& tool : editing::ToolTable()) names << ToQt(tool.name);
  for (const MenuEntry& entry : MenuEntries()) {
    if (entry.icon != nullptr) names << entry.icon;
  }
  for (const QString& name : names) {
    const QIcon icon = IconNamed(name);
    for (const QSize size : {QSize(16, 16), QSize(24, 24)}) {
      EXPECT_TRUE(icon.availableSizes().contains(size)) << FromQt(name);
    }
  }
  const auto in_caption = Child("frmZoom")->systemMenu()->actions();
  EXPECT_EQ(std::count_if(in_caption.begin(), in_caption.end(),
                          [](const QAction* action) { return !action->icon().pixmap(16, 16).isNull(); }),
            4);
}

TEST_F(WorkplaceTest, DialogsBeginNearAFolderThatIsGone) {
  settings.values["Settings/FilePath"] = app::TextFromPath(folder / "gone/deeper/picture.prg");
  InNextDialog<QFileDialog>([this](QFileDialog& dialog) {
    EXPECT_EQ(NativePath(dialog.directory().absolutePath()), QtFromPath(folder.Path()));
    dialog.reject();
  });
  Action("mnuLoad")->trigger();
  InNextDialog<QFileDialog>([](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory(), QDir::home());  // there is no folder of palettes yet
    dialog.reject();
  });
  Action("mnuPalette_3")->trigger();
}

// The dialogs ask about the name that was typed, which is not the name that is written here.
TEST_F(WorkplaceTest, NoDialogReplacesAFileUnasked) {
  support::WriteText(folder / "old.v2.png", "an older picture");
  support::WriteText(folder / "old.kvp", "an older picture");
  for (const auto& [entry, typed] : {std::pair{"mnuSaveJPG", "old.v2"}, std::pair{"mnuSaveAs", "old.txt"}}) {
    QTimer::singleShot(0, [this, typed = typed] {
      AnswerNext(QMessageBox::No);
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      dialog->findChild<QLineEdit*>("fileNameEdit")->setText(ToQt(app::TextFromPath(folder / typed)));
      QTest::keyClick(dialog, Qt::Key_Return);
    });
    box_text.clear();
    Action(entry)->trigger();
    EXPECT_TRUE(box_text.endsWith("exists already. Replace it?")) << entry;
  }
  EXPECT_EQ(support::ReadText(folder / "old.v2.png"), "an older picture");
  EXPECT_EQ(support::ReadText(folder / "old.kvp"), "an older picture");
}

}  // namespace
}  // namespace kelvo::ui
