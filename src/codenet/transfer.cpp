#include "codenet/transfer.h"

#include "app/number_text.h"
#include "app/path_text.h"

namespace kelvo::codenet {
namespace {

constexpr std::size_t kLoadAddressSize = 2;

[[noreturn]] void Fail(const Arguments& arguments, const std::string& what) {
  throw app::FileError(arguments.file + ": " + what);
}

std::uint16_t TakeLoadAddress(const Arguments& arguments, app::Bytes& program) {
  if (program.size() <= kLoadAddressSize) {
    Fail(arguments, "this is no PRG: it has " + std::to_string(program.size()) + " bytes, one has at least 3");
  }
  const auto address = static_cast<std::uint16_t>(program[0] | program[1] << 8);
  program.erase(program.begin(), program.begin() + kLoadAddressSize);
  return address;
}

void Start(const Transfer& transfer, Sender& sender) {
  if (transfer.run) sender.Run();
  if (transfer.jump) sender.Jump(*transfer.jump);
}

}  // namespace

Transfer PrepareTransfer(const Arguments& arguments) {
  Transfer transfer;
  transfer.run = arguments.mode == FileMode::kRunProgram;
  transfer.jump = arguments.execute;
  if (arguments.mode == FileMode::kNone) return transfer;
  transfer.bytes = app::ReadWholeFile(app::PathFromText(arguments.file), kMemorySize + kLoadAddressSize);
  if (transfer.bytes.empty()) Fail(arguments, "the file is empty");
  transfer.address = arguments.address;
  if (arguments.mode != FileMode::kBytesAt) {
    const std::uint16_t load_address = TakeLoadAddress(arguments, transfer.bytes);
    if (arguments.mode != FileMode::kProgramAt) transfer.address = load_address;
  }
  if (transfer.address + transfer.bytes.size() > kMemorySize) {
    Fail(arguments, std::to_string(transfer.bytes.size()) + " bytes at $" + app::ToHex(transfer.address, 4) +
                        " would run past $FFFF");
  }
  return transfer;
}

void SendTransfer(const Transfer& transfer, Sender& sender, app::Progress& progress) {
  if (transfer.bytes.empty()) return Start(transfer, sender);
  sender.WriteMemory(transfer.address, transfer.bytes, progress);
  try {
    Start(transfer, sender);
  } catch (const std::exception& error) {
    throw TransferError(std::string("the C64's memory is written; ") + error.what());
  }
}

}  // namespace kelvo::codenet
