// Images become pictures that obey the cell rule, with the least error that it allows.
#include "convert/conversion.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "convert/closest_fit.h"
#include "convert/exact_picture.h"
#include "convert/into_picture.h"
#include "model/named_palettes.h"
#include "support/pictures.h"

namespace kelvo::convert {
namespace {

using model::C64Colour;

RgbImage Painted(int width, int height, const auto& colour_at) {
  RgbImage image{width, height, {}};
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) image.pixels.push_back(colour_at(x, y));
  }
  return image;
}

RgbImage Flat(std::uint32_t colour) {
  return Painted(320, 200, [&](int, int) { return colour; });
}

// Waves of colour with noise: no C64's picture at all.
RgbImage Photo(int width, int height, unsigned seed) {
  std::mt19937 random(seed);
  return Painted(width, height, [&](int x, int y) {
    const auto wave = [&](double length) {
      return static_cast<std::uint32_t>(127 + 100 * std::sin((x + 2 * y) / length));
    };
    const auto noise = [&] { return static_cast<std::uint32_t>(random() % 28); };
    return 0xFF000000U | (wave(17) + noise()) << 16 | (wave(41) + noise()) << 8 | wave(73);
  });
}

Converted Convert(const RgbImage& image, const Wishes& wishes) {
  app::NoProgress nobody;
  return Conversion(image, {}).Convert(wishes, nobody);
}

// A screen with a border in the background's colour, as C64 pictures are published.
RgbImage ScreenOf(const model::PictureImage& picture, const model::SurfaceColours& colours, int scale) {
  return Painted(384 * scale, 272 * scale, [&](int x, int y) {
    const int column = x / scale - 32, line = y / scale - 35;
    const bool inside = column >= 0 && column < 320 && line >= 0 && line < 200;
    const int shown = inside ? support::ColourAt(picture, column / 2 + 1, line + 1) : picture.BackgroundColour.Number();
    return colours[static_cast<std::size_t>(shown)];
  });
}

void ExpectLooksLike(const model::PictureImage& picture, const model::PictureImage& other) {
  for (int y = 1; y <= 200; ++y) {
    for (int x = 1; x <= 160; ++x) {
      ASSERT_EQ(support::ColourAt(picture, x, y), support::ColourAt(other, x, y)) << x << ' ' << y;
    }
  }
}

TEST(Conversion, GivesBackWhatIsAPictureAlready) {
  model::SurfaceColours published = model::kNamedPalettes[1].colours;
  for (std::uint32_t& colour : published) colour ^= 0x010101;  // as others have rounded
  for (const auto& [shown, wished] : {std::pair{model::kSurfaceColours, model::kNamedPalettes[2].colours},
                                      std::pair{published, model::kSurfaceColours}}) {
    for (const int scale : {1, 2}) {
      const model::PictureImage picture = support::RandomPicture(static_cast<unsigned>(scale));
      const RgbImage image = ScreenOf(picture, shown, scale);
      Conversion conversion(image, {model::kNamedPalettes[0].colours, model::kNamedPalettes[1].colours});
      app::NoProgress nobody;
      const Converted converted = conversion.Convert({.palette = wished}, nobody);
      EXPECT_TRUE(converted.exact);
      EXPECT_EQ(converted.map.background, picture.BackgroundColour);
      EXPECT_EQ(converted.changed_pixels, 0);
      ExpectLooksLike(PictureOf(converted.map), picture);
    }
  }
  model::PictureImage plain;  // any background would do: the border tells
  plain.Bitmap.fill(0x55);
  plain.Bitmap[1] = 0;
  plain.ScreenMemory.fill(0x11);
  plain.BackgroundColour = support::Colour(6);
  const std::vector palettes{model::kSurfaceColours};
  EXPECT_EQ(PaletteColoursOf(ScreenOf(plain, palettes[0], 1), palettes)->background, plain.BackgroundColour);
}

