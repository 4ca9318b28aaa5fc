// "Import...": an image and the picture that it becomes side by side, and all that changes the one into the other.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

#include "model/picture_image.h"
#include "ui/widgets/elided_label.h"
#include "ui/widgets/result_pane.h"
#include "ui/widgets/source_pane.h"
#include "ui/windows/import_controls.h"
#include "ui/windows/import_place.h"
#include "ui/windows/import_worker.h"

namespace kelvo::ui {

class ImportDialog : public QDialog {
  Q_OBJECT

 public:
  // Reads the image called `name` by `read`, in a thread of its own. `picture` is the one in memory; it and the
  // settings outlive the dialog.
  ImportDialog(ImportWorker::Read read, const QString& name, const model::PictureImage& picture,
               app::SettingsStore& settings, QWidget* parent);

  // After it was accepted: what the picture in memory becomes.
  model::PictureImage Picture() const;
  bool IsPart() const { return place_->IsPart(); }
  // Why there is nothing to import, where that ended the dialog.
  const QString& Failure() const { return failure_; }

  void accept() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QLayout* SourceColumn();
  QLayout* ResultColumn();
  QDialogButtonBox* Buttons();
  void ShowImage(const ReadImageFacts& facts);
  void ShowResult(const convert::Converted& converted, bool is_final);
  void Fail(const QString& why);
  void PutBack();
  void Crop(std::optional<convert::Area> crop);
  void ConvertAgain();
  void ShowArea(const convert::Wishes& wishes);
  convert::Wishes Wishes() const;
  QString SizeText() const;

  QString name_;
  const model::PictureImage& picture_;
  app::SettingsStore& settings_;
  QString failure_;
  SharedLook look_;
  SourcePane* source_;
  ResultPane* result_;
  ElidedLabel* lblImage_;
  ElidedLabel* lblResult_;
  QPushButton* whole_;
  QPushButton* original_;
  QCheckBox* worst_;
  ImportControls* controls_;
  ImportPlace* place_;
  QPushButton* ok_ = nullptr;
  QPushButton* reset_ = nullptr;
  ShownImage image_;
  std::optional<convert::Area> crop_;
  convert::ColourMap map_;
  bool is_final_ = false, is_accepting_ = false;
  ImportWorker worker_;  // the last member: it ends before what it tells of
};

}  // namespace kelvo::ui
