#include "ui/windows/frm_bmp2sprite_result.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPushButton>
#include <QSaveFile>
#include <QVBoxLayout>

#include "ui/ports/qt_file_dialogs.h"
#include "ui/ports/qt_messages.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {

frmBMP2SpriteResult::frmBMP2SpriteResult(const QString& folder, QWidget* parent)
    : QDialog(parent), folder_(folder), txtOutput_(new QPlainTextEdit(this)) {
  setObjectName("frmBMP2SpriteResult");
  setWindowTitle("Sprite output");
  resize(560, 480);
  txtOutput_->setObjectName("txtOutput");
  txtOutput_->setAccessibleName("Sprite output");
  txtOutput_->setReadOnly(true);
  txtOutput_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  auto* copy = buttons->addButton("&Copy to clipboard", QDialogButtonBox::ActionRole);
  auto* save = buttons->addButton("&Save as text file...", QDialogButtonBox::ActionRole);
  copy->setObjectName("cmdCopy");
  save->setObjectName("cmdSave");
  connect(copy, &QPushButton::clicked, this, &frmBMP2SpriteResult::Copy);
  connect(save, &QPushButton::clicked, this, &frmBMP2SpriteResult::Save);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* column = new QVBoxLayout(this);
  column->addWidget(txtOutput_);
  column->addWidget(buttons);
}

void frmBMP2SpriteResult::ShowText(const QString& text) {
  text_ = text;
  txtOutput_->setPlainText(text);
}

void frmBMP2SpriteResult::Copy() const {
  QGuiApplication::clipboard()->setText(text_);
}

void frmBMP2SpriteResult::Save() {
  const QString path =
      QFileDialog::getSaveFileName(this, "Save sprite output", QDir(StillThere(folder_)).filePath("sprite.asm"),
                                   "Assembler source (*.asm *.txt);;All files (*)");
  if (path.isEmpty()) return;
  folder_ = QFileInfo(path).absolutePath();
  SaveTo(path);
}

void frmBMP2SpriteResult::SaveTo(const QString& path) {
  QSaveFile file(path);
  const QByteArray bytes = text_.toUtf8();
  if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit()) return;
  QtMessages(this).Warn(FromQt(NativePath(path) + ": it cannot be written: " + file.errorString()));
}

}  // namespace kelvo::ui
