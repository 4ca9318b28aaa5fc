#include "ui/windows/import_controls.h"

#include <QLabel>
#include <QSignalBlocker>

#include "model/palette.h"
#include "ui/ports/qt_text.h"
#include "ui/widgets/icons.h"

namespace kelvo::ui {
namespace {

using model::C64Colour;

constexpr app::Setting kFit{"Import", "Fit", "0"}, kDither{"Import", "Dither", "0"}, kGrain{"Import", "Grain", ""},
    kBackground{"Import", "Background", "0"}, kBackdrop{"Import", "Backdrop", "0"};

constexpr int kGapColumn = 2, kFirstSliderColumn = 3, kGapWidth = 16, kChoiceLetters = 21;

// Of the box of dithers: between them stand those of the core.
constexpr int kAsProposed = 0, kFirstDither = 1, kBySlider = kFirstDither + static_cast<int>(convert::kDithers.size());
constexpr int kAutomatic = 0, kFirstColour = 1;  // of the box of backgrounds

constexpr ValueRange kGrainRange{
    "grain", "&Grain:", convert::kStrongestGrain, convert::kFaintestGrain, convert::kDefaultGrain, 2, true};

struct LightSlider {
  ValueRange range;
  app::Setting setting;
  void (*apply)(convert::Preparation& preparation, double value);
};

constexpr double kMost = convert::Preparation::kMost;
constexpr std::array kLightSliders{
    LightSlider{{"brightness", "B&rightness:", -kMost, kMost, 0},
                {"Import", "Brightness", "0"},
                [](convert::Preparation& p, double value) { p.brightness = static_cast<int>(value); }},
    LightSlider{{"contrast", "&Contrast:", -kMost, kMost, 0},
                {"Import", "Contrast", "0"},
                [](convert::Preparation& p, double value) { p.contrast = static_cast<int>(value); }},
    LightSlider{{"saturation", "&Saturation:", -kMost, kMost, 0},
                {"Import", "Saturation", "0"},
                [](convert::Preparation& p, double value) { p.saturation = static_cast<int>(value); }},
    LightSlider{{"gamma", "Ga&mma:", 0.2, 5, 1, 2, true},
                {"Import", "Gamma", "1"},
                [](convert::Preparation& p, double value) { p.gamma = value; }},
};

QString NameOf(C64Colour colour) {
  return ToQt(model::ColourName(colour));
}

C64Colour ColourAt(int number) {
  return *C64Colour::FromNumber(number);
}

QStringList DitherCaptions() {
  QStringList captions("As proposed");
  for (const convert::Dither& dither : convert::kDithers) {
    QString caption = ToQt(dither.name);
    caption[0] = caption[0].toUpper();
    captions << caption;
  }
  return captions << "By the slider";
}

void Restore(ValueSlider& slider, const app::SettingsStore& settings, const app::Setting& setting) {
  bool is_number = false;
  const double value = ToQt(settings.Read(setting)).toDouble(&is_number);
  if (is_number) slider.SetValue(value);
}

void KeepValue(const ValueSlider& slider, app::SettingsStore& settings, const app::Setting& setting) {
  settings.Write(setting, FromQt(QString::number(slider.Value())));
}

}  // namespace

ImportControls::ImportControls(const app::SettingsStore& settings, QWidget* parent)
    : QWidget(parent), grid_(new QGridLayout(this)) {
  grid_->setContentsMargins({});
  grid_->setColumnMinimumWidth(kGapColumn, kGapWidth);
  grid_->setColumnStretch(1, 1);
  grid_->setColumnStretch(kFirstSliderColumn + 1, 1);
  dither_ = AddChoice(0, "cboDither", "&Dither:", DitherCaptions());
  fit_ = AddChoice(1, "cboFit", "&Fit:", {"Fill the picture", "Show all of the image", "Stretch the image"});
  background_ = AddChoice(2, "cboBackground", "Bac&kground:", {"Automatic"});
  backdrop_ = AddChoice(3, "cboBackdrop", "B&ehind the image:", {});
  backdrop_->setToolTip("The color behind transparent parts, and beside an image that does not fill the picture");
  AddColours(*background_);
  AddColours(*backdrop_);
  grain_ = new ValueSlider(kGrainRange, *grid_, 0, kFirstSliderColumn, this);
  int row = 0;
  for (const LightSlider& light : kLightSliders) {
    light_.push_back(new ValueSlider(light.range, *grid_, ++row, kFirstSliderColumn, this));
  }

  fit_->setCurrentIndex(app::ReadNumber(settings, kFit, 0, fit_->count() - 1));
  background_->setCurrentIndex(app::ReadNumber(settings, kBackground, 0, background_->count() - 1));
  backdrop_->setCurrentIndex(app::ReadNumber(settings, kBackdrop, 0, backdrop_->count() - 1));
  Restore(*grain_, settings, kGrain);
  dither_->setCurrentIndex(app::ReadNumber(settings, kDither, 0, dither_->count() - 1));
  for (std::size_t index = 0; index < light_.size(); ++index) {
    Restore(*light_[index], settings, kLightSliders.at(index).setting);
  }
  ChooseDither();
  connect(dither_, &QComboBox::currentIndexChanged, this, &ImportControls::ChooseDither);
  for (QComboBox* box : {fit_, dither_, background_, backdrop_}) {
    connect(box, &QComboBox::currentIndexChanged, this, &ImportControls::Changed);
  }
  connect(grain_, &ValueSlider::Changed, this, &ImportControls::GrainChanged);
  for (ValueSlider* light : light_) connect(light, &ValueSlider::Changed, this, &ImportControls::Changed);
}

QComboBox* ImportControls::AddChoice(int row, const char* name, const QString& label, const QStringList& choices) {
  auto* box = new QComboBox(this);
  auto* words = new QLabel(label, this);
  words->setBuddy(box);
  box->setObjectName(name);
  box->setAccessibleName(QString(label).remove('&').remove(':'));
  box->addItems(choices);
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(kChoiceLetters);
  box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  grid_->addWidget(words, row, 0);
  grid_->addWidget(box, row, 1);
  return box;
}

void ImportControls::AddColours(QComboBox& box) const {
  for (int number = 0; number < C64Colour::kCount; ++number) {
    box.addItem(ColourIcon(ColourAt(number)), NameOf(ColourAt(number)));
  }
}

void ImportControls::Propose(const convert::Dither& dither) {
  proposed_ = dither;
  dither_->setItemText(kAsProposed, QString("As proposed: %1").arg(ToQt(dither.name)));
  ChooseDither();
}

void ImportControls::ShowBackgrounds(const std::array<double, C64Colour::kCount>& errors, C64Colour shown) {
  background_->setItemText(kAutomatic, QString(fixed_ ? "The picture's: %1" : "Automatic: %1").arg(NameOf(shown)));
  background_->setItemIcon(kAutomatic, ColourIcon(shown));
  for (int number = 0; number < C64Colour::kCount; ++number) {
    const double error = errors.at(static_cast<std::size_t>(number));
    const QString words = QString("   (error %1)").arg(error, 0, 'f', 2);
    background_->setItemText(kFirstColour + number, NameOf(ColourAt(number)) + (error > 0 ? words : ""));
  }
}

void ImportControls::FixBackground(std::optional<C64Colour> fixed) {
  fixed_ = fixed;
  background_->setEnabled(!fixed);
}

void ImportControls::ChooseDither() {
  const QSignalBlocker silence(grain_);
  const bool is_chosen = dither_->currentIndex() != kBySlider && Grain() != convert::kNoGrain;
  if (is_chosen) grain_->SetValue(static_cast<double>(Grain()));
}

void ImportControls::GrainChanged() {
  if (dither_->currentIndex() == kBySlider) {
    emit Changed();
  } else {
    dither_->setCurrentIndex(kBySlider);
  }
}

float ImportControls::Grain() const {
  const int index = dither_->currentIndex();
  if (index == kAsProposed) return proposed_.grain;
  if (index == kBySlider) return static_cast<float>(grain_->Value());
  return convert::kDithers.at(static_cast<std::size_t>(index - kFirstDither)).grain;
}

QColor ImportControls::Backdrop() const {
  return QColor::fromRgb(model::SurfaceColour(ColourAt(backdrop_->currentIndex())));
}

convert::Wishes ImportControls::Wishes() const {
  convert::Wishes wishes;
  wishes.preparation.fit = static_cast<convert::Fit>(fit_->currentIndex());
  wishes.preparation.backdrop = Backdrop().rgb();
  for (std::size_t index = 0; index < light_.size(); ++index) {
    kLightSliders.at(index).apply(wishes.preparation, light_[index]->Value());
  }
  wishes.grain = Grain();
  wishes.background = fixed_;
  if (!fixed_ && background_->currentIndex() != kAutomatic) {
    wishes.background = ColourAt(background_->currentIndex() - kFirstColour);
  }
  wishes.palette = model::ShownPalette::Colours();
  return wishes;
}

void ImportControls::PutBack() {
  const QSignalBlocker silence(this);
  for (QComboBox* box : {fit_, dither_, background_, backdrop_}) box->setCurrentIndex(0);
  grain_->PutBack();
  for (ValueSlider* light : light_) light->PutBack();
  dither_->setCurrentIndex(kAsProposed);
}

void ImportControls::Keep(app::SettingsStore& settings) const {
  for (const auto& [setting, box] : {std::pair(kFit, fit_), std::pair(kDither, dither_),
                                     std::pair(kBackground, background_), std::pair(kBackdrop, backdrop_)}) {
    settings.Write(setting, std::to_string(box->currentIndex()));
  }
  KeepValue(*grain_, settings, kGrain);
  for (std::size_t index = 0; index < light_.size(); ++index) {
    KeepValue(*light_[index], settings, kLightSliders.at(index).setting);
  }
}

}  // namespace kelvo::ui
