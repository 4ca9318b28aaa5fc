#include <unistd.h>

#include <csignal>

#include "ui/ports/qt_text.h"
#include "ui/ports/tool_process.h"

#ifdef Q_OS_LINUX
#include <sys/prctl.h>

#include <vector>
#endif

namespace kelvo::ui {
namespace {

// In the child: a session of its own, so that it can be ended together with whatever it starts.
void BeginSession([[maybe_unused]] bool ends_with_kelvo, [[maybe_unused]] pid_t kelvo) {
  setsid();
#ifdef Q_OS_LINUX
  if (!ends_with_kelvo) return;
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != kelvo) _exit(1);  // which has been killed meanwhile
#endif
}

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

void ToolProcess::SetCommand(const c64out::ToolCommand& command, Purpose purpose) {
  setProgram(ToQt(command.tool));
  QStringList arguments;
  for (const std::string& argument : command.arguments) arguments << ToQt(argument);
  setArguments(arguments);
  setChildProcessModifier(
      [ends_with_kelvo = purpose == Purpose::kWork, kelvo = getpid()] { BeginSession(ends_with_kelvo, kelvo); });
}

void ToolProcess::EndGroup() {
  ::kill(static_cast<pid_t>(-processId()), SIGKILL);
#ifdef Q_OS_LINUX
  KillMarked((kToolMark + ('=' + processEnvironment().value(kToolMark))).toUtf8());
#endif
}

}  // namespace kelvo::ui
