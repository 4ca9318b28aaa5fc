// UDP to one host, IPv4.
#pragma once

#include <cstdint>
#include <string>

#include "codenet/datagram_socket.h"
#include "sockets.h"

namespace kelvo::codenet {

class UdpSocket final : public DatagramSocket {
 public:
  // Looks `host` up, a name or a numeric address; nothing is sent yet. Throws std::runtime_error.
  UdpSocket(const std::string& host, std::uint16_t port);
  ~UdpSocket() override;
  UdpSocket(const UdpSocket&) = delete;
  UdpSocket& operator=(const UdpSocket&) = delete;

  void Send(std::span<const std::uint8_t> datagram) override;
  app::Bytes Receive(std::chrono::microseconds wait) override;

 private:
  NetworkUse network_;
  SocketHandle socket_ = kNoSocket;
};

}  // namespace kelvo::codenet