TEST(Conversion, TakesNothingForAPictureThatIsNone) {
  const model::PictureImage picture = support::RandomPicture(3);
  const RgbImage good = ScreenOf(picture, model::kSurfaceColours, 2);
  const std::size_t inside = 2 * 384 * 2 * 100 + 2 * 100;
  RgbImage half_a_pixel = good, between = good, clear = good;
  half_a_pixel.pixels[inside] ^= 0xFFFFFF;
  for (std::size_t pixel = 0; pixel < between.pixels.size(); ++pixel) {
    if (between.pixels[pixel] == model::kSurfaceColours[5]) between.pixels[pixel] += 3;
  }
  for (std::uint32_t& pixel : clear.pixels) pixel &= 0x80FFFFFF;
  const RgbImage two_for_one =
      Painted(320, 200, [](int x, int) { return model::kSurfaceColours[7] ^ (x < 2 ? 1U : 0U); });
  RgbImage beyond = good;  // five colours in one cell
  for (int n = 0; n < 8; ++n) {
    for (int line = 0; line < 2; ++line) {
      for (int x = 0; x < 4; ++x) {
        const int row = 2 * (35 + n) + line, column = 2 * 32 + x;
        beyond.pixels[static_cast<std::size_t>(row * 768 + column)] =
            model::kSurfaceColours[static_cast<std::size_t>(n)];
      }
    }
  }
  for (const RgbImage& image :
       {half_a_pixel, between, clear, two_for_one, beyond, Photo(320, 200, 1), Photo(7, 3, 1)}) {
    const Converted converted = Convert(image, {.grain = kNoGrain});
    EXPECT_FALSE(converted.exact);
    EXPECT_GT(converted.mean_error, 0);
  }
  const auto read = PaletteColoursOf(beyond, std::vector{model::kSurfaceColours});
  ASSERT_TRUE(read);
  EXPECT_EQ(CellsBeyondRule(*read, read->background), std::vector{0});

  const auto five_in_a_cell = [](int x, int y) {
    return model::kSurfaceColours.at(y == 0 && x < 8 ? static_cast<std::size_t>(x / 2) + 1 : 0);
  };
  const Converted converted = Convert(Painted(320, 200, five_in_a_cell), {.grain = kNoGrain});
  EXPECT_EQ(std::pair(converted.changed_pixels, converted.changed_cells), std::pair(1, 1));
}

// Every background with every three others, one after the other.
TEST(Conversion, FindsTheLeastErrorWithoutDither) {
  const CellGrid grid{2, 2};
  const PaletteLight palette(model::kSurfaceColours);
  const RgbImage image = Photo(16, 16, 5);
  std::vector<Triple> lab;
  for (const Triple& light : SampleLight(image, {0, 0, 16, 16}, grid, 0)) {
    lab.push_back(LabFromLms(LmsFromLinear(light)));
  }
  const ColourErrors errors = ErrorsOf(lab, palette);
  const ClosestFit fit = FitClosest(grid, errors);
  for (int background = 0; background < kColours; ++background) {
    double sum = 0;
    for (int cell = 0; cell < grid.Cells(); ++cell) {
      double least = std::numeric_limits<double>::max();
      for (unsigned set = 0; set <= kAllColours; ++set) {
        if (std::popcount(set) != kMostColours || (set & SetOf(background)) == 0) continue;
        double error = 0;
        for (int k = 0; k < CellGrid::kCellPixels; ++k) {
          const auto& pixel = errors[grid.PixelOf(cell, k)];
          error += static_cast<double>(pixel[ClosestOf(pixel, static_cast<ColourSet>(set))]);
        }
        least = std::min(least, error);
      }
      sum += least;
    }
    EXPECT_NEAR(fit.errors[static_cast<std::size_t>(background)], sum, sum * 1e-5) << background;
    const auto colour = *C64Colour::FromNumber(background);
    const ColourMap drawn = DrawClosest(grid, errors, fit, colour);
    double error = 0;
    for (std::size_t pixel = 0; pixel < errors.size(); ++pixel) {
      error += static_cast<double>(errors[pixel][drawn.colours[pixel]]);
    }
    EXPECT_NEAR(error, sum, sum * 1e-5) << background;
    EXPECT_TRUE(CellsBeyondRule(drawn, colour).empty());
  }
}

// What an eye takes from its chair: the mean light of all pixels.
Triple MeanLight(const ColourMap& map) {
  Triple sum;
  for (const std::uint8_t colour : map.colours) sum += LinearRgb(model::kSurfaceColours[colour]);
  return sum * (1 / static_cast<float>(map.colours.size()));
}

