#include "ui/windows/frm_codenet_gui.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "ui/ports/qt_file_dialogs.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

// The text fields by number.
enum Field { kDestination, kPrgName, kFile, kExecuteAddress, kPort, kHost, kPreview };

QRadioButton* AddOption(QButtonGroup* group, int number, const QString& caption, const char* name) {
  auto* option = new QRadioButton(caption);
  option->setObjectName(QString("%1_%2").arg(name).arg(number));
  group->addButton(option, number);
  return option;
}

// The cursor stays where the user types.
void TrimTo(QLineEdit& field, const QString& trimmed) {
  if (field.text() == trimmed) return;
  const int cursor = field.cursorPosition();
  field.setText(trimmed);
  field.setCursorPosition(cursor);
}

}  // namespace

frmCodenetGUI::frmCodenetGUI(const app::Surroundings& with, QtToolRunner& runner, QWidget* parent)
    : QDialog(parent), with_(with), runner_(runner), opbStd_(new QButtonGroup(this)), opbExec_(new QButtonGroup(this)) {
  setObjectName("frmCodenetGUI");
  setWindowTitle("Codenet GUI");
  text_[kDestination] = AddField(kDestination, "Destination address");
  text_[kPrgName] = AddField(kPrgName, "Preview PRG name");
  text_[kFile] = AddField(kFile, "File to send to C64");
  text_[kExecuteAddress] = AddField(kExecuteAddress, "Execute address");
  text_[kPort] = AddField(kPort, "Port no of protocol");
  text_[kHost] = AddField(kHost, "IP to C64 server");
  text_[kPreview] = AddField(kPreview, "Command");
  text_[kPreview]->setReadOnly(true);

  auto* tabs = new QTabWidget;
  tabs->setObjectName("tabStrip");
  tabs->addTab(MakeSendTab(), "Send &file to C64");
  tabs->addTab(MakeMemoryTab(), "&Memory operations");
  tabs->addTab(MakeSettingsTab(), "Se&ttings");
  outcome_ = new QLabel;
  outcome_->setObjectName("lblOutcome");
  outcome_->setWordWrap(true);
  outcome_->setTextFormat(Qt::PlainText);

  auto* column = new QVBoxLayout(this);
  column->addWidget(tabs);
  auto* preview = new QFormLayout;
  preview->addRow("Command", text_[kPreview]);
  column->addLayout(preview);
  auto* last_row = new QHBoxLayout;
  last_row->addWidget(outcome_, 1);
  last_row->addWidget(MakeButton("cmdExit", "&Exit", &frmCodenetGUI::Exit));
  column->addLayout(last_row);

  for (QLineEdit* field : text_) connect(field, &QLineEdit::textChanged, this, &frmCodenetGUI::Compose);
  for (QButtonGroup* group : {opbStd_, opbExec_}) {
    connect(group, &QButtonGroup::idToggled, this, &frmCodenetGUI::Compose);
  }
  connect(chkStd_, &QCheckBox::toggled, this, &frmCodenetGUI::Compose);
  connect(&runner_, &QtToolRunner::Told, this, [this](const QString& line) {
    if (is_sending_) outcome_->setText("Sending... " + line);
  });
  Load(c64out::LoadCodenetForm(with_.settings));
  text_[kFile]->setFocus();
}

QLineEdit* frmCodenetGUI::AddField(int number, const QString& name) {
  auto* field = new QLineEdit;
  field->setObjectName(QString("txtStd_%1").arg(number));
  field->setAccessibleName(name);
  return field;
}

QWidget* frmCodenetGUI::MakeSendTab() {
  auto* tab = new QWidget;
  auto* column = new QVBoxLayout(tab);
  column->addLayout(MakeFileRow());
  auto* groups = new QHBoxLayout;
  groups->addWidget(MakeTypeGroup(), 1);
  groups->addWidget(MakeExecuteGroup(), 1);
  column->addLayout(groups);
  column->addLayout(MakeSendRow());
  return tab;
}

