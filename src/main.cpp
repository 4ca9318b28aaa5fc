// Puts the program together and runs it.
#include <QCommandLineParser>
#include <QFileInfo>
#include <QScopeGuard>
#include <QStandardPaths>
#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "app/path_text.h"
#include "app/version.h"
#include "ui/application.h"
#include "ui/main_frame.h"
#include "ui/ports/console.h"
#include "ui/ports/qt_messages.h"
#include "ui/ports/qt_settings.h"
#include "ui/ports/qt_text.h"
#include "ui/ports/sudden_end.h"

namespace {

using kelvo::ui::PathFromQt;

void NameProgram() {
  QCoreApplication::setOrganizationName("Kelvo");
  QCoreApplication::setApplicationName("Kelvo");
  QCoreApplication::setApplicationVersion(kelvo::ui::ToQt(kelvo::app::kVersion));
  QGuiApplication::setDesktopFileName("kelvo");
}

// --help and --version are answered without a display.
bool OnlyAsks(int argc, char** argv) {
  return std::any_of(argv + 1, argv + argc, [](std::string_view argument) {
    return argument == "--help" || argument == "-h" || argument == "--version" || argument == "-v";
  });
}

// The code that the program ends with, where its arguments only ask, or make no sense; else nothing.
std::optional<int> Answer(QCommandLineParser& parser) {
  using kelvo::ui::Print;
  parser.setApplicationDescription("Editor for Commodore 64 multicolor pictures.");
  const QCommandLineOption help = parser.addHelpOption(), version = parser.addVersionOption();
  parser.addPositionalArgument("picture", "The picture to open (.kvp, .vid, .koa, .kla).", "[picture]");
  if (!parser.parse(QCoreApplication::arguments())) {
    Print("kelvo: " + parser.errorText() + '\n', kelvo::ui::Stream::kErrors);
    return EXIT_FAILURE;
  }
  if (parser.isSet(help)) Print(parser.helpText());
  if (parser.isSet(version)) Print("Kelvo " + QCoreApplication::applicationVersion() + '\n');
  return parser.isSet(help) || parser.isSet(version) ? std::optional(EXIT_SUCCESS) : std::nullopt;
}

kelvo::app::ProgramFolders FindFolders() {
  const QString executable = QCoreApplication::applicationDirPath();
  const QString user = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Kelvo";
  kelvo::app::ProgramFolders folders(kelvo::app::ChooseProgramFolder(PathFromQt(executable), PathFromQt(user)));
  folders.Create();
  folders.Seed(PathFromQt(executable) / KELVO_SHARE_FROM_PROGRAM);
  return folders;
}

// Runs within the event loop, so that an end of the program also ends what is asked here. The window comes up even when
// something goes wrong before it.
void Begin(kelvo::ui::MainFrame& frame, kelvo::app::Messages& messages, const QStringList& pictures) {
  {
    const auto show = qScopeGuard([&frame] { frame.show(); });
    frame.StartUp();
  }
  if (!frame.OfferRecovery() && !pictures.isEmpty()) {
    frame.Files().OpenPicture(PathFromQt(QFileInfo(pictures.first()).absoluteFilePath()));
    if (pictures.size() > 1) {
      messages.Inform("Kelvo opens one picture at a time: the first that is named, and no other.");
    }
  }
  frame.LookAtFolders();
}

}  // namespace

int main(int argc, char** argv) {
  NameProgram();
  QCommandLineParser parser;
  if (OnlyAsks(argc, argv)) {
    const QCoreApplication application(argc, argv);
    return Answer(parser).value_or(EXIT_SUCCESS);
  }
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
  kelvo::ui::KelvoApplication application(argc, argv);
  if (const std::optional<int> code = Answer(parser)) return *code;
  if (QGuiApplication::screens().isEmpty()) {  // Qt cannot make a window then
    kelvo::ui::Print("kelvo: there is no screen to show a window on\n", kelvo::ui::Stream::kErrors);
    return EXIT_FAILURE;
  }

  const kelvo::app::ProgramFolders folders = FindFolders();
  kelvo::ui::QtSettings settings;
  const kelvo::app::SystemClock clock;
  kelvo::ui::MainFrame frame(folders, settings, clock);
  kelvo::ui::QtMessages messages(&frame);
  application.on_error = [&](const std::exception& error) {
    frame.Log().Write(std::string("MDIFormMenu_Event: ") + error.what());
    messages.Warn(std::string("Something went wrong; the picture is untouched.\n") + error.what());
  };
  const kelvo::ui::SuddenEnd sudden_end([&frame] { frame.EndSuddenly(); });
  QMetaObject::invokeMethod(
      &frame, [&] { Begin(frame, messages, parser.positionalArguments()); }, Qt::QueuedConnection);
  return kelvo::ui::KelvoApplication::exec();
}