TEST(Conversion, DitherMixesWhatNoColourIs) {
  for (const std::uint32_t colour : {0xFF406080U, 0xFFB06090U, 0xFF90A0A0U}) {
    const Triple wanted = LabFromLms(LmsFromLinear(LinearRgb(colour)));
    const auto off = [&](float grain) {
      return Square(LabFromLms(LmsFromLinear(MeanLight(Convert(Flat(colour), {.grain = grain, .grid = {10, 5}}).map))) -
                    wanted);
    };
    const float none = off(kNoGrain);
    EXPECT_LT(off(kDefaultGrain), none / 4) << std::hex << colour;
    EXPECT_LT(off(kStrongestGrain), none / 8) << std::hex << colour;
  }
}

TEST(Conversion, ObeysTheCellRuleWhateverIsWished) {
  const std::vector<Wishes> all{
      {.grain = kNoGrain},
      {.grid = {7, 5}},
      {.grain = kStrongestGrain, .background = support::Colour(6), .grid = {4, 7}},
      {.grain = kFaintestGrain, .background = support::Colour(2), .grid = {3, 2}},
      {.grain = kFineGrain, .grid = {1, 1}},
      {.preparation = {.fit = Fit::kContain, .brightness = 100, .contrast = -100, .gamma = 5},
       .effort = Effort::kQuick},
      {.preparation =
           {.crop = Area{-50, 3, 20, 0}, .brightness = -100, .contrast = 100, .saturation = 100, .gamma = .2},
       .grid = {2, 4}},
  };
  for (const Wishes& wishes : all) {
    for (const RgbImage& image : {Photo(61, 83, 2), Flat(0xFF000000), Flat(0x00FFFFFF), RgbImage{1, 1, {0xFFFF0000}}}) {
      const Converted converted = Convert(image, wishes);
      const ColourMap& map = converted.map;
      ASSERT_EQ(map.colours.size(), wishes.grid.Pixels());
      EXPECT_TRUE(CellsBeyondRule(map, map.background).empty());
      EXPECT_EQ(map.background, wishes.background.value_or(map.background));
      EXPECT_EQ(map.colours, Convert(image, wishes).map.colours);
      EXPECT_EQ(converted.cell_errors.size(), static_cast<std::size_t>(wishes.grid.Cells()));
    }
  }
}

TEST(Conversion, PreparesTheImage) {
  constexpr std::uint32_t kLeft = 0xFF000000, kRight = 0xFFFFFFFF, kBeside = 0xFF0000FF;
  const RgbImage halves = Painted(100, 100, [&](int x, int) { return x < 50 ? kLeft : kRight; });
  const RgbImage clear = Painted(2, 2, [](int, int) { return 0x80FFFFFFU; });
  struct Case {
    RgbImage image;
    Preparation preparation;
    std::uint32_t first, middle_left, last_right;  // the pixels at 0, 0, at 60, 100, and at 159, 100
  };
  for (const Case& c : std::vector<Case>{
           {halves, {}, kLeft, kLeft, kRight},
           {halves, {.fit = Fit::kContain, .backdrop = kBeside}, kBeside, kLeft, kBeside},
           {halves, {.fit = Fit::kStretch}, kLeft, kLeft, kRight},
           {halves, {.fit = Fit::kStretch, .crop = Area{50, 0, 50, 50}}, kRight, kRight, kRight},
           {halves, {.fit = Fit::kStretch, .crop = Area{0, -100, 50, 200}, .backdrop = kBeside}, kBeside, kLeft, kLeft},
           {halves, {.brightness = -100, .contrast = -50}, kLeft, kLeft, 0xFF404040},
           {halves, {.contrast = -100}, 0xFF808080, 0xFF808080, 0xFF808080},
           {clear, {.backdrop = kLeft}, 0xFFBCBCBC, 0xFFBCBCBC, 0xFFBCBCBC},
           {Flat(0xFFFF0000), {.saturation = -100}, 0xFF363636, 0xFF363636, 0xFF363636},
           {Flat(0xFF404040), {.gamma = 2}, 0xFF808080, 0xFF808080, 0xFF808080}}) {
    const CellGrid grid;
    const Area area = AreaFor(c.image.width, c.image.height, grid, c.preparation);
    const LightMap light = AdjustLight(SampleLight(c.image, area, grid, c.preparation.backdrop), c.preparation);
    const auto near = [&](int x, int y, std::uint32_t colour) {
      return Square(light[static_cast<std::size_t>(y * 160 + x)] - LinearRgb(colour)) < 1e-4F;
    };
    EXPECT_TRUE(near(0, 0, c.first) && near(60, 100, c.middle_left) && near(159, 100, c.last_right))
        << light[0].x << ' ' << light[16060].x << ' ' << light[16159].x;
  }
}

