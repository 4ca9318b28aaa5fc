// The sprite converter's result: assembler source to copy or to save.
#pragma once

#include <QDialog>
#include <QPlainTextEdit>

namespace kelvo::ui {

class frmBMP2SpriteResult : public QDialog {
  Q_OBJECT

 public:
  // The text is saved in `folder` unless another is chosen.
  frmBMP2SpriteResult(const QString& folder, QWidget* parent);

  // `text` has CR LF line ends; copy and save keep them.
  void ShowText(const QString& text);

  // Writes the text to `path`; tells the user when that fails.
  void SaveTo(const QString& path);

 private:
  void Copy() const;
  void Save();

  QString text_, folder_;
  QPlainTextEdit* txtOutput_;
};

}  // namespace kelvo::ui
