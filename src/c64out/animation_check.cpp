#include "c64out/animation_check.h"

#include <algorithm>
#include <string>
#include <vector>

#include "anim/playing_order.h"
#include "c64/beam.h"

namespace kelvo::c64out {
namespace {

constexpr int kMostFieldsToBegin = 250;

// A frame's turn in the first round: its place, for how long it is to be seen, and the most fields that it takes to
// come.
struct Turn {
  std::size_t frame;
  int fields, coming;
};

// But for frames for which there are too few fields: they may never be seen whole, and make others late.
std::vector<Turn> TurnsOf(const Release& release) {
  const anim::Playing playing = release.wishes.playing;
  std::vector<std::size_t> order = anim::OrderOfRound(release.fields.size(), playing);
  if (playing != anim::Playing::kOnce) order.push_back(0);
  const std::vector<ReleaseRow> rows = RowsOf(release);
  std::vector<Turn> turns;
  int fields = 0, late = 0;
  for (std::size_t i = 0; i < order.size() && fields < kMostTriedFields; ++i) {
    const bool closes_round = i > 0 && order[i] == 0 && playing == anim::Playing::kRound;
    const ReleaseRow& row = closes_round ? rows.back() : rows[order[i]];
    const int shown = i + 1 < order.size() ? release.fields[order[i]] : 1;
    fields += shown;
    if (i > 0 && row.is_slow) {
      late += row.fields;
    } else {
      turns.push_back({order[i], shown, late + (i > 0 ? std::max(0, row.torn_fields - 1) : 0)});
      late = std::max(0, row.fields - shown);
    }
  }
  return turns;
}

// How many of the next `most` fields pass before `wanted` is seen, which `screen` is then; `most` when it is not.
int Await(const ScreenPixels& wanted, int most, c64::Beam& beam, c64::Screen& screen) {
  int waited = 0;
  while (waited < most && screen.pixels != wanted) {
    screen = beam.NextField();
    ++waited;
  }
  return waited;
}

ProgramFinding Watch(c64::Beam& beam, const Release& release) {
  c64::Screen screen = beam.NextField();
  Await(PixelsOf(release.first_pictures.front()), kMostFieldsToBegin, beam, screen);
  for (const Turn& turn : TurnsOf(release)) {
    const ScreenPixels wanted = PixelsOf(release.first_pictures[turn.frame]);
    const int waited = Await(wanted, turn.coming, beam, screen);
    for (int field = std::min(waited, turn.fields - 1); field < turn.fields; ++field, screen = beam.NextField()) {
      if (screen.pixels == wanted) continue;
      return {ProgramState::kShowsOther,
              "frame " + std::to_string(release.animation.frames[turn.frame].number) + " is not seen at its time"};
    }
  }
  return {ProgramState::kShowsPicture, {}};
}

}  // namespace

ProgramFinding TryAnimation(std::span<const std::uint8_t> program, const Release& release, bool via_codenet) {
  return TryInC64(program, via_codenet, [&](c64::Machine& machine) {
    c64::Beam beam(machine);
    machine.Start();
    return Watch(beam, release);
  });
}

}  // namespace kelvo::c64out
