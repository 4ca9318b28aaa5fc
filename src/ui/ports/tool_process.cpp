#include "ui/ports/tool_process.h"

#include <QCoreApplication>

namespace kelvo::ui {

// The mark of a tool and of all that it starts is another one each time.
void ToolProcess::Work(const c64out::ToolCommand& command) {
  static int runs = 0;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(kToolMark, QString("%1.%2").arg(QCoreApplication::applicationPid()).arg(++runs));
  setProcessEnvironment(environment);
  Start(command, Purpose::kWork);
}

void ToolProcess::Show(const c64out::ToolCommand& command, const QString& output) {
  setProcessEnvironment(QProcessEnvironment::systemEnvironment());
  if (!output.isEmpty()) setStandardOutputFile(output);
  Start(command, Purpose::kShow);
}

void ToolProcess::Start(const c64out::ToolCommand& command, Purpose purpose) {
  setProcessChannelMode(MergedChannels);
  setStandardInputFile(nullDevice());
  SetCommand(command, purpose);
  start();
}

void ToolProcess::End() {
  EndGroup();
  kill();
}

}  // namespace kelvo::ui
