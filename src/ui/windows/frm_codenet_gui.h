// Sends any file to a C64: a form for the network loader's command line.
#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "app/error_log.h"
#include "c64out/send_file.h"
#include "ui/ports/qt_tool_runner.h"

class QLayout;

namespace kelvo::ui {

class frmCodenetGUI : public QDialog {
  Q_OBJECT

 public:
  frmCodenetGUI(const app::Surroundings& with, QtToolRunner& runner, QWidget* parent);

  // Ends a transfer under way.
  void Stop();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void reject() override;

 private:
  QWidget* MakeSendTab();
  QLayout* MakeFileRow();
  QWidget* MakeTypeGroup();
  QWidget* MakeExecuteGroup();
  QLayout* MakeAddressRow(QWidget* choice, QLineEdit* address);
  QLayout* MakeSendRow();
  QWidget* MakeMemoryTab();
  QWidget* MakeSettingsTab();
  QPushButton* MakeButton(const char* name, const QString& caption, void (frmCodenetGUI::*clicked)());
  QLineEdit* AddField(int number, const QString& name);
  void Load(const c64out::CodenetForm& form);
  c64out::CodenetForm Form() const;
  void Compose();
  void Browse();
  void Send();
  void Save();
  void Exit() { close(); }

  app::Surroundings with_;
  QtToolRunner& runner_;
  std::array<QLineEdit*, 7> text_{};
  QButtonGroup* opbStd_;
  QButtonGroup* opbExec_;
  QCheckBox* chkStd_;
  QPushButton* cmdSend_;
  QPushButton* cmdStop_;
  QLabel* outcome_;
  bool is_sending_ = false, is_loading_ = false;
};

}  // namespace kelvo::ui
