// The bitmap to sprite converter: captures parts of a picture as sprites and makes assembler source of them.
#pragma once

#include <QAction>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QMainWindow>
#include <QRadioButton>
#include <array>
#include <vector>

#include "model/picture_image.h"
#include "model/surface.h"
#include "sprites/sprite_text.h"
#include "ui/widgets/sprite_picture.h"
#include "ui/widgets/surface_view.h"
#include "ui/windows/frm_bmp2sprite_result.h"

namespace kelvo::ui {

class frmBMP2SpriteMain : public QMainWindow {
  Q_OBJECT

 public:
  // `editor` is the picture of the editor, which outlives the window. The converter works on a copy of its own. Its
  // dialogs begin in `folder`.
  frmBMP2SpriteMain(const model::PictureImage& editor, const QString& folder, QWidget* parent);

  void TakeEditorsPicture();
  // Opens a picture or program file; tells the user when that fails.
  void OpenSource(const QString& path);

 private:
  void MakeMenus();
  QAction* AddSwitch(QMenu* menu, const char* name, const QString& text);
  QWidget* MakeSide();
  void AddColourList(QFormLayout* form, int number);
  void AskForSource();
  void ShowPicture(const model::PictureImage& picture);
  void PointAt(model::PixelPoint at);
  void CaptureHere();
  void PresetColours();
  void Generate();
  void ShowStatus();
  sprites::ChosenColours Chosen() const;

  const model::PictureImage& editor_;
  QString folder_;  // where the last picture was chosen
  model::PictureImage picture_;
  model::Surface source_, preview_;
  SpritePicture* picSource_;
  SurfaceView* picSprite_;
  std::array<QComboBox*, 3> cboCol_{};
  QRadioButton* opbBinary_;
  QRadioButton* opbHexadecimal_;
  QAction* mnu2x2_;
  QAction* mnuAlign_;
  QAction* mnuErase_;
  QLabel* status_;
  frmBMP2SpriteResult* result_;

  model::PixelPoint pointer_{80, 100};
  sprites::CaptureArea area_;
  std::vector<sprites::Sprite> captured_;
};

}  // namespace kelvo::ui
