// The session's steps in the real main window: what makes one, walking through them, and what outlives a crash.
#include <QListView>
#include <QTextBrowser>

#include "main_frame_fixture.h"
#include "model/named_palettes.h"
#include "support/pictures.h"
#include "ui/desks/history_desk.h"
#include "ui/desks/window_desk.h"
#include "ui/windows/export_dialog.h"

namespace kelvo::ui {
namespace {

using model::PictureImage;

class HistoryWindowTest : public MainFrameTest {
 protected:
  HistoryWindowTest() { Start(); }

  void Click(int x, int y) { QTest::mouseClick(Box("frmZoom"), Qt::LeftButton, {}, At(x, y)); }
  void Paint(Qt::Key pen, int x, int y) {
    Key(pen);
    Click(x, y);
  }
  history::History& Steps() { return frame->History().Steps(); }
  // As the history window shows them.
  QStringList Rows() const {
    QStringList rows;
    const auto* list = Find<QListView>("lstSteps")->model();
    for (int row = 0; row < list->rowCount(); ++row) rows << list->index(row, 0).data().toString();
    return rows;
  }
  void ClickRow(int row) {
    auto* list = Find<QListView>("lstSteps");
    if (!frame->Windows().IsShown(ChildWindowId::kHistory)) Action("mnuHistory")->trigger();
    list->scrollTo(list->model()->index(row, 0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(row, 0)).center());
  }
};

TEST_F(HistoryWindowTest, EveryActionIsAStepAndCanBeGoneTo) {
  const std::string koala = WriteKoala("p.koa");
  std::vector<PictureImage> shown{Picture()};
  const auto done = [&] { shown.push_back(Picture()); };
  const auto choose = [&](const char* entry) {
    Action(entry)->trigger();
    done();
  };
  Paint(Qt::Key_6, 3, 3);
  done();
  Action("tool_line")->trigger();
  Click(1, 9);
  frame->Desk().Tick();
  frame->SetBackgroundColour(7);  // while the line waits for its end
  done();
  Click(20, 9);
  frame->Desk().Tick();
  done();
  Action("tool_fill")->trigger();
  Click(1, 40);
  done();
  choose("mnuUndo");
  Action("mnuOptimizeBackgroundColor")->trigger();  // nothing to optimise: no step
  frame->Files().OpenPicture(koala);
  done();
  for (const char* entry : {"mnuOptimizeBackgroundColor", "mnuReload", "mnuNew"}) choose(entry);
  const QStringList captions{"0  Start\n[unnamed]",
                             "1  Draw\n[unnamed]",
                             "2  Background color\n[unnamed]",
                             "3  Line\n[unnamed]",
                             "4  Fill\n[unnamed]",
                             "5  Undo fill\n[unnamed]",
                             "6  Load p.koa\np.koa",
                             "7  Optimize background color\np.koa",
                             "8  Reload p.koa\np.koa, saved",
                             "9  New\n[unnamed]"};
  ASSERT_EQ(Rows(), captions);

  for (std::size_t step = shown.size() - 1; step > 0; --step) {
    Action("mnuStepBack")->trigger();
    ASSERT_EQ(Picture(), shown[step - 1]) << step;
  }
  EXPECT_FALSE(Action("mnuStepBack")->isEnabled());
  for (std::size_t step = 1; step < shown.size(); ++step) {
    Key(Qt::Key_Y, Qt::ControlModifier | Qt::AltModifier);
    ASSERT_EQ(Picture(), shown[step]) << step;
  }
  EXPECT_FALSE(Action("mnuStepForward")->isEnabled());
  ClickRow(6);
  EXPECT_EQ(Picture(), shown[6]);
  EXPECT_TRUE(frame->windowTitle().endsWith("[p.koa]"));
  EXPECT_FALSE(Action("mnuUndo")->isEnabled());
  EXPECT_EQ(Rows(), captions);
}

TEST_F(HistoryWindowTest, ABranchStaysAndWorkThatAStepLeavesIsKeptOnce) {
  Paint(Qt::Key_6, 3, 3);
  ASSERT_TRUE(frame->Files().SaveTo(folder / "a.kvp"));
  Paint(Qt::Key_7, 4, 3);
  ClickRow(1);
  EXPECT_FALSE(frame->Document().HasUnsavedWork());
  Paint(Qt::Key_2, 6, 3);
  EXPECT_EQ(Rows(),
            (QStringList{"0  Start\na.kvp", "1  Draw\na.kvp, saved", "2  Draw\na.kvp", "3  Draw (after 1)\na.kvp"}));

  frame->Files().OpenPicture(WriteKoala("p.koa"));
  for (const int row : {2, 4, 2, 4}) ClickRow(row);
  const auto kept = support::NamesIn(folders.Backup());
  EXPECT_EQ(std::count_if(kept.begin(), kept.end(),
                          [](const std::string& name) { return name.find("_unsaved") != std::string::npos; }),
            2);  // by the load, and by the first step away
}

TEST_F(HistoryWindowTest, CtrlZStepsBackWhereThePreferenceSaysSo) {
  Paint(Qt::Key_6, 3, 3);
  Paint(Qt::Key_7, 4, 3);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Steps().Count(), 4);  // Undo is a step itself
  Prefer("CtrlZStepsBack", true);
  Action("mnuKeys")->trigger();
  const QString keys = Find<QTextBrowser>("frmKeys")->toPlainText();
  EXPECT_TRUE(keys.contains("Ctrl+Z; Ctrl+Alt+Z\nStep back: ") && !keys.contains("Undo: ")) << FromQt(keys);
  frame->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(frame.get()));
  for (int press = 0; press < 2; ++press) Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Steps().Current(), 1);
  Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Steps().Current(), 2);
  EXPECT_EQ(Steps().Count(), 4);
}

