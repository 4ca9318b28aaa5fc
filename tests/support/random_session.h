// A session at the editor by a hand that acts at random.
#pragma once

#include <random>
#include <string>

#include "editing/cell_tools.h"
#include "editing/pixel_plot.h"
#include "files/picture_format.h"
#include "history/history.h"
#include "model/pixel_place.h"
#include "support/pictures.h"

namespace kelvo::support {

class RandomSession {
 public:
  explicit RandomSession(unsigned seed) : random_(seed) {}

  // One action, which `history` hears of as it would of the editor's. Of a hundred 60 are strokes, 20 cells, 10 blocks
  // of cells and what takes one back, 2 another background, 3 loads and new pictures, 5 saves.
  void Act(history::History& history) {
    const int kind = Below(100);
    if (kind < 60) Stroke();
    if (kind >= 60 && kind < 80) editing::FillChar(document.picture, SomeCell(), Colour(Below(16)));
    if (kind >= 80 && kind < 85) Blocks();
    if (kind >= 85 && kind < 90) std::swap(document.picture, before_);
    if (kind >= 90 && kind < 92) document.picture.BackgroundColour = Colour(Below(16));
    if (kind >= 92 && kind < 95) return Replace(history, kind == 92);
    if (kind >= 95) return Save(history);
    history.Record("Draw");
  }

  int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

  files::Document document;

 private:
  model::PixelPlace SomeCell() { return model::LookUpPixel(1 + Below(160), 1 + Below(200)); }

  void Stroke() {
    before_ = document.picture;
    int x = 1 + Below(160), y = 1 + Below(200);
    const auto pen = Colour(Below(16));
    for (int length = Below(80); length >= 0; --length) {
      x = std::clamp(x + Below(3) - 1, 1, 160);
      y = std::clamp(y + Below(3) - 1, 1, 200);
      editing::PlotPixel(document.picture, x, y, pen, editing::FullCell::kRecolour);
    }
  }

  void Blocks() {
    before_ = document.picture;
    for (int count = Below(500); count > 0; --count) {
      editing::FillChar(document.picture, SomeCell(), Colour(Below(16)));
    }
  }

  void Replace(history::History& history, bool is_new) {
    const model::PictureImage picture =
        is_new ? model::PictureImage{} : BlotchyPicture(static_cast<unsigned>(Below(20)));
    const auto file = is_new ? files::CurrentFile() : files::SetFileParameters("p" + std::to_string(Below(20)));
    document = {.picture = picture, .kept = picture, .file = file, .on_disk = files::Encode(picture)};
    history.Open(is_new ? "New" : "Load");
  }

  void Save(history::History& history) {
    if (!document.file.HasFile() || Below(4) == 0) {
      document.file = files::SetFileParameters("p" + std::to_string(Below(20)));
    }
    files::Sign(document.picture);
    document.kept = document.picture;
    document.on_disk = files::Encode(document.picture);
    history.Saved();
  }

  std::mt19937 random_;
  model::PictureImage before_;
};

}  // namespace kelvo::support
