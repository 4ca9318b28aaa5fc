#include "ui/windows/frm_bmp2sprite_main.h"

#include <QActionGroup>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QVBoxLayout>
#include <algorithm>
#include <stdexcept>

#include "sprites/sprite_source.h"
#include "sprites/sprite_view.h"
#include "ui/ports/qt_file_dialogs.h"
#include "ui/ports/qt_messages.h"
#include "ui/ports/qt_text.h"
#include "ui/widgets/icons.h"

namespace kelvo::ui {
namespace {

constexpr std::array kColourNames{"Black",   "White", "Red",  "Cyan",   "Purple", "Green",   "Blue",   "Yellow",
                                  "L Brown", "Brown", "Pink", "D Grey", "M Grey", "L Green", "L Blue", "L Grey"};
constexpr int kNone = -1;  // the key of "[none]"
constexpr int kSpriteBox = 2;

}  // namespace

frmBMP2SpriteMain::frmBMP2SpriteMain(const model::PictureImage& editor, const QString& folder, QWidget* parent)
    : QMainWindow(parent),
      editor_(editor),
      folder_(folder),
      source_(640, 400),
      preview_(192, 168),
      picSource_(new SpritePicture(source_, this)),
      picSprite_(new SurfaceView(preview_, kSpriteBox, this)),
      opbBinary_(new QRadioButton("&Binary", this)),
      opbHexadecimal_(new QRadioButton("&Hexadecimal", this)),
      status_(new QLabel(this)),
      result_(new frmBMP2SpriteResult(folder, this)) {
  setObjectName("frmBMP2SpriteMain");
  setWindowTitle("Bitmap to sprite converter");
  MakeMenus();
  picSource_->setObjectName("picSource");
  picSource_->setAccessibleName("Picture to capture from");
  picSource_->setAccessibleDescription("Arrows move the capture rectangle, Space captures.");
  auto* centre = new QWidget(this);
  auto* row = new QHBoxLayout(centre);
  row->addWidget(picSource_, 0, Qt::AlignTop);
  row->addWidget(MakeSide());
  setCentralWidget(centre);
  status_->setObjectName("lblStatus");
  statusBar()->addWidget(status_);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  connect(picSource_, &SurfaceView::Moved, this, [this](QPoint at) { PointAt(SpritePicture::PixelAt(at)); });
  connect(picSource_, &SurfaceView::Pressed, this, [this](QPoint at) {
    PointAt(SpritePicture::PixelAt(at));
    CaptureHere();
  });
  connect(picSource_, &SpritePicture::KeyMoved, this, [this](int dx, int dy) {
    PointAt({std::clamp(pointer_.x + dx, 1, 160), std::clamp(pointer_.y + dy, 1, 200)});
  });
  connect(picSource_, &SpritePicture::KeyCaptured, this, &frmBMP2SpriteMain::CaptureHere);
  TakeEditorsPicture();
  PointAt(pointer_);
  ShowStatus();
}

void frmBMP2SpriteMain::MakeMenus() {
  QMenu* file = menuBar()->addMenu("&File");
  file->addAction("&Open...", QKeySequence::Open, this, &frmBMP2SpriteMain::AskForSource);
  file->addAction("Take the &editor's picture", this, &frmBMP2SpriteMain::TakeEditorsPicture);
  file->addAction("&Close", this, &QWidget::close);
  QMenu* options = menuBar()->addMenu("&Options");
  auto* sizes = new QActionGroup(this);
  QAction* one = AddSwitch(options, "mnu1x1", "Sprite &1x1");
  mnu2x2_ = AddSwitch(options, "mnu2x2", "Sprites &2x2");
  sizes->addAction(one);
  sizes->addAction(mnu2x2_);
  one->setChecked(true);
  options->addSeparator();
  mnuAlign_ = AddSwitch(options, "mnuAlign", "&Align to grid");
  mnuErase_ = AddSwitch(options, "mnuErase", "&Erase on capture");
  QMenu* help = menuBar()->addMenu("&Help");
  help->addAction("&About", this, [this] {
    QtMessages(this).Inform("This is a cross-assembly tool used to convert bitmap into sprite data.");
  });
}

QAction* frmBMP2SpriteMain::AddSwitch(QMenu* menu, const char* name, const QString& text) {
  QAction* action = menu->addAction(text);
  action->setObjectName(name);
  action->setCheckable(true);
  connect(action, &QAction::triggered, this, [this] {
    PointAt(pointer_);
    ShowStatus();
  });
  return action;
}

QWidget* frmBMP2SpriteMain::MakeSide() {
  auto* side = new QWidget(this);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  picSprite_->setObjectName("picSprite");
  picSprite_->setAccessibleName("Captured sprites");
  picSprite_->setFocusPolicy(Qt::NoFocus);
  column->addWidget(picSprite_);
  auto* colours = new QGroupBox("Colors", side);
  auto* form = new QFormLayout(colours);
  for (int number = 1; number <= 3; ++number) AddColourList(form, number);
  column->addWidget(colours);
  auto* notation = new QGroupBox("Output", side);
  auto* options = new QHBoxLayout(notation);
  opbBinary_->setObjectName("opbOutput_0");
  opbHexadecimal_->setObjectName("opbOutput_1");
  opbBinary_->setChecked(true);
  options->addWidget(opbBinary_);
  options->addWidget(opbHexadecimal_);
  column->addWidget(notation);
  auto* generate = new QPushButton("&Generate", side);
  generate->setObjectName("cmdGenerate");
  connect(generate, &QPushButton::clicked, this, &frmBMP2SpriteMain::Generate);
  column->addWidget(generate);
  column->addStretch();
  return side;
}

void frmBMP2SpriteMain::AddColourList(QFormLayout* form, int number) {
  const auto index = static_cast<std::size_t>(number - 1);
  const QString pair = '%' + ToQt(model::ToText(sprites::kPairOfList.at(index)));
  auto* list = new QComboBox(this);
  list->setObjectName(QString("cboCol%1").arg(number));
  list->setAccessibleName(QString("Color %1, bit pair ").arg(number) + pair);
  for (int colour = 0; colour < model::C64Colour::kCount; ++colour) {
    list->addItem(ColourIcon(*model::C64Colour::FromNumber(colour)), kColourNames[static_cast<std::size_t>(colour)],
                  colour);
  }
  list->addItem("[none]", kNone);
  cboCol_.at(index) = list;
  form->addRow(QString("Color &%1 (").arg(number) + pair + ')', list);
}

void frmBMP2SpriteMain::AskForSource() {
  const QString path = QFileDialog::getOpenFileName(this, "Select file", StillThere(folder_),
                                                    "Pictures (*.kvp *.lmp *.vid *.prg);;All files (*)");
  if (path.isEmpty()) return;
  folder_ = QFileInfo(path).absolutePath();
  OpenSource(path);
}

void frmBMP2SpriteMain::OpenSource(const QString& path) {
  try {
    ShowPicture(sprites::LoadSpriteSource(PathFromQt(path)));
  } catch (const sprites::SourceSizeError& error) {
    QtMessages(this).InformWithMore(error.what(), error.Sizes());
  } catch (const std::runtime_error& error) {
    QtMessages(this).Inform(error.what());
  }
}

void frmBMP2SpriteMain::TakeEditorsPicture() {
  ShowPicture(editor_);
}

void frmBMP2SpriteMain::ShowPicture(const model::PictureImage& picture) {
  picture_ = picture;
  sprites::DrawSource(picture_, source_);
  picSource_->Refresh();
}

void frmBMP2SpriteMain::PointAt(model::PixelPoint at) {
  pointer_ = at;
  area_ = sprites::CaptureAt(at, mnu2x2_->isChecked() ? sprites::CaptureSize::k2x2 : sprites::CaptureSize::k1x1,
                             mnuAlign_->isChecked() ? sprites::Alignment::kGrid : sprites::Alignment::kFree);
  picSource_->ShowArea(area_);
}

void frmBMP2SpriteMain::CaptureHere() {
  captured_ = sprites::Capture(picture_, area_);
  sprites::DrawSprites(captured_, preview_);
  picSprite_->Refresh();
  PresetColours();
  if (!mnuErase_->isChecked()) return;
  sprites::Erase(picture_, area_);
  sprites::DrawSource(picture_, source_);
  picSource_->Refresh();
}

void frmBMP2SpriteMain::PresetColours() {
  const auto used = sprites::MostUsedColours(captured_, picture_.BackgroundColour);
  for (std::size_t list = 0; list < cboCol_.size(); ++list) {
    cboCol_[list]->setCurrentIndex(cboCol_[list]->findData(list < used.size() ? used[list].Number() : kNone));
  }
}

sprites::ChosenColours frmBMP2SpriteMain::Chosen() const {
  sprites::ChosenColours chosen;
  for (std::size_t list = 0; list < chosen.size(); ++list) {
    chosen[list] = model::C64Colour::FromNumber(cboCol_[list]->currentData().toInt());
  }
  return chosen;
}

void frmBMP2SpriteMain::Generate() {
  if (captured_.empty()) CaptureHere();
  const auto notation = opbBinary_->isChecked() ? sprites::Notation::kBinary : sprites::Notation::kHexadecimal;
  result_->ShowText(ToQt(sprites::SpriteText(captured_, Chosen(), notation)));
  result_->show();
  result_->raise();
}

void frmBMP2SpriteMain::ShowStatus() {
  const auto word = [](const QAction* action) { return action->isChecked() ? "ON" : "OFF"; };
  status_->setText(QString("Align to grid = %1, Erase on capture = %2").arg(word(mnuAlign_)).arg(word(mnuErase_)));
}

}  // namespace kelvo::ui