QLayout* frmCodenetGUI::MakeFileRow() {
  auto* row = new QHBoxLayout;
  auto* label = new QLabel("File to send to &C64");
  label->setBuddy(text_[kFile]);
  row->addWidget(label);
  row->addWidget(text_[kFile], 1);
  row->addWidget(MakeButton("cmdBrowse", "&Browse...", &frmCodenetGUI::Browse));
  return row;
}

QWidget* frmCodenetGUI::MakeTypeGroup() {
  auto* group = new QGroupBox("File type");
  auto* column = new QVBoxLayout(group);
  column->addWidget(AddOption(opbStd_, 0, "File is &PRG", "opbStd"));
  column->addWidget(AddOption(opbStd_, 1, "File is b&inary", "opbStd"));
  chkStd_ = new QCheckBox("&Destination address");
  chkStd_->setObjectName("chkStd_0");
  column->addLayout(MakeAddressRow(chkStd_, text_[kDestination]));
  column->addStretch();
  return group;
}

QWidget* frmCodenetGUI::MakeExecuteGroup() {
  auto* group = new QGroupBox("Execute options");
  auto* column = new QVBoxLayout(group);
  column->addWidget(AddOption(opbExec_, 0, "E&xecute", "opbExec"));
  column->addLayout(MakeAddressRow(AddOption(opbExec_, 1, "Execute &address", "opbExec"), text_[kExecuteAddress]));
  column->addWidget(AddOption(opbExec_, 2, "Transfer &only", "opbExec"));
  column->addStretch();
  return group;
}

QLayout* frmCodenetGUI::MakeAddressRow(QWidget* choice, QLineEdit* address) {
  address->setMaximumWidth(fontMetrics().averageCharWidth() * 12);
  address->setToolTip("Four hexadecimal digits");
  auto* row = new QHBoxLayout;
  row->addWidget(choice);
  row->addWidget(new QLabel("$"));
  row->addWidget(address);
  return row;
}

QLayout* frmCodenetGUI::MakeSendRow() {
  cmdSend_ = MakeButton("cmdSend", "&Send file to C64", &frmCodenetGUI::Send);
  cmdSend_->setDefault(true);
  cmdStop_ = MakeButton("cmdStop", "Stop t&ransfer", &frmCodenetGUI::Stop);
  cmdStop_->setEnabled(false);
  auto* row = new QHBoxLayout;
  row->addWidget(new QLabel("Don't forget to set codenet receive state"), 1);
  row->addWidget(cmdStop_);
  row->addWidget(cmdSend_);
  return row;
}

QPushButton* frmCodenetGUI::MakeButton(const char* name, const QString& caption, void (frmCodenetGUI::*clicked)()) {
  auto* button = new QPushButton(caption);
  button->setObjectName(name);
  connect(button, &QPushButton::clicked, this, clicked);
  return button;
}

QWidget* frmCodenetGUI::MakeMemoryTab() {
  auto* text = new QLabel("Not available in this version...");
  text->setAlignment(Qt::AlignCenter);
  return text;
}

QWidget* frmCodenetGUI::MakeSettingsTab() {
  auto* tab = new QWidget;
  auto* form = new QFormLayout(tab);
  form->addRow("&IP to C64 server (needed)", text_[kHost]);
  form->addRow("&Port no of protocol", text_[kPort]);
  form->addRow("Preview PRG &name", text_[kPrgName]);
  auto* note = new QLabel("Used when previewing the picture on the C64; overrides the picture's file name.");
  note->setWordWrap(true);
  form->addRow(note);
  form->addRow(MakeButton("cmdSave", "Sa&ve settings", &frmCodenetGUI::Save));
  return tab;
}

void frmCodenetGUI::Save() {
  c64out::SaveCodenetForm(with_.settings, Form());
  outcome_->setText("Settings saved.");
}

