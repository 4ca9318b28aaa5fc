#include "ui/windows/import_dialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <utility>

#include "convert/into_picture.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

constexpr app::Setting kWorstCells{"Import", "WorstCells", "0"};
constexpr Qt::Key kOriginalKey = Qt::Key_F2;
constexpr int kPixelWidth = 2;          // of the display
constexpr QSize kBesideViews(80, 380);  // what the rest of the dialog takes of a display
// What has room.
constexpr auto kUsualName = "photograph.jpeg, 4000 x 3000";
constexpr auto kUsualResult = "32,000 of 32,000 pixels changed, in 1,000 of 1,000 cells; mean error 10.0...";

QRectF RectOf(const convert::Area& area) {
  return {area.left, area.top, area.width, area.height};
}

convert::Area AreaOf(const QRectF& rect) {
  return {rect.x(), rect.y(), rect.width(), rect.height()};
}

QSize ShownSize(const convert::CellGrid& grid) {
  return {grid.Width() * kPixelWidth, grid.Height()};
}

QString WordsOf(const convert::Converted& converted) {
  if (converted.exact) return "A C64's picture already: every pixel comes as it is";
  return QString("%L1 of %L2 pixels changed, in %L3 of %L4 cells; mean error %5")
      .arg(converted.changed_pixels)
      .arg(converted.map.colours.size())
      .arg(converted.changed_cells)
      .arg(converted.map.grid.Cells())
      .arg(converted.mean_error, 0, 'f', 1);
}

// A view as high as there is room for, over what belongs to it.
QLayout* ColumnOf(QWidget* view, QLayout* below) {
  auto* column = new QVBoxLayout;
  column->addWidget(view, 1);
  column->addLayout(below);
  return column;
}

}  // namespace

ImportDialog::ImportDialog(ImportWorker::Read read, const QString& name, const model::PictureImage& picture,
                           app::SettingsStore& settings, QWidget* parent)
    : QDialog(parent),
      name_(name),
      picture_(picture),
      settings_(settings),
      source_(new SourcePane(look_, this)),
      result_(new ResultPane(look_, this)),
      lblImage_(new ElidedLabel(kUsualName, this)),
      lblResult_(new ElidedLabel(kUsualResult, this)),
      whole_(new QPushButton("Wh&ole image", this)),
      original_(new QPushButton("Origi&nal (F2)", this)),
      worst_(new QCheckBox("&Tint cells that differ most", this)),
      controls_(new ImportControls(settings, this)),
      place_(new ImportPlace(settings, this)),
      worker_(std::move(read)) {
  setObjectName("frmImport");
  setWindowTitle(QString("Import %1").arg(name));
  lblImage_->setObjectName("lblImage");
  lblResult_->setObjectName("lblResult");
  lblImage_->Show(QString("Reading %1...").arg(name));
  const QSize room = screen()->availableSize();
  for (ComparePane* pane : std::initializer_list<ComparePane*>{source_, result_}) pane->PreferSize(room, kBesideViews);
  auto* views = new QHBoxLayout;
  views->addLayout(SourceColumn(), 1);
  views->addLayout(ResultColumn(), 1);
  auto* column = new QVBoxLayout(this);
  column->addLayout(views, 1);
  column->addWidget(controls_);
  column->addWidget(place_);
  column->addWidget(lblResult_);
  column->addWidget(Buttons());
  resize(sizeHint());  // Qt's own first size leaves a third of a display free

  connect(controls_, &ImportControls::Changed, this, &ImportDialog::ConvertAgain);
  connect(place_, &ImportPlace::Changed, this, &ImportDialog::ConvertAgain);
  connect(source_, &SourcePane::CropChosen, this, &ImportDialog::Crop);
  connect(&worker_, &ImportWorker::ImageRead, this, &ImportDialog::ShowImage);
  connect(&worker_, &ImportWorker::Converted, this, &ImportDialog::ShowResult);
  connect(&worker_, &ImportWorker::Failed, this, &ImportDialog::Fail);
}

QLayout* ImportDialog::SourceColumn() {
  whole_->setObjectName("cmdWhole");
  whole_->setAutoDefault(false);
  whole_->setEnabled(false);
  whole_->setToolTip("Without the frame");
  connect(whole_, &QPushButton::clicked, this, [this] { Crop({}); });
  auto* below = new QHBoxLayout;
  below->addWidget(lblImage_, 1);
  below->addWidget(whole_);
  return ColumnOf(source_, below);
}

QLayout* ImportDialog::ResultColumn() {
  original_->setObjectName("cmdOriginal");
  original_->setAutoDefault(false);
  original_->setToolTip("Shows the image in the picture's place while it is held, like the key F2");
  worst_->setObjectName("chkWorst");
  worst_->setChecked(app::IsOn(settings_, kWorstCells));
  result_->ShowWorstCells(worst_->isChecked());
  connect(original_, &QPushButton::pressed, result_, [this] { result_->ShowOriginal(true); });
  connect(original_, &QPushButton::released, result_, [this] { result_->ShowOriginal(false); });
  connect(worst_, &QCheckBox::toggled, result_, &ResultPane::ShowWorstCells);
  auto* below = new QHBoxLayout;
  below->addWidget(worst_);
  below->addStretch(1);
  below->addWidget(original_);
  return ColumnOf(result_, below);
}

