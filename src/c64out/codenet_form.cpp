#include "c64out/codenet_form.h"

#include <algorithm>

#include "app/text.h"
#include "app/utf8.h"

namespace kelvo::c64out {
namespace {

constexpr std::string_view kSection = "CodenetGUI";
constexpr std::string_view kTrue = "True", kFalse = "False";

constexpr app::Setting kSendFile{kSection, "SendFile", ""};
constexpr app::Setting kFileType{kSection, "FileType", "PRG"};
constexpr app::Setting kSetDestAddress{kSection, "SetDestAddress", "0"};
constexpr app::Setting kDestAddress{kSection, "DestAddress", ""};
constexpr app::Setting kExecuteAddress{kSection, "ExecuteAddress", ""};
constexpr app::Setting kC64Ip{kSection, "C64IP", kDefaultC64Address};
constexpr app::Setting kPort{kSection, "Port", ""};
constexpr app::Setting kPrgName{kSection, "PRGName", ""};
constexpr std::string_view kBinaryType = "BIN";

struct ExecuteSetting {
  app::Setting setting;
  ExecuteChoice choice;
};
constexpr ExecuteSetting kExecuteSettings[] = {
    {{kSection, "SetExecute", kFalse}, ExecuteChoice::kExecute},
    {{kSection, "SetExecuteAddress", kFalse}, ExecuteChoice::kExecuteAddress},
    {{kSection, "TransferOnly", kTrue}, ExecuteChoice::kTransferOnly},
};

// What decides about the form of the command.
bool IsBinary(const CodenetForm& form) {
  return form.file_type == FileType::kBinary;
}
bool HasDestination(const CodenetForm& form) {
  return IsBinary(form) || form.set_destination;
}
bool HasExecuteAddress(const CodenetForm& form) {
  return !IsBinary(form) && form.execute == ExecuteChoice::kExecuteAddress;
}

std::string FileOption(const CodenetForm& form) {
  if (IsBinary(form)) return "-wb";
  if (form.set_destination) return "-wa";
  return form.execute == ExecuteChoice::kExecute ? "-x" : "-w";
}

bool IsFullAddress(std::string_view text) {
  constexpr std::size_t kDigits = 4;
  return app::CharactersOf(text).size() == kDigits;
}

bool IsTrue(std::string_view stored) {
  return app::ToLower(stored) == "true" || stored == "1" || stored == "-1";
}

// Of several choices that are stored as true, the first one counts: the last one is true by default.
ExecuteChoice LoadExecuteChoice(const app::SettingsStore& settings) {
  const auto* const chosen =
      std::find_if(std::begin(kExecuteSettings), std::end(kExecuteSettings),
                   [&](const ExecuteSetting& stored) { return IsTrue(settings.Read(stored.setting)); });
  return chosen == std::end(kExecuteSettings) ? ExecuteChoice::kTransferOnly : chosen->choice;
}

}  // namespace

CodenetForm WithTrimmedFields(CodenetForm form) {
  for (std::string* field : {&form.port, &form.destination, &form.host}) *field = std::string(app::Trimmed(*field));
  return form;
}

std::vector<std::string> CodenetArgumentList(const CodenetForm& form, std::string_view file) {
  const CodenetForm trimmed = WithTrimmedFields(form);
  std::vector<std::string> arguments{"-n", trimmed.host};
  if (!trimmed.port.empty()) arguments.insert(arguments.end(), {"-p", trimmed.port});
  arguments.insert(arguments.end(), {FileOption(trimmed), std::string(file)});
  if (HasDestination(trimmed)) arguments.push_back("$" + trimmed.destination);
  if (HasExecuteAddress(trimmed)) arguments.insert(arguments.end(), {"-e", "$" + trimmed.execute_address});
  return arguments;
}

ComposedOptions ComposeOptions(const CodenetForm& form, bool file_exists) {
  const CodenetForm trimmed = WithTrimmedFields(form);
  ComposedOptions composed;
  for (const std::string& argument : CodenetArgumentList(trimmed)) composed.options += " " + argument;
  composed.incomplete = trimmed.host.empty() || !file_exists ||
                        (HasDestination(trimmed) && !IsFullAddress(trimmed.destination)) ||
                        (HasExecuteAddress(trimmed) && !IsFullAddress(trimmed.execute_address));
  return composed;
}

CodenetControls EnabledControls(const CodenetForm& form) {
  const bool prg = !IsBinary(form);
  return {.set_destination = prg,
          .destination = HasDestination(form),
          .execute = prg && !form.set_destination,  // with a destination, nothing tells where the program starts
          .execute_at_address = prg,
          .transfer_only = prg,
          .execute_address = HasExecuteAddress(form)};
}

CodenetForm LoadCodenetForm(const app::SettingsStore& settings) {
  CodenetForm form;
  form.file = settings.Read(kSendFile);
  form.file_type = settings.Read(kFileType) == kBinaryType ? FileType::kBinary : FileType::kPrg;
  form.set_destination = app::IsOn(settings, kSetDestAddress);
  form.destination = settings.Read(kDestAddress);
  form.execute = LoadExecuteChoice(settings);
  form.execute_address = settings.Read(kExecuteAddress);
  form.host = settings.Read(kC64Ip);
  form.port = settings.Read(kPort);
  form.prg_name = settings.Read(kPrgName);
  return form;
}

void SaveCodenetForm(app::SettingsStore& settings, const CodenetForm& form) {
  settings.Write(kSendFile, form.file);
  settings.Write(kFileType, IsBinary(form) ? kBinaryType : kFileType.default_value);
  settings.Write(kSetDestAddress, form.set_destination ? "1" : "0");
  settings.Write(kDestAddress, form.destination);
  for (const ExecuteSetting& stored : kExecuteSettings) {
    settings.Write(stored.setting, form.execute == stored.choice ? kTrue : kFalse);
  }
  settings.Write(kExecuteAddress, form.execute_address);
  settings.Write(kC64Ip, app::Trimmed(form.host));
  settings.Write(kPort, form.port);
  settings.Write(kPrgName, app::Trimmed(form.prg_name));
}

}  // namespace kelvo::c64out
