#include <windows.h>

#include <vector>

#include "ui/ports/qt_text.h"
#include "ui/ports/tool_process.h"

namespace kelvo::ui {
namespace {

// Holds a program with all that it starts. Where it `ends_with_kelvo` all of it ends when the job is closed, and the
// system closes it when this program ends in whatever way.
std::shared_ptr<void> MakeJob(bool ends_with_kelvo) {
  std::shared_ptr<void> job(CreateJobObjectW(nullptr, nullptr), CloseHandle);
  if (!ends_with_kelvo) return job;
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
  SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits, sizeof(limits));
  return job;
}

// Lets a process belong to a job before it does anything.
class StartInJob {
 public:
  explicit StartInJob(std::shared_ptr<void> job) : job_(std::move(job)), handle_(job_.get()) {
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    room_.resize(size);
    start_.lpAttributeList = reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(room_.data());
    InitializeProcThreadAttributeList(start_.lpAttributeList, 1, 0, &size);
    UpdateProcThreadAttribute(start_.lpAttributeList, 0, PROC_THREAD_ATTRIBUTE_JOB_LIST, &handle_, sizeof(handle_),
                              nullptr, nullptr);
  }
  ~StartInJob() { DeleteProcThreadAttributeList(start_.lpAttributeList); }
  StartInJob(const StartInJob&) = delete;
  StartInJob& operator=(const StartInJob&) = delete;

  void Apply(QProcess::CreateProcessArguments& arguments) {
    start_.StartupInfo = *arguments.startupInfo;
    start_.StartupInfo.cb = sizeof(start_);
    arguments.startupInfo = &start_.StartupInfo;
    arguments.flags |= EXTENDED_STARTUPINFO_PRESENT;
  }

 private:
  std::shared_ptr<void> job_;
  HANDLE handle_;
  std::vector<char> room_;
  STARTUPINFOEXW start_{};
};

}  // namespace

void ToolProcess::SetCommand(const c64out::ToolCommand& command, Purpose purpose) {
  setProgram(ToQt(c64out::FindCommandInterpreter().value_or("")));
  setNativeArguments(ToQt(command.InterpreterArguments()));
  QProcessEnvironment environment = processEnvironment();
  environment.insert(c64out::kPercentVariable, "%");
  setProcessEnvironment(environment);
  job_ = MakeJob(purpose == Purpose::kWork);
  setCreateProcessArgumentsModifier(
      [start = std::make_shared<StartInJob>(job_)](CreateProcessArguments* arguments) { start->Apply(*arguments); });
}

void ToolProcess::EndGroup() {
  if (job_) TerminateJobObject(job_.get(), 1);
}

}  // namespace kelvo::ui
