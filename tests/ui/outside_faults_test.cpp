// What the program finds around it when it starts: settings full of nonsense, none at all, other programs in its
// folder.
#include <QCoreApplication>
#include <QLockFile>
#include <QScreen>
#include <QSettings>
#include <optional>
#include <random>

#include "main_frame_fixture.h"
#include "support/program.h"
#include "ui/program_slot.h"
#include "ui/qt_settings.h"
#include "ui/recovery_desk.h"

namespace kelvo::ui {
namespace {

TEST(SettingsFile, WithGarbageOrWithoutAPlaceStillServesTheProgram) {
  const support::TempFolder folder;
  const auto config = folder / "config/Kelvo";
  QCoreApplication::setOrganizationName("Kelvo");
  QCoreApplication::setApplicationName("Kelvo");
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, ToQt(app::TextFromPath(folder / "config")));
  std::mt19937 random(20260203);
  std::string noise(100000, ' ');
  for (char& c : noise) c = static_cast<char>(random());
  create_directories(config);
  for (const std::string& text : std::initializer_list<std::string>{
           "", noise, "[Settings\nMagnification", "[Settings]\nMagnification=@Rect(1", std::string(1 << 20, '['),
           "[Settings]\nMagnification=@Variant(\\0\\0\\0\\x7f)", "[Settings]\nMagnification=99999999999999999999\n"}) {
    SCOPED_TRACE(text.substr(0, 60));
    support::WriteText(config / "Kelvo.conf", text);
    {
      QtSettings settings;
      EXPECT_EQ(app::ReadNumber(settings, app::kMagnification, 4, 8), 4);
      settings.Write(app::kMagnification, "8");
    }
    EXPECT_EQ(QtSettings().Read(app::kMagnification), "8");
  }
  remove_all(config);
  support::WriteText(config, "a file where the folder should be");
  QtSettings settings;
  settings.Write(app::kGridColor, "3");
  EXPECT_EQ(settings.Read(app::kGridColor), "3");
  QCoreApplication::setOrganizationName({});
  QCoreApplication::setApplicationName({});
}

// Answers every question with the same.
class StubbornSettings final : public app::SettingsStore {
 public:
  explicit StubbornSettings(std::string answer) : answer_(std::move(answer)) {}
  std::string Read(const app::Setting&) const override { return answer_; }
  void Write(const app::Setting&, std::string_view) override {}

 private:
  std::string answer_;
};

TEST_F(MainFrameTest, StartsWithAnyNonsenseInAllSettings) {
  QTimer closes_boxes;  // the message about the VICE path, and the dialogs
  QObject::connect(&closes_boxes, &QTimer::timeout, [] {
    if (QWidget* box = QApplication::activeModalWidget()) box->close();
  });
  closes_boxes.start(0);
  for (const std::string& nonsense : std::initializer_list<std::string>{
           "-1", "2147483647,2147483647,2147483647,2147483647,1", "2147483647,2147483647,1",
           "-2147483648,-2147483648,2147483647,2147483647,2147483647", "0,0,32767,32767,0", "-2147483648,5,7",
           "AAAA/wAAAAD9////", "\xFF\xFE\x80", std::string(100000, '9')}) {
    SCOPED_TRACE(nonsense.substr(0, 60));
    StubbornSettings stubborn(nonsense);
    StartWith(stubborn);
    EXPECT_TRUE(frame->isVisible());
    EXPECT_TRUE(frame->screen()->virtualGeometry().intersects(frame->geometry()));
    EXPECT_LE(frame->width(), 2000);
    EXPECT_EQ(frame->Zoom().GridColor().Number(), 9);
    EXPECT_EQ(frame->Zoom().Area().Magnification(), 4);
    for (const char* dialog : {"mnuPreferences", "mnuViceSettings", "mnuCodenetSettings"}) Action(dialog)->trigger();
    frame.reset();
  }
}

TEST(ProgramSlot, IsANumberOfItsOwnWhileTheProgramRuns) {
  const support::TempFolder folder;
  const app::ProgramFolders folders(folder / "program");
  {
    const ProgramSlot first(folders);
    std::optional<ProgramSlot> second(std::in_place, folders);
    const ProgramSlot third(folders);
    EXPECT_EQ(first.Number(), 1);
    EXPECT_EQ(second->Number(), 2);
    EXPECT_EQ(third.Number(), 3);
    EXPECT_EQ(first.TryLock(2), nullptr);
    EXPECT_NE(first.TryLock(4), nullptr);
    second.reset();
    EXPECT_NE(first.TryLock(2), nullptr);
    EXPECT_EQ(ProgramSlot(folders).Number(), 2);
  }
  support::WriteText(folders.System() / "running_1.lock", "2147483646\nkelvo\n\n\n\n");  // of a dead program
  EXPECT_EQ(ProgramSlot(folders).Number(), 1);
  support::WriteText(folders.System() / "running_1.lock", "nonsense");
  EXPECT_GE(ProgramSlot(folders).Number(), 1);
  remove_all(folders.System());
  support::WriteText(folders.System(), "a file where the folder should be");
  EXPECT_EQ(ProgramSlot(folders).Number(), 1);
}

TEST(RecoveryDesk, WorkThatCannotBeKeptAgainIsTakenUpAndStillKept) {
  support::Program program;
  program.document.picture = support::RandomPicture(3);
  files::RecoveryCopy(program.document, files::RecoveryFiles(program.folders, 2)).KeepNow();
  program.document = {};
  create_directory(files::RecoveryFiles(program.folders, 1).name);  // no file can be written there
  program.messages.yes = true;
  RecoveryDesk desk({program.folders, program.clock, program.log, program.messages, program.document, program.files});
  EXPECT_TRUE(desk.Offer());
  EXPECT_EQ(program.document.picture.BackgroundColour, support::RandomPicture(3).BackgroundColour);
  EXPECT_TRUE(files::RecoveryFiles(program.folders, 2).Read());
}

}  // namespace
}  // namespace kelvo::ui
