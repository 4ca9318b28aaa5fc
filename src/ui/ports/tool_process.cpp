#include "ui/ports/tool_process.h"

#include <QCoreApplication>

#include "ui/ports/qt_text.h"

#ifdef Q_OS_LINUX
#include <sys/prctl.h>

#include <QDir>
#include <vector>
#endif
#ifndef Q_OS_WIN
#include <unistd.h>

#include <csignal>
#endif

namespace kelvo::ui {
namespace {

// In the environment of a tool and of all that it starts. The value is another one each time.
constexpr const char* kMark = "KELVO_TOOL";

#ifndef Q_OS_WIN
// In the child: a session of its own, so that it can be ended together with whatever it starts.
void BeginSession([[maybe_unused]] bool ends_with_kelvo, [[maybe_unused]] pid_t kelvo) {
  setsid();
#ifdef Q_OS_LINUX
  if (!ends_with_kelvo) return;
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != kelvo) _exit(1);  // which has been killed meanwhile
#endif
}
#endif

#ifdef Q_OS_LINUX
// The processes with `mark` in their environment, whatever sessions they began and whoever started them.
std::vector<pid_t> MarkedProcesses(const QByteArray& mark) {
  std::vector<pid_t> marked;
  const QDir processes("/proc");
  for (const QString& name : processes.entryList(QDir::Dirs)) {
    QFile environment(processes.filePath(name + "/environ"));
    if (name.toInt() <= 0 || !environment.open(QIODevice::ReadOnly)) continue;
    if (environment.readAll().split('\0').contains(mark)) marked.push_back(name.toInt());
  }
  return marked;
}

// Again and again, because a process may start another one in between.
void KillMarked(const QByteArray& mark) {
  constexpr int kRounds = 100;
  std::vector<pid_t> marked = MarkedProcesses(mark);
  for (int round = 0; round < kRounds && !marked.empty(); ++round, marked = MarkedProcesses(mark)) {
    for (const pid_t process : marked) ::kill(process, SIGKILL);
  }
}
#endif

}  // namespace

void ToolProcess::Work(const c64out::ToolCommand& command) {
  static int runs = 0;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(kMark, QString("%1.%2").arg(QCoreApplication::applicationPid()).arg(++runs));
  setProcessEnvironment(environment);
  Start(command, true);
}

void ToolProcess::Show(const c64out::ToolCommand& command, const QString& output) {
  if (!output.isEmpty()) setStandardOutputFile(output);
  Start(command, false);
}

void ToolProcess::Start(const c64out::ToolCommand& command, [[maybe_unused]] bool ends_with_kelvo) {
  setProcessChannelMode(MergedChannels);
  setStandardInputFile(nullDevice());
#ifdef Q_OS_WIN
  setProgram(ToQt(c64out::FindCommandInterpreter().value_or("")));
  setNativeArguments(ToQt(command.InterpreterArguments()));
#else
  setProgram(ToQt(command.tool));
  QStringList arguments;
  for (const std::string& argument : command.arguments) arguments << ToQt(argument);
  setArguments(arguments);
  setChildProcessModifier([ends_with_kelvo, kelvo = getpid()] { BeginSession(ends_with_kelvo, kelvo); });
#endif
  start();
}

void ToolProcess::End() {
#ifdef Q_OS_WIN
  execute("taskkill", {"/PID", QString::number(processId()), "/T", "/F"});
#else
  ::kill(static_cast<pid_t>(-processId()), SIGKILL);
#endif
#ifdef Q_OS_LINUX
  KillMarked((kMark + ('=' + processEnvironment().value(kMark))).toUtf8());
#endif
  kill();
}

}  // namespace kelvo::ui