TEST(Conversion, LeavesOtherCellsAlone) {
  const model::PictureImage before = support::RandomPicture(4);
  const Wishes wishes{.background = before.BackgroundColour, .grid = {6, 4}};
  const Converted converted = Convert(Photo(48, 32, 6), wishes);
  for (const auto& [column, row] : {std::pair{0, 0}, {17, 9}, {37, 23}, {-3, -2}}) {
    model::PictureImage picture = before;
    PutInto(picture, converted.map, column, row);
    for (int y = 0; y < 200; ++y) {
      for (int x = 0; x < 160; ++x) {
        const int map_x = x - column * 4, map_y = y - row * 8;
        const bool covered = map_x >= 0 && map_x < 24 && map_y >= 0 && map_y < 32;
        const int expected = covered ? converted.map.colours[static_cast<std::size_t>(map_y * 24 + map_x)]
                                     : support::ColourAt(before, x + 1, y + 1);
        ASSERT_EQ(support::ColourAt(picture, x + 1, y + 1), expected) << x << ' ' << y;
      }
    }
  }
}

// Gives up at one step of the work.
class Impatient final : public app::Progress {
 public:
  struct Enough {};

  explicit Impatient(int at) : at_(at) {}
  void Begin(int last) override { EXPECT_EQ(last, Conversion::kSteps); }
  void Advance(int value) override {
    EXPECT_LE(value, Conversion::kSteps);
    reached_ = value;
    if (value == at_) throw Enough();
  }
  void End() override {}
  int Reached() const { return reached_; }

 private:
  int at_, reached_ = 0;
};

TEST(Conversion, CanBeEndedAtEveryStepAndAskedAgain) {
  const Wishes wishes{.grid = {5, 4}};
  Conversion conversion(Photo(320, 200, 7), {});
  Impatient patient(0);
  const auto colours = conversion.Convert(wishes, patient).map.colours;
  EXPECT_GE(patient.Reached(), 5);
  for (int step = 1; step <= patient.Reached(); ++step) {
    Impatient impatient(step);
    EXPECT_THROW(conversion.Convert(wishes, impatient), Impatient::Enough);
  }
  EXPECT_EQ(conversion.Convert(wishes, patient).map.colours, colours);
}

TEST(Conversion, IsTheSameWhateverWasWishedBefore) {
  const RgbImage image = Photo(61, 83, 2);
  Conversion conversion(image, {});
  app::NoProgress nobody;
  Wishes wishes{.preparation = {.fit = Fit::kContain}, .grain = kNoGrain};
  for (const auto& change : std::vector<void (*)(Wishes&)>{[](Wishes&) {},
                                                           [](Wishes& w) {
                                                             w.grid = {10, 5};
                                                           },
                                                           [](Wishes& w) { w.preparation.backdrop = 0xFFFF0000; },
                                                           [](Wishes& w) {
                                                             w.preparation.crop = Area{5, 5, 20, 9};
                                                           }}) {
    change(wishes);
    EXPECT_EQ(conversion.Convert(wishes, nobody).map.colours, Convert(image, wishes).map.colours);
  }
}

TEST(Conversion, ProposesADitherByTheKindOfImage) {
  const auto proposed = [](const RgbImage& image) { return Conversion(image, {}).ProposedDither().name; };
  EXPECT_EQ(proposed(Photo(320, 200, 8)), "default");
  for (const auto& [colours, name] : {std::pair{16, "none"}, {17, "fine"}}) {
    const auto stripe = [&colours = colours](int, int y) {
      return 0xFF000000U | static_cast<unsigned>(y % colours) << 8;
    };
    EXPECT_EQ(proposed(Painted(320, 200, stripe)), name);
  }
}

}  // namespace
}  // namespace kelvo::convert