QDialogButtonBox* ImportDialog::Buttons() {
  auto* buttons = new QDialogButtonBox(this);
  ok_ = buttons->addButton("&Import", QDialogButtonBox::AcceptRole);
  ok_->setObjectName("cmdStd");
  ok_->setDefault(true);
  ok_->setEnabled(false);
  buttons->addButton(QDialogButtonBox::Cancel);
  reset_ = buttons->addButton(QDialogButtonBox::Reset);
  reset_->setObjectName("cmdReset");
  reset_->setAutoDefault(false);
  connect(buttons, &QDialogButtonBox::accepted, this, &ImportDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(reset_, &QPushButton::clicked, this, &ImportDialog::PutBack);
  return buttons;
}

void ImportDialog::ShowImage(const ReadImageFacts& facts) {
  image_ = {facts.reduced, facts.size, controls_->Backdrop()};
  lblImage_->Show(SizeText());
  {
    const QSignalBlocker silence(controls_);
    controls_->Propose(facts.proposed);
  }
  ok_->setEnabled(true);
  ConvertAgain();
}

void ImportDialog::Crop(std::optional<convert::Area> crop) {
  crop_ = crop;
  ConvertAgain();
}

QString ImportDialog::SizeText() const {
  return QString("%1, %2 × %3").arg(name_).arg(image_.size.width()).arg(image_.size.height());
}

convert::Wishes ImportDialog::Wishes() const {
  convert::Wishes wishes = controls_->Wishes();
  wishes.preparation.crop = crop_;
  wishes.grid = place_->Grid();
  return wishes;
}

void ImportDialog::ConvertAgain() {
  controls_->FixBackground(place_->IsPart() ? std::optional(picture_.BackgroundColour) : std::nullopt);
  if (image_.pixels.isNull()) return;
  const convert::Wishes wishes = Wishes();
  ShowArea(wishes);
  is_final_ = false;
  worker_.Ask(wishes);
}

void ImportDialog::ShowArea(const convert::Wishes& wishes) {
  image_.backdrop = controls_->Backdrop();
  const convert::Area area =
      convert::AreaFor(image_.size.width(), image_.size.height(), wishes.grid, wishes.preparation);
  const QRectF whole(QPointF(), QSizeF(image_.size));
  const QSize shown = ShownSize(wishes.grid);
  const bool is_cover = wishes.preparation.fit == convert::Fit::kCover;
  source_->KeepShape(is_cover ? std::optional(static_cast<double>(shown.height()) / shown.width()) : std::nullopt);
  source_->SetPictureSize(shown);
  source_->SetImage(image_);
  source_->SetArea(area, AreaOf(RectOf(area) & (crop_ ? RectOf(*crop_) : whole)));
  result_->SetPictureSize(shown);
  result_->SetOriginal(image_, area);
  whole_->setEnabled(crop_.has_value());
}

void ImportDialog::ShowResult(const convert::Converted& converted, bool is_final) {
  map_ = converted.map;
  is_final_ = is_final;
  result_->SetMap(converted.map, converted.cell_errors);
  lblResult_->Show(WordsOf(converted) + (is_final ? "" : "..."));
  {
    const QSignalBlocker silence(controls_);
    controls_->ShowBackgrounds(converted.background_errors, converted.map.background);
  }
  if (is_final && is_accepting_) accept();
}

void ImportDialog::Fail(const QString& why) {
  failure_ = why;
  reject();
}

void ImportDialog::PutBack() {
  controls_->PutBack();
  {
    const QSignalBlocker silence(place_);
    place_->PutBack();
  }
  worst_->setChecked(false);
  crop_.reset();
  look_.Show(1, {});
  ConvertAgain();
}

// What is imported has the full effort: the dialog closes when that is there.
void ImportDialog::accept() {
  is_accepting_ = true;
  if (!is_final_) {
    for (QWidget* widget : std::initializer_list<QWidget*>{source_, controls_, place_, whole_, ok_, reset_}) {
      widget->setEnabled(false);
    }
    return setCursor(Qt::WaitCursor);
  }
  controls_->Keep(settings_);
  place_->Keep(settings_);
  settings_.Write(kWorstCells, worst_->isChecked() ? "1" : "0");
  QDialog::accept();
}

model::PictureImage ImportDialog::Picture() const {
  if (!IsPart()) return convert::PictureOf(map_);
  model::PictureImage picture = picture_;
  convert::PutInto(picture, map_, place_->Column(), place_->Row());
  return picture;
}

void ImportDialog::keyPressEvent(QKeyEvent* event) {
  if (event->key() != kOriginalKey) return QDialog::keyPressEvent(event);
  result_->ShowOriginal(true);
}

void ImportDialog::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() != kOriginalKey) return QDialog::keyReleaseEvent(event);
  if (!event->isAutoRepeat()) result_->ShowOriginal(false);
}

// A key that is let go elsewhere is let go.
void ImportDialog::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ActivationChange && !isActiveWindow()) result_->ShowOriginal(false);
  QDialog::changeEvent(event);
}

}  // namespace kelvo::ui
