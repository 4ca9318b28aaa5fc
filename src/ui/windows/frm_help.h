// A page of help in a window of its own, beside the editor.
#pragma once

#include <QTextBrowser>

namespace kelvo::ui {

class frmHelp : public QTextBrowser {
  Q_OBJECT

 public:
  // `name` is the window's objectName. It deletes itself when it closes.
  frmHelp(const QString& name, const QString& title, QWidget* parent);

  // The guide that is installed with the program; where it is missing the page says so.
  void ShowGuide();

  // Pictures that are wider than a page are shown smaller.
  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace kelvo::ui
