#include "support/codenet_server.h"

#include <array>
#include <stdexcept>
#include <utility>

namespace kelvo::support {
namespace {

constexpr std::chrono::milliseconds kQuiet(1), kIdle(20);

sockaddr_in LoopbackAddress() {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

bool SameClient(const sockaddr_in& one, const sockaddr_in& other) {
  return one.sin_port == other.sin_port;
}

}  // namespace

CodenetServer::CodenetServer(const Network& network, std::uint16_t port) : network_(network), random_(network.seed) {
  sockaddr_in address = LoopbackAddress();
  address.sin_port = htons(port);
  codenet::SocketLength size = sizeof(address);
  socket_ = socket(AF_INET, SOCK_DGRAM, 0);
  codenet::NeverBlock(socket_);
  auto* const plain = reinterpret_cast<sockaddr*>(&address);
  if (bind(socket_, plain, size) != 0 || getsockname(socket_, plain, &size) != 0) {
    throw std::runtime_error("no port for the server: " + codenet::SocketError().message());
  }
  port_ = ntohs(address.sin_port);
  thread_ = std::thread([this] { Serve(); });
}

CodenetServer::~CodenetServer() {
  ended_ = true;
  thread_.join();
  codenet::CloseSocket(socket_);
}

CodenetMachine CodenetServer::Machine() const {
  const std::lock_guard lock(mutex_);
  return machine_;
}

void CodenetServer::Serve() {
  std::array<char, 2048> buffer;
  while (!ended_) {
    if (!codenet::WaitForDatagram(socket_, held_.empty() ? kIdle : kQuiet)) {
      LetGo(std::numeric_limits<int>::max());
      continue;
    }
    sockaddr_in client{};
    codenet::SocketLength size = sizeof(client);
    const auto length = recvfrom(socket_, buffer.data(), static_cast<codenet::SocketLength>(buffer.size()), 0,
                                 reinterpret_cast<sockaddr*>(&client), &size);
    if (length >= 0) Arrive({buffer.data(), buffer.data() + length}, client);
  }
}

// What an earlier client left in the network is past its life when the next one comes.
void CodenetServer::Arrive(const app::Bytes& packet, const sockaddr_in& client) {
  if (arrived_++ >= network_.vanishes_after) return;
  if (!SameClient(client, client_)) held_.clear();
  client_ = client;
  Pass(Way::kToMachine, packet);
  LetGo(1);
}

void CodenetServer::Pass(Way way, app::Bytes packet) {
  if (std::bernoulli_distribution(network_.disturbed)(random_)) {
    Disturb(way, std::move(packet));
  } else {
    Deliver(way, packet);
  }
}

void CodenetServer::Disturb(Way way, app::Bytes packet) {
  enum Kind { kLost, kLate, kDouble, kReordered, kDamaged, kOtherSequence, kKinds };
  switch (Random(kKinds)) {
    case kLost:
      return;
    case kLate:
      return held_.push_back({way, std::move(packet), 2 + Random(4)});
    case kReordered:
      return held_.push_back({way, std::move(packet), 2});
    case kDouble:
      Deliver(way, packet);
      break;
    case kDamaged:
      if (Random(2) == 0) return;
      Damage(packet);
      break;
    case kOtherSequence:
      packet[2] = static_cast<std::uint8_t>(packet[2] - 1 - Random(100));
      break;
  }
  Deliver(way, packet);
}

// Of the kind that a receiver can see; the checksum has found all the others.
void CodenetServer::Damage(app::Bytes& packet) {
  switch (Random(4)) {
    case 0:
      packet[0] ^= 1 << Random(8);
      break;
    case 1:
      packet[1] ^= 1 << Random(8);
      break;
    case 2:
      packet[3] |= 0x40;
      break;
    default:
      packet.resize(static_cast<std::size_t>(Random(4)));
  }
}

void CodenetServer::Deliver(Way way, const app::Bytes& packet) {
  if (way == Way::kToClient) {
    sendto(socket_, reinterpret_cast<const char*>(packet.data()), static_cast<codenet::SocketLength>(packet.size()), 0,
           reinterpret_cast<const sockaddr*>(&client_), sizeof(client_));
    return;
  }
  if (network_.answers_after.count() > 0) std::this_thread::sleep_for(network_.answers_after);
  app::Bytes answer;
  {
    const std::lock_guard lock(mutex_);
    answer = machine_.Handle(packet);
  }
  if (!answer.empty()) Pass(Way::kToClient, std::move(answer));
}

// Each packet held back has been overtaken by so many more; those that have waited long enough go on.
void CodenetServer::LetGo(int overtakers) {
  for (Held& packet : std::exchange(held_, {})) {
    packet.overtakers -= overtakers;
    if (packet.overtakers <= 0) {
      Deliver(packet.way, packet.packet);
    } else {
      held_.push_back(std::move(packet));
    }
  }
}

int CodenetServer::Random(int below) {
  return static_cast<int>(random_() % static_cast<unsigned>(below));
}

}  // namespace kelvo::support
