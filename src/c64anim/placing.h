// How each change of an animation is written, and where: packed where the player has the time to unpack it.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "app/long_work.h"
#include "c64anim/animation_memory.h"
#include "c64anim/beam_race.h"
#include "c64anim/packing.h"
#include "c64anim/steps.h"

namespace kelvo::c64anim {

// A change as it is written.
struct Written {
  int size = 0;  // in bytes
  Race race{};
  int unpacking = 0;  // cycles before it can begin
  bool is_packed = false;
};

// Of changes that are not packed.
Written AsTheyAre(std::vector<Span> spans);

class Placing {
 public:
  // `changes` are those that `steps` name, in their order; each is written once. Progress counts them.
  Placing(std::span<const std::vector<Span>> changes, std::span<const Step> steps, std::size_t next_round,
          app::Progress& progress);

  struct Place {
    Written written;
    std::size_t first_same = 0;  // the first change with the same bytes, which has the same address
    std::optional<int> address;  // empty where there is no room
    int fewest_fields = 1;       // that the frame before must at least be shown
  };
  // By change.
  const std::vector<Place>& Places() const { return places_; }
  // What the player takes; all changes have their address.
  Bytes File() const;

 private:
  struct Use {                  // of a change by a step
    std::size_t before, after;  // changes of the steps around; none of the first step's
    int fields, fields_after;
  };

  std::vector<Use> UsesOf(std::size_t change) const;
  bool IsInTime(std::size_t change, const Written& written) const;
  int FewestBefore(std::size_t change) const;
  // `first` becomes where the first part lies.
  bool PutPart(const Bytes& part, std::optional<int>& first);
  std::optional<Written> PutPacked(std::span<const Span> spans, std::optional<int>& first);
  bool PutAsTheyAre(std::span<const Span> spans, std::optional<int>& first);
  void GoBackTo(const AnimationMemory::Rooms& free);
  void Put(std::size_t change);

  std::span<const std::vector<Span>> changes_;
  std::span<const Step> steps_;
  std::size_t next_round_;
  AnimationMemory memory_;
  Packing packing_;
  std::vector<Place> places_;
};

}  // namespace kelvo::c64anim
