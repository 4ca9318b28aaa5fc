#include "udp_socket.h"

#include <array>
#include <memory>
#include <stdexcept>

namespace kelvo::codenet {
namespace {

constexpr std::size_t kLongestDatagram = 0x10000;

using HostAddresses = std::unique_ptr<addrinfo, decltype(&freeaddrinfo)>;

HostAddresses LookUp(const std::string& host, std::uint16_t port) {
  addrinfo wanted{};
  wanted.ai_family = AF_INET;
  wanted.ai_socktype = SOCK_DGRAM;
  addrinfo* found = nullptr;
  const int error = getaddrinfo(host.c_str(), std::to_string(port).c_str(), &wanted, &found);
  if (error != 0) throw std::runtime_error("this host cannot be found: " + LookUpText(error));
  return {found, freeaddrinfo};
}

[[noreturn]] void Fail(const std::error_code& error) {
  if (MeansNobodyListens(error)) throw NobodyListens("this host is there, but nothing listens at that port");
  throw std::runtime_error("the network cannot be used: " + error.message());
}

}  // namespace

UdpSocket::UdpSocket(const std::string& host, std::uint16_t port) {
  const HostAddresses address = LookUp(host, port);
  socket_ = socket(address->ai_family, address->ai_socktype, address->ai_protocol);
  if (socket_ == kNoSocket) Fail(SocketError());
  NeverBlock(socket_);
  // Connected, it gets datagrams from that host and port alone, and hears when nothing listens there.
  if (connect(socket_, address->ai_addr, static_cast<SocketLength>(address->ai_addrlen)) != 0) {
    const std::error_code error = SocketError();
    CloseSocket(socket_);
    Fail(error);
  }
}

UdpSocket::~UdpSocket() {
  CloseSocket(socket_);
}

// A full buffer is like a lost packet: the next try finds room.
void UdpSocket::Send(std::span<const std::uint8_t> datagram) {
  const auto sent =
      send(socket_, reinterpret_cast<const char*>(datagram.data()), static_cast<SocketLength>(datagram.size()), 0);
  if (sent >= 0) return;
  const std::error_code error = SocketError();
  if (!MeansNotNow(error)) Fail(error);
}

app::Bytes UdpSocket::Receive(std::chrono::microseconds wait) {
  if (wait.count() > 0 && !WaitForDatagram(socket_, wait)) return {};
  std::array<char, kLongestDatagram> buffer;
  const auto size = recv(socket_, buffer.data(), static_cast<SocketLength>(buffer.size()), 0);
  if (size >= 0) return {buffer.data(), buffer.data() + size};
  const std::error_code error = SocketError();
  if (!MeansNotNow(error)) Fail(error);
  return {};
}

}  // namespace kelvo::codenet
