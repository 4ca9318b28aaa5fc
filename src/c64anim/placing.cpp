#include "c64anim/placing.h"

#include <algorithm>

namespace kelvo::c64anim {
namespace {

// Spans whose bytes are unpacked together.
struct Raw {
  std::vector<Span> spans;
  Bytes bytes;
};

std::vector<Raw> RawPartsOf(std::span<const Span> spans) {
  std::vector<Raw> parts;
  for (const Span& span : spans) {
    const bool is_full = parts.empty() || parts.back().bytes.size() + span.bytes.size() + 1 > kBufferSize;
    if (is_full) parts.emplace_back();
    parts.back().spans.push_back(span);
    parts.back().bytes.insert(parts.back().bytes.end(), span.bytes.begin(), span.bytes.end());
  }
  for (Raw& part : parts) part.bytes.push_back(kEndOfChanges);
  return parts;
}

}  // namespace

Written AsTheyAre(std::vector<Span> spans) {
  Written written{.size = 1};
  for (const Span& span : spans) written.size += static_cast<int>(span.bytes.size());
  const Part part{.spans = std::move(spans)};
  written.race = RaceOf({&part, 1});
  return written;
}

Placing::Placing(std::span<const std::vector<Span>> changes, std::span<const Step> steps, std::size_t next_round,
                 app::Progress& progress)
    : changes_(changes), steps_(steps), next_round_(next_round), memory_(steps.size()) {
  places_.reserve(changes_.size());
  for (const std::vector<Span>& spans : changes_) places_.emplace_back().written = AsTheyAre(spans);
  for (std::size_t change = 0; change < changes_.size(); ++change) {
    const auto same = std::find(changes_.begin(), changes_.end(), changes_[change]) - changes_.begin();
    places_[change].first_same = static_cast<std::size_t>(same);
  }
  const app::ProgressScope scope(progress, static_cast<int>(changes_.size()));
  for (std::size_t change = 0; change < changes_.size(); ++change) {
    progress.Advance(static_cast<int>(change));
    const std::size_t same = places_[change].first_same;
    if (same == change) {
      Put(change);
    } else {
      places_[change] = places_[same];
    }
  }
  for (std::size_t change = 0; change < places_.size(); ++change) places_[change].fewest_fields = FewestBefore(change);
}

std::vector<Placing::Use> Placing::UsesOf(std::size_t change) const {
  std::vector<Use> uses;
  for (std::size_t at = 1; at < steps_.size(); ++at) {
    if (places_[steps_[at].change].first_same != places_[change].first_same) continue;
    const std::size_t before = at > 1 || next_round_ == 0 ? at - 1 : steps_.size() - 1;
    const std::size_t after = at + 1 < steps_.size() ? at + 1 : std::max<std::size_t>(next_round_, 1);
    uses.push_back({steps_[before].change, steps_[after].change, steps_[at].fields, steps_[after].fields});
  }
  return uses;
}

// The first frame is drawn before the first field counts.
int Placing::FewestBefore(std::size_t change) const {
  int fewest = 1;
  for (const Use& use : UsesOf(change)) {
    const Race before = use.before == 0 ? Race{} : places_[use.before].written.race;
    fewest = std::max(fewest, FewestFields(before, places_[change].written.unpacking));
  }
  return fewest;
}

// Whether packing it makes nothing late or torn.
bool Placing::IsInTime(std::size_t change, const Written& written) const {
  const bool tears = written.race.is_overtaken && !places_[change].written.race.is_overtaken;
  return std::ranges::all_of(UsesOf(change), [&](const Use& use) {
    const Race before = use.before == 0 ? Race{} : places_[use.before].written.race;
    return !tears && FewestFields(before, written.unpacking) <= use.fields &&
           FewestFields(written.race, places_[use.after].written.unpacking) <= use.fields_after;
  });
}

bool Placing::PutPart(const Bytes& part, std::optional<int>& first) {
  const std::optional<int> address = memory_.Put(part, first.has_value());
  if (!address) return false;
  packing_.Know(*address, part);
  if (!first) first = address;
  return true;
}

// Empty when there is not so much room.
std::optional<Written> Placing::PutPacked(std::span<const Span> spans, std::optional<int>& first) {
  Written written{.size = 1, .is_packed = true};
  std::vector<Part> parts;
  for (Raw& raw : RawPartsOf(spans)) {
    const Bytes packed = packing_.Packed(raw.bytes);
    Bytes part{kPackedPart};
    part.insert(part.end(), packed.begin(), packed.end());
    if (!PutPart(part, first)) return std::nullopt;
    written.size += static_cast<int>(part.size());
    parts.push_back({Packing::UnpackingCycles(packed), std::move(raw.spans)});
  }
  if (!PutPart({kEndOfChanges}, first)) return std::nullopt;
  written.race = RaceOf(parts);
  if (!parts.empty()) written.unpacking = parts.front().unpacking;
  return written;
}

bool Placing::PutAsTheyAre(std::span<const Span> spans, std::optional<int>& first) {
  return std::ranges::all_of(spans, [&](const Span& span) { return PutPart(span.bytes, first); }) &&
         PutPart({kEndOfChanges}, first);
}

void Placing::GoBackTo(const AnimationMemory::Rooms& free) {
  memory_.GoBackTo(free);
  for (const auto& [begin, end] : free) packing_.Forget(begin, end - begin);
}

void Placing::Put(std::size_t change) {
  const AnimationMemory::Rooms free = memory_.Free();
  Place& place = places_[change];
  std::optional<int> first;
  const std::optional<Written> packed = PutPacked(changes_[change], first);
  if (packed && packed->size < place.written.size && IsInTime(change, *packed)) {
    place.written = *packed;
    place.address = first;
    return;
  }
  GoBackTo(free);
  first.reset();
  if (PutAsTheyAre(changes_[change], first)) {
    place.address = first;
  } else {
    GoBackTo(free);
  }
}

Bytes Placing::File() const {
  AnimationMemory memory = memory_;
  for (std::size_t at = 0; at < steps_.size(); ++at) {
    memory.PutStep(at, steps_[at].fields, *places_[steps_[at].change].address);
  }
  memory.PutStep(steps_.size(), 0, next_round_ == 0 ? 0 : AnimationMemory::AddressOfStep(next_round_));
  return memory.File();
}

}  // namespace kelvo::c64anim
