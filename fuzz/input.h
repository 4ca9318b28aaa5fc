// What a fuzz target reads its bytes with, and how it says that something is wrong.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>
#include <vector>

namespace kelvo::fuzz {

// Ends the program with a line, which libFuzzer takes for a crash of this input.
inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "Not so: %s\n", what);
  std::abort();
}

// Gives the bytes out one after the other; zeros and empty texts when there are no more.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : rest_(data, size) {}

  bool IsEmpty() const { return rest_.empty(); }

  std::uint8_t Byte() {
    if (rest_.empty()) return 0;
    const std::uint8_t byte = rest_.front();
    rest_ = rest_.subspan(1);
    return byte;
  }

  // 0 .. `count` - 1, for a count of at most 256.
  int Below(int count) { return Byte() % count; }
  bool Bit() { return (Byte() & 1) != 0; }

  // Up to the next line feed, which is taken away.
  std::string Line() {
    std::string line;
    while (!rest_.empty()) {
      const char c = static_cast<char>(Byte());
      if (c == '\n') break;
      line += c;
    }
    return line;
  }

  std::vector<std::uint8_t> Rest() {
    std::vector<std::uint8_t> bytes(rest_.begin(), rest_.end());
    rest_ = {};
    return bytes;
  }

  std::string RestAsText() {
    const auto bytes = Rest();
    return {bytes.begin(), bytes.end()};
  }

 private:
  std::span<const std::uint8_t> rest_;
};

}  // namespace kelvo::fuzz