TEST_F(HistoryWindowTest, StepsOutliveACrash) {
  const auto crash_and_recover = [this] {
    frame->EndSuddenly();
    frame.reset();
    Start();
    AnswerNext(QMessageBox::Yes);
    ASSERT_TRUE(frame->OfferRecovery());
  };
  frame->Files().OpenPicture(WriteKoala("p.koa"));
  Paint(Qt::Key_6, 3, 3);
  const PictureImage before = Picture();
  Paint(Qt::Key_7, 4, 3);
  const PictureImage last = Picture();
  crash_and_recover();
  EXPECT_EQ(Steps().PictureAt(3), last);
  EXPECT_EQ(support::ColourAt(Picture(), 4, 3), 6);
  EXPECT_EQ(Rows().last(), "4  Recover p.koa\np.koa");
  EXPECT_EQ(Rows().size(), 5);
  Paint(Qt::Key_2, 6, 3);
  ClickRow(2);
  EXPECT_EQ(Picture(), before);
  EXPECT_TRUE(frame->Document().HasUnsavedWork());
  crash_and_recover();
  EXPECT_EQ(Rows().size(), 7);
  frame->Files().SaveTo(folder / "a.kvp");
  frame->close();
  for (const std::string& name : support::NamesIn(folders.Backup())) EXPECT_FALSE(name.ends_with(".steps")) << name;
}

TEST_F(HistoryWindowTest, PalettesChangeWhatIsShownAndAreKept) {
  const auto shown = [this] {
    frame->SetBackgroundColour(5);
    return Box("frmBMPView")->grab().toImage().pixelColor(300, 100).rgb();
  };
  const QRgb own = shown();
  int entry = 0;
  for (const model::NamedPalette& palette : model::kNamedPalettes) {
    Action(("mnuPalette_" + std::to_string(entry++)).c_str())->trigger();
    EXPECT_EQ(shown(), palette.colours[5]) << palette.name;
  }
  EXPECT_EQ(settings.values["Settings/Palette"], "Colodore");
  std::string lines = "# mine\n";
  for (int n = 0; n < 16; ++n) lines += "\n  0" + std::to_string(n % 10) + " 20 fF E\r\n";
  support::WriteText(folder / "mine.vpl", lines);
  settings.values["Settings/Palette"] = app::TextFromPath(folder / "mine.vpl");
  Start();
  EXPECT_EQ(shown(), 0xFF0520FF);
  EXPECT_TRUE(Action("mnuPalette_3")->isChecked());
  support::WriteText(folder / "mine.vpl", "00 00 00\n01 02\n");
  AnswerNext(QMessageBox::Ok);
  Start();
  EXPECT_TRUE(box_text.endsWith("this is no colour: 01 02")) << box_text.toStdString();
  Action("mnuPalette_0")->trigger();
  EXPECT_EQ(shown(), own);
}

}  // namespace
}  // namespace kelvo::ui
