#include "files/packed_koala.h"

#include <algorithm>

namespace kelvo::files {
namespace {

constexpr std::size_t kPlainBytes = 10003, kAddressBytes = 2, kRunBytes = 3;
constexpr std::uint8_t kRun = 0xFE;

constexpr std::size_t kLongestRun = 255, kShortestRun = kRunBytes + 1;  // shorter ones are no smaller packed

}  // namespace

app::Bytes PackKoala(std::span<const std::uint8_t> plain) {
  app::Bytes packed(plain.begin(), plain.begin() + kAddressBytes);
  for (auto rest = plain.subspan(kAddressBytes); !rest.empty();) {
    const auto most = rest.first(std::min(rest.size(), kLongestRun));
    const auto end = std::ranges::find_if(most, [&](std::uint8_t byte) { return byte != rest[0]; });
    const auto count = static_cast<std::size_t>(end - most.begin());
    if (count >= kShortestRun || rest[0] == kRun) {
      packed.insert(packed.end(), {kRun, rest[0], static_cast<std::uint8_t>(count)});
    } else {
      packed.insert(packed.end(), count, rest[0]);
    }
    rest = rest.subspan(count);
  }
  return packed;
}

app::Bytes UnpackKoala(std::span<const std::uint8_t> bytes) {
  if (bytes.size() < kAddressBytes) throw PackedError("it has no load address");
  app::Bytes plain(bytes.begin(), bytes.begin() + kAddressBytes);
  plain.reserve(kPlainBytes);
  for (auto rest = bytes.subspan(kAddressBytes); !rest.empty();) {
    const bool is_run = rest[0] == kRun;
    if (is_run && rest.size() < kRunBytes) throw PackedError("it ends in the middle of a run");
    const std::size_t count = is_run ? rest[2] : 1;
    if (count == 0) throw PackedError("a run of no bytes is in it");
    if (count > kPlainBytes - plain.size()) throw PackedError("it unpacks to more than a picture");
    plain.insert(plain.end(), count, is_run ? rest[1] : rest[0]);
    rest = rest.subspan(is_run ? kRunBytes : 1);
  }
  if (plain.size() != kPlainBytes) throw PackedError("it unpacks to less than a picture");
  return plain;
}

}  // namespace kelvo::files
