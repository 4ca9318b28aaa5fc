#include "codenet/sender.h"

#include <algorithm>
#include <string>

#include "app/number_text.h"

namespace kelvo::codenet {
namespace {

using std::chrono::microseconds;

// A wait is cut into pieces, so that a stop shows at once.
constexpr microseconds kPiece = std::chrono::milliseconds(50);

constexpr auto kMayBeRunning =
    "the order to start was sent, but the C64 does not answer any more: the program may be running";

std::string Confirmed(std::size_t done, std::size_t all) {
  return std::to_string(done) + " of " + std::to_string(all) + " bytes are confirmed";
}

}  // namespace

Sender::Sender(DatagramSocket& socket, const TransferWatch& watch, std::uint8_t first_sequence,
               const Patience& patience)
    : socket_(socket), watch_(watch), patience_(patience), next_(first_sequence) {}

void Sender::WriteMemory(std::uint16_t address, std::span<const std::uint8_t> bytes, app::Progress& progress) {
  if (address + bytes.size() > kMemorySize) {
    throw TransferError(std::to_string(bytes.size()) + " bytes at $" + app::ToHex(address, 4) + " run past $FFFF");
  }
  const app::ProgressScope scope(progress, static_cast<int>(bytes.size()));
  std::size_t done = 0;
  try {
    for (; done < bytes.size(); done += kMostData) {
      progress.Advance(static_cast<int>(done));
      WriteData(static_cast<std::uint16_t>(address + done),
                bytes.subspan(done, std::min(kMostData, bytes.size() - done)));
    }
    Settle();
  } catch (const std::exception& error) {
    throw TransferError(std::string(error.what()) + "; " + Confirmed(std::min(done, bytes.size()), bytes.size()));
  }
  progress.Advance(static_cast<int>(bytes.size()));
}

void Sender::WriteData(std::uint16_t address, std::span<const std::uint8_t> data) {
  const std::uint8_t sequence = NextSequence();
  const Reply reply = Confirm(sequence, EncodeData(sequence, address, data));
  if (reply == Reply::kRefused) throw TransferError("the C64 refuses the data");
  if (reply == Reply::kNone) throw TransferError("the C64 does not answer");
}

void Sender::Jump(std::uint16_t address) {
  const std::uint8_t sequence = NextSequence();
  Start(sequence, EncodeJump(sequence, address));
}

void Sender::Run() {
  const std::uint8_t sequence = NextSequence();
  Start(sequence, EncodePlain(sequence, Service::kRun));
}

void Sender::Start(std::uint8_t sequence, std::span<const std::uint8_t> packet) {
  microseconds wait = patience_.first_wait;
  for (int tries = 0; tries < patience_.tries; ++tries, wait *= 2) {
    Reply reply = Try(sequence, packet, wait);
    if (reply == Reply::kNone) {
      const bool listens = StillListens();
      reply = numbers_[sequence].reply;  // its answer may have come late, among those to the pings
      if (reply == Reply::kNone && !listens) throw TransferError(kMayBeRunning);
    }
    if (reply == Reply::kAccepted) return;
    if (reply == Reply::kRefused) throw TransferError("the C64 refuses to start the program");
  }
  throw TransferError("the C64 answers, but does not confirm the order to start");
}

bool Sender::StillListens() {
  const std::uint8_t sequence = NextSequence();
  try {
    return Confirm(sequence, EncodePlain(sequence, Service::kPing)) != Reply::kNone;
  } catch (const NobodyListens&) {
    return false;
  }
}

std::uint8_t Sender::NextSequence() {
  const std::uint8_t sequence = next_++;
  Number& number = numbers_[sequence];
  while (LivesOn(number.last_sent)) TakeNext(number.last_sent + patience_.packet_life);
  number.reply = Reply::kNone;
  return sequence;
}

Sender::Reply Sender::Confirm(std::uint8_t sequence, std::span<const std::uint8_t> packet) {
  Reply reply = Reply::kNone;
  microseconds wait = patience_.first_wait;
  for (int tries = 0; tries < patience_.tries && reply == Reply::kNone; ++tries, wait *= 2) {
    reply = Try(sequence, packet, wait);
  }
  return reply;
}

// Nothing that is there before the packet leaves can answer it; to an earlier copy of it there may be an answer now.
Sender::Reply Sender::Try(std::uint8_t sequence, std::span<const std::uint8_t> packet, microseconds wait) {
  Number& number = numbers_[sequence];
  TakeWaiting();
  if (number.reply != Reply::kNone) return number.reply;
  number.last_sent = watch_.Now();
  unanswered_.push_back({sequence, number.last_sent});
  socket_.Send(packet);
  const Time end = number.last_sent + wait;
  while (number.reply == Reply::kNone && watch_.Now() < end) TakeNext(end);
  return number.reply;
}

void Sender::Settle() {
  for (;;) {
    std::erase_if(unanswered_, [this](const Copy& copy) { return !LivesOn(copy.sent); });
    if (unanswered_.empty()) return;
    TakeNext(unanswered_.back().sent + patience_.packet_life);
  }
}

void Sender::TakeWaiting() {
  for (app::Bytes datagram = socket_.Receive({}); !datagram.empty(); datagram = socket_.Receive({})) {
    CheckStop();
    Take(datagram);
  }
}

void Sender::TakeNext(Time end) {
  CheckStop();
  const auto left = std::chrono::ceil<microseconds>(end - watch_.Now());
  if (left > microseconds(0)) Take(socket_.Receive(std::min(left, kPiece)));
}

void Sender::Take(std::span<const std::uint8_t> datagram) {
  const auto answer = DecodeAnswer(datagram);
  if (!answer) return;
  const auto copy = std::find_if(unanswered_.begin(), unanswered_.end(),
                                 [&](const Copy& sent) { return sent.sequence == answer->sequence; });
  if (copy == unanswered_.end()) return;
  unanswered_.erase(copy);
  numbers_[answer->sequence].reply = answer->accepted ? Reply::kAccepted : Reply::kRefused;
}

void Sender::CheckStop() const {
  if (watch_.StopWanted()) throw TransferError("stopped before the C64 had confirmed everything");
}

}  // namespace kelvo::codenet