void frmCodenetGUI::Load(const c64out::CodenetForm& form) {
  is_loading_ = true;
  text_[kFile]->setText(ToQt(form.file));
  text_[kDestination]->setText(ToQt(form.destination));
  text_[kExecuteAddress]->setText(ToQt(form.execute_address));
  text_[kHost]->setText(ToQt(form.host));
  text_[kPort]->setText(ToQt(form.port));
  text_[kPrgName]->setText(ToQt(form.prg_name));
  chkStd_->setChecked(form.set_destination);
  opbStd_->button(static_cast<int>(form.file_type))->setChecked(true);
  opbExec_->button(static_cast<int>(form.execute))->setChecked(true);
  is_loading_ = false;
  Compose();
}

c64out::CodenetForm frmCodenetGUI::Form() const {
  const auto text = [this](int field) { return FromQt(text_.at(static_cast<std::size_t>(field))->text()); };
  return {.file = text(kFile),
          .file_type = static_cast<c64out::FileType>(opbStd_->checkedId()),
          .set_destination = chkStd_->isChecked(),
          .destination = text(kDestination),
          .execute = static_cast<c64out::ExecuteChoice>(opbExec_->checkedId()),
          .execute_address = text(kExecuteAddress),
          .host = text(kHost),
          .port = text(kPort),
          .prg_name = text(kPrgName)};
}

void frmCodenetGUI::Compose() {
  if (is_loading_) return;
  const c64out::CodenetForm form = c64out::WithTrimmedFields(Form());
  TrimTo(*text_[kPort], ToQt(form.port));
  TrimTo(*text_[kDestination], ToQt(form.destination));
  TrimTo(*text_[kHost], ToQt(form.host));
  const c64out::ComposedOptions composed = c64out::ComposeOptions(form, QFileInfo(ToQt(form.file)).isFile());
  text_[kPreview]->setText("codenet.exe " + ToQt(composed.options));
  QPalette colours = palette();
  if (composed.incomplete) colours.setColor(QPalette::Text, QColor(255, 0, 0));
  text_[kPreview]->setPalette(colours);

  const c64out::CodenetControls enabled = c64out::EnabledControls(form);
  chkStd_->setEnabled(enabled.set_destination);
  text_[kDestination]->setEnabled(enabled.destination);
  opbExec_->button(0)->setEnabled(enabled.execute);
  opbExec_->button(1)->setEnabled(enabled.execute_at_address);
  opbExec_->button(2)->setEnabled(enabled.transfer_only);
  text_[kExecuteAddress]->setEnabled(enabled.execute_address);
}

void frmCodenetGUI::Browse() {
  const QString file = QFileDialog::getOpenFileName(this, "File to send to C64", StillThere(text_[kFile]->text()),
                                                    "PRG-files (*.prg);;All files (*.*)");
  if (!file.isEmpty()) text_[kFile]->setText(NativePath(file));
}

void frmCodenetGUI::Send() {
  if (runner_.IsShowing()) {  // the emulator is left running; once it is no longer waited for, it goes on here
    runner_.Stop();
    QTimer::singleShot(0, this, &frmCodenetGUI::Send);
    return;
  }
  if (runner_.IsBusy()) return outcome_->setText("A build is at work.");
  is_sending_ = true;
  outcome_->setText("Sending...");
  cmdSend_->setEnabled(false);
  cmdStop_->setEnabled(true);
  app::Guarded(
      with_.log, "frmCodenetGUI_cmdSend",
      [this] {
        outcome_->setText(ToQt(c64out::SendFile(Form(), {with_, runner_})));
      },
      [this](const std::exception& error) { outcome_->setText(error.what()); });
  cmdSend_->setEnabled(true);
  cmdStop_->setEnabled(false);
  is_sending_ = false;
}

void frmCodenetGUI::Stop() {
  if (is_sending_) runner_.Stop();
}

// Escape stops a transfer first, and closes only then.
void frmCodenetGUI::reject() {
  if (is_sending_) return Stop();
  QDialog::reject();
}

void frmCodenetGUI::closeEvent(QCloseEvent* event) {
  Stop();
  event->accept();
}

}  // namespace kelvo::ui
