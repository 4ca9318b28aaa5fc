#include "ui/windows/frm_help.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QKeyEvent>

namespace kelvo::ui {
namespace {

constexpr QSize kFirstSize(760, 640);
constexpr int kPictureWidth = 680;

}  // namespace

frmHelp::frmHelp(const QString& name, const QString& title, QWidget* parent) : QTextBrowser(parent) {
  setWindowFlag(Qt::Window);
  setAttribute(Qt::WA_DeleteOnClose);
  setObjectName(name);
  setWindowTitle(title);
  setAccessibleName(title);
  setOpenExternalLinks(true);
  resize(kFirstSize);
}

void frmHelp::ShowGuide() {
  const QFileInfo guide(QDir(QCoreApplication::applicationDirPath()), KELVO_SHARE_FROM_PROGRAM "/guide/guide.html");
  if (!guide.exists()) return setPlainText("The guide is missing: " + guide.absoluteFilePath());
  setSource(QUrl::fromLocalFile(guide.absoluteFilePath()), QTextDocument::HtmlResource);
}

QVariant frmHelp::loadResource(int type, const QUrl& name) {
  if (type != QTextDocument::ImageResource) return QTextBrowser::loadResource(type, name);
  const QImage image(source().resolved(name).toLocalFile());
  return image.width() > kPictureWidth ? image.scaledToWidth(kPictureWidth, Qt::SmoothTransformation) : image;
}

void frmHelp::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
    return;
  }
  QTextBrowser::keyPressEvent(event);
}

}  // namespace kelvo::ui
